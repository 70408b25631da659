#include "hfm/offline/HsDimension.h"

#include <algorithm>
#include <array>

// The attributes of members.

namespace hfm::offline {

using script::Text;
using script::Value;

namespace {

/// The type as an account's record has it; empty for one that HFM does not have.
Value typeName(qint8 type)
{
    static const std::array<Value, 13> names = [] {
        static constexpr const char *words[] = {
            "REVENUE",    "EXPENSE",          "ASSET",        "LIABILITY", "BALANCE",
            "FLOW",       "NONFINANCIAL",     "CURRENCYRATE", "SYSTEM",    "TEXT",
            "GROUPLABEL", "BALANCERECURRING", "DYNAMIC"};
        std::array<Value, 13> values;
        for (size_t i = 0; i < values.size(); ++i)
            values[i] = Value(Text(QLatin1StringView(words[i]).toString(), nullptr));
        return values;
    }();
    return type >= 0 && size_t(type) < names.size() ? names[size_t(type)] : Value(Text());
}

} // namespace

Value HsDimension::attribute(HsMember member, MemberId of)
{
    if (member == HsMember::DefaultParent) {
        const MemberId parent = mDimension.defaultParents[size_t(of)];
        return parent == rootMember ? Value(Text()) : ListRun::label(mKind, parent);
    }
    if (mKind == DimensionKind::Entity)
        return entityAttribute(member, of);
    if (mKind == DimensionKind::Account)
        return accountAttribute(member, of);
    static const CustomRecord none{};
    const bool hasRecord = size_t(of) < mDimension.customs.size();
    const CustomRecord &record = hasRecord ? mDimension.customs[size_t(of)] : none;
    if (mKind == DimensionKind::ICP && member != HsMember::SecurityClass)
        failUnknownMember(*this, member);
    return sharedAttribute(member, record.userDefined, record.securityClass);
}

Value HsDimension::entityAttribute(HsMember member, MemberId of)
{
    const EntityRecord &record = mDimension.entities[size_t(of)];
    switch (member) {
    case HsMember::DefCurrency:
        return mList.currencyOf(record.currency);
    case HsMember::IsICP:
        return Value::boolean(record.isICP);
    case HsMember::Holding: {
        const auto &holdings = mDimension.holdings;
        const auto found = std::lower_bound(
            holdings.begin(), holdings.end(), of,
            [](const EntityHolding &holding, MemberId id) { return holding.entity < id; });
        return mList.attribute(found != holdings.end() && found->entity == of ? found->company : 0);
    }
    default:
        return sharedAttribute(member, record.userDefined, record.securityClass);
    }
}

Value HsDimension::accountAttribute(HsMember member, MemberId of)
{
    const AccountRecord &record = mDimension.accounts[size_t(of)];
    switch (member) {
    case HsMember::AccountType:
        return typeName(record.type);
    case HsMember::IsCalculated:
        return Value::boolean(record.isCalculated);
    case HsMember::IsConsolidated:
        return Value::boolean(record.isConsolidated);
    case HsMember::IsICP:
        return Value::boolean(record.isICP != 0);
    default:
        return sharedAttribute(member, record.userDefined, record.securityClass);
    }
}

/// The attributes that members of all these dimensions have.
Value HsDimension::sharedAttribute(HsMember member, const UserDefined &userDefined, ClassId ofClass)
{
    switch (member) {
    case HsMember::UD1:
        return mList.attribute(userDefined[0]);
    case HsMember::UD2:
        return mList.attribute(userDefined[1]);
    case HsMember::UD3:
        return mList.attribute(userDefined[2]);
    case HsMember::SecurityClass:
        return mList.className(ofClass);
    default:
        failUnknownMember(*this, member);
    }
}

} // namespace hfm::offline
