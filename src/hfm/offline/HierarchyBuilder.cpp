#include "hfm/offline/HierarchyBuilder.h"

#include <algorithm>
#include <numeric>

namespace hfm::offline {

Hierarchy::Hierarchy(qint32 memberCount, std::span<const Edge> edges, HierarchyFaults &faults)
{
    Builder(*this, memberCount, edges, faults).build();
}

Hierarchy::Builder::Builder(Hierarchy &hierarchy, qint32 memberCount, std::span<const Edge> edges,
                            HierarchyFaults &faults)
    : mHierarchy(hierarchy), mMemberCount(size_t(memberCount)), mEdges(edges), mFaults(faults)
{
}

void Hierarchy::Builder::build()
{
    mFaults = {};
    clear();
    placeChildren();
    visitEverything();
    if (mFaults.cycle.empty())
        placeParents();
    else
        clear();
}

/// A hierarchy of the members without any edge.
void Hierarchy::Builder::clear()
{
    mHierarchy.mChildStarts.assign(mMemberCount + 2, 0);
    mHierarchy.mGenerations.assign(mMemberCount + 1, 0);
    mHierarchy.mOccurrences.assign(mMemberCount + 1, 0);
    mHierarchy.mChildren.clear();
    mHierarchy.mParentStarts.assign(mMemberCount + 1, 0);
    mHierarchy.mParents.clear();
    mHierarchy.mRanks.resize(mMemberCount);
    std::iota(mHierarchy.mRanks.begin(), mHierarchy.mRanks.end(), 0);
    mHierarchy.mNodes = 0;
}

void Hierarchy::Builder::placeChildren()
{
    LargeVector<quint32> &starts = mHierarchy.mChildStarts;
    for (const Edge &edge : mEdges)
        ++starts[slot(edge.parent) + 1];
    std::partial_sum(starts.begin(), starts.end(), starts.begin());

    mHierarchy.mChildren.resize(mEdges.size());
    LargeVector<quint32> edgeOfChild(mEdges.size());
    LargeVector<quint32> ends(starts.begin(), starts.end() - 1);
    for (size_t i = 0; i < mEdges.size(); ++i) {
        const quint32 place = ends[slot(mEdges[i].parent)]++;
        mHierarchy.mChildren[place] = mEdges[i].child;
        edgeOfChild[place] = quint32(i);
    }
    leaveOutRepeatedEdges(edgeOfChild);
}

void Hierarchy::Builder::leaveOutRepeatedEdges(const LargeVector<quint32> &edgeOfChild)
{
    LargeVector<quint32> &starts = mHierarchy.mChildStarts;
    LargeVector<MemberId> &children = mHierarchy.mChildren;
    constexpr MemberId noParent = rootMember - 1;
    LargeVector<MemberId> lastParents(mMemberCount, noParent);
    quint32 kept = 0;
    for (size_t at = 0; at <= mMemberCount; ++at) {
        const MemberId parent = MemberId(at) - 1;
        const quint32 first = kept;
        for (quint32 i = starts[at]; i < starts[at + 1]; ++i) {
            MemberId &last = lastParents[size_t(children[i])];
            if (last == parent)
                mFaults.repeatedEdges.push_back(qsizetype(edgeOfChild[i]));
            else
                children[kept++] = children[i];
            last = parent;
        }
        starts[at] = first;
    }
    starts.back() = kept;
    children.resize(kept);
    std::sort(mFaults.repeatedEdges.begin(), mFaults.repeatedEdges.end());
}

void Hierarchy::Builder::visitEverything()
{
    mStates.assign(mMemberCount + 1, State::New);
    mOrder.reserve(mMemberCount);
    visit(rootMember);
    mHierarchy.mNodes = qint32(mOrder.size());

    std::vector<bool> isChild(mMemberCount);
    for (const MemberId child : mHierarchy.mChildren)
        isChild[size_t(child)] = true;
    for (size_t member = 0; member < mMemberCount; ++member)
        if (!isChild[member])
            visit(MemberId(member));
    // What is still new stands on a cycle, or below one, that nothing leads to.
    for (size_t member = 0; member < mMemberCount; ++member)
        visit(MemberId(member));
}

/// Visits, depth first, what is new of `start` and all below it.
void Hierarchy::Builder::visit(MemberId start)
{
    if (!mFaults.cycle.empty() || mStates[slot(start)] != State::New)
        return;
    open(start);
    while (!mLevels.empty()) {
        Level &level = mLevels.back();
        if (level.nextChild == mHierarchy.mChildStarts[slot(level.member) + 1]) {
            close(level.member);
            continue;
        }
        const MemberId child = mHierarchy.mChildren[level.nextChild++];
        if (mStates[slot(child)] == State::New)
            open(child);
        else if (mStates[slot(child)] == State::Open)
            return noteCycle(child);
    }
}

void Hierarchy::Builder::open(MemberId member)
{
    mStates[slot(member)] = State::Open;
    mLevels.push_back({member, mHierarchy.mChildStarts[slot(member)]});
    if (member == rootMember)
        return;
    mHierarchy.mRanks[size_t(member)] = qint32(mOrder.size());
    mOrder.push_back(member);
}

/// All below the member is known: what is counted from below can be.
void Hierarchy::Builder::close(MemberId member)
{
    qint32 generations = 0;
    qint64 occurrences = 0;
    for (const MemberId child : mHierarchy.children(member)) {
        generations = std::max(generations, mHierarchy.generationsBelow(child) + 1);
        occurrences =
            std::min(occurrences + 1 + mHierarchy.occurrencesBelow(child), maximumEntries + 1);
    }
    mHierarchy.mGenerations[slot(member)] = generations;
    mHierarchy.mOccurrences[slot(member)] = quint32(occurrences);
    mStates[slot(member)] = State::Done;
    mLevels.pop_back();
}

/// `member` was met again below itself.
void Hierarchy::Builder::noteCycle(MemberId member)
{
    LargeVector<MemberId> childOnCycle(mMemberCount, rootMember);
    MemberId child = member;
    do {
        const MemberId parent = mLevels.back().member;
        mLevels.pop_back();
        mFaults.cycle.push_back(parent);
        childOnCycle[size_t(parent)] = child;
        child = parent;
    } while (child != member);
    std::reverse(mFaults.cycle.begin(), mFaults.cycle.end());
    mLevels.clear();

    for (size_t i = 0; i < mEdges.size(); ++i) {
        const Edge &edge = mEdges[i];
        if (edge.parent == rootMember || childOnCycle[size_t(edge.parent)] != edge.child)
            continue;
        mFaults.cycleEdge = qsizetype(i);
        childOnCycle[size_t(edge.parent)] = rootMember; // where it is repeated it closes nothing
    }
}

void Hierarchy::Builder::placeParents()
{
    LargeVector<quint32> &starts = mHierarchy.mParentStarts;
    for (const MemberId child : mHierarchy.mChildren)
        ++starts[size_t(child) + 1];
    std::partial_sum(starts.begin(), starts.end(), starts.begin());

    mHierarchy.mParents.resize(mHierarchy.mChildren.size());
    LargeVector<quint32> ends(starts.begin(), starts.end() - 1);
    const auto placeUnder = [&](MemberId parent) {
        for (const MemberId child : mHierarchy.children(parent))
            mHierarchy.mParents[ends[size_t(child)]++] = parent;
    };
    placeUnder(rootMember);
    for (const MemberId parent : mOrder)
        placeUnder(parent);
}

} // namespace hfm::offline
