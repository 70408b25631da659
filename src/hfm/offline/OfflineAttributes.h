#pragma once

#include "hfm/AttributeViews.h"
#include "hfm/offline/Application.h"

/// The attributes of an open application's members. See hfm/AttributeViews.h for what the
/// operations do.
namespace hfm::offline {

class OfflineEntityAttributes final : public EntityAttributes
{
public:
    explicit OfflineEntityAttributes(std::shared_ptr<const Application> application);

    MemberId GetEntityCurrencyId(MemberId entity) override;
    ClassId GetEntitySecurityClassId(MemberId entity) override;
    bool GetEntityAllowAdjs(MemberId entity) override;
    bool GetEntityIsICP(MemberId entity) override;
    bool GetEntityAllowChildAdjs(MemberId entity) override;
    QString GetEntityUserDefined1(MemberId entity) override;
    QString GetEntityUserDefined2(MemberId entity) override;
    QString GetEntityUserDefined3(MemberId entity) override;

private:
    const EntityRecord &record(MemberId entity) const;
    QString userDefined(MemberId entity, size_t index) const;

    std::shared_ptr<const Application> mApplication;
};

class OfflineAccountAttributes final : public AccountAttributes
{
public:
    explicit OfflineAccountAttributes(std::shared_ptr<const Application> application);

    qint32 GetAccountType(MemberId account) override;
    bool GetAccountIsCalculated(MemberId account) override;
    bool GetAccountIsLID(MemberId account) override;
    bool GetAccountIsConsolidated(MemberId account) override;
    MemberId GetAccountTopCustom1(MemberId account) override;
    MemberId GetAccountTopCustom2(MemberId account) override;
    MemberId GetAccountTopCustom3(MemberId account) override;
    MemberId GetAccountTopCustom4(MemberId account) override;
    qint16 GetAccountDecimalPlaces(MemberId account) override;
    bool GetAccountCustom1AggEnabled(MemberId account) override;
    bool GetAccountCustom2AggEnabled(MemberId account) override;
    bool GetAccountCustom3AggEnabled(MemberId account) override;
    bool GetAccountCustom4AggEnabled(MemberId account) override;
    QString GetAccountUserDefined1(MemberId account) override;
    QString GetAccountUserDefined2(MemberId account) override;
    QString GetAccountUserDefined3(MemberId account) override;
    ClassId GetAccountSecurityClassId(MemberId account) override;
    qint32 GetAccountIsICP(MemberId account) override;

private:
    const AccountRecord &record(MemberId account) const;
    QString userDefined(MemberId account, size_t index) const;
    MemberId topMember(MemberId account, size_t custom) const;
    bool aggregates(MemberId account, unsigned custom) const;

    std::shared_ptr<const Application> mApplication;
};

class OfflineCustomAttributes final : public CustomAttributes
{
public:
    OfflineCustomAttributes(std::shared_ptr<const Application> application, DimensionKind kind);

    QString GetCustomUserDefined1(MemberId member) override;
    QString GetCustomUserDefined2(MemberId member) override;
    QString GetCustomUserDefined3(MemberId member) override;
    ClassId GetCustomSecurityClassId(MemberId member) override;

private:
    const CustomRecord &record(MemberId member) const;
    QString userDefined(MemberId member, size_t index) const;

    std::shared_ptr<const Application> mApplication;
    DimensionKind mKind;
};

} // namespace hfm::offline
