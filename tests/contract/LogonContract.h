#pragma once

#include "contract/ClientUnderTest.h"

#include <QObject>

/// What every client promises of its version, the logon and the opening of an application.
class LogonContract : public QObject
{
    Q_OBJECT

public:
    explicit LogonContract(ClientUnderTest &client) : mClient(client) {}

private Q_SLOTS:
    void theVersionHasThreePartsAndEachIsANumber();
    void nothingIsKnownOfTheUserBeforeALogon();
    void aLogonAndAnOpeningFillEverything();
    void aLogonThatTheUserCancelsIsAnsweredFalse();
    void anOpeningThatTheUserCancelsLeavesEverythingAsItWas();
    void aLogonMayBeRepeated();
    void anOpeningMayBeRepeatedWithoutAnotherLogon();

private:
    ClientUnderTest &mClient;
};
