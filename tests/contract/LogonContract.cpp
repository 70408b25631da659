#include "contract/LogonContract.h"

#include "contract/Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

bool open(hfm::Client &client, hfm::OpenedApplication &opened)
{
    QString cluster;
    QString application;
    return client.OpenApplication(opened, cluster, application);
}

} // namespace

void LogonContract::theVersionHasThreePartsAndEachIsANumber()
{
    const auto version = mClient.factory().createVersionInformation();
    version->SetVersionSelector(0);
    const QStringList parts = version->GetVersion().split(u'.');
    QVERIFY(parts.size() >= 3);
    for (const QString &part : parts) {
        bool isNumber = false;
        part.toShort(&isNumber);
        QVERIFY(isNumber);
    }
}

void LogonContract::nothingIsKnownOfTheUserBeforeALogon()
{
    const hfm::LogonInfo info = mClient.factory().createLogonUserInterface()->GetLogonInfo();
    QCOMPARE(info.userName, QString());
    QCOMPARE(info.detail, QString());
}

void LogonContract::aLogonAndAnOpeningFillEverything()
{
    const auto userInterface = mClient.factory().createLogonUserInterface();
    const auto client = mClient.factory().createClient();
    client->Initialize(userInterface);
    mClient.answerNextLogon(true);
    QVERIFY(client->Logon(false));
    QCOMPARE(userInterface->GetLogonInfo().userName, mClient.userName());

    hfm::OpenedApplication opened;
    mClient.answerNextOpening(true);
    QVERIFY(open(*client, opened));
    QCOMPARE(opened.applicationName, mClient.applicationName());
    QVERIFY(opened.session);
    QCOMPARE(opened.session->GetSystemInfo()->GetApplicationName(), mClient.applicationName());
    QCOMPARE(opened.session->GetSystemInfo()->GetClusterName(), mClient.clusterName());
    QCOMPARE(dimensionOf(*opened.session, u"Entity"_s)->EnumAllMembers().size(), 9);
}

void LogonContract::aLogonThatTheUserCancelsIsAnsweredFalse()
{
    const auto userInterface = mClient.factory().createLogonUserInterface();
    const auto client = mClient.factory().createClient();
    client->Initialize(userInterface);
    mClient.answerNextLogon(false);
    QVERIFY(!client->Logon(false));
    QCOMPARE(userInterface->GetLogonInfo().userName, QString());
}

void LogonContract::anOpeningThatTheUserCancelsLeavesEverythingAsItWas()
{
    const auto client = mClient.factory().createClient();
    client->Initialize(mClient.factory().createLogonUserInterface());
    mClient.answerNextLogon(true);
    QVERIFY(client->Logon(false));

    const auto before = mClient.openSession();
    hfm::OpenedApplication opened = {u"Before"_s, before, nullptr};
    mClient.answerNextOpening(false);
    QVERIFY(!open(*client, opened));
    QCOMPARE(opened.applicationName, u"Before"_s);
    QCOMPARE(opened.session, before);
    QVERIFY(!opened.auxiliarySession);
}

void LogonContract::aLogonMayBeRepeated()
{
    const auto userInterface = mClient.factory().createLogonUserInterface();
    const auto client = mClient.factory().createClient();
    client->Initialize(userInterface);
    mClient.answerNextLogon(false);
    QVERIFY(!client->Logon(false));
    mClient.answerNextLogon(true);
    QVERIFY(client->Logon(false));
    QCOMPARE(userInterface->GetLogonInfo().userName, mClient.userName());
}

void LogonContract::anOpeningMayBeRepeatedWithoutAnotherLogon()
{
    const auto client = mClient.factory().createClient();
    client->Initialize(mClient.factory().createLogonUserInterface());
    mClient.answerNextLogon(true);
    QVERIFY(client->Logon(false));

    hfm::OpenedApplication opened;
    mClient.answerNextOpening(false);
    QVERIFY(!open(*client, opened));
    QVERIFY(!opened.session);
    mClient.answerNextOpening(true);
    QVERIFY(open(*client, opened));
    QCOMPARE(opened.applicationName, mClient.applicationName());
    QVERIFY(opened.session);
}
