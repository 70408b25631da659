#include "support/FakeDimension.h"

#include <algorithm>

using hfm::MemberId;
using namespace Qt::Literals::StringLiterals;

namespace {

QString nameOf(FakeKind kind)
{
    static const QStringList names = {u"Scenario"_s, u"Year"_s,    u"Period"_s,  u"View"_s,
                                      u"Entity"_s,   u"Value"_s,   u"Account"_s, u"ICP"_s,
                                      u"Custom1"_s,  u"Custom2"_s, u"Custom3"_s, u"Custom4"_s};
    return names.at(int(kind));
}

} // namespace

FakeDimension::FakeDimension(FakeKind kind, std::shared_ptr<FakeCalls> calls)
    : mKind(kind), mName(nameOf(kind)), mData(std::make_shared<FakeDimensionData>())
{
    mData->calls = std::move(calls);
}

void FakeDimension::setMembers(const QString &outline)
{
    mData->members = FakeMembers(outline);
    mData->entities.clear();
    mData->accounts.clear();
    mData->customs.clear();
}

FakeEntity &FakeDimension::entity(const QString &label)
{
    return mData->entities[idOf(label)];
}

FakeAccount &FakeDimension::account(const QString &label)
{
    return mData->accounts[idOf(label)];
}

FakeCustom &FakeDimension::custom(const QString &label)
{
    return mData->customs[idOf(label)];
}

void FakeDimension::setDefaultParent(const QString &label, const QString &parent)
{
    mData->members.at(idOf(label)).defaultParent = idOf(parent);
}

void FakeDimension::addSystemList(const QString &name, const QStringList &labels)
{
    mLists.addSystemList(name, idsOf(labels));
}

void FakeDimension::addUserList(const QString &name, const QStringList &labels)
{
    mLists.addUserList(name, idsOf(labels));
}

QString FakeDimension::GetDimensionName()
{
    mData->calls->enter("GetDimensionName"_L1);
    return mName;
}

QList<QString> FakeDimension::EnumMemberListNames()
{
    mData->calls->enter("EnumMemberListNames"_L1);
    return mLists.names();
}

hfm::ListId FakeDimension::GetMemberListId(const QString &listName)
{
    mData->calls->enter("GetMemberListId"_L1);
    if (const auto id = mLists.find(listName))
        return *id;
    throw fakeClientError();
}

QList<MemberId> FakeDimension::EnumMemberListMembers(hfm::ListId list, MemberId top)
{
    mData->calls->enter("EnumMemberListMembers"_L1);
    mListAsked = {list, top};
    if (const auto found = mLists.members(list, mData->members, top))
        return *found;
    throw fakeClientError();
}

QString FakeDimension::GetMemberLabel(MemberId member)
{
    mData->calls->enter("GetMemberLabel"_L1);
    requireMemberOrRoot(member);
    return member == hfm::rootMember ? QString() : mData->members.at(member).label;
}

QString FakeDimension::GetMemberDescription(MemberId member, qint16 language)
{
    mData->calls->enter("GetMemberDescription"_L1);
    requireMemberOrRoot(member);
    return member == hfm::rootMember ? QString()
                                     : mData->members.at(member).descriptions.value(language);
}

MemberId FakeDimension::GetMemberId(const QString &label)
{
    mData->calls->enter("GetMemberId"_L1);
    return idOf(label);
}

QList<MemberId> FakeDimension::EnumAllMembers()
{
    mData->calls->enter("EnumAllMembers"_L1);
    QList<MemberId> ids;
    for (MemberId id = 0; id < mData->members.count(); ++id)
        ids.append(id);
    return ids;
}

QList<QString> FakeDimension::EnumAllMemberLabels()
{
    mData->calls->enter("EnumAllMemberLabels"_L1);
    QList<QString> labels;
    for (MemberId id = 0; id < mData->members.count(); ++id)
        labels.append(mData->members.at(id).label);
    return labels;
}

QList<MemberId> FakeDimension::EnumChildMembers(qint32 selector, MemberId parent)
{
    mData->calls->enter("EnumChildMembers"_L1);
    mChildSelectors.insert(selector);
    requireMemberOrRoot(parent);
    return mData->members.childrenOf(parent);
}

