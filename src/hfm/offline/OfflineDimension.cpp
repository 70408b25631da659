#include "hfm/offline/OfflineDimension.h"

#include "hfm/offline/OfflineAttributes.h"
#include "hfm/offline/UserLists.h"
#include "runtime/RuntimeError.h"

#include <numeric>

namespace hfm::offline {

void failUnknown(const QString &description)
{
    throw RuntimeError(InvalidProcedureCall, QStringLiteral("HFM"), description);
}

OfflineDimension::OfflineDimension(std::shared_ptr<const Application> application,
                                   DimensionKind kind)
    : mApplication(std::move(application)), mDimension(mApplication->dimension(kind))
{
}

void OfflineDimension::requireMember(MemberId member) const
{
    if (!mDimension.isMember(member))
        failUnknown(QStringLiteral("%1 is not the ID of a member of %2.")
                        .arg(QString::number(member), dimensionName(mDimension.kind)));
}

void OfflineDimension::requireMemberOrRoot(MemberId member) const
{
    if (member != rootMember)
        requireMember(member);
}

QString OfflineDimension::GetDimensionName()
{
    return dimensionName(mDimension.kind);
}

QList<QString> OfflineDimension::EnumMemberListNames()
{
    QList<QString> names = mDimension.lists.names();
    for (const UserList &list : mApplication->userLists->lists(mDimension.kind))
        names.append(list.name);
    return names;
}

ListId OfflineDimension::GetMemberListId(const QString &listName)
{
    auto list = mDimension.lists.find(listName);
    if (!list)
        list = mApplication->userLists->find(mDimension.kind, listName);
    if (!list)
        failUnknown(QStringLiteral("'%1' is not a member list of %2.")
                        .arg(listName, dimensionName(mDimension.kind)));
    return *list;
}

QList<MemberId> OfflineDimension::EnumMemberListMembers(ListId list, MemberId top)
{
    if (mDimension.lists.contains(list))
        return mDimension.lists.members(list, mDimension.hierarchy, top);
    const auto members = mApplication->userLists->members(mDimension.kind, list);
    if (!members)
        failUnknown(QStringLiteral("%1 is not the ID of a member list of %2.")
                        .arg(QString::number(list), dimensionName(mDimension.kind)));
    return *members;
}

QString OfflineDimension::GetMemberLabel(MemberId member)
{
    requireMemberOrRoot(member);
    return member == rootMember ? QString() : mDimension.labels.text(member);
}

QString OfflineDimension::GetMemberDescription(MemberId member, qint16 language)
{
    requireMemberOrRoot(member);
    if (member == rootMember || language < 0 || language >= mApplication->languages.size())
        return {};
    const qint32 number = mApplication->languageNumbers[size_t(language)];
    if (number < 0)
        return {};
    const TextRef together = mDimension.descriptions[size_t(member)];
    return QString::fromUtf8(
        Descriptions::find(mApplication->arena->at(together), quint16(number)));
}

MemberId OfflineDimension::GetMemberId(const QString &label)
{
    const MemberId member = mApplication->find(mDimension.kind, label.toUtf8());
    if (member < 0)
        failUnknown(QStringLiteral("'%1' is not a member of %2.")
                        .arg(label, dimensionName(mDimension.kind)));
    return member;
}

QList<MemberId> OfflineDimension::EnumAllMembers()
{
    QList<MemberId> members(mDimension.labels.count());
    std::iota(members.begin(), members.end(), 0);
    return members;
}

QList<QString> OfflineDimension::EnumAllMemberLabels()
{
    QList<QString> labels;
    labels.reserve(mDimension.labels.count());
    for (MemberId member = 0; member < mDimension.labels.count(); ++member)
        labels.append(mDimension.labels.text(member));
    return labels;
}

QList<MemberId> OfflineDimension::EnumChildMembers(qint32, MemberId parent)
{
    requireMemberOrRoot(parent);
    const auto children = mDimension.hierarchy.children(parent);
    return QList<MemberId>(children.begin(), children.end());
}

qint32 OfflineDimension::GetChildCount(MemberId member)
{
    requireMemberOrRoot(member);
    return mDimension.hierarchy.childCount(member);
}

bool OfflineDimension::GetHasChildren(MemberId member)
{
    requireMemberOrRoot(member);
    return mDimension.hierarchy.hasChildren(member);
}

Occurrences OfflineDimension::EnumHierarchy()
{
    return mDimension.hierarchy.occurrences();
}

Occurrences OfflineDimension::EnumHierarchyAux()
{
    return EnumHierarchy();
}

QList<MemberId> OfflineDimension::EnumBaseMembers(MemberId top, Distinct distinct)
{
    requireMemberOrRoot(top);
    return mDimension.hierarchy.baseMembersBelow(top, distinct);
}

QList<MemberId> OfflineDimension::EnumMembersBelow(MemberId top, Distinct distinct)
{
    requireMemberOrRoot(top);
    return mDimension.hierarchy.membersBelow(top, distinct);
}

QString OfflineDimension::GetDefaultParentLabel(MemberId member)
{
    requireMember(member);
    return GetMemberLabel(mDimension.defaultParents[size_t(member)]);
}

qint32 OfflineDimension::GetDefaultParentGeneration(MemberId member)
{
    requireMember(member);
    return mDimension.generations[size_t(member)] - 1;
}

qint32 OfflineDimension::GetGenerationsBelow(MemberId member)
{
    requireMemberOrRoot(member);
    return mDimension.hierarchy.generationsBelow(member);
}

std::shared_ptr<EntityAttributes> OfflineDimension::entityAttributes()
{
    if (mDimension.kind != DimensionKind::Entity)
        throw RuntimeError(TypeMismatch);
    return std::make_shared<OfflineEntityAttributes>(mApplication);
}

std::shared_ptr<AccountAttributes> OfflineDimension::accountAttributes()
{
    if (mDimension.kind != DimensionKind::Account)
        throw RuntimeError(TypeMismatch);
    return std::make_shared<OfflineAccountAttributes>(mApplication);
}

std::shared_ptr<CustomAttributes> OfflineDimension::customAttributes()
{
    if (!isCustom(mDimension.kind))
        throw RuntimeError(TypeMismatch);
    return std::make_shared<OfflineCustomAttributes>(mApplication, mDimension.kind);
}

} // namespace hfm::offline
