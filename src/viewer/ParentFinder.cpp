#include "viewer/ParentFinder.h"

using namespace Qt::Literals::StringLiterals;

// No member stands below itself, so between a parent's occurrence and its child no other entry has
// the parent's ID. Where the parent can be found at all, it is the nearest.
qint32 ParentFinder::parentOf(qint32 position)
{
    const qint32 parent = mPaths.at(position).parent;
    if (parent == MemberPaths::none || mPaths.canBeFound(parent))
        return parent;
    return search(position);
}

qint32 ParentFinder::search(qint32 position)
{
    for (; mKnown < position; ++mKnown)
        if (mPaths.canBeFound(mKnown))
            mNewest.insert(mPaths.childPart(mKnown), mKnown);
    const QString parentPart = mPaths.parentPart(position);
    if (parentPart == "-1_ROOT"_L1)
        return MemberPaths::none;
    return mNewest.value(parentPart, MemberPaths::none);
}
