#pragma once

#include "hfm/offline/Descriptions.h"
#include "hfm/offline/Labels.h"
#include "hfm/offline/MemberRecords.h"
#include "hfm/offline/SystemLists.h"

namespace hfm::offline {

struct ApplicationDraft;

/// A dimension of an open application. Nothing in it changes any more.
struct StoredDimension
{
    DimensionKind kind;
    Labels labels; ///< by member ID
    Hierarchy hierarchy;
    SystemLists lists;

    // By member ID.
    LargeVector<TextRef> descriptions;    ///< each member's Descriptions
    LargeVector<MemberId> defaultParents; ///< rootMember for a member without a node
    /// The generation of the member, counted along default parents: 1 at the top level.
    LargeVector<qint32> generations;
    // By member ID in the dimension of that kind, else empty.
    LargeVector<EntityRecord> entities;
    LargeVector<AccountRecord> accounts;
    /// Of Scenario too, and of ICP as far as its members have records.
    LargeVector<CustomRecord> customs;

    std::vector<EntityHolding> holdings; ///< by entity

    bool isMember(MemberId id) const { return id >= 0 && id < labels.count(); }
};

/// Makes the dimension of its draft, which is used up, and warns of what is wrong in its hierarchy.
/// Fails with ReadingError where the hierarchy runs in a circle.
StoredDimension storeDimension(ApplicationDraft &draft, DimensionKind kind, GivenLists lists);

} // namespace hfm::offline
