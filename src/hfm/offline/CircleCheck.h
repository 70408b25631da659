#pragma once

#include "hfm/offline/DimensionDraft.h"

namespace hfm::offline {

/// Tells whether another edge of a dimension would close a circle. It takes the edges that are
/// added meanwhile into account.
class CircleCheck
{
public:
    explicit CircleCheck(const DimensionDraft &dimension) : mDimension(dimension) {}

    /// Whether `child`, which has no parent yet, may stand above `parent`. Files in which looking
    /// for that again and again would not end have it answered with true.
    bool mayStandAbove(MemberId child, MemberId parent);

private:
    void noteNewEdges();

    static constexpr quint32 noEdge = ~quint32(0);

    const DimensionDraft &mDimension;
    // The edges to a member are a list: the last one, and for each edge the one before it.
    LargeVector<quint32> mLastEdges;   ///< by member
    LargeVector<quint32> mEdgesBefore; ///< by edge
    std::vector<quint32> mSeenIn;      ///< by member: the latest search that came by
    quint32 mSearch = 0;
    std::vector<MemberId> mWaiting;
    size_t mSteps = 0; ///< of all searches
};

} // namespace hfm::offline
