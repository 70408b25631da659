#pragma once

#include "contract/ClientUnderTest.h"

#include <QObject>

/// What every client promises of a session, its system information and its metadata.
class SessionContract : public QObject
{
    Q_OBJECT

public:
    explicit SessionContract(ClientUnderTest &client) : mClient(client) {}

private Q_SLOTS:
    void systemInformationNamesClusterAndApplication();
    void aMemberListFileThatIsThereHasAPresenceFlagOtherThan0();
    void languagesComeInTheOrderOfTheirIndexes();
    void eachAccessorGivesTheDimensionOfItsName_data();
    void eachAccessorGivesTheDimensionOfItsName();
    void objectsStayValidAfterTheSessionIsGone();
    void twoSessionsAnswerAlike();

private:
    ClientUnderTest &mClient;
};
