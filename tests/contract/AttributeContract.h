#pragma once

#include "contract/ClientUnderTest.h"

#include <QObject>

/// What every client promises of the attributes of entities, accounts and custom members.
class AttributeContract : public QObject
{
    Q_OBJECT

public:
    explicit AttributeContract(ClientUnderTest &client) : mClient(client) {}

private Q_SLOTS:
    void aViewOfADimensionOfAnotherKindIsATypeMismatch_data();
    void aViewOfADimensionOfAnotherKindIsATypeMismatch();
    void attributesOfUnknownMembersFail();
    void entitiesHaveTheirAttributes();
    void anEntityWithoutAttributesHasThemEmpty();
    void everyEntityHasACurrencyInTheValueDimension();
    void accountsHaveTheirAttributes();
    void anAccountMayNameNoTopMembersAndNoClass();
    void customMembersHaveTheirAttributes();
    void everySecurityClassOfAMemberHasAName();

private:
    ClientUnderTest &mClient;
};
