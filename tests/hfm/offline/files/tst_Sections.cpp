#include "Reading.h"

#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArrayList sections = {
    "!FILE_FORMAT=11.12\n",
    "!VERSION=11.1.5033\n",
    "!CUSTOM_ORDER=Movement;Product\n",
    "!APPLICATION_SETTINGS\nDefaultCurrency=EUR\n",
    "!CURRENCIES\nEUR;0;M;Y;English=Euro\n",
    "!CONSOLIDATION_METHODS\nGLOBAL;Y;N;<=;0;100;x;English=Global\n",
    "!MEMBERS=Movement\nCLO;N;N;N;;;;;DefaultParent=#root;English=Closing\n",
    "!HIERARCHIES=Movement\n;CLO;1\n",
    "!MEMBERS=Account\n"
    "BS;ASSET;N;Y;N;;CLO;[None];2;N;Y;N;u1;u2;u3;x;SC;[ICP Top];N;DefaultParent=#root\n",
    "!HIERARCHIES=Account\n;BS\n",
};

} // namespace

/// The sections of an APP file: what they are called and in which order they come.
class tst_Sections : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sectionsMayComeInAnyOrder_data()
    {
        QTest::addColumn<int>("rotation");
        QTest::addColumn<bool>("backwards");
        for (int i = 0; i < int(sections.size()); ++i) {
            QTest::addRow("from section %d", i) << i << false;
            QTest::addRow("backwards from section %d", i) << i << true;
        }
    }

    void sectionsMayComeInAnyOrder()
    {
        QFETCH(int, rotation);
        QFETCH(bool, backwards);
        QByteArrayList order = sections;
        std::rotate(order.begin(), order.begin() + rotation, order.end());
        if (backwards)
            std::reverse(order.begin(), order.end());
        const Reading reading = readText(order.join());
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(treeOf(*reading.custom1()), u"CLO\n[None]\nEUR\nGLOBAL\n"_s);
        QCOMPARE(treeOf(*reading.custom2()), u"[None]\nEUR\n"_s);
        const auto account = reading.account();
        QCOMPARE(account->EnumChildMembers(hfm::allChildren, hfm::rootMember).first(), 0);
        const auto view = account->accountAttributes();
        QCOMPARE(view->GetAccountType(0), 2);
        QCOMPARE(view->GetAccountTopCustom1(0), 0);
        QCOMPARE(view->GetAccountDecimalPlaces(0), 2);
        QCOMPARE(view->GetAccountUserDefined3(0), u"u3"_s);
        QVERIFY(view->GetAccountCustom1AggEnabled(0));
        QVERIFY(!view->GetAccountCustom2AggEnabled(0));
    }

    void namesCompareWithoutCaseAndWithBlanksAroundTheEqualsSign_data()
    {
        QTest::addColumn<QByteArray>("members");
        QTest::addColumn<QByteArray>("hierarchy");
        const auto row = [](const char *members, const char *hierarchy) {
            QTest::newRow(members) << QByteArray(members) << QByteArray(hierarchy);
        };
        row("!MEMBERS=Entity", "!HIERARCHIES=Entity");
        row("!members=ENTITY", "!hierarchies=entity");
        row("!Members = Entity", "!Hierarchies\t=\tEntity");
        row("!MEMBERS =Entity  ", "!HIERARCHIES= eNTITY\t");
    }

    void namesCompareWithoutCaseAndWithBlanksAroundTheEqualsSign()
    {
        QFETCH(QByteArray, members);
        QFETCH(QByteArray, hierarchy);
        const Reading reading =
            readText(members + "\nA;;Y;;;;;;;;;DefaultParent=#root\n" + hierarchy + "\n;A\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(treeOf(*reading.entity()), u"A\n"_s);
        QVERIFY(reading.entity()->entityAttributes()->GetEntityAllowAdjs(0));
    }

    void anUnknownSectionIsSkippedWhole_data()
    {
        QTest::addColumn<QByteArray>("header");
        for (const char *header : {"!UNKNOWN", "!UNKNOWN=Entity", "!MEMBERSHIP=Entity", "!",
                                   "!MEMBERS=Nowhere", "!HIERARCHIES=Nowhere", "!MEMBERS"})
            QTest::newRow(header) << QByteArray(header);
    }

    void anUnknownSectionIsSkippedWhole()
    {
        QFETCH(QByteArray, header);
        const Reading reading = readText("!HIERARCHIES=Entity\n;A\n!MEMBERS=Entity\n"
                                         "A;;;;;;;;;;;DefaultParent=#root\n" +
                                         header +
                                         "\nX;;;;;;;;;;;DefaultParent=#root;Klingon=x\nA;X\n;Y\n"
                                         "'Label;Nothing\n"
                                         "!HIERARCHIES=Entity\n;B\n!MEMBERS=Entity\n"
                                         "B;;;;;;;;;;;DefaultParent=#root\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(treeOf(*reading.entity()), u"A\nB\n"_s);
        QCOMPARE(reading.metadata()->GetLanguages(), QStringList{u"English"_s});
    }

    void whatStandsBeforeTheFirstSectionIsSkipped()
    {
        const Reading reading =
            readText("Extracted by HFM\nX;Y\n\n!HIERARCHIES=Entity\n;A\n!MEMBERS=Entity\n"
                     "A;;;;;;;;;;;DefaultParent=#root\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(treeOf(*reading.entity()), u"A\n"_s);
    }

    void onlyAnExclamationMarkAtTheVeryBeginningMakesASection()
    {
        const Reading reading = readText("!MEMBERS=Entity\nA;;;;;;!MEMBERS=Account;;;;;"
                                         "DefaultParent=#root\n!HIERARCHIES=Entity\n;A\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(0),
                 u"!MEMBERS=Account"_s);
    }

    void aSectionThatStandsTwiceIsReadAsOneInFileOrder()
    {
        const Reading reading = readText("!HIERARCHIES=Entity\n;A\nA;B\n"
                                         "!MEMBERS=Entity\n"
                                         "'Label;UserDefined1;DefaultParent;Descriptions\n"
                                         "A;first;DefaultParent=#root\n"
                                         "!CURRENCIES\nEUR;0\n"
                                         "!HIERARCHIES=Entity\nA;C\n;D\n"
                                         "!MEMBERS=Entity\n"
                                         "C;;DefaultParent=A\nB;;DefaultParent=A\n"
                                         "D;second;DefaultParent=#root\n"
                                         "!CURRENCIES\nUSD;0\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto entity = reading.entity();
        QCOMPARE(treeOf(*entity), u"A\n  B\n  C\nD\n"_s);
        QCOMPARE(entity->EnumAllMemberLabels(), QStringList({u"A"_s, u"C"_s, u"B"_s, u"D"_s}));
        QCOMPARE(entity->entityAttributes()->GetEntityUserDefined1(3), u"second"_s);
        QCOMPARE(treeOf(*reading.custom2()), u"[None]\nEUR\nUSD\n"_s);
    }
};

QTEST_APPLESS_MAIN(tst_Sections)
#include "tst_Sections.moc"
