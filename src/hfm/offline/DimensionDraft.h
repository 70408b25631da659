#pragma once

#include "hfm/offline/Descriptions.h"
#include "hfm/offline/DimensionKind.h"
#include "hfm/offline/Hierarchy.h"
#include "hfm/offline/Labels.h"
#include "hfm/offline/MemberRecords.h"
#include "hfm/offline/Place.h"

namespace hfm::offline {

/// In a draft: the member's record names no default parent, or one that is no member.
inline constexpr MemberId noDefaultParent = -2;
inline constexpr MemberId unknownDefaultParent = -3;

/// Why a member is one.
enum class Origin : quint8 {
    Record,    ///< it has a record in the files
    Hierarchy, ///< only a hierarchy section names it
    Account,   ///< only an account names it, as a top member
    Client,    ///< every application has it
};

/// A dimension while it is read. Members are numbered as they are met; finishing the draft gives
/// them their IDs.
class DimensionDraft
{
public:
    DimensionDraft(DimensionKind kind, TextArena &arena) : mKind(kind), mLabels(arena) {}

    DimensionKind kind() const { return mKind; }
    const Labels &labels() const { return mLabels; }
    qint32 count() const { return mLabels.count(); }
    Origin origin(MemberId id) const { return mOrigins[size_t(id)]; }
    /// Where the member's record is, else where it was met first.
    Place place(MemberId id) const { return mPlaces[size_t(id)]; }
    /// noDefaultParent and unknownDefaultParent included.
    MemberId defaultParent(MemberId id) const { return mDefaultParents[size_t(id)]; }
    /// What stands for the member's Descriptions.
    TextRef descriptions(MemberId id) const { return mDescriptions[size_t(id)]; }
    void setDescriptions(MemberId id, TextRef together) { mDescriptions[size_t(id)] = together; }

    /// Makes room for so many members, or lines of a hierarchy, more, and for some that the client
    /// adds.
    void reserveMembers(size_t further);
    void reserveShared(size_t further);
    void reserveEdges(size_t further);

    /// The member of a record; -1 where another record had that label before.
    MemberId addRecord(const Labels::Key &label, Place place);
    /// The member of that label, which becomes one of that origin if there is none.
    MemberId findOrAdd(const Labels::Key &label, Origin origin, Place place);
    MemberId findOrAdd(QByteArrayView label, Origin origin, Place place)
    {
        return findOrAdd(mLabels.key(label), origin, place);
    }
    MemberId findOrAdd(TextRef label, Origin origin, Place place);
    /// A new member of the client's that bears the label of another dimension's member. It is not
    /// found by that label here, and no member is to be added by its label after it.
    MemberId addShared(TextRef label);
    /// Notes the default parent that a record names.
    void setDefaultParent(MemberId id, QByteArrayView label, TextArena &arena);
    /// Finds the default parents that were named before they were met. Called at the end.
    void resolveDefaultParents(const TextArena &arena);

    void addEdge(Edge edge, Place place)
    {
        mEdges.push_back(edge);
        mEdgePlaces.push_back(place);
    }
    const LargeVector<Edge> &edges() const { return mEdges; }
    Place edgePlace(qsizetype edge) const { return mEdgePlaces[size_t(edge)]; }

    /// Puts the members that have a record before those that a hierarchy section named earlier.
    void putRecordsFirst();

    Labels takeLabels() { return std::move(mLabels); }
    LargeVector<MemberId> takeDefaultParents() { return std::move(mDefaultParents); }
    LargeVector<TextRef> takeDescriptions() { return std::move(mDescriptions); }
    /// Gives back the memory of what only the reading needs.
    void dropPlacesAndEdges();

    // By member, as far as members with a record reach; only that of the dimension's kind is used.
    LargeVector<EntityRecord> entities;
    LargeVector<AccountRecord> accounts;
    LargeVector<CustomRecord> customs;
    std::vector<EntityHolding> holdings; ///< in the order of the records

private:
    struct NamedParent
    {
        MemberId member;
        TextRef parent;
    };

    void reserveTables(size_t all);
    MemberId noteNew(MemberId id, Origin origin, Place place);
    void noteRecord(MemberId id);
    MemberId parentNear(MemberId id, QByteArrayView label) const;

    DimensionKind mKind;
    Labels mLabels;
    // By member.
    LargeVector<Origin> mOrigins;
    LargeVector<Place> mPlaces;
    LargeVector<MemberId> mDefaultParents;
    LargeVector<TextRef> mDescriptions;
    /// The members with a record, in the order of the records, once these are not all of the
    /// members in their order.
    LargeVector<MemberId> mRecords;
    qint32 mRecordCount = 0;
    LargeVector<Edge> mEdges;
    LargeVector<Place> mEdgePlaces;
    std::vector<NamedParent> mNamedParents;
};

/// Entry `id` of a list by member that may still be too short for it.
template <typename Record>
Record &recordOf(LargeVector<Record> &records, MemberId id)
{
    if (size_t(id) >= records.size())
        records.resize(size_t(id) + 1);
    return records[size_t(id)];
}

} // namespace hfm::offline
