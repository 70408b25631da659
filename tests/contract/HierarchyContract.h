#pragma once

#include "contract/ClientUnderTest.h"

#include <QObject>

/// What every client promises of how a dimension's members stand under each other.
class HierarchyContract : public QObject
{
    Q_OBJECT

public:
    explicit HierarchyContract(ClientUnderTest &client) : mClient(client) {}

private Q_SLOTS:
    void theHierarchyIsThatOfTheChildrenInTreeOrder_data();
    void theHierarchyIsThatOfTheChildrenInTreeOrder();
    void aParentsEntryStandsBeforeItsChildrens_data();
    void aParentsEntryStandsBeforeItsChildrens();
    void countsAgreeWithTheChildren_data();
    void countsAgreeWithTheChildren();
    void membersBelowAreThoseOfTheHierarchyWithoutTheTop_data();
    void membersBelowAreThoseOfTheHierarchyWithoutTheTop();
    void defaultParentsAreParents_data();
    void defaultParentsAreParents();
    void childrenComeInHierarchyOrder();
    void aSharedMemberStandsUnderEachOfItsParents();
    void aSharedMemberCountsOnceWhenAskedForDistinct();
    void theSecondReadingOfTheHierarchyIsWellFormed();
    void generationsBelowAreThoseOfTheLongestWay();
    void aDefaultParentNeedNotBeTheFirst();
    void aMemberWithoutANodeHasTheRootForADefaultParent();

private:
    ClientUnderTest &mClient;
};
