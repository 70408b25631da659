#include "hfm/offline/HsMembers.h"

#include <array>

namespace hfm::offline {

namespace {

constexpr std::array names = {
    "Account",
    "AccountType",
    "AddEntityToList",
    "AddMemberToList",
    "AppSettings",
    "Currency",
    "Custom",
    "Custom1",
    "Custom2",
    "Custom3",
    "Custom4",
    "DefCurrency",
    "DefaultParent",
    "Dimension",
    "Entity",
    "Holding",
    "ICP",
    "IsBase",
    "IsCalculated",
    "IsChild",
    "IsConsolidated",
    "IsDescendant",
    "IsICP",
    "List",
    "MemberListEntity",
    "MemberListID",
    "MemberListPeriod",
    "MemberListScenario",
    "MemberListYear",
    "NumBase",
    "NumChild",
    "NumDescendant",
    "Parent",
    "Scenario",
    "SecurityClass",
    "SetMemberLists",
    "UD1",
    "UD2",
    "UD3",
};
static_assert(names.size() == size_t(HsMember::Count));

} // namespace

qint32 hsMemberNumber(const QString &name)
{
    for (size_t i = 0; i < names.size(); ++i) {
        if (name.compare(QLatin1StringView(names[i]), Qt::CaseInsensitive) == 0)
            return qint32(i);
    }
    return -1;
}

QString hsMemberName(HsMember member)
{
    return QLatin1StringView(names[size_t(member)]);
}

} // namespace hfm::offline
