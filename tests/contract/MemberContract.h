#pragma once

#include "contract/ClientUnderTest.h"

#include <QObject>

/// What every client promises of a dimension's members, their labels and descriptions.
class MemberContract : public QObject
{
    Q_OBJECT

public:
    explicit MemberContract(ClientUnderTest &client) : mClient(client) {}

private Q_SLOTS:
    void everyMemberIsListedOnceWithItsLabel_data();
    void everyMemberIsListedOnceWithItsLabel();
    void everyLabelIsFoundInAnyLetterCase_data();
    void everyLabelIsFoundInAnyLetterCase();
    void unknownMembersFail_data();
    void unknownMembersFail();
    void theRootHasNoLabelAndNoDescription_data();
    void theRootHasNoLabelAndNoDescription();
    void theMembersOfTheApplicationAreThereInItsOrder();
    void descriptionsComeInTheLanguageAskedFor();
    void aDescriptionInALanguageForWhichNoneIsStoredIsEmpty();
    void aDimensionWithoutMembersGivesEmptyArrays();

private:
    ClientUnderTest &mClient;
};
