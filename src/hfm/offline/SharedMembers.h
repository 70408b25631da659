#pragma once

#include "hfm/offline/LargeMemory.h"
#include "hfm/Values.h"

#include <algorithm>

namespace hfm::offline {

/// Members of one dimension that bear the labels of another one's members, and are found by those:
/// intercompany partners, which are most often as many as there are entities.
struct SharedMembers
{
    MemberId first = 0;           ///< the first of them; the others follow it
    LargeVector<MemberId> others; ///< for each the other dimension's member, ascending

    /// The one of these that bears the label of `other`; -1 where there is none.
    MemberId of(MemberId other) const
    {
        const auto found = std::lower_bound(others.begin(), others.end(), other);
        return found == others.end() || *found != other ? -1
                                                        : first + MemberId(found - others.begin());
    }
};

} // namespace hfm::offline
