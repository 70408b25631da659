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
