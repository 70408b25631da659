#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const char allowed[] = ",~@$%^&|:;?\\#";

void addAllowedDelimiters()
{
    QTest::addColumn<char>("delimiter");
    for (const char *delimiter = allowed; *delimiter; ++delimiter)
        QTest::newRow(QByteArray(1, *delimiter).constData()) << *delimiter;
}

/// The text with the delimiter where it has a '*'.
QByteArray delimited(QByteArray text, char delimiter)
{
    return text.replace('*', delimiter);
}

} // namespace

/// The one character that separates fields, which no file states.
class tst_FileDelimiter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyAllowedCharacterDelimitsAWholeFile_data() { addAllowedDelimiters(); }

    void everyAllowedCharacterDelimitsAWholeFile()
    {
        QFETCH(char, delimiter);
        const Reading reading = readText(delimited(
            "!CUSTOM_ORDER=Movement*Product\n!CURRENCIES\nEUR*0*M*Y*English=Euro*French=L'euro\n"
            "!CONSOLIDATION_METHODS\nGLOBAL*Y*N*<=*0*100*x*English=Global\n"
            "!MEMBERS=Entity\n'Label*DefCurrency*UserDefined1*DefaultParent*Descriptions\n"
            "A*EUR*one*DefaultParent=#root*English=The A*French=Le A\n"
            "B**two*DefaultParent=A\n"
            "!HIERARCHIES=Entity\n*A\nA*B\n"
            "!HIERARCHIES=Product\n*P*1\nP*Q*0.5\n"
            "!MEMBERS=Product\nP*N*N*N*u***SC*DefaultParent=#root*English=The P\n"
            "Q*N*N*N*v****DefaultParent=P\n",
            delimiter));
        QCOMPARE(reading.warnings(), QStringList());
        const auto entity = reading.entity();
        QCOMPARE(treeOf(*entity), u"A\n  B\n"_s);
        QCOMPARE(entity->entityAttributes()->GetEntityUserDefined1(1), u"two"_s);
        QCOMPARE(entity->GetMemberDescription(0, 1), u"Le A"_s);
        QCOMPARE(reading.metadata()->GetLanguages(), QStringList({u"English"_s, u"French"_s}));
        QCOMPARE(treeOf(*reading.custom1()), u"[None]\nEUR\nGLOBAL\n"_s);
        QCOMPARE(treeOf(*reading.custom2()), u"P\n  Q\n[None]\nEUR\n"_s);
        QCOMPARE(reading.custom2()->customAttributes()->GetCustomUserDefined1(0), u"u"_s);
        QCOMPARE(reading.custom2()->GetMemberDescription(0, 0), u"The P"_s);
    }

    void theFirstWayIsARecordWithAnEmptyParent_data() { addAllowedDelimiters(); }

    void theFirstWayIsARecordWithAnEmptyParent()
    {
        QFETCH(char, delimiter);
        const Reading reading =
            readText(delimited("!HIERARCHIES=Entity\n*[None]\n*A\nA*B\n", delimiter));
        QCOMPARE(treeOf(*reading.entity()), u"[None]\nA\n  B\n"_s);
    }

    void theFirstWayWinsOverTheComment()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\n'Label;UserDefined1;DefaultParent;Descriptions\n"
                     "A,x;y,DefaultParent=#root,English=one; two\n!HIERARCHIES=Entity\n,A\nA,B\n");
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n"_s);
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(0), u"x;y"_s);
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), u"one; two"_s);
    }

    void theFirstWayWinsOverACommentsCharacterThatLabelsHappenToHold()
    {
        const Reading reading = readText(
            "!MEMBERS=Entity\n'Label,UserDefined1,DefaultParent,Descriptions\n"
            "Sales, net;one;DefaultParent=#root\nSales, east;two;DefaultParent=Sales, net\n"
            "!HIERARCHIES=Entity\n;Sales, net\nSales, net;Sales, east\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(treeOf(*reading.entity()), u"Sales, net\n  Sales, east\n"_s);
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(1), u"two"_s);
    }

    void theSecondWayIsTheCharacterAfterLabelInTheComment_data() { addAllowedDelimiters(); }

    void theSecondWayIsTheCharacterAfterLabelInTheComment()
    {
        QFETCH(char, delimiter);
        const Reading reading =
            readText(delimited("!HIERARCHIES=Entity\n#root*A\nA*B\n!MEMBERS=Entity\n"
                               "'Label*UserDefined1*DefaultParent*Descriptions\n"
                               "A*one*DefaultParent=#root\nB*two*DefaultParent=A\n",
                               delimiter));
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n"_s);
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(1), u"two"_s);
        QCOMPARE(reading.warnings(), QStringList());
    }

    void theSecondWayWinsOverTheThird()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\n'Label~UserDefined1~DefaultParent~Descriptions\n"
                     "A~;DefaultParent=x~DefaultParent=#root\n");
        QCOMPARE(reading.entity()->EnumAllMemberLabels(), QStringList{u"A"_s});
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(0),
                 u";DefaultParent=x"_s);
    }

    void theThirdWayIsTheCharacterBeforeDefaultParent_data() { addAllowedDelimiters(); }

    void theThirdWayIsTheCharacterBeforeDefaultParent()
    {
        QFETCH(char, delimiter);
        const Reading reading =
            readText(delimited("!MEMBERS=Custom1\nA*N*N*N*one****DefaultParent=B*English=The A\n"
                               "B*N*N*N*two****DefaultParent=B*English=The B\n",
                               delimiter));
        const auto custom = reading.custom1();
        QCOMPARE(custom->EnumAllMemberLabels(), QStringList({u"A"_s, u"B"_s, u"[None]"_s}));
        QCOMPARE(custom->customAttributes()->GetCustomUserDefined1(1), u"two"_s);
        QCOMPARE(custom->GetMemberDescription(1, 0), u"The B"_s);
    }

    void elseItIsTheSemicolon()
    {
        const Reading reading = readText("!HIERARCHIES=Entity\n#root;A\nA;B\n");
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n"_s);
    }

    void aParentThatBeginsWithADelimitersCharacterIsNoEmptyParent_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QByteArray members = "!MEMBERS=Entity\n"
                                   "'Label;UserDefined1;DefaultParent;Descriptions\n"
                                   "%M;one;DefaultParent=#root\nB;two;DefaultParent=%M\n";
        QTest::newRow("before the first empty parent")
            << "!HIERARCHIES=Entity\n%M;B\n;%M\n" + members;
        QTest::newRow("where the root is written out")
            << "!HIERARCHIES=Entity\n%M;B\n#root;%M\n" + members;
        QTest::newRow("after the first empty parent")
            << "!HIERARCHIES=Entity\n;%M\n%M;B\n" + members;
    }

    void aParentThatBeginsWithADelimitersCharacterIsNoEmptyParent()
    {
        QFETCH(QByteArray, text);
        const Reading reading = readText(text);
        QCOMPARE(treeOf(*reading.entity()), u"%M\n  B\n"_s);
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(1), u"two"_s);
        QCOMPARE(reading.warnings(), QStringList());
    }

    void theProfileHasADelimiterOfItsOwn()
    {
        const Reading reading = readTexts({"!HIERARCHIES=Entity\n,A\nA,B\n",
                                           "!MEMBERS=Year\n2010~DefaultParent=#root~English=Ten\n"
                                           "!HIERARCHIES=Year\n~2010\n"});
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n"_s);
        const auto years = reading.metadata()->GetYearDimension();
        QCOMPARE(treeOf(*years), u"2010\n"_s);
        QCOMPARE(years->GetMemberDescription(0, 0), u"Ten"_s);
    }
};

QTEST_APPLESS_MAIN(tst_FileDelimiter)
#include "tst_FileDelimiter.moc"
