#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The lines of a small file, to be joined by any line end.
const QByteArrayList lines = {
    "!MEMBERS=Entity",
    "A;EUR;Y;N;N;;u1;;;;;DefaultParent=#root;English=The A",
    "B;EUR;N;Y;N;;;;;;;DefaultParent=A;English=The B",
    "!CURRENCIES",
    "EUR;0",
    "!HIERARCHIES=Entity",
    ";A",
    "A;B",
};

} // namespace

/// Lines, blanks, quotes and flags: what HFM's files are written with.
class tst_LinesOfFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void crLfAndLfAndLoneCrEndLines_data()
    {
        QTest::addColumn<QByteArray>("end");
        QTest::newRow("CR LF") << QByteArray("\r\n");
        QTest::newRow("LF") << QByteArray("\n");
        QTest::newRow("lone CR") << QByteArray("\r");
        QTest::newRow("blank lines") << QByteArray("\r\n\r\n");
        QTest::newRow("lines of blanks") << QByteArray("\n \t \n");
        QTest::newRow("lone CR and LF") << QByteArray("\r\r\n\n");
    }

    void crLfAndLfAndLoneCrEndLines()
    {
        QFETCH(QByteArray, end);
        for (const QByteArray &last : {end, QByteArray()}) {
            const Reading reading = readText(lines.join(end) + last);
            QCOMPARE(reading.warnings().size(), last.isEmpty() ? 1 : 0);
            QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n"_s);
            QCOMPARE(reading.entity()->GetMemberDescription(1, 0), u"The B"_s);
        }
    }

    void theThreeLineEndsMayStandInOneFileAndCountAsOneLineEach()
    {
        const Reading reading =
            readText("!HIERARCHIES=Entity\r\n;A\rA;B\nA;B\r\n\nA;C\n\rA;C\r\r\nA;C");
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n  C\n"_s);
        QVERIFY(reading.warnsOf(4, {u"A"_s, u"B"_s}));
        QVERIFY(reading.warnsOf(8, {u"A"_s, u"C"_s}));
        QVERIFY(reading.warnsOf(10, {u"A"_s, u"C"_s}));
    }

    void fieldsAreTrimmed()
    {
        const Reading reading = readText("!MEMBERS=Entity\n"
                                         "\t A A ; EUR\t; Y ; Y ;Y ; SC ; u 1 ;\tu2; u3 ; ; ;"
                                         " DefaultParent= #root ; English = The  A \t\n"
                                         "!CURRENCIES\n EUR ; 0 ; \n"
                                         "!HIERARCHIES=Entity\n ; A A \t\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto entity = reading.entity();
        QCOMPARE(treeOf(*entity), u"A A\n"_s);
        QCOMPARE(entity->GetMemberDescription(0, 0), u"The  A"_s);
        QCOMPARE(reading.metadata()->GetLanguages(), QStringList{u"English"_s});
        const auto view = entity->entityAttributes();
        QVERIFY(view->GetEntityAllowAdjs(0));
        QCOMPARE(view->GetEntityUserDefined1(0), u"u 1"_s);
        QCOMPARE(view->GetEntityUserDefined2(0), u"u2"_s);
        QCOMPARE(view->GetEntityUserDefined3(0), u"u3"_s);
        QCOMPARE(reading.value()->GetMemberLabel(view->GetEntityCurrencyId(0)), u"EUR"_s);
    }

    void oneBlankIsAnEmptyValue()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\nA; ; ; ; ; ; ; ; ; ; ;DefaultParent= ;English= \n"
                     "!HIERARCHIES=Entity\n ;A\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto view = reading.entity()->entityAttributes();
        QCOMPARE(reading.value()->GetMemberLabel(view->GetEntityCurrencyId(0)), u"[None]"_s);
        QCOMPARE(view->GetEntitySecurityClassId(0), hfm::noClass);
        QCOMPARE(view->GetEntityUserDefined1(0), QString());
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), QString());
    }

    void nothingIsQuoted()
    {
        const Reading reading = readText("!MEMBERS=Entity\n"
                                         "\"A;;Y;;;;\"u1;u2\";;;;DefaultParent=#root;"
                                         "English=\"quoted\";French=\"open\n"
                                         "!HIERARCHIES=Entity\n;\"A\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto entity = reading.entity();
        QCOMPARE(treeOf(*entity), u"\"A\n"_s);
        QCOMPARE(entity->entityAttributes()->GetEntityUserDefined1(0), u"\"u1"_s);
        QCOMPARE(entity->entityAttributes()->GetEntityUserDefined2(0), u"u2\""_s);
        QCOMPARE(entity->GetMemberDescription(0, 0), u"\"quoted\""_s);
        QCOMPARE(entity->GetMemberDescription(0, 1), u"\"open"_s);
    }

    void flagsAreYAndN_data()
    {
        QTest::addColumn<QByteArray>("flag");
        QTest::addColumn<bool>("isSet");
        QTest::addColumn<bool>("isWrong");
        QTest::newRow("Y") << QByteArray("Y") << true << false;
        QTest::newRow("N") << QByteArray("N") << false << false;
        QTest::newRow("empty") << QByteArray() << false << false;
        QTest::newRow("word") << QByteArray("Maybe") << false << true;
    }

    void flagsAreYAndN()
    {
        QFETCH(QByteArray, flag);
        QFETCH(bool, isSet);
        QFETCH(bool, isWrong);
        QByteArray text = "!MEMBERS=Entity\nA;;Y;N;Y;;;;;;;DefaultParent=#root\n"
                          "B;;?;N;N;;;;;;;DefaultParent=#root\n!HIERARCHIES=Entity\n;A\n;B\n";
        text.replace("?", flag);
        const Reading reading = readText(text);
        const auto view = reading.entity()->entityAttributes();
        QVERIFY(view->GetEntityAllowAdjs(0));
        QVERIFY(!view->GetEntityIsICP(0));
        QVERIFY(view->GetEntityAllowChildAdjs(0));
        QCOMPARE(view->GetEntityAllowAdjs(1), isSet);
        QCOMPARE(reading.warnings().size(), isWrong ? 1 : 0);
        QCOMPARE(reading.warnsOf(3, {QString::fromLatin1(flag)}), isWrong);
    }
};

QTEST_APPLESS_MAIN(tst_LinesOfFiles)
#include "tst_LinesOfFiles.moc"
