#pragma once

#include "hfm/Values.h"

namespace hfm {

/// The attributes of the Entity dimension's members. An ID that is no entity fails with
/// RuntimeError InvalidProcedureCall, in every operation.
class EntityAttributes
{
public:
    virtual ~EntityAttributes() = default;
    /// The default currency, as the ID of a member of the Value dimension.
    virtual MemberId GetEntityCurrencyId(MemberId entity) = 0;
    /// The security class, or noClass.
    virtual ClassId GetEntitySecurityClassId(MemberId entity) = 0;
    virtual bool GetEntityAllowAdjs(MemberId entity) = 0;
    virtual bool GetEntityIsICP(MemberId entity) = 0;
    virtual bool GetEntityAllowChildAdjs(MemberId entity) = 0;
    virtual QString GetEntityUserDefined1(MemberId entity) = 0;
    virtual QString GetEntityUserDefined2(MemberId entity) = 0;
    virtual QString GetEntityUserDefined3(MemberId entity) = 0;
};

/// The attributes of the Account dimension's members. An ID that is no account fails with
/// RuntimeError InvalidProcedureCall, in every operation.
class AccountAttributes
{
public:
    virtual ~AccountAttributes() = default;
    /// 0 income, 1 expense, 2 asset, 3 liability, 4 balance, 5 flow, 6 non-financial, 7 currency
    /// rate, 8 system, 9 text, 10 group label, 11 balance recurring, 12 dynamic; others unknown.
    virtual qint32 GetAccountType(MemberId account) = 0;
    virtual bool GetAccountIsCalculated(MemberId account) = 0;
    /// Whether the account holds line item detail.
    virtual bool GetAccountIsLID(MemberId account) = 0;
    virtual bool GetAccountIsConsolidated(MemberId account) = 0;
    /// The top member of the account's valid intersections in a custom dimension, as the ID of a
    /// member of that dimension; -1 where the account names none.
    virtual MemberId GetAccountTopCustom1(MemberId account) = 0;
    virtual MemberId GetAccountTopCustom2(MemberId account) = 0;
    virtual MemberId GetAccountTopCustom3(MemberId account) = 0;
    virtual MemberId GetAccountTopCustom4(MemberId account) = 0;
    virtual qint16 GetAccountDecimalPlaces(MemberId account) = 0;
    virtual bool GetAccountCustom1AggEnabled(MemberId account) = 0;
    virtual bool GetAccountCustom2AggEnabled(MemberId account) = 0;
    virtual bool GetAccountCustom3AggEnabled(MemberId account) = 0;
    virtual bool GetAccountCustom4AggEnabled(MemberId account) = 0;
    virtual QString GetAccountUserDefined1(MemberId account) = 0;
    virtual QString GetAccountUserDefined2(MemberId account) = 0;
    virtual QString GetAccountUserDefined3(MemberId account) = 0;
    /// The security class, or noClass.
    virtual ClassId GetAccountSecurityClassId(MemberId account) = 0;
    /// -1 intercompany, 0 not, 1 restricted: intercompany, but not with itself.
    virtual qint32 GetAccountIsICP(MemberId account) = 0;
};

/// The attributes of the members of a custom dimension. An ID that is no member of it fails with
/// RuntimeError InvalidProcedureCall, in every operation.
class CustomAttributes
{
public:
    virtual ~CustomAttributes() = default;
    virtual QString GetCustomUserDefined1(MemberId member) = 0;
    virtual QString GetCustomUserDefined2(MemberId member) = 0;
    virtual QString GetCustomUserDefined3(MemberId member) = 0;
    /// The security class, or noClass.
    virtual ClassId GetCustomSecurityClassId(MemberId member) = 0;
};

} // namespace hfm
