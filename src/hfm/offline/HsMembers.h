#pragma once

#include <QString>

namespace hfm::offline {

/// The properties and methods that HS and its objects have for member lists, as HFM documents
/// them. What needs data, ownership or a point of view is not among them.
enum class HsMember : qint32 {
    Account,
    AccountType,
    AddEntityToList,
    AddMemberToList,
    AppSettings,
    Currency,
    Custom,
    Custom1,
    Custom2,
    Custom3,
    Custom4,
    DefCurrency,
    DefaultParent,
    Dimension,
    Entity,
    Holding,
    ICP,
    IsBase,
    IsCalculated,
    IsChild,
    IsConsolidated,
    IsDescendant,
    IsICP,
    List,
    MemberListEntity,
    MemberListID,
    MemberListPeriod,
    MemberListScenario,
    MemberListYear,
    NumBase,
    NumChild,
    NumDescendant,
    Parent,
    Scenario,
    SecurityClass,
    SetMemberLists,
    UD1,
    UD2,
    UD3,
    Count
};

/// The member of that name, in any letter case, as a number; -1 where there is none.
qint32 hsMemberNumber(const QString &name);
/// As HFM spells it.
QString hsMemberName(HsMember member);

} // namespace hfm::offline