qint32 FakeDimension::GetChildCount(MemberId member)
{
    mData->calls->enter("GetChildCount"_L1);
    requireMemberOrRoot(member);
    return qint32(mData->members.childrenOf(member).size());
}

bool FakeDimension::GetHasChildren(MemberId member)
{
    mData->calls->enter("GetHasChildren"_L1);
    requireMemberOrRoot(member);
    return !mData->members.childrenOf(member).isEmpty();
}

hfm::Occurrences FakeDimension::EnumHierarchy()
{
    mData->calls->enter("EnumHierarchy"_L1);
    hfm::Occurrences found;
    mData->members.walk(hfm::rootMember, false, [&](MemberId parent, MemberId member, qint32) {
        found.parents.append(parent);
        found.members.append(member);
    });
    return found;
}

hfm::Occurrences FakeDimension::EnumHierarchyAux()
{
    mData->calls->enter("EnumHierarchyAux"_L1);
    return {};
}

QList<MemberId> FakeDimension::EnumBaseMembers(MemberId top, hfm::Distinct distinct)
{
    mData->calls->enter("EnumBaseMembers"_L1);
    requireMemberOrRoot(top);
    return mData->members.below(top, distinct == hfm::EachMemberOnce, true);
}

QList<MemberId> FakeDimension::EnumMembersBelow(MemberId top, hfm::Distinct distinct)
{
    mData->calls->enter("EnumMembersBelow"_L1);
    requireMemberOrRoot(top);
    return mData->members.below(top, distinct == hfm::EachMemberOnce, false);
}

QString FakeDimension::GetDefaultParentLabel(MemberId member)
{
    mData->calls->enter("GetDefaultParentLabel"_L1);
    requireMember(member);
    const MemberId parent = mData->members.at(member).defaultParent;
    return parent == hfm::rootMember ? QString() : mData->members.at(parent).label;
}

qint32 FakeDimension::GetDefaultParentGeneration(MemberId member)
{
    mData->calls->enter("GetDefaultParentGeneration"_L1);
    requireMember(member);
    qint32 generation = 0;
    while ((member = mData->members.at(member).defaultParent) != hfm::rootMember)
        ++generation;
    return generation;
}

qint32 FakeDimension::GetGenerationsBelow(MemberId member)
{
    mData->calls->enter("GetGenerationsBelow"_L1);
    requireMemberOrRoot(member);
    qint32 deepest = 0;
    mData->members.walk(member, false, [&](MemberId, MemberId, qint32 depth) {
        deepest = std::max(deepest, depth);
    });
    return deepest;
}

std::shared_ptr<hfm::EntityAttributes> FakeDimension::entityAttributes()
{
    mData->calls->enter("entityAttributes"_L1);
    if (mKind != FakeKind::Entity)
        throw RuntimeError(TypeMismatch);
    return fakeEntityView(mData);
}

std::shared_ptr<hfm::AccountAttributes> FakeDimension::accountAttributes()
{
    mData->calls->enter("accountAttributes"_L1);
    if (mKind != FakeKind::Account)
        throw RuntimeError(TypeMismatch);
    return fakeAccountView(mData);
}

std::shared_ptr<hfm::CustomAttributes> FakeDimension::customAttributes()
{
    mData->calls->enter("customAttributes"_L1);
    if (mKind < FakeKind::Custom1)
        throw RuntimeError(TypeMismatch);
    return fakeCustomView(mData);
}

MemberId FakeDimension::idOf(const QString &label) const
{
    const MemberId id = mData->members.find(label);
    if (id == -1)
        throw fakeClientError(u"'%1' is not a member of %2."_s.arg(label, mName));
    return id;
}

QList<MemberId> FakeDimension::idsOf(const QStringList &labels) const
{
    QList<MemberId> ids;
    for (const QString &label : labels)
        ids.append(idOf(label));
    return ids;
}

void FakeDimension::requireMember(MemberId member) const
{
    if (!mData->members.contains(member))
        throw fakeClientError();
}

void FakeDimension::requireMemberOrRoot(MemberId member) const
{
    if (member != hfm::rootMember)
        requireMember(member);
}
