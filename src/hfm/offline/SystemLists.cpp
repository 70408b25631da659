#include "hfm/offline/SystemLists.h"

#include <algorithm>
#include <iterator>

namespace hfm::offline {

namespace {

QLatin1StringView nameOf(SystemList list)
{
    static constexpr std::array names = {
        "[Hierarchy]",
        "[Descendants]",
        "[Ancestors]",
        "[Base]",
        "[Children]",
        "[Parents]",
        "[System]",
        "[Adjustment Entities]",
        "[Parent Adjustment Entities]",
        "[Currencies]",
        "[ConsolMethods]",
        "[First Generation]",
        "[Second Generation]",
        "[Third Generation]",
        "[Fourth Generation]",
        "[Fifth Generation]",
        "[Sixth Generation]",
        "[Adjustments]",
        "[Default Currencies]",
        "[Inputs]",
        "[Totals]",
    };
    return QLatin1StringView(names[size_t(list)]);
}

/// The lists that a dimension has besides Hierarchy and Descendants.
std::vector<SystemList> furtherLists(DimensionKind kind)
{
    using enum SystemList;
    switch (kind) {
    case DimensionKind::Account:
    case DimensionKind::ICP:
        return {Ancestors, Base, Children, Parents, System};
    case DimensionKind::Entity:
        return {Ancestors, Base, Children, Parents, AdjustmentEntities, ParentAdjustmentEntities};
    case DimensionKind::Custom1:
        return {Ancestors, Base, Children, Parents, Currencies, ConsolMethods};
    case DimensionKind::Custom2:
        return {Ancestors, Base, Children, Parents, Currencies};
    case DimensionKind::Custom3:
    case DimensionKind::Custom4:
        return {Ancestors, Base, Children, Parents};
    case DimensionKind::Period:
        return {Ancestors, Children, Parents};
    case DimensionKind::Value:
        return {Adjustments, DefaultCurrencies, Inputs, Totals};
    case DimensionKind::Scenario:
    case DimensionKind::Year:
    case DimensionKind::View:
        break;
    }
    return {};
}

std::vector<SystemList> listsOf(DimensionKind kind, qint32 generations)
{
    std::vector<SystemList> lists = {SystemList::Hierarchy, SystemList::Descendants};
    std::ranges::copy(furtherLists(kind), std::back_inserter(lists));
    if (kind == DimensionKind::Period)
        for (int i = 0; i < std::min(generations, 6); ++i)
            lists.push_back(SystemList(int(SystemList::FirstGeneration) + i));
    return lists;
}

/// Sorts `members` into tree order and leaves each in once.
void bringIntoTreeOrder(QList<MemberId> &members, const Hierarchy &hierarchy)
{
    std::vector<MemberId> byRank(size_t(hierarchy.memberCount()), rootMember);
    for (const MemberId member : members)
        byRank[size_t(hierarchy.rank(member))] = member;
    members.clear();
    std::ranges::copy_if(byRank, std::back_inserter(members),
                         [](MemberId member) { return member != rootMember; });
}

/// Those of `members` that are below `top`, in the order in which they stand there.
QList<MemberId> narrowed(const QList<MemberId> &members, const Hierarchy &hierarchy, MemberId top)
{
    if (top == rootMember)
        return members;
    std::vector<bool> wanted(size_t(hierarchy.memberCount()));
    for (const MemberId member : members)
        wanted[size_t(member)] = true;
    QList<MemberId> found = hierarchy.membersBelow(top, EachMemberOnce);
    found.removeIf([&](MemberId member) { return !wanted[size_t(member)]; });
    return found;
}

/// The members that have a node so many levels below the root, in the order of these nodes.
QList<MemberId> membersOfGeneration(qint32 generation, const Hierarchy &hierarchy)
{
    QList<MemberId> level = {rootMember};
    for (; generation > 0; --generation) {
        std::vector<bool> met(size_t(hierarchy.memberCount()));
        QList<MemberId> next;
        for (const MemberId parent : level)
            for (const MemberId child : hierarchy.children(parent)) {
                if (!met[size_t(child)])
                    next.append(child);
                met[size_t(child)] = true;
            }
        level = std::move(next);
    }
    return level;
}

QList<MemberId> toList(std::span<const MemberId> members)
{
    return QList<MemberId>(members.begin(), members.end());
}

QList<MemberId> directParents(const Hierarchy &hierarchy, MemberId member)
{
    if (member == rootMember)
        return {};
    QList<MemberId> parents = toList(hierarchy.parents(member));
    parents.removeOne(rootMember);
    return parents;
}

} // namespace

SystemLists::SystemLists(DimensionKind kind, const Hierarchy &hierarchy, GivenLists given)
    : mLists(listsOf(kind, hierarchy.generationsBelow(rootMember))), mGiven(std::move(given))
{
    for (auto &[list, members] : mGiven)
        bringIntoTreeOrder(members, hierarchy);
}

QList<QString> SystemLists::names() const
{
    QList<QString> names;
    for (const SystemList list : mLists)
        names.append(nameOf(list));
    return names;
}

std::optional<ListId> SystemLists::find(const QString &name) const
{
    for (size_t i = 0; i < mLists.size(); ++i)
        if (name.compare(nameOf(mLists[i]), Qt::CaseInsensitive) == 0)
            return -1 - ListId(i);
    return std::nullopt;
}

QList<MemberId> SystemLists::members(ListId list, const Hierarchy &hierarchy, MemberId top) const
{
    if (top < 0 || top >= hierarchy.memberCount())
        top = rootMember;
    const SystemList kind = mLists[size_t(-1 - list)];
    switch (kind) {
    case SystemList::Hierarchy:
    case SystemList::Descendants:
        return hierarchy.membersBelow(top, EachMemberOnce);
    case SystemList::Ancestors:
        return hierarchy.ancestors(top);
    case SystemList::Base:
        return hierarchy.baseMembersBelow(top, EachMemberOnce);
    case SystemList::Children:
        return toList(hierarchy.children(top));
    case SystemList::Parents:
        return directParents(hierarchy, top);
    case SystemList::FirstGeneration:
    case SystemList::SecondGeneration:
    case SystemList::ThirdGeneration:
    case SystemList::FourthGeneration:
    case SystemList::FifthGeneration:
    case SystemList::SixthGeneration: {
        const qint32 generation = 1 + qint32(kind) - qint32(SystemList::FirstGeneration);
        return narrowed(membersOfGeneration(generation, hierarchy), hierarchy, top);
    }
    default:
        break;
    }
    const auto given = mGiven.find(kind);
    return given == mGiven.end() ? QList<MemberId>() : narrowed(given->second, hierarchy, top);
}

} // namespace hfm::offline
