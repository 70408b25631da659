#pragma once

#include "hfm/offline/ApplicationDraft.h"
#include "hfm/offline/SharedMembers.h"
#include "hfm/offline/SystemLists.h"

namespace hfm::offline {

/// What the client adds to an application's drafts made known on the way.
struct Additions
{
    /// For each of the draft's entity currencies, the member of the Value dimension.
    std::vector<MemberId> entityCurrencies;
    /// For each custom dimension, the members that the names in the draft's topMembers stand for.
    std::array<std::vector<MemberId>, 4> topMembers;
    SharedMembers partners; ///< the members of ICP that bear entities' labels
    /// By DimensionKind: the lists that are told by what members are.
    std::array<GivenLists, allDimensionKinds.size()> lists;
};

/// Adds the members that every application has, whatever its files say of them: the Value and ICP
/// dimensions, system accounts, currencies and methods in custom dimensions, and the years, periods
/// and views of an application without a profile. Where the files have a member of that label
/// already, it stays as it is. The drafts' records must have been put first.
Additions addSystemMembers(ApplicationDraft &draft, int currentYear);

} // namespace hfm::offline
