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

struct MemberDraft
{
    DescriptionRange descriptions;
    Origin origin = Origin::Record;
    MemberId defaultParent = noDefaultParent;
    Place place; ///< its record, else where it was met first
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
    MemberDraft &member(MemberId id) { return mMembers[size_t(id)]; }
    const MemberDraft &member(MemberId id) const { return mMembers[size_t(id)]; }

    /// The member of a record; -1 where another record had that label before.
    MemberId addRecord(QByteArrayView label, Place place);
    /// The member of that label, which becomes one of that origin if there is none.
    MemberId findOrAdd(QByteArrayView label, Origin origin, Place place);
    MemberId findOrAdd(TextRef label, Origin origin, Place place);
    /// The member that most probably stands after `id` in a hierarchy section is told by this: the
    /// next one, if it has exactly that label; otherwise -1.
    MemberId nextIfNamed(MemberId id, QByteArrayView label) const
    {
        return id + 1 < count() && mLabels.at(id + 1) == label ? id + 1 : -1;
    }

    /// Notes the default parent that a record names.
    void setDefaultParent(MemberId id, QByteArrayView label, TextArena &arena);
    /// Finds the default parents that were named before they were met. Called at the end.
    void resolveDefaultParents(const TextArena &arena);

    void addEdge(Edge edge, Place place)
    {
        mEdges.push_back(edge);
        mEdgePlaces.push_back(place);
    }
    const std::vector<Edge> &edges() const { return mEdges; }
    Place edgePlace(qsizetype edge) const { return mEdgePlaces[size_t(edge)]; }

    /// Puts the members that have a record before those that a hierarchy section named earlier.
    void putRecordsFirst();

    Labels takeLabels() { return std::move(mLabels); }
    /// Gives back the memory of the edges.
    void dropEdges();

    // By member, as far as members with a record reach; only that of the dimension's kind is used.
    std::vector<EntityRecord> entities;
    std::vector<AccountRecord> accounts;
    std::vector<CustomRecord> customs;

private:
    struct NamedParent
    {
        MemberId member;
        TextRef parent;
    };

    MemberId noteNew(MemberId id, Origin origin, Place place);

    DimensionKind mKind;
    Labels mLabels;
    std::vector<MemberDraft> mMembers;
    std::vector<MemberId> mRecords; ///< the members with a record, in the order of the records
    std::vector<Edge> mEdges;
    std::vector<Place> mEdgePlaces;
    std::vector<NamedParent> mNamedParents;
    MemberId mLastParent = rootMember;
};

/// Entry `id` of a list by member that may still be too short for it.
template <typename Record>
Record &recordOf(std::vector<Record> &records, MemberId id)
{
    if (size_t(id) >= records.size())
        records.resize(size_t(id) + 1);
    return records[size_t(id)];
}

} // namespace hfm::offline
