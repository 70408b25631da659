#pragma once

#include "hfm/offline/LargeMemory.h"
#include "hfm/Values.h"

#include <span>
#include <vector>

namespace hfm::offline {

/// A member under a parent, as one line of a hierarchy section says.
struct Edge
{
    MemberId parent; ///< or rootMember
    MemberId child;
};

/// What was wrong with the edges of a hierarchy. Positions are 0-based in the list of edges.
struct HierarchyFaults
{
    /// Edges that stood before already and were left out, in their order.
    std::vector<qsizetype> repeatedEdges;
    /// The members of one cycle, each the parent of the next and the last that of the first; empty
    /// where there is none. Where there is one the hierarchy has no edges at all.
    std::vector<MemberId> cycle;
    /// The edge that closes the cycle: the last of its edges; -1 where there is none.
    qsizetype cycleEdge = -1;
};

/// How the members of a dimension stand under each other: a tree whose members may have several
/// parents. A shared member has the same children wherever it stands.
///
/// Members are the numbers from 0 to memberCount() - 1. Tree order is that of the tree written
/// down line by line: a parent, then all below it, then its next sibling; siblings in the order of
/// their edges. A member that cannot be reached from the root has no node in the tree, but keeps
/// what stands below it.
///
/// Nothing here recurses, and everything but the making takes time in proportion to what it walks
/// over. Shared parents below shared parents can stand for more occurrences than there is memory:
/// a walk over more than maximumEntries of them fails with RuntimeError OutOfMemory before it
/// starts.
class Hierarchy
{
public:
    static constexpr qint64 maximumEntries = qint64(1) << 26;

    /// Without members.
    Hierarchy() = default;
    /// Every number in `edges` is a member or, as parent, rootMember. `faults` is written anew.
    Hierarchy(qint32 memberCount, std::span<const Edge> edges, HierarchyFaults &faults);

    qint32 memberCount() const { return qint32(mRanks.size()); }

    // Here `member` and `top` may be rootMember, unless it says otherwise.

    /// The direct children, in sibling order.
    std::span<const MemberId> children(MemberId member) const;
    qint32 childCount(MemberId member) const { return qint32(children(member).size()); }
    bool hasChildren(MemberId member) const { return !children(member).empty(); }
    /// The length of the longest way down; 0 without children.
    qint32 generationsBelow(MemberId member) const { return mGenerations[slot(member)]; }
    /// How many entries membersBelow(member, EveryOccurrence) has; maximumEntries + 1 stands for
    /// every larger number.
    qint64 occurrencesBelow(MemberId member) const { return mOccurrences[slot(member)]; }

    /// The direct parents in tree order, rootMember first where it is one. Not of rootMember.
    std::span<const MemberId> parents(MemberId member) const;
    /// Whether the member stands in the tree. Not of rootMember.
    bool hasNode(MemberId member) const { return rank(member) < mNodes; }
    /// The member's position in treeOrder(); those without a node come after. Not of rootMember.
    qint32 rank(MemberId member) const { return mRanks[size_t(member)]; }
    /// Every member above `member`, each once, in tree order; those without a node last. Without
    /// rootMember.
    QList<MemberId> ancestors(MemberId member) const;

    /// Everything below the root, with parents: as often as it stands there, in tree order.
    Occurrences occurrences() const;
    /// What is below `top`, without `top` itself, in tree order; with EachMemberOnce a member
    /// stands where it is met first.
    QList<MemberId> membersBelow(MemberId top, Distinct distinct) const;
    /// Those of membersBelow() that have no children.
    QList<MemberId> baseMembersBelow(MemberId top, Distinct distinct) const;
    /// Every member that has a node, each once, in tree order.
    QList<MemberId> treeOrder() const { return membersBelow(rootMember, EachMemberOnce); }

private:
    class Builder;

    /// Where the root, at 0, and the members stand in the arrays that have a place for the root.
    static size_t slot(MemberId member) { return size_t(member + 1); }
    template <typename Enter>
    void walk(MemberId top, Enter enter) const;
    template <typename Keep>
    QList<MemberId> below(MemberId top, Distinct distinct, Keep keep) const;

    // By slot; the last entry of the starts ends the last member's part.
    LargeVector<quint32> mChildStarts = {0, 0};
    LargeVector<qint32> mGenerations = {0};
    LargeVector<quint32> mOccurrences = {0};
    LargeVector<MemberId> mChildren;

    // By member.
    LargeVector<quint32> mParentStarts = {0};
    LargeVector<qint32> mRanks;
    LargeVector<MemberId> mParents;
    qint32 mNodes = 0; ///< how many members have a node
};

} // namespace hfm::offline
