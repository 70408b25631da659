#pragma once

#include "hfm/offline/Hierarchy.h"

namespace hfm::offline {

/// Fills the arrays of a new Hierarchy.
class Hierarchy::Builder
{
public:
    Builder(Hierarchy &hierarchy, qint32 memberCount, std::span<const Edge> edges,
            HierarchyFaults &faults);

    void build();

private:
    /// A member whose children are being visited, up to the one at `nextChild`.
    struct Level
    {
        MemberId member;
        quint32 nextChild;
    };
    enum class State : quint8 { New, Open, Done };

    void placeChildren();
    void leaveOutRepeatedEdges(const LargeVector<quint32> &edgeOfChild);
    void visitEverything();
    void visit(MemberId start);
    void open(MemberId member);
    void close(MemberId member);
    void noteCycle(MemberId member);
    void placeParents();
    void clear();

    Hierarchy &mHierarchy;
    size_t mMemberCount;
    std::span<const Edge> mEdges;
    HierarchyFaults &mFaults;
    LargeVector<State> mStates;
    LargeVector<MemberId> mOrder; ///< the members in the order of their ranks
    std::vector<Level> mLevels;   ///< the way from the start of a visit to where it is
};

} // namespace hfm::offline
