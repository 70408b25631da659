#include "hfm/offline/DimensionDraft.h"

#include "hfm/offline/Syntax.h"

#include <algorithm>
#include <numeric>

namespace hfm::offline {

namespace {

/// So many, and some that the client adds, for which tables of a million entries should not have to
/// move.
size_t withAdded(size_t further)
{
    return further + further / 64 + 64;
}

template <typename Value>
void renumber(LargeVector<Value> &values, const std::vector<MemberId> &newNumbers)
{
    if (values.empty())
        return;
    LargeVector<Value> renumbered(newNumbers.size());
    for (size_t i = 0; i < values.size(); ++i)
        renumbered[size_t(newNumbers[i])] = values[i];
    values.swap(renumbered);
}

} // namespace

MemberId DimensionDraft::noteNew(MemberId id, Origin origin, Place place)
{
    if (size_t(id) == mOrigins.size()) {
        mOrigins.push_back(origin);
        mPlaces.push_back(place);
        mDefaultParents.push_back(noDefaultParent);
        mDescriptions.push_back(0);
    }
    return id;
}

void DimensionDraft::reserveMembers(size_t further)
{
    mLabels.reserve(withAdded(further));
    reserveTables(mOrigins.size() + withAdded(further));
}

void DimensionDraft::reserveShared(size_t further)
{
    mLabels.reserveShared(further);
    reserveTables(mOrigins.size() + further);
}

void DimensionDraft::reserveTables(size_t all)
{
    mOrigins.reserve(all);
    mPlaces.reserve(all);
    mDefaultParents.reserve(all);
    mDescriptions.reserve(all);
    if (mKind == DimensionKind::Entity)
        entities.reserve(all);
    else if (mKind == DimensionKind::Account)
        accounts.reserve(all);
    else if (isCustom(mKind))
        customs.reserve(all);
}

void DimensionDraft::reserveEdges(size_t further)
{
    mEdges.reserve(mEdges.size() + withAdded(further));
    mEdgePlaces.reserve(mEdgePlaces.size() + withAdded(further));
}

MemberId DimensionDraft::addRecord(const Labels::Key &label, Place place)
{
    const qint32 before = count();
    const MemberId id = noteNew(mLabels.findOrAdd(label), Origin::Record, place);
    if (id < before) {
        if (origin(id) == Origin::Record)
            return -1;
        mOrigins[size_t(id)] = Origin::Record;
        mPlaces[size_t(id)] = place;
    }
    noteRecord(id);
    return id;
}

void DimensionDraft::noteRecord(MemberId id)
{
    if (mRecords.empty() && id != mRecordCount) {
        mRecords.resize(size_t(mRecordCount));
        std::iota(mRecords.begin(), mRecords.end(), 0);
    }
    if (!mRecords.empty() || id != mRecordCount)
        mRecords.push_back(id);
    ++mRecordCount;
}

MemberId DimensionDraft::findOrAdd(const Labels::Key &label, Origin origin, Place place)
{
    return noteNew(mLabels.findOrAdd(label), origin, place);
}

MemberId DimensionDraft::findOrAdd(TextRef label, Origin origin, Place place)
{
    return noteNew(mLabels.findOrAdd(label), origin, place);
}

MemberId DimensionDraft::addShared(TextRef label)
{
    return noteNew(mLabels.addShared(label), Origin::Client, {});
}

void DimensionDraft::setDefaultParent(MemberId id, QByteArrayView label, TextArena &arena)
{
    if (label.isEmpty() || sameWord(label, rootLabel)) {
        mDefaultParents[size_t(id)] = rootMember;
        return;
    }
    MemberId parent = parentNear(id, label);
    if (parent < 0)
        parent = mLabels.find(label);
    if (parent < 0)
        mNamedParents.push_back({id, arena.add(label)});
    else
        mDefaultParents[size_t(id)] = parent;
}

/// Files list members in the order of their hierarchy, as a rule: then a member's parent is the
/// member before it or among those above that one. -1 where it is not so.
MemberId DimensionDraft::parentNear(MemberId id, QByteArrayView label) const
{
    constexpr int mostSteps = 8;
    MemberId candidate = id - 1;
    for (int step = 0; step < mostSteps && candidate >= 0; ++step) {
        if (mLabels.at(candidate) == label)
            return candidate;
        candidate = defaultParent(candidate);
    }
    return -1;
}

void DimensionDraft::resolveDefaultParents(const TextArena &arena)
{
    for (const NamedParent &named : mNamedParents) {
        const MemberId parent = mLabels.find(arena.at(named.parent));
        mDefaultParents[size_t(named.member)] = parent >= 0 ? parent : unknownDefaultParent;
    }
    mNamedParents = {};
}

void DimensionDraft::putRecordsFirst()
{
    if (mRecords.empty())
        return; // they are first already
    std::vector<MemberId> newNumbers(size_t(count()), -1);
    MemberId next = 0;
    for (const MemberId id : mRecords)
        newNumbers[size_t(id)] = next++;
    for (MemberId &number : newNumbers) {
        if (number < 0)
            number = next++;
    }
    mRecords = {};

    const auto renewed = [&](MemberId id) { return id < 0 ? id : newNumbers[size_t(id)]; };
    mLabels.renumber(newNumbers);
    renumber(mOrigins, newNumbers);
    renumber(mPlaces, newNumbers);
    renumber(mDefaultParents, newNumbers);
    renumber(mDescriptions, newNumbers);
    renumber(entities, newNumbers);
    renumber(accounts, newNumbers);
    renumber(customs, newNumbers);
    for (MemberId &parent : mDefaultParents)
        parent = renewed(parent);
    for (NamedParent &named : mNamedParents)
        named.member = renewed(named.member);
    for (EntityHolding &holding : holdings)
        holding.entity = renewed(holding.entity);
    for (Edge &edge : mEdges)
        edge = {renewed(edge.parent), renewed(edge.child)};
}

void DimensionDraft::dropPlacesAndEdges()
{
    mOrigins = {};
    mPlaces = {};
    mEdges = {};
    mEdgePlaces = {};
}

} // namespace hfm::offline
