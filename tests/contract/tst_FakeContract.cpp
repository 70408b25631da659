#include "contract/Contract.h"
#include "support/FakeHfm.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

void fillHierarchies(FakeApplication &application)
{
    application.languages = {u"English"_s, u"French"_s};
    FakeDimension &entity = application.entity();
    entity.setMembers(u"[None]\n"
                      "GROUP|Group|Groupe\n"
                      "  EAST|East\n"
                      "    E1|Unit 1, East|Unité 1\n"
                      "    E2|Unit 2\n"
                      "  WEST|West\n"
                      "    E2\n"
                      "    E3|Unit 3\n"
                      "LEGAL|Legal view\n"
                      "  EAST\n"_s);
    entity.members().addUnplaced(u"SPARE"_s);
    entity.setDefaultParent(u"EAST"_s, u"LEGAL"_s);
    entity.setDefaultParent(u"E2"_s, u"WEST"_s);
    application.account().setMembers(u"PL|Result\n  SALES|Sales\n  COST|Costs\n"_s);
    application.value().setMembers(u"[None]\nEUR Total\n  EUR\n  EUR Adjs\nUSD Total\n  USD\n"_s);
    application.custom(1).setMembers(u"[None]\nCLO|Closing\n  OPE|Opening\nÉco\n"_s);
    for (const int number : {2, 3, 4})
        application.custom(number).setMembers(u"[None]\n"_s);
    application.dimension(FakeKind::Period)
        .setMembers(u"[Year]\n  Q1\n    Jan\n    Feb\n  Q2\n    Mar\n"_s);
    application.dimension(FakeKind::Year).setMembers(u"2011\n2012\n"_s);
    application.dimension(FakeKind::View).setMembers(u"<Scenario View>\nYTD\nPeriodic\n"_s);
    application.dimension(FakeKind::ICP)
        .setMembers(u"[ICP Top]\n  [ICP None]\n  [ICP Entities]\n    E1\n"_s);
}

void fillSecurity(FakeSecurity &security)
{
    for (const QString &name : {u"[Default]"_s, u"SC_GRP"_s, u"SC_PL"_s})
        security.addClass(name);
    const QString jim = u"Native Directory\\jim@corp.com"_s;
    for (const QString &name : {u"CORP\\jane"_s, u"Readers"_s, jim})
        security.addUser(name);
    for (const QString &name : {u"Application Administrator"_s, u"Load System"_s})
        security.addRole(name);
    security.setRole(u"CORP\\jane"_s, u"Application Administrator"_s);
    security.setRole(jim, u"Load System"_s);
    security.setAccess(u"CORP\\jane"_s, u"SC_GRP"_s, 4);
    security.setAccess(u"Readers"_s, u"[Default]"_s, 1);
    security.setAccess(jim, u"[Default]"_s, 3);
    security.setAccess(u"Readers"_s, u"SC_GRP"_s, 2);
}

void fillAttributes(FakeApplication &application)
{
    FakeDimension &value = application.value();
    FakeDimension &entity = application.entity();
    for (const QString &label : entity.EnumAllMemberLabels())
        entity.entity(label).currency = value.GetMemberId(u"[None]"_s);
    entity.entity(u"GROUP"_s) = {value.GetMemberId(u"EUR"_s),        1, true, false, false,
                                 {u"Holding"_s, QString(), u"x y"_s}};
    entity.entity(u"E1"_s) = {value.GetMemberId(u"USD"_s),    hfm::noClass, false, true, true,
                              {QString(), u"US"_s, QString()}};

    FakeDimension &account = application.account();
    account.account(u"PL"_s).type = 10;
    FakeAccount &sales = account.account(u"SALES"_s);
    sales.isLID = sales.isConsolidated = true;
    sales.topCustoms = {application.custom(1).GetMemberId(u"CLO"_s), 0, -1, -1};
    sales.decimalPlaces = 2;
    sales.customAggEnabled = {true, false, true, false};
    sales.userDefined = {u"one"_s, u"two"_s, u"three"_s};
    sales.securityClass = 2;
    sales.isICP = 1;
    FakeAccount &costs = account.account(u"COST"_s);
    costs.type = 1;
    costs.isCalculated = true;
    costs.isICP = -1;

    application.custom(1).custom(u"CLO"_s) = {{u"c1"_s, QString(), u"c3"_s}, 2};
}

class FakeUnderTest final : public ClientUnderTest
{
public:
    FakeUnderTest()
    {
        FakeApplication &application = mHfm.application();
        fillHierarchies(application);
        fillSecurity(*application.security);
        fillAttributes(application);
        application.entity().addUserList(u"Units"_s, {u"E3"_s, u"E1"_s});
        application.memberListFile = {"Sub EnumMemberLists()\r\nEnd Sub\r\n", 1};
    }

    hfm::ClientFactory &factory() override { return mHfm; }
    void answerNextLogon(bool accept) override { mHfm.logonAnswers().append(accept); }
    void answerNextOpening(bool accept) override { mHfm.openAnswers().append(accept); }
    QString applicationName() const override { return u"Comma"_s; }
    QString clusterName() const override { return u"Cluster"_s; }
    QString userName() const override { return u"admin"_s; }
    std::shared_ptr<hfm::Session> openSession() override { return mHfm.openSession(); }
    std::shared_ptr<hfm::Dimension> dimensionWithoutLists() override
    {
        auto dimension =
            std::make_shared<FakeDimension>(FakeKind::View, std::make_shared<FakeCalls>());
        dimension->clearLists();
        return dimension;
    }

private:
    FakeHfm mHfm;
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    FakeUnderTest client;
    return checkContract(client, argc, argv);
}
