#pragma once

#include "hfm/AttributeViews.h"
#include "support/FakeCalls.h"
#include "support/FakeMembers.h"

#include <array>
#include <memory>

/// The attributes of a member of a fake Entity dimension.
struct FakeEntity
{
    hfm::MemberId currency = hfm::rootMember;
    hfm::ClassId securityClass = hfm::noClass;
    bool allowAdjs = false;
    bool isICP = false;
    bool allowChildAdjs = false;
    std::array<QString, 3> userDefined;
};

/// The attributes of a member of a fake Account dimension.
struct FakeAccount
{
    qint32 type = 0;
    bool isCalculated = false;
    bool isLID = false;
    bool isConsolidated = false;
    std::array<hfm::MemberId, 4> topCustoms = {-1, -1, -1, -1};
    qint16 decimalPlaces = 0;
    std::array<bool, 4> customAggEnabled = {};
    std::array<QString, 3> userDefined;
    hfm::ClassId securityClass = hfm::noClass;
    qint32 isICP = 0;
};

/// The attributes of a member of a fake custom dimension.
struct FakeCustom
{
    std::array<QString, 3> userDefined;
    hfm::ClassId securityClass = hfm::noClass;
};

/// What a dimension and its attribute views share.
struct FakeDimensionData
{
    FakeMembers members;
    QHash<hfm::MemberId, FakeEntity> entities;
    QHash<hfm::MemberId, FakeAccount> accounts;
    QHash<hfm::MemberId, FakeCustom> customs;
    std::shared_ptr<FakeCalls> calls;
};

std::shared_ptr<hfm::EntityAttributes> fakeEntityView(std::shared_ptr<FakeDimensionData> data);
std::shared_ptr<hfm::AccountAttributes> fakeAccountView(std::shared_ptr<FakeDimensionData> data);
std::shared_ptr<hfm::CustomAttributes> fakeCustomView(std::shared_ptr<FakeDimensionData> data);

/// An error as the client itself raises it: number 5, source "HFM".
RuntimeError fakeClientError(const QString &description = {});
