#include "hfm/offline/OfflineAttributes.h"

#include "hfm/offline/OfflineDimension.h"

namespace hfm::offline {

namespace {

template <typename Record>
const Record &recordAt(const LargeVector<Record> &records, MemberId member, DimensionKind kind)
{
    if (member < 0 || size_t(member) >= records.size())
        failUnknown(QStringLiteral("%1 is not the ID of a member of %2.")
                        .arg(QString::number(member), dimensionName(kind)));
    return records[size_t(member)];
}

ClassId classOf(const Application &application, qint32 ofRecord)
{
    return ofRecord < 0 ? noClass : application.security.memberClasses[size_t(ofRecord)];
}

} // namespace

OfflineEntityAttributes::OfflineEntityAttributes(std::shared_ptr<const Application> application)
    : mApplication(std::move(application))
{
}

const EntityRecord &OfflineEntityAttributes::record(MemberId entity) const
{
    return recordAt(mApplication->dimension(DimensionKind::Entity).entities, entity,
                    DimensionKind::Entity);
}

QString OfflineEntityAttributes::userDefined(MemberId entity, size_t index) const
{
    return mApplication->arena->text(record(entity).userDefined[index]);
}

MemberId OfflineEntityAttributes::GetEntityCurrencyId(MemberId entity)
{
    const qint32 currency = record(entity).currency;
    return currency < 0 ? mApplication->noCurrency
                        : mApplication->entityCurrencies[size_t(currency)];
}

ClassId OfflineEntityAttributes::GetEntitySecurityClassId(MemberId entity)
{
    return classOf(*mApplication, record(entity).securityClass);
}

bool OfflineEntityAttributes::GetEntityAllowAdjs(MemberId entity)
{
    return record(entity).allowAdjs;
}

bool OfflineEntityAttributes::GetEntityIsICP(MemberId entity)
{
    return record(entity).isICP;
}

bool OfflineEntityAttributes::GetEntityAllowChildAdjs(MemberId entity)
{
    return record(entity).allowAdjFromChildren;
}

QString OfflineEntityAttributes::GetEntityUserDefined1(MemberId entity)
{
    return userDefined(entity, 0);
}

QString OfflineEntityAttributes::GetEntityUserDefined2(MemberId entity)
{
    return userDefined(entity, 1);
}

QString OfflineEntityAttributes::GetEntityUserDefined3(MemberId entity)
{
    return userDefined(entity, 2);
}

OfflineAccountAttributes::OfflineAccountAttributes(std::shared_ptr<const Application> application)
    : mApplication(std::move(application))
{
}

const AccountRecord &OfflineAccountAttributes::record(MemberId account) const
{
    return recordAt(mApplication->dimension(DimensionKind::Account).accounts, account,
                    DimensionKind::Account);
}

QString OfflineAccountAttributes::userDefined(MemberId account, size_t index) const
{
    return mApplication->arena->text(record(account).userDefined[index]);
}

MemberId OfflineAccountAttributes::topMember(MemberId account, size_t custom) const
{
    const qint32 named = record(account).topMembers[custom];
    return named < 0 ? -1 : mApplication->topMembers[custom][size_t(named)];
}

bool OfflineAccountAttributes::aggregates(MemberId account, unsigned custom) const
{
    return record(account).aggregatesCustoms >> custom & 1U;
}

qint32 OfflineAccountAttributes::GetAccountType(MemberId account)
{
    return record(account).type;
}

bool OfflineAccountAttributes::GetAccountIsCalculated(MemberId account)
{
    return record(account).isCalculated;
}

bool OfflineAccountAttributes::GetAccountIsLID(MemberId account)
{
    return record(account).usesLineItems;
}

bool OfflineAccountAttributes::GetAccountIsConsolidated(MemberId account)
{
    return record(account).isConsolidated;
}

MemberId OfflineAccountAttributes::GetAccountTopCustom1(MemberId account)
{
    return topMember(account, 0);
}

MemberId OfflineAccountAttributes::GetAccountTopCustom2(MemberId account)
{
    return topMember(account, 1);
}

MemberId OfflineAccountAttributes::GetAccountTopCustom3(MemberId account)
{
    return topMember(account, 2);
}

MemberId OfflineAccountAttributes::GetAccountTopCustom4(MemberId account)
{
    return topMember(account, 3);
}

qint16 OfflineAccountAttributes::GetAccountDecimalPlaces(MemberId account)
{
    return record(account).decimalPlaces;
}

bool OfflineAccountAttributes::GetAccountCustom1AggEnabled(MemberId account)
{
    return aggregates(account, 0);
}

bool OfflineAccountAttributes::GetAccountCustom2AggEnabled(MemberId account)
{
    return aggregates(account, 1);
}

bool OfflineAccountAttributes::GetAccountCustom3AggEnabled(MemberId account)
{
    return aggregates(account, 2);
}

bool OfflineAccountAttributes::GetAccountCustom4AggEnabled(MemberId account)
{
    return aggregates(account, 3);
}

QString OfflineAccountAttributes::GetAccountUserDefined1(MemberId account)
{
    return userDefined(account, 0);
}

QString OfflineAccountAttributes::GetAccountUserDefined2(MemberId account)
{
    return userDefined(account, 1);
}

QString OfflineAccountAttributes::GetAccountUserDefined3(MemberId account)
{
    return userDefined(account, 2);
}

ClassId OfflineAccountAttributes::GetAccountSecurityClassId(MemberId account)
{
    return classOf(*mApplication, record(account).securityClass);
}

qint32 OfflineAccountAttributes::GetAccountIsICP(MemberId account)
{
    return record(account).isICP;
}

OfflineCustomAttributes::OfflineCustomAttributes(std::shared_ptr<const Application> application,
                                                 DimensionKind kind)
    : mApplication(std::move(application)), mKind(kind)
{
}

const CustomRecord &OfflineCustomAttributes::record(MemberId member) const
{
    return recordAt(mApplication->dimension(mKind).customs, member, mKind);
}

QString OfflineCustomAttributes::userDefined(MemberId member, size_t index) const
{
    return mApplication->arena->text(record(member).userDefined[index]);
}

QString OfflineCustomAttributes::GetCustomUserDefined1(MemberId member)
{
    return userDefined(member, 0);
}

QString OfflineCustomAttributes::GetCustomUserDefined2(MemberId member)
{
    return userDefined(member, 1);
}

QString OfflineCustomAttributes::GetCustomUserDefined3(MemberId member)
{
    return userDefined(member, 2);
}

ClassId OfflineCustomAttributes::GetCustomSecurityClassId(MemberId member)
{
    return classOf(*mApplication, record(member).securityClass);
}

} // namespace hfm::offline
