#include "contract/SessionContract.h"

#include "contract/Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

void SessionContract::systemInformationNamesClusterAndApplication()
{
    const auto system = mClient.openSession()->GetSystemInfo();
    QCOMPARE(system->GetClusterName(), mClient.clusterName());
    QCOMPARE(system->GetApplicationName(), mClient.applicationName());
}

void SessionContract::aMemberListFileThatIsThereHasAPresenceFlagOtherThan0()
{
    const hfm::MemberListFile file = mClient.openSession()->GetSystemInfo()->GetMemberListFile();
    QVERIFY(file.present != 0);
    QVERIFY(file.content.contains("Sub EnumMemberLists()"));
}

void SessionContract::languagesComeInTheOrderOfTheirIndexes()
{
    QCOMPARE(mClient.openSession()->GetMetadata()->GetLanguages(),
             QStringList({u"English"_s, u"French"_s}));
}

void SessionContract::eachAccessorGivesTheDimensionOfItsName_data()
{
    addDimensionRows();
}

void SessionContract::eachAccessorGivesTheDimensionOfItsName()
{
    QFETCH(QString, name);
    QCOMPARE(dimensionOf(*mClient.openSession(), name)->GetDimensionName(), name);
}

void SessionContract::objectsStayValidAfterTheSessionIsGone()
{
    auto session = mClient.openSession();
    const auto system = session->GetSystemInfo();
    const auto security = session->GetSecurity();
    auto metadata = session->GetMetadata();
    const auto entity = metadata->GetEntityDimension();
    auto account = metadata->GetAccountDimension();
    const auto entities = entity->entityAttributes();
    const auto accounts = account->accountAttributes();
    const auto customs = metadata->GetCustom1Dimension()->customAttributes();
    const hfm::MemberId sales = account->GetMemberId(u"SALES"_s);
    session.reset();
    metadata.reset();
    account.reset();

    QCOMPARE(system->GetApplicationName(), mClient.applicationName());
    QCOMPARE(security->EnumSecurityClasses().ids.size(), 3);
    const hfm::MemberId east = entity->GetMemberId(u"EAST"_s);
    QCOMPARE(entity->GetMemberDescription(east, 0), u"East"_s);
    QVERIFY(!entities->GetEntityAllowAdjs(entity->GetMemberId(u"E1"_s)));
    QCOMPARE(accounts->GetAccountType(sales), 0);
    QVERIFY(failsAsUnknown([&] { customs->GetCustomUserDefined1(-2); }));
}

void SessionContract::twoSessionsAnswerAlike()
{
    const auto first = dimensionOf(*mClient.openSession(), u"Entity"_s);
    const auto second = dimensionOf(*mClient.openSession(), u"Entity"_s);
    QCOMPARE(first->EnumAllMemberLabels(), second->EnumAllMemberLabels());
    QCOMPARE(first->EnumHierarchy().members, second->EnumHierarchy().members);
}
