#include "hfm/offline/CircleCheck.h"

#include <utility>

namespace hfm::offline {

void CircleCheck::noteNewEdges()
{
    const LargeVector<Edge> &edges = mDimension.edges();
    mLastEdges.resize(size_t(mDimension.count()), noEdge);
    mSeenIn.resize(size_t(mDimension.count()), 0);
    for (size_t edge = mEdgesBefore.size(); edge < edges.size(); ++edge)
        mEdgesBefore.push_back(std::exchange(mLastEdges[size_t(edges[edge].child)], quint32(edge)));
}

bool CircleCheck::mayStandAbove(MemberId child, MemberId parent)
{
    constexpr size_t stepsAnEdge = 16; // a partner's two, a currency's one, and some to spare
    noteNewEdges();
    const LargeVector<Edge> &edges = mDimension.edges();
    ++mSearch;
    mWaiting.assign(1, parent);
    while (!mWaiting.empty()) {
        const MemberId member = mWaiting.back();
        mWaiting.pop_back();
        if (member == child || mSteps > stepsAnEdge * edges.size())
            return true;
        if (member == rootMember || std::exchange(mSeenIn[size_t(member)], mSearch) == mSearch)
            continue;
        for (quint32 edge = mLastEdges[size_t(member)]; edge != noEdge; edge = mEdgesBefore[edge]) {
            mWaiting.push_back(edges[edge].parent);
            ++mSteps;
        }
    }
    return false;
}

} // namespace hfm::offline
