#pragma once

#include "hfm/offline/DimensionKind.h"
#include "hfm/offline/Hierarchy.h"

#include <map>
#include <optional>

namespace hfm::offline {

/// What a system list holds.
enum class SystemList {
    Hierarchy,
    Descendants,
    Ancestors,
    Base,
    Children,
    Parents,
    System,
    AdjustmentEntities,
    ParentAdjustmentEntities,
    Currencies,
    ConsolMethods,
    FirstGeneration,
    SecondGeneration,
    ThirdGeneration,
    FourthGeneration,
    FifthGeneration,
    SixthGeneration,
    Adjustments,
    DefaultCurrencies,
    Inputs,
    Totals,
};

/// The members of the lists that follow from what members are rather than from where they stand:
/// System, the two of adjustment entities, Currencies, ConsolMethods, and those of the Value
/// dimension. In any order; a list that is not there is empty.
using GivenLists = std::map<SystemList, QList<MemberId>>;

/// The system lists of a dimension. Their IDs are -1, -2, -3, ... in the order of names(), so that
/// "[Hierarchy]" is -1.
class SystemLists
{
public:
    SystemLists() = default;
    SystemLists(DimensionKind kind, const Hierarchy &hierarchy, GivenLists given = {});

    /// The names, in square brackets.
    QList<QString> names() const;
    /// The list of that name, in any letter case.
    std::optional<ListId> find(const QString &name) const;
    bool contains(ListId list) const { return list < 0 && list >= -ListId(mLists.size()); }

    /// The members of a list that contains() accepts, each once, in tree order. `hierarchy` is the
    /// one that the lists were made for; a `top` that is no member of it restricts nothing.
    ///
    /// Below a top member, Children are its children, Parents and Ancestors what is above it, and
    /// every other list is narrowed to what is below it, the generations being still those of the
    /// whole dimension. Without one, Children are the top-level members, and Parents and Ancestors
    /// are empty. In the given lists the members without a node come last.
    QList<MemberId> members(ListId list, const Hierarchy &hierarchy, MemberId top) const;

private:
    std::vector<SystemList> mLists;
    GivenLists mGiven; ///< each in tree order
};

} // namespace hfm::offline
