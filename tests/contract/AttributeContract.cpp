#include "contract/AttributeContract.h"

#include "contract/Reading.h"

#include <QTest>

using hfm::MemberId;
using namespace Qt::Literals::StringLiterals;

namespace {

bool isTypeMismatch(const std::optional<RuntimeError> &error)
{
    return error && error->number() == TypeMismatch;
}

} // namespace

void AttributeContract::aViewOfADimensionOfAnotherKindIsATypeMismatch_data()
{
    addDimensionRows();
}

void AttributeContract::aViewOfADimensionOfAnotherKindIsATypeMismatch()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    QCOMPARE(isTypeMismatch(errorOf([&] { dimension->entityAttributes(); })), name != u"Entity");
    QCOMPARE(isTypeMismatch(errorOf([&] { dimension->accountAttributes(); })), name != u"Account");
    QCOMPARE(isTypeMismatch(errorOf([&] { dimension->customAttributes(); })),
             !name.startsWith(u"Custom"));
}

void AttributeContract::attributesOfUnknownMembersFail()
{
    const auto session = mClient.openSession();
    const auto entities = dimensionOf(*session, u"Entity"_s)->entityAttributes();
    const auto accounts = dimensionOf(*session, u"Account"_s)->accountAttributes();
    const auto customs = dimensionOf(*session, u"Custom1"_s)->customAttributes();
    for (const MemberId id : {hfm::rootMember, -2, 1000000}) {
        QVERIFY(failsAsUnknown([&] { entities->GetEntityCurrencyId(id); }));
        QVERIFY(failsAsUnknown([&] { entities->GetEntitySecurityClassId(id); }));
        QVERIFY(failsAsUnknown([&] { entities->GetEntityAllowAdjs(id); }));
        QVERIFY(failsAsUnknown([&] { entities->GetEntityIsICP(id); }));
        QVERIFY(failsAsUnknown([&] { entities->GetEntityAllowChildAdjs(id); }));
        QVERIFY(failsAsUnknown([&] { entities->GetEntityUserDefined1(id); }));
        QVERIFY(failsAsUnknown([&] { entities->GetEntityUserDefined2(id); }));
        QVERIFY(failsAsUnknown([&] { entities->GetEntityUserDefined3(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountType(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountIsCalculated(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountIsLID(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountIsConsolidated(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountTopCustom1(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountTopCustom2(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountTopCustom3(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountTopCustom4(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountDecimalPlaces(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountCustom1AggEnabled(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountCustom2AggEnabled(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountCustom3AggEnabled(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountCustom4AggEnabled(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountUserDefined1(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountUserDefined2(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountUserDefined3(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountSecurityClassId(id); }));
        QVERIFY(failsAsUnknown([&] { accounts->GetAccountIsICP(id); }));
        QVERIFY(failsAsUnknown([&] { customs->GetCustomUserDefined1(id); }));
        QVERIFY(failsAsUnknown([&] { customs->GetCustomUserDefined2(id); }));
        QVERIFY(failsAsUnknown([&] { customs->GetCustomUserDefined3(id); }));
        QVERIFY(failsAsUnknown([&] { customs->GetCustomSecurityClassId(id); }));
    }
}

void AttributeContract::entitiesHaveTheirAttributes()
{
    const auto session = mClient.openSession();
    const auto entity = dimensionOf(*session, u"Entity"_s);
    const auto value = dimensionOf(*session, u"Value"_s);
    const auto view = entity->entityAttributes();
    const MemberId group = entity->GetMemberId(u"GROUP"_s);
    QCOMPARE(value->GetMemberLabel(view->GetEntityCurrencyId(group)), u"EUR"_s);
    QVERIFY(view->GetEntityAllowAdjs(group));
    QVERIFY(!view->GetEntityIsICP(group));
    QVERIFY(!view->GetEntityAllowChildAdjs(group));
    QCOMPARE(view->GetEntityUserDefined1(group), u"Holding"_s);
    QCOMPARE(view->GetEntityUserDefined2(group), QString());
    QCOMPARE(view->GetEntityUserDefined3(group), u"x y"_s);

    const MemberId unit = entity->GetMemberId(u"E1"_s);
    QCOMPARE(value->GetMemberLabel(view->GetEntityCurrencyId(unit)), u"USD"_s);
    QVERIFY(!view->GetEntityAllowAdjs(unit));
    QVERIFY(view->GetEntityIsICP(unit));
    QVERIFY(view->GetEntityAllowChildAdjs(unit));
    QCOMPARE(view->GetEntityUserDefined2(unit), u"US"_s);
    QCOMPARE(view->GetEntitySecurityClassId(unit), hfm::noClass);
}

void AttributeContract::anEntityWithoutAttributesHasThemEmpty()
{
    const auto entity = dimensionOf(*mClient.openSession(), u"Entity"_s);
    const auto view = entity->entityAttributes();
    const MemberId none = entity->GetMemberId(u"[None]"_s);
    QVERIFY(!view->GetEntityAllowAdjs(none));
    QVERIFY(!view->GetEntityIsICP(none));
    QVERIFY(!view->GetEntityAllowChildAdjs(none));
    QCOMPARE(view->GetEntityUserDefined1(none), QString());
    QCOMPARE(view->GetEntitySecurityClassId(none), hfm::noClass);
}

void AttributeContract::everyEntityHasACurrencyInTheValueDimension()
{
    const auto session = mClient.openSession();
    const auto entity = dimensionOf(*session, u"Entity"_s);
    const auto values = dimensionOf(*session, u"Value"_s)->EnumAllMembers();
    for (const MemberId member : entity->EnumAllMembers())
        QVERIFY(values.contains(entity->entityAttributes()->GetEntityCurrencyId(member)));
}

void AttributeContract::accountsHaveTheirAttributes()
{
    const auto session = mClient.openSession();
    const auto account = dimensionOf(*session, u"Account"_s);
    const auto custom1 = dimensionOf(*session, u"Custom1"_s);
    const auto custom2 = dimensionOf(*session, u"Custom2"_s);
    const auto view = account->accountAttributes();
    const MemberId sales = account->GetMemberId(u"SALES"_s);
    QCOMPARE(view->GetAccountType(sales), 0);
    QVERIFY(!view->GetAccountIsCalculated(sales));
    QVERIFY(view->GetAccountIsLID(sales));
    QVERIFY(view->GetAccountIsConsolidated(sales));
    QCOMPARE(custom1->GetMemberLabel(view->GetAccountTopCustom1(sales)), u"CLO"_s);
    QCOMPARE(custom2->GetMemberLabel(view->GetAccountTopCustom2(sales)), u"[None]"_s);
    QCOMPARE(view->GetAccountDecimalPlaces(sales), qint16(2));
    QVERIFY(view->GetAccountCustom1AggEnabled(sales));
    QVERIFY(!view->GetAccountCustom2AggEnabled(sales));
    QVERIFY(view->GetAccountCustom3AggEnabled(sales));
    QVERIFY(!view->GetAccountCustom4AggEnabled(sales));
    QCOMPARE(view->GetAccountUserDefined1(sales), u"one"_s);
    QCOMPARE(view->GetAccountUserDefined2(sales), u"two"_s);
    QCOMPARE(view->GetAccountUserDefined3(sales), u"three"_s);
    QCOMPARE(view->GetAccountIsICP(sales), 1);

    const MemberId costs = account->GetMemberId(u"COST"_s);
    QCOMPARE(view->GetAccountType(costs), 1);
    QVERIFY(view->GetAccountIsCalculated(costs));
    QVERIFY(!view->GetAccountIsConsolidated(costs));
    QCOMPARE(view->GetAccountIsICP(costs), -1);
    QCOMPARE(view->GetAccountType(account->GetMemberId(u"PL"_s)), 10);
    QCOMPARE(view->GetAccountIsICP(account->GetMemberId(u"PL"_s)), 0);
}

void AttributeContract::anAccountMayNameNoTopMembersAndNoClass()
{
    const auto account = dimensionOf(*mClient.openSession(), u"Account"_s);
    const auto view = account->accountAttributes();
    const MemberId result = account->GetMemberId(u"PL"_s);
    QCOMPARE(view->GetAccountTopCustom1(result), -1);
    QCOMPARE(view->GetAccountTopCustom2(result), -1);
    QCOMPARE(view->GetAccountTopCustom3(result), -1);
    QCOMPARE(view->GetAccountTopCustom4(result), -1);
    QCOMPARE(view->GetAccountSecurityClassId(result), hfm::noClass);
    QCOMPARE(view->GetAccountDecimalPlaces(result), qint16(0));
}

void AttributeContract::customMembersHaveTheirAttributes()
{
    const auto custom = dimensionOf(*mClient.openSession(), u"Custom1"_s);
    const auto view = custom->customAttributes();
    const MemberId closing = custom->GetMemberId(u"CLO"_s);
    QCOMPARE(view->GetCustomUserDefined1(closing), u"c1"_s);
    QCOMPARE(view->GetCustomUserDefined2(closing), QString());
    QCOMPARE(view->GetCustomUserDefined3(closing), u"c3"_s);
    QCOMPARE(view->GetCustomSecurityClassId(custom->GetMemberId(u"OPE"_s)), hfm::noClass);
}

void AttributeContract::everySecurityClassOfAMemberHasAName()
{
    const auto session = mClient.openSession();
    const auto security = session->GetSecurity();
    const auto entity = dimensionOf(*session, u"Entity"_s);
    for (const MemberId member : entity->EnumAllMembers()) {
        const hfm::ClassId id = entity->entityAttributes()->GetEntitySecurityClassId(member);
        if (id != hfm::noClass)
            QVERIFY(!security->GetSecurityClassName(id).isEmpty());
    }
    const MemberId group = entity->GetMemberId(u"GROUP"_s);
    QCOMPARE(
        security->GetSecurityClassName(entity->entityAttributes()->GetEntitySecurityClassId(group)),
        u"SC_GRP"_s);
    const auto account = dimensionOf(*session, u"Account"_s);
    QCOMPARE(security->GetSecurityClassName(account->accountAttributes()->GetAccountSecurityClassId(
                 account->GetMemberId(u"SALES"_s))),
             u"SC_PL"_s);
    const auto custom = dimensionOf(*session, u"Custom1"_s);
    QCOMPARE(security->GetSecurityClassName(custom->customAttributes()->GetCustomSecurityClassId(
                 custom->GetMemberId(u"CLO"_s))),
             u"SC_PL"_s);
}
