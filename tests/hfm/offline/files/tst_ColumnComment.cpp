#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The comment that names a section's columns.
class tst_ColumnComment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itWinsOverTheUsualOrder()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\n"
                     "'Label;SecurityClass;UserDefined3;UserDefined1;AllowAdjFromChildren;IsICP;"
                     "DefCurrency;Unheard;AllowAdjs;DefaultParent;Descriptions\n"
                     "A;SC;three;one;Y;N;EUR;x;Y;DefaultParent=#root;English=The A\n"
                     "!CURRENCIES\nEUR;0\n!HIERARCHIES=Entity\n;A\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto view = reading.entity()->entityAttributes();
        QCOMPARE(view->GetEntityUserDefined1(0), u"one"_s);
        QCOMPARE(view->GetEntityUserDefined2(0), QString());
        QCOMPARE(view->GetEntityUserDefined3(0), u"three"_s);
        QVERIFY(view->GetEntityAllowAdjs(0));
        QVERIFY(!view->GetEntityIsICP(0));
        QVERIFY(view->GetEntityAllowChildAdjs(0));
        QCOMPARE(reading.value()->GetMemberLabel(view->GetEntityCurrencyId(0)), u"EUR"_s);
        QCOMPARE(reading.session()->GetSecurity()->GetSecurityClassName(
                     view->GetEntitySecurityClassId(0)),
                 u"SC"_s);
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), u"The A"_s);
    }

    void itNamesTheAccountsColumnsPerCustomDimensionInAnyOrder()
    {
        const Reading reading = readText(
            "!CUSTOM_ORDER=Movement;Product\n!MEMBERS=Account\n"
            "'Label;EnableProductAggr;EnableMovementAggr;ProductTopMember;MovementTopMember;"
            "UsesLineItems;NumDecimalPlaces;IsICP;IsConsolidated;IsCalculated;AccountType;"
            "DefaultParent;Descriptions\n"
            "BS;Y;N;P1;M1;Y;4;R;Y;N;FLOW;DefaultParent=#root\n"
            "!HIERARCHIES=Account\n;BS\n"
            "!HIERARCHIES=Movement\n;M1;1\n!HIERARCHIES=Product\n;P1;1\n");
        const auto view = reading.account()->accountAttributes();
        QVERIFY(!view->GetAccountCustom1AggEnabled(0));
        QVERIFY(view->GetAccountCustom2AggEnabled(0));
        QCOMPARE(view->GetAccountTopCustom1(0), reading.custom1()->GetMemberId(u"M1"_s));
        QCOMPARE(view->GetAccountTopCustom2(0), reading.custom2()->GetMemberId(u"P1"_s));
        QVERIFY(view->GetAccountIsLID(0));
        QCOMPARE(view->GetAccountDecimalPlaces(0), qint16(4));
        QCOMPARE(view->GetAccountIsICP(0), 1);
        QVERIFY(view->GetAccountIsConsolidated(0));
        QVERIFY(!view->GetAccountIsCalculated(0));
        QCOMPARE(view->GetAccountType(0), 5);
    }

    void aCustomDimensionsOwnNameMayHoldAnyOfTheWordsAroundIt()
    {
        const Reading reading = readText(
            "!CUSTOM_ORDER=BasicPlan;ICPFlow;DesktopMember;EnableAggr\n!MEMBERS=Account\n"
            "'Label;ICPTopMember;EnableAggrTopMember;DesktopMemberTopMember;ICPFlowTopMember;"
            "BasicPlanTopMember;EnableEnableAggrAggr;EnableDesktopMemberAggr;EnableICPFlowAggr;"
            "EnableBasicPlanAggr;DefaultParent;Descriptions\n"
            "BS;[ICP Top];E1;D1;I1;B1;Y;N;Y;N;DefaultParent=#root\n"
            "!HIERARCHIES=Account\n;BS\n"
            "!HIERARCHIES=BasicPlan\n;B1;1\n!HIERARCHIES=ICPFlow\n;I1;1\n"
            "!HIERARCHIES=DesktopMember\n;D1;1\n!HIERARCHIES=EnableAggr\n;E1;1\n");
        const auto metadata = reading.metadata();
        const auto view = reading.account()->accountAttributes();
        QCOMPARE(view->GetAccountTopCustom1(0), reading.custom1()->GetMemberId(u"B1"_s));
        QCOMPARE(view->GetAccountTopCustom2(0), reading.custom2()->GetMemberId(u"I1"_s));
        QCOMPARE(view->GetAccountTopCustom3(0),
                 metadata->GetCustom3Dimension()->GetMemberId(u"D1"_s));
        QCOMPARE(view->GetAccountTopCustom4(0),
                 metadata->GetCustom4Dimension()->GetMemberId(u"E1"_s));
        QVERIFY(!view->GetAccountCustom1AggEnabled(0));
        QVERIFY(view->GetAccountCustom2AggEnabled(0));
        QVERIFY(!view->GetAccountCustom3AggEnabled(0));
        QVERIFY(view->GetAccountCustom4AggEnabled(0));
    }

    void columnsOfTheFifthCustomDimensionAndTheFollowingAreIgnored()
    {
        const Reading reading = readText(
            "!CUSTOM_ORDER=A;B;C;D;Fifth;Sixth\n!MEMBERS=Account\n"
            "'Label;FifthTopMember;SixthTopMember;ATopMember;EnableFifthAggr;EnableSixthAggr;"
            "EnableDAggr;DefaultParent;Descriptions\n"
            "BS;X;Y;M;Y;Y;N;DefaultParent=#root\n!HIERARCHIES=Account\n;BS\n"
            "!HIERARCHIES=A\n;M;1\n");
        const auto view = reading.account()->accountAttributes();
        QCOMPARE(view->GetAccountTopCustom1(0), reading.custom1()->GetMemberId(u"M"_s));
        QCOMPARE(view->GetAccountTopCustom2(0), -1);
        QCOMPARE(view->GetAccountTopCustom3(0), -1);
        QCOMPARE(view->GetAccountTopCustom4(0), -1);
        QVERIFY(!view->GetAccountCustom1AggEnabled(0));
        QVERIFY(!view->GetAccountCustom2AggEnabled(0));
        QVERIFY(!view->GetAccountCustom4AggEnabled(0));
    }

    void columnsCalledCustomNGoByTheirNumber()
    {
        const Reading reading =
            readText("!CUSTOM_ORDER=Movement;Product\n!MEMBERS=Account\n"
                     "'Label;Custom2TopMember;Custom1TopMember;EnableCustom2Aggr;EnableCustom1Aggr;"
                     "DefaultParent;Descriptions\n"
                     "BS;P;M;Y;N;DefaultParent=#root\n!HIERARCHIES=Account\n;BS\n"
                     "!HIERARCHIES=Movement\n;M;1\n!HIERARCHIES=Product\n;P;1\n");
        const auto view = reading.account()->accountAttributes();
        QCOMPARE(view->GetAccountTopCustom1(0), reading.custom1()->GetMemberId(u"M"_s));
        QCOMPARE(view->GetAccountTopCustom2(0), reading.custom2()->GetMemberId(u"P"_s));
        QVERIFY(!view->GetAccountCustom1AggEnabled(0));
        QVERIFY(view->GetAccountCustom2AggEnabled(0));
    }

    void theLabelNeedNotStandFirst()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\n'DefCurrency;Label;UserDefined1;DefaultParent;Descriptions\n"
                     "EUR;A;one;DefaultParent=#root;English=The A\n!HIERARCHIES=Entity\n;A\n"
                     "!CURRENCIES\n'Scale;Label;Descriptions\n0;EUR;English=Euro\n"
                     "!CONSOLIDATION_METHODS\n'IsHoldingMethod;Label;PercentConsol;Descriptions\n"
                     "Y;HOLDING;100;English=Holding\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto entity = reading.entity();
        QCOMPARE(treeOf(*entity), u"A\n"_s);
        QCOMPARE(entity->GetMemberDescription(0, 0), u"The A"_s);
        const auto view = entity->entityAttributes();
        QCOMPARE(view->GetEntityUserDefined1(0), u"one"_s);
        QCOMPARE(reading.value()->GetMemberLabel(view->GetEntityCurrencyId(0)), u"EUR"_s);
        const auto custom = reading.custom1();
        QCOMPARE(treeOf(*custom), u"[None]\nEUR\nHOLDING\n"_s);
        QCOMPARE(custom->GetMemberDescription(custom->GetMemberId(u"EUR"_s), 0), u"Euro"_s);
        QCOMPARE(custom->GetMemberDescription(custom->GetMemberId(u"HOLDING"_s), 0), u"Holding"_s);
    }

    void aRemarkThatHoldsTheWordsOfColumnsNamesNone_data()
    {
        QTest::addColumn<QByteArray>("remark");
        for (const char *remark :
             {"'the Label; written by hand", "'The Label;Descriptions;too",
              "'here; Label; and so on", "'DefaultParent; Label", "'Descriptions; DefaultParent",
              "'Parent; see the manual", "'Child"})
            QTest::newRow(remark) << QByteArray(remark);
    }

    void aRemarkThatHoldsTheWordsOfColumnsNamesNone()
    {
        QFETCH(QByteArray, remark);
        const Reading reading =
            readText("!MEMBERS=Entity\n" + remark +
                     "\nA;;;;;;one;;;;;DefaultParent=#root\nB;;;;;;two;;;;;DefaultParent=A\n"
                     "!HIERARCHIES=Entity\n" +
                     remark + "\n;A\nA;B\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n"_s);
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(1), u"two"_s);
    }

    void itIsSplitAtTheDelimiterElseAtSemicolonElseAtComma_data()
    {
        QTest::addColumn<QByteArray>("between");
        QTest::newRow("the delimiter") << QByteArray("~");
        QTest::newRow("semicolon") << QByteArray(";");
        QTest::newRow("comma") << QByteArray(",");
    }

    void itIsSplitAtTheDelimiterElseAtSemicolonElseAtComma()
    {
        QFETCH(QByteArray, between);
        const QByteArray columns = QByteArrayList({"'Label", "UserDefined2", "UserDefined1",
                                                   "DefaultParent", "Descriptions"})
                                       .join(between);
        const Reading reading =
            readText("!MEMBERS=Entity\n" + columns +
                     "\nA~two~one~DefaultParent=#root~English=x\n!HIERARCHIES=Entity\n~A\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(0), u"one"_s);
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined2(0), u"two"_s);
    }

    void columnNamesCompareWithoutCaseAndBlanks()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\n"
                     "'LABEL ; userdefined2 ; USERDEFINED1; defaultparent ; DESCRIPTIONS\n"
                     "A;two;one;DefaultParent=#root\n!HIERARCHIES=Entity\n;A\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(0), u"one"_s);
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined2(0), u"two"_s);
    }

    void anyOtherCommentIsPassedOver()
    {
        const Reading reading =
            readText("'written by hand\n!MEMBERS=Entity\n'Remark; this; and that\n"
                     "'Label;UserDefined1;DefaultParent;Descriptions\n"
                     "A;one;DefaultParent=#root\n"
                     "'B;two;DefaultParent=#root\n'\n"
                     "C;three;DefaultParent=#root\n"
                     "!HIERARCHIES=Entity\n'A;B\n;A\n'\n;C\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(treeOf(*reading.entity()), u"A\nC\n"_s);
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(1), u"three"_s);
    }

    void aCommentAmongTheRecordsChangesNoColumns()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\n"
                     "'Label;UserDefined1;UserDefined2;DefaultParent;Descriptions\n"
                     "A;one;two;DefaultParent=#root\n"
                     "'Label;UserDefined2;UserDefined1;DefaultParent;Descriptions\n"
                     "B;one;two;DefaultParent=#root\n!HIERARCHIES=Entity\n;A\n;B\n");
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(1), u"one"_s);
    }

    void itNamesTheColumnsOfItsOwnSectionOnly()
    {
        const Reading reading =
            readText("!MEMBERS=Custom1\n"
                     "'Label;UserDefined2;UserDefined1;DefaultParent;Descriptions\n"
                     "X;two;one;DefaultParent=#root\n!HIERARCHIES=Custom1\n;X;1\n"
                     "!MEMBERS=Custom2\nY;N;N;N;first;second;third;;DefaultParent=#root\n"
                     "!HIERARCHIES=Custom2\n;Y;1\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.custom1()->customAttributes()->GetCustomUserDefined1(0), u"one"_s);
        QCOMPARE(reading.custom1()->customAttributes()->GetCustomUserDefined2(0), u"two"_s);
        QCOMPARE(reading.custom2()->customAttributes()->GetCustomUserDefined1(0), u"first"_s);
        QCOMPARE(reading.custom2()->customAttributes()->GetCustomUserDefined3(0), u"third"_s);
    }

    void itNamesParentAndChildOfAHierarchyInEitherOrder()
    {
        const Reading reading =
            readText("!HIERARCHIES=Entity\n'Child;Parent\nA;\nB;A\n!MEMBERS=Entity\nA\nB\n"
                     "!HIERARCHIES=Account\n'Parent;Child\n;A\nA;B\n!MEMBERS=Account\n"
                     "A;ASSET\nB;ASSET\n");
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n"_s);
        QVERIFY(treeOf(*reading.account()).startsWith(u"A\n  B\n[Active]\n"_s));
        QCOMPARE(reading.warnings(), QStringList());
    }

    void itNamesTheWeightOfAHierarchyWhereverItStands()
    {
        const Reading reading = readText("!HIERARCHIES=Custom1\n'Child;AggrWeight;Parent\n"
                                         "A;1;\nB;-1;A\n!MEMBERS=Custom1\n"
                                         "'Label;DefaultParent;Descriptions\n"
                                         "A;DefaultParent=#root\nB;DefaultParent=A\n");
        QCOMPARE(treeOf(*reading.custom1()), u"A\n  B\n[None]\n"_s);
        QCOMPARE(reading.warnings(), QStringList());
    }

    void recordsWithFewerFieldsThanItNamesHaveTheMissingOnesEmpty()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\n"
                     "'Label;UserDefined1;UserDefined2;DefaultParent;Descriptions\n"
                     "A;one;DefaultParent=#root;English=The A\n!HIERARCHIES=Entity\n;A\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(0), u"one"_s);
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined2(0), QString());
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), u"The A"_s);
    }
};

QTEST_APPLESS_MAIN(tst_ColumnComment)
#include "tst_ColumnComment.moc"
