#pragma once

#include "contract/ClientUnderTest.h"

#include <QObject>

/// What every client promises of a dimension's member lists.
class MemberListContract : public QObject
{
    Q_OBJECT

public:
    explicit MemberListContract(ClientUnderTest &client) : mClient(client) {}

private Q_SLOTS:
    void systemListsComeFirst_data();
    void systemListsComeFirst();
    void everyListIsFoundByItsNameInAnyLetterCase_data();
    void everyListIsFoundByItsNameInAnyLetterCase();
    void unknownListsFail_data();
    void unknownListsFail();
    void theHierarchyListHoldsTheDimensionInTreeOrder_data();
    void theHierarchyListHoldsTheDimensionInTreeOrder();
    void systemListsHoldAMemberOnce_data();
    void systemListsHoldAMemberOnce();
    void aTopMemberThatIsNoneNarrowsNothing_data();
    void aTopMemberThatIsNoneNarrowsNothing();
    void aTopMemberNarrowsSystemListsToTheMembersBelowIt_data();
    void aTopMemberNarrowsSystemListsToTheMembersBelowIt();
    void listsOfEntitiesFollowTheTopMember();
    void aUserDefinedListKeepsItsOrderWhateverTheTopMember();
    void aDimensionWithNoMemberListsGivesAnEmptyArray();

private:
    ClientUnderTest &mClient;
};
