#pragma once

#include "contract/ClientUnderTest.h"

#include <QObject>

/// What every client promises of an application's security.
class SecurityContract : public QObject
{
    Q_OBJECT

public:
    explicit SecurityContract(ClientUnderTest &client) : mClient(client) {}

private Q_SLOTS:
    void classesAreFoundByIdAndByNameInAnyLetterCase();
    void namesAndIdsThatAreNotThereFail();
    void accessToAClassIsToldForEveryone();
    void accessOfAUserIsToldForEveryClass();
    void theUsersOfARoleAreToldForEveryone();
    void theRolesOfAUserAreToldForEveryRole();
    void everyNameThatIsListedIsFoundAgain();

private:
    ClientUnderTest &mClient;
};
