#include "support/FakeAttributes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the views have in common: the values of one member, noted as a call.
template <typename Values>
class View
{
public:
    View(std::shared_ptr<FakeDimensionData> data, QHash<hfm::MemberId, Values> &values)
        : mData(std::move(data)), mValues(values)
    {
    }

protected:
    Values read(QLatin1StringView operation, hfm::MemberId member) const
    {
        mData->calls->enter(operation);
        if (!mData->members.contains(member))
            throw fakeClientError();
        return mValues.value(member);
    }

private:
    std::shared_ptr<FakeDimensionData> mData;
    const QHash<hfm::MemberId, Values> &mValues;
};

class EntityView final : public hfm::EntityAttributes, View<FakeEntity>
{
public:
    using View::View;

    hfm::MemberId GetEntityCurrencyId(hfm::MemberId member) override
    {
        return read("GetEntityCurrencyId"_L1, member).currency;
    }
    hfm::ClassId GetEntitySecurityClassId(hfm::MemberId member) override
    {
        return read("GetEntitySecurityClassId"_L1, member).securityClass;
    }
    bool GetEntityAllowAdjs(hfm::MemberId member) override
    {
        return read("GetEntityAllowAdjs"_L1, member).allowAdjs;
    }
    bool GetEntityIsICP(hfm::MemberId member) override
    {
        return read("GetEntityIsICP"_L1, member).isICP;
    }
    bool GetEntityAllowChildAdjs(hfm::MemberId member) override
    {
        return read("GetEntityAllowChildAdjs"_L1, member).allowChildAdjs;
    }
    QString GetEntityUserDefined1(hfm::MemberId member) override
    {
        return read("GetEntityUserDefined1"_L1, member).userDefined[0];
    }
    QString GetEntityUserDefined2(hfm::MemberId member) override
    {
        return read("GetEntityUserDefined2"_L1, member).userDefined[1];
    }
    QString GetEntityUserDefined3(hfm::MemberId member) override
    {
        return read("GetEntityUserDefined3"_L1, member).userDefined[2];
    }
};

class AccountView final : public hfm::AccountAttributes, View<FakeAccount>
{
public:
    using View::View;

    qint32 GetAccountType(hfm::MemberId member) override
    {
        return read("GetAccountType"_L1, member).type;
    }
    bool GetAccountIsCalculated(hfm::MemberId member) override
    {
        return read("GetAccountIsCalculated"_L1, member).isCalculated;
    }
    bool GetAccountIsLID(hfm::MemberId member) override
    {
        return read("GetAccountIsLID"_L1, member).isLID;
    }
    bool GetAccountIsConsolidated(hfm::MemberId member) override
    {
        return read("GetAccountIsConsolidated"_L1, member).isConsolidated;
    }
    hfm::MemberId GetAccountTopCustom1(hfm::MemberId member) override
    {
        return read("GetAccountTopCustom1"_L1, member).topCustoms[0];
    }
    hfm::MemberId GetAccountTopCustom2(hfm::MemberId member) override
    {
        return read("GetAccountTopCustom2"_L1, member).topCustoms[1];
    }
    hfm::MemberId GetAccountTopCustom3(hfm::MemberId member) override
    {
        return read("GetAccountTopCustom3"_L1, member).topCustoms[2];
    }
    hfm::MemberId GetAccountTopCustom4(hfm::MemberId member) override
    {
        return read("GetAccountTopCustom4"_L1, member).topCustoms[3];
    }
    qint16 GetAccountDecimalPlaces(hfm::MemberId member) override
    {
        return read("GetAccountDecimalPlaces"_L1, member).decimalPlaces;
    }
    bool GetAccountCustom1AggEnabled(hfm::MemberId member) override
    {
        return read("GetAccountCustom1AggEnabled"_L1, member).customAggEnabled[0];
    }
    bool GetAccountCustom2AggEnabled(hfm::MemberId member) override
    {
        return read("GetAccountCustom2AggEnabled"_L1, member).customAggEnabled[1];
    }
    bool GetAccountCustom3AggEnabled(hfm::MemberId member) override
    {
        return read("GetAccountCustom3AggEnabled"_L1, member).customAggEnabled[2];
    }
    bool GetAccountCustom4AggEnabled(hfm::MemberId member) override
    {
        return read("GetAccountCustom4AggEnabled"_L1, member).customAggEnabled[3];
    }
    QString GetAccountUserDefined1(hfm::MemberId member) override
    {
        return read("GetAccountUserDefined1"_L1, member).userDefined[0];
    }
    QString GetAccountUserDefined2(hfm::MemberId member) override
    {
        return read("GetAccountUserDefined2"_L1, member).userDefined[1];
    }
    QString GetAccountUserDefined3(hfm::MemberId member) override
    {
        return read("GetAccountUserDefined3"_L1, member).userDefined[2];
    }
    hfm::ClassId GetAccountSecurityClassId(hfm::MemberId member) override
    {
        return read("GetAccountSecurityClassId"_L1, member).securityClass;
    }
    qint32 GetAccountIsICP(hfm::MemberId member) override
    {
        return read("GetAccountIsICP"_L1, member).isICP;
    }
};

class CustomView final : public hfm::CustomAttributes, View<FakeCustom>
{
public:
    using View::View;

    QString GetCustomUserDefined1(hfm::MemberId member) override
    {
        return read("GetCustomUserDefined1"_L1, member).userDefined[0];
    }
    QString GetCustomUserDefined2(hfm::MemberId member) override
    {
        return read("GetCustomUserDefined2"_L1, member).userDefined[1];
    }
    QString GetCustomUserDefined3(hfm::MemberId member) override
    {
        return read("GetCustomUserDefined3"_L1, member).userDefined[2];
    }
    hfm::ClassId GetCustomSecurityClassId(hfm::MemberId member) override
    {
        return read("GetCustomSecurityClassId"_L1, member).securityClass;
    }
};

} // namespace

std::shared_ptr<hfm::EntityAttributes> fakeEntityView(std::shared_ptr<FakeDimensionData> data)
{
    return std::make_shared<EntityView>(data, data->entities);
}

std::shared_ptr<hfm::AccountAttributes> fakeAccountView(std::shared_ptr<FakeDimensionData> data)
{
    return std::make_shared<AccountView>(data, data->accounts);
}

std::shared_ptr<hfm::CustomAttributes> fakeCustomView(std::shared_ptr<FakeDimensionData> data)
{
    return std::make_shared<CustomView>(data, data->customs);
}

RuntimeError fakeClientError(const QString &description)
{
    return RuntimeError(InvalidProcedureCall, QStringLiteral("HFM"), description);
}
