#include "runtime/RuntimeError.h"
#include "support/FakeHfm.h"
#include "viewer/MemberAttributes.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_MemberAttributes : public QObject
{
    Q_OBJECT

    std::unique_ptr<FakeHfm> mHfm;
    modGlobal mGlobal;

    FakeApplication &application() { return mHfm->application(); }

    void choose(FakeKind kind)
    {
        static const QHash<FakeKind, QString> names = {
            {FakeKind::Account, u"ACCOUNT"_s},   {FakeKind::Entity, u"ENTITY"_s},
            {FakeKind::Scenario, u"SCENARIO"_s}, {FakeKind::Custom1, u"CUSTOM1"_s},
            {FakeKind::Custom2, u"CUSTOM2"_s},   {FakeKind::Custom3, u"CUSTOM3"_s},
            {FakeKind::Custom4, u"CUSTOM4"_s}};
        mGlobal.gDimension = application().dimensions[size_t(kind)];
        mGlobal.gDimensionName = names.value(kind);
    }
    QString attributes(hfm::MemberId member, bool expanded = false, EntityFilter filter = {})
    {
        return MemberAttributes(mGlobal, expanded, filter).GetMemberAttributes(member);
    }

private Q_SLOTS:
    void init()
    {
        mHfm = std::make_unique<FakeHfm>();
        mGlobal = {};
        mGlobal.gSession = mHfm->openSession();
        mGlobal.gMetadata = mGlobal.gSession->GetMetadata();

        for (int number = 1; number <= 4; ++number)
            application().custom(number).setMembers(u"[None]\nTop%1\n  Leaf"_s.arg(number));
        application().value().setMembers(u"[None]\nEUR\nUSD"_s);
        application().security->addClass(u"Europe"_s);
        application().security->addClass(u"  "_s);
        application().account().setMembers(u"Net\n  Sales\n  Cost"_s);
        application().entity().setMembers(u"Group\n  US01"_s);
        FakeAccount &sales = application().account().account(u"Sales"_s);
        sales.topCustoms = {1, 2, 0, 1};
        sales.userDefined = {u"one"_s, u"X"_s, u"three"_s};
        sales.securityClass = 0;
        sales.decimalPlaces = 2;
        sales.isLID = true;
        sales.customAggEnabled = {true, false, true, false};
        sales.isICP = 1;
        sales.type = 12;
        FakeEntity &us = application().entity().entity(u"US01"_s);
        us.currency = 2;
        us.allowAdjs = true;
        us.isICP = true;
        us.securityClass = 0;
        us.userDefined = {u"   "_s, u" two "_s, QString()};
    }

    // Accounts.

    void anAccountsItemsComeInTheirOrder()
    {
        choose(FakeKind::Account);
        QCOMPARE(attributes(1), u"Type=Dynamic, IsICP=Restricted, TopC1=Top1, TopC2=Leaf, "
                                "TopC3=[None], TopC4=Top4, Security=Europe, UD1=one, UD2=, "
                                "UD3=three"_s);
    }

    void anAccountsExpandedItemsFollow()
    {
        choose(FakeKind::Account);
        QCOMPARE(attributes(1, true),
                 u"Type=Dynamic, IsICP=Restricted, TopC1=Top1, TopC2=Leaf, TopC3=[None], "
                 "TopC4=Top4, Security=Europe, UD1=one, UD2=, UD3=three, DefaultParent=Net, "
                 "HierRelationship=Base[DefParGen:1], DecPlaces=2, IsCalc=False, IsCons=False, "
                 "IsLID=True, C1AggEnabled=True, C2AggEnabled=False, C3AggEnabled=True, "
                 "C4AggEnabled=False"_s);
    }

    void anAccountWithNothingSet()
    {
        choose(FakeKind::Account);
        QCOMPARE(attributes(0, true),
                 u"Type=Income, IsICP=No, TopC1=, TopC2=, TopC3=, TopC4=, Security=[Default], "
                 "UD1=, UD2=, UD3=, DefaultParent=, HierRelationship=Parent[DefParGen:0], "
                 "DecPlaces=0, IsCalc=False, IsCons=False, IsLID=False, C1AggEnabled=False, "
                 "C2AggEnabled=False, C3AggEnabled=False, C4AggEnabled=False"_s);
    }

    void accountFlagsAreNotMixedUp()
    {
        choose(FakeKind::Account);
        FakeAccount &cost = application().account().account(u"Cost"_s);
        cost.isCalculated = true;
        QVERIFY(attributes(2, true).contains(u"IsCalc=True, IsCons=False, IsLID=False"_s));
        cost.isCalculated = false;
        cost.isConsolidated = true;
        QVERIFY(attributes(2, true).contains(u"IsCalc=False, IsCons=True, IsLID=False"_s));
        cost.customAggEnabled = {false, true, false, true};
        QVERIFY(attributes(2, true).endsWith(
            u"C1AggEnabled=False, C2AggEnabled=True, C3AggEnabled=False, C4AggEnabled=True"_s));
    }

    void accountTypesBecomeWords_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("word");
        const QStringList words = {
            u"Income"_s,     u"Expense"_s,          u"Asset"_s,        u"Liability"_s, u"Balance"_s,
            u"Flow"_s,       u"Non-Financial"_s,    u"CurrencyRate"_s, u"System"_s,    u"Text"_s,
            u"GroupLabel"_s, u"BalanceRecurring"_s, u"Dynamic"_s};
        for (int code = 0; code < words.size(); ++code)
            QTest::newRow(qPrintable(words[code])) << code << words[code];
        QTest::newRow("13") << 13 << u"TYPEERROR"_s;
        QTest::newRow("-1") << -1 << u"TYPEERROR"_s;
    }
    void accountTypesBecomeWords()
    {
        QFETCH(int, code);
        QFETCH(QString, word);
        choose(FakeKind::Account);
        application().account().account(u"Cost"_s).type = code;
        QVERIFY(attributes(2).startsWith(u"Type="_s + word + u", "_s));
    }

    void intercompanyCodesBecomeWords_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("word");
        QTest::newRow("yes") << -1 << u"Yes"_s;
        QTest::newRow("no") << 0 << u"No"_s;
        QTest::newRow("restricted") << 1 << u"Restricted"_s;
        QTest::newRow("2") << 2 << u"**Error**"_s;
        QTest::newRow("-2") << -2 << u"**Error**"_s;
    }
    void intercompanyCodesBecomeWords()
    {
        QFETCH(int, code);
        QFETCH(QString, word);
        choose(FakeKind::Account);
        application().account().account(u"Cost"_s).isICP = code;
        QVERIFY(attributes(2).startsWith(u"Type=Income, IsICP="_s + word + u", TopC1="_s));
    }

    void anAccountsSecondTextIsAlwaysBare()
    {
        choose(FakeKind::Account);
        application().account().account(u"Cost"_s).userDefined = {u"  "_s, u"X"_s, u" "_s};
        QVERIFY(attributes(2).endsWith(u"UD1=  , UD2=, UD3= "_s));
        QCOMPARE(mHfm->calls().count("GetAccountUserDefined2"_L1), 1);
    }

    void anAccountsBlankClassIsDefault()
    {
        choose(FakeKind::Account);
        application().account().account(u"Cost"_s).securityClass = 1;
        QVERIFY(attributes(2).contains(u", Security=[Default], UD1="_s));
    }

    void theDimensionIsTheAccountsAgainAfterwards()
    {
        choose(FakeKind::Account);
        attributes(1);
        QCOMPARE(mGlobal.gDimension->GetDimensionName(), u"Account"_s);
    }

    void aFailureCanLeaveACustomDimensionBehind()
    {
        choose(FakeKind::Account);
        mHfm->calls().fail("GetMemberLabel"_L1, RuntimeError(70), 2);
        QVERIFY_THROWS_EXCEPTION(RuntimeError, attributes(1));
        QCOMPARE(mGlobal.gDimension->GetDimensionName(), u"Custom2"_s);
    }

    void theDimensionIsSetBackOnlyAfterTheLastAttributeCall_data()
    {
        QTest::addColumn<bool>("expanded");
        QTest::addColumn<QByteArray>("last");
        QTest::newRow("plain") << false << QByteArray("GetAccountUserDefined3");
        QTest::newRow("expanded") << true << QByteArray("GetAccountCustom4AggEnabled");
    }
    void theDimensionIsSetBackOnlyAfterTheLastAttributeCall()
    {
        QFETCH(bool, expanded);
        QFETCH(QByteArray, last);
        choose(FakeKind::Account);
        mHfm->calls().fail(QLatin1StringView(last), RuntimeError(70));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, attributes(1, expanded));
        QCOMPARE(mGlobal.gDimension->GetDimensionName(), u"Custom4"_s);
    }

    void theAttributesAreThoseOfTheNamedDimensionWhateverIsCurrent_data()
    {
        QTest::addColumn<FakeKind>("kind");
        QTest::newRow("account") << FakeKind::Account;
        QTest::newRow("entity") << FakeKind::Entity;
        QTest::newRow("custom") << FakeKind::Custom3;
    }
    void theAttributesAreThoseOfTheNamedDimensionWhateverIsCurrent()
    {
        QFETCH(FakeKind, kind);
        choose(kind);
        const QString expected = attributes(1, true);
        mGlobal.gDimension = application().dimensions[size_t(FakeKind::Year)];
        QCOMPARE(attributes(1, true), expected);
    }

    void everyFailingOperationEndsTheRoutine_data()
    {
        QTest::addColumn<FakeKind>("kind");
        QTest::newRow("account") << FakeKind::Account;
        QTest::newRow("entity") << FakeKind::Entity;
        QTest::newRow("custom") << FakeKind::Custom3;
    }
    void everyFailingOperationEndsTheRoutine()
    {
        QFETCH(FakeKind, kind);
        choose(kind);
        mHfm->calls().clear();
        attributes(1, true);
        const qsizetype operations = mHfm->calls().made().size();
        QVERIFY(operations > 5);
        for (int call = 1; call <= operations; ++call) {
            choose(kind);
            mHfm->calls().fail({}, RuntimeError(70), call);
            QVERIFY_THROWS_EXCEPTION(RuntimeError, attributes(1, true));
        }
    }

    // Entities.

    void anEntitysItemsComeInTheirOrder()
    {
        choose(FakeKind::Entity);
        QCOMPARE(attributes(1), u"Currency=USD, Adjs=True, ChildAdjs=False, Security=Europe, "
                                "ICP=True, UD1=[None], UD2= two , UD3=[None]"_s);
    }

    void anEntitysExpandedItemsFollow()
    {
        choose(FakeKind::Entity);
        QVERIFY(attributes(1, true).endsWith(
            u"UD3=[None], DefaultParent=Group, HierRelationship=Base[DefParGen:1]"_s));
        QVERIFY(attributes(0, true).endsWith(
            u"UD3=[None], DefaultParent=, HierRelationship=Parent[DefParGen:0]"_s));
    }

    void entityFlagsAreNotMixedUp()
    {
        choose(FakeKind::Entity);
        FakeEntity &group = application().entity().entity(u"Group"_s);
        group.allowChildAdjs = true;
        group.userDefined = {u"a"_s, u"  "_s, u"c"_s};
        QVERIFY(attributes(0).contains(u"Adjs=False, ChildAdjs=True"_s));
        QVERIFY(attributes(0).endsWith(u"ICP=False, UD1=a, UD2=[None], UD3=c"_s));
    }

    void anEntityWithoutAClassIsDefault()
    {
        choose(FakeKind::Entity);
        QVERIFY(attributes(0).contains(u", Security=[Default], ICP="_s));
        QCOMPARE(mHfm->calls().count("GetSecurityClassName"_L1), 0);
    }

    void anEntitysBlankClassIsABareDefault()
    {
        choose(FakeKind::Entity);
        application().entity().entity(u"US01"_s).securityClass = 1;
        QVERIFY(attributes(1).contains(u", ChildAdjs=False, [Default], ICP=True"_s));
    }

    void onlyBlanksAreBlank()
    {
        application().security->addClass(u"\t"_s);
        choose(FakeKind::Entity);
        FakeEntity &us = application().entity().entity(u"US01"_s);
        us.securityClass = 2;
        us.userDefined = {u"\t"_s, u" \n"_s, u"\u00A0"_s};
        QVERIFY(attributes(1).contains(u", Security=\t, ICP="_s));
        QVERIFY(attributes(1).endsWith(u", UD1=\t, UD2= \n, UD3=\u00A0"_s));
        choose(FakeKind::Account);
        application().account().account(u"Cost"_s).securityClass = 2;
        QVERIFY(attributes(2).contains(u", Security=\t, UD1="_s));
    }

    void aBlankClassIsNotTheFiltersDefault()
    {
        choose(FakeKind::Entity);
        application().entity().entity(u"US01"_s).securityClass = 1;
        QCOMPARE(attributes(1, false, {true, {}, u"[default]"_s}), QString());
        QVERIFY(!attributes(1, false, {true, {}, u"  "_s}).isEmpty());
    }

    void anEntityThatFailsTheFilterHasNoAttributes()
    {
        choose(FakeKind::Entity);
        QCOMPARE(attributes(1, false, {true, u"eur"_s, {}}), QString());
        QVERIFY(!attributes(1, false, {true, u"usd"_s, u"EUROPE"_s}).isEmpty());
        QVERIFY(!attributes(0, false, {true, {}, u"[default]"_s}).isEmpty());
        QCOMPARE(attributes(0, false, {true, {}, u"Europe"_s}), QString());
    }

    void aFilterThatIsOffLeavesNobodyOut()
    {
        choose(FakeKind::Entity);
        QVERIFY(!attributes(1, false, {false, u"eur"_s, u"Asia"_s}).isEmpty());
    }

    void theFilterLeavesAccountsAlone()
    {
        choose(FakeKind::Account);
        QVERIFY(!attributes(1, false, {true, u"eur"_s, u"Asia"_s}).isEmpty());
    }

    // Custom dimensions.

    void aCustomMembersItemsComeInTheirOrder_data()
    {
        QTest::addColumn<FakeKind>("kind");
        QTest::newRow("Custom1") << FakeKind::Custom1;
        QTest::newRow("Custom2") << FakeKind::Custom2;
        QTest::newRow("Custom3") << FakeKind::Custom3;
        QTest::newRow("Custom4") << FakeKind::Custom4;
    }
    void aCustomMembersItemsComeInTheirOrder()
    {
        QFETCH(FakeKind, kind);
        choose(kind);
        FakeCustom &leaf = application().dimension(kind).custom(u"Leaf"_s);
        leaf = {{u"a"_s, u"  "_s, u"c"_s}, 0};
        QCOMPARE(attributes(2), u"UD1=a, UD2=  , UD3=c, Security=Europe"_s);
        QCOMPARE(attributes(1), u"UD1=, UD2=, UD3=, Security=[Default]"_s);
        leaf.securityClass = 1;
        QCOMPARE(attributes(2), u"UD1=a, UD2=  , UD3=c, Security=[Default]"_s);
    }

    void expandingChangesNothingOnACustomDimension()
    {
        choose(FakeKind::Custom2);
        QCOMPARE(attributes(2, true), attributes(2, false));
    }

    // The rest.

    void otherDimensionsHaveNoAttributes()
    {
        choose(FakeKind::Scenario);
        application().dimension(FakeKind::Scenario).setMembers(u"Actual"_s);
        mHfm->calls().clear();
        QCOMPARE(attributes(0, true), QString());
        QVERIFY(mHfm->calls().made().isEmpty());
    }

    void theSecurityIsThatOfTheSession()
    {
        choose(FakeKind::Entity);
        attributes(1);
        QCOMPARE(mGlobal.gSecurity, mGlobal.gSession->GetSecurity());
    }

    void withoutAnApplicationAnObjectIsNotSet()
    {
        choose(FakeKind::Account);
        mGlobal.gMetadata = nullptr;
        try {
            attributes(0);
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 91);
        }
    }
};

QTEST_APPLESS_MAIN(tst_MemberAttributes)
#include "tst_MemberAttributes.moc"
