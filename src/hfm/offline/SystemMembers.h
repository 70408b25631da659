#pragma once

#include "hfm/offline/ApplicationDraft.h"
#include "hfm/offline/CircleCheck.h"
#include "hfm/offline/SharedMembers.h"
#include "hfm/offline/SystemLists.h"

/// The members that HFM itself gives every application. Each routine adds those of one dimension,
/// where the files have no member of that label, and returns the dimension's given lists.
namespace hfm::offline {

/// The member of the Value and custom dimensions that stands for no value.
inline constexpr QByteArrayView noneLabel = "[None]";

GivenLists addValues(ApplicationDraft &draft, const ListedNames &currencies);
/// The intercompany partners: every entity that is one, in entity order. Tells those of them that
/// only their entities' labels lead to.
GivenLists addIntercompany(ApplicationDraft &draft, SharedMembers &partners);
GivenLists addSystemAccounts(ApplicationDraft &draft);
/// "[None]"; to Custom1 and Custom2 the currencies, to Custom1 the consolidation methods.
GivenLists addToCustom(ApplicationDraft &draft, DimensionKind custom,
                       const ListedNames &currencies);
/// Adds nothing: the entities that allow adjustments, and those that allow them from children.
GivenLists adjustmentEntities(const DimensionDraft &entities);

/// Adds members to a dimension, each with a node under the parent it is given.
class MemberAdder
{
public:
    /// What the hierarchy sections say so far counts as what the files say.
    MemberAdder(ApplicationDraft &draft, DimensionKind dimension);

    /// The member of that label under `parent`. One that the files have is left where they put it;
    /// it gets a node there only if it has none and `placeThoseOfFiles`, and where that would close
    /// a circle one at the top level.
    MemberId add(QByteArrayView label, MemberId parent, bool placeThoseOfFiles = true);
    MemberId add(TextRef label, MemberId parent, bool placeThoseOfFiles = true);
    /// The same, with the descriptions of a member that is not the files'.
    MemberId add(TextRef label, MemberId parent, TextRef descriptions,
                 bool placeThoseOfFiles = true);
    /// The same, for a member that the dimension has.
    void put(MemberId id, MemberId parent, TextRef descriptions, bool placeThoseOfFiles = true);

private:
    MemberId place(MemberId id, MemberId parent, bool placeThoseOfFiles);
    void warnOfCircle(MemberId id, MemberId parent);

    Warnings &mWarnings;
    DimensionDraft &mDimension;
    CircleCheck mCircles;
    std::vector<bool> mPlaced; ///< by member: whether it has a parent
};

} // namespace hfm::offline
