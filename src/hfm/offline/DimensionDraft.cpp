#include "hfm/offline/DimensionDraft.h"

#include "hfm/offline/Syntax.h"

namespace hfm::offline {

namespace {

template <typename Value>
void renumber(std::vector<Value> &values, const std::vector<MemberId> &newNumbers)
{
    if (values.empty())
        return;
    std::vector<Value> renumbered(newNumbers.size());
    for (size_t i = 0; i < values.size(); ++i)
        renumbered[size_t(newNumbers[i])] = values[i];
    values.swap(renumbered);
}

} // namespace

MemberId DimensionDraft::noteNew(MemberId id, Origin origin, Place place)
{
    if (size_t(id) == mMembers.size()) {
        mMembers.emplace_back();
        mMembers.back().origin = origin;
        mMembers.back().place = place;
    }
    return id;
}

MemberId DimensionDraft::addRecord(QByteArrayView label, Place place)
{
    const qint32 before = count();
    const MemberId id = noteNew(mLabels.findOrAdd(label), Origin::Record, place);
    if (id < before) {
        if (member(id).origin == Origin::Record)
            return -1;
        member(id).origin = Origin::Record;
        member(id).place = place;
    }
    mRecords.push_back(id);
    return id;
}

MemberId DimensionDraft::findOrAdd(QByteArrayView label, Origin origin, Place place)
{
    return noteNew(mLabels.findOrAdd(label), origin, place);
}

MemberId DimensionDraft::findOrAdd(TextRef label, Origin origin, Place place)
{
    return noteNew(mLabels.findOrAdd(label), origin, place);
}

void DimensionDraft::setDefaultParent(MemberId id, QByteArrayView label, TextArena &arena)
{
    if (label.isEmpty() || sameWord(label, rootLabel)) {
        member(id).defaultParent = rootMember;
        return;
    }
    if (mLastParent == rootMember || mLabels.at(mLastParent) != label) {
        const MemberId parent = mLabels.find(label);
        if (parent < 0) {
            mNamedParents.push_back({id, arena.add(label)});
            return;
        }
        mLastParent = parent;
    }
    member(id).defaultParent = mLastParent;
}

void DimensionDraft::resolveDefaultParents(const TextArena &arena)
{
    for (const NamedParent &named : mNamedParents) {
        const MemberId parent = mLabels.find(arena.at(named.parent));
        member(named.member).defaultParent = parent >= 0 ? parent : unknownDefaultParent;
    }
    mNamedParents = {};
}

void DimensionDraft::putRecordsFirst()
{
    std::vector<MemberId> newNumbers(size_t(count()), -1);
    MemberId next = 0;
    for (const MemberId id : mRecords)
        newNumbers[size_t(id)] = next++;
    bool changed = false;
    for (MemberId id = 0; id < count(); ++id) {
        MemberId &number = newNumbers[size_t(id)];
        if (number < 0)
            number = next++;
        changed |= number != id;
    }
    mRecords = {};
    if (!changed)
        return;

    const auto renewed = [&](MemberId id) { return id < 0 ? id : newNumbers[size_t(id)]; };
    mLabels.renumber(newNumbers);
    renumber(mMembers, newNumbers);
    renumber(entities, newNumbers);
    renumber(accounts, newNumbers);
    renumber(customs, newNumbers);
    for (MemberDraft &draft : mMembers)
        draft.defaultParent = renewed(draft.defaultParent);
    for (NamedParent &named : mNamedParents)
        named.member = renewed(named.member);
    for (Edge &edge : mEdges)
        edge = {renewed(edge.parent), renewed(edge.child)};
    mLastParent = rootMember;
}

void DimensionDraft::dropEdges()
{
    mEdges = {};
    mEdgePlaces = {};
}

} // namespace hfm::offline
