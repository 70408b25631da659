#include "Reading.h"

#include <QStringEncoder>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray entities = "!MEMBERS=Entity\nA;;;;;;;;;;;DefaultParent=#root\n"
                            "!HIERARCHIES=Entity\n;A\n";

} // namespace

/// !FILE_FORMAT, !VERSION and !CUSTOM_ORDER.
class tst_FormatAndOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFlatFileOfAnotherProductIsRefused_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");
        QTest::newRow("plain") << "!FILE_FORMAT=ADS\n" + entities << 1;
        QTest::newRow("in any case") << "!file_format=ads\n" + entities << 1;
        QTest::newRow("with blanks") << "!FILE_FORMAT = ADS \r\n" + entities << 1;
        QTest::newRow("after other lines") << "'x\r\n\r\n" + entities + "!FILE_FORMAT=ADS" << 7;
        QTest::newRow("in UTF-16") << QByteArray(QStringEncoder(QStringConverter::Utf16LE)(
                                          QString::fromLatin1("\n!FILE_FORMAT=ADS\n" + entities)))
                                   << 2;
        QTest::newRow("without members") << QByteArray("!FILE_FORMAT=ADS\n") << 1;
    }

    void theFlatFileOfAnotherProductIsRefused()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        const Reading reading = readText(text);
        QVERIFY(reading.refusal);
        QCOMPARE(reading.refusal->file(), u"Test.app"_s);
        QCOMPARE(reading.refusal->line(), line);
        QVERIFY(reading.refusal->reason().contains(u"another product"_s));
        QVERIFY(reading.refusal->reason().contains(u"ADS"_s));
    }

    void everyOtherFormatAndVersionIsRead_data()
    {
        QTest::addColumn<QByteArray>("headers");
        for (const char *headers :
             {"!FILE_FORMAT=11.12\n", "!FILE_FORMAT=11.120\n", "!FILE_FORMAT=011.12\n",
              "!FILE_FORMAT=3.5\n", "!FILE_FORMAT\n", "!FILE_FORMAT=\n", "!FILE_FORMAT=99.ADSX\n",
              "!VERSION=11.1.5033\n", "!VERSION=3.5\n", "!VERSION=ADS\n", ""})
            QTest::newRow(headers) << QByteArray(headers);
    }

    void everyOtherFormatAndVersionIsRead()
    {
        QFETCH(QByteArray, headers);
        const Reading reading = readText(headers + entities);
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(treeOf(*reading.entity()), u"A\n"_s);
    }

    void theCustomOrderNamesTheFirstFourDimensions()
    {
        const Reading reading =
            readText("!CUSTOM_ORDER=Movement;Product;Market Place;Nature;Fifth;Sixth\n"
                     "!HIERARCHIES=Nature\n;n;1\n!HIERARCHIES=Movement\n;m;1\n"
                     "!HIERARCHIES=market place\n;k;1\n!HIERARCHIES=Product\n;p;1\n"
                     "!HIERARCHIES=Fifth\n;x;1\n!MEMBERS=Sixth\nx;N;N;N;;;;;DefaultParent=#root\n");
        const auto metadata = reading.metadata();
        QCOMPARE(treeOf(*metadata->GetCustom1Dimension()), u"m\n[None]\n"_s);
        QCOMPARE(treeOf(*metadata->GetCustom2Dimension()), u"p\n[None]\n"_s);
        QCOMPARE(treeOf(*metadata->GetCustom3Dimension()), u"k\n[None]\n"_s);
        QCOMPARE(treeOf(*metadata->GetCustom4Dimension()), u"n\n[None]\n"_s);
        QCOMPARE(metadata->GetCustom3Dimension()->GetDimensionName(), u"Custom3"_s);
        QCOMPARE(metadata->GetCustom4Dimension()->EnumAllMembers().size(), 2);
    }

    void emptyNamesInTheCustomOrderAreSkipped()
    {
        const Reading reading = readText("!CUSTOM_ORDER=;Movement;; ;Product;\n"
                                         "!HIERARCHIES=Movement\n;m;1\n"
                                         "!HIERARCHIES=Product\n;p;1\n");
        QCOMPARE(treeOf(*reading.custom1()), u"m\n[None]\n"_s);
        QCOMPARE(treeOf(*reading.custom2()), u"p\n[None]\n"_s);
    }

    void aSecondCustomOrderIsIgnored()
    {
        const Reading reading = readText("!CUSTOM_ORDER=Movement;Product\n"
                                         "!CUSTOM_ORDER=Product;Movement\n"
                                         "!HIERARCHIES=Movement\n;m;1\n"
                                         "!HIERARCHIES=Product\n;p;1\n");
        QCOMPARE(treeOf(*reading.custom1()), u"m\n[None]\n"_s);
        QCOMPARE(treeOf(*reading.custom2()), u"p\n[None]\n"_s);
    }

    void itMayStandAfterTheAccountsAndAfterItsDimensions()
    {
        const Reading reading = readText(
            "!MEMBERS=Account\n"
            "BS;ASSET;N;Y;N;;m;3;Y;N;u1;u2;u3;x;SC;[ICP Top];N;DefaultParent=#root;English=The BS\n"
            "!HIERARCHIES=Account\n;BS\n!HIERARCHIES=Movement\n;m;1\n"
            "!MEMBERS=Movement\nm;N;N;N;;;;;DefaultParent=#root\n!CUSTOM_ORDER=Movement\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(treeOf(*reading.custom1()), u"m\n[None]\n"_s);
        const auto view = reading.account()->accountAttributes();
        QCOMPARE(view->GetAccountTopCustom1(0), 0);
        QCOMPARE(view->GetAccountDecimalPlaces(0), qint16(3));
        QVERIFY(view->GetAccountIsLID(0));
        QVERIFY(!view->GetAccountCustom1AggEnabled(0));
        QCOMPARE(view->GetAccountUserDefined3(0), u"u3"_s);
        QCOMPARE(reading.account()->GetMemberDescription(0, 0), u"The BS"_s);
    }

    void withoutItTheFourAreCalledCustom1ToCustom4()
    {
        const Reading reading = readText("!HIERARCHIES=Custom4\n;d;1\n!HIERARCHIES=CUSTOM1\n;a;1\n"
                                         "!HIERARCHIES=custom2\n;b;1\n!HIERARCHIES=Custom3\n;c;1\n"
                                         "!HIERARCHIES=Custom5\n;e;1\n");
        const auto metadata = reading.metadata();
        QCOMPARE(treeOf(*metadata->GetCustom1Dimension()), u"a\n[None]\n"_s);
        QCOMPARE(treeOf(*metadata->GetCustom2Dimension()), u"b\n[None]\n"_s);
        QCOMPARE(treeOf(*metadata->GetCustom3Dimension()), u"c\n[None]\n"_s);
        QCOMPARE(treeOf(*metadata->GetCustom4Dimension()), u"d\n[None]\n"_s);
    }

    void besideItTheDimensionsAreStillFoundAsCustom1ToCustom4()
    {
        const Reading reading =
            readText("!CUSTOM_ORDER=Movement;Product\n!HIERARCHIES=Custom2\n;p;1\n"
                     "!MEMBERS=Movement\nm;N;N;N;;;;;DefaultParent=#root\n"
                     "!HIERARCHIES=Custom1\n;m;1\n!MEMBERS=Product\n"
                     "p;N;N;N;;;;;DefaultParent=#root\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(treeOf(*reading.custom1()), u"m\n[None]\n"_s);
        QCOMPARE(treeOf(*reading.custom2()), u"p\n[None]\n"_s);
    }
};

QTEST_APPLESS_MAIN(tst_FormatAndOrder)
#include "tst_FormatAndOrder.moc"
