#pragma once

#include "hfm/Dimension.h"
#include "hfm/offline/Application.h"

namespace hfm::offline {

/// A dimension of an open application. See hfm/Dimension.h for what the operations do.
class OfflineDimension final : public Dimension
{
public:
    OfflineDimension(std::shared_ptr<const Application> application, DimensionKind kind);

    QString GetDimensionName() override;

    QList<QString> EnumMemberListNames() override;
    ListId GetMemberListId(const QString &listName) override;
    QList<MemberId> EnumMemberListMembers(ListId list, MemberId top) override;

    QString GetMemberLabel(MemberId member) override;
    /// Empty, too, in a language that the application does not have.
    QString GetMemberDescription(MemberId member, qint16 language) override;
    MemberId GetMemberId(const QString &label) override;
    QList<MemberId> EnumAllMembers() override;
    QList<QString> EnumAllMemberLabels() override;

    QList<MemberId> EnumChildMembers(qint32 selector, MemberId parent) override;
    qint32 GetChildCount(MemberId member) override;
    bool GetHasChildren(MemberId member) override;
    Occurrences EnumHierarchy() override;
    Occurrences EnumHierarchyAux() override;
    QList<MemberId> EnumBaseMembers(MemberId top, Distinct distinct) override;
    QList<MemberId> EnumMembersBelow(MemberId top, Distinct distinct) override;
    QString GetDefaultParentLabel(MemberId member) override;
    qint32 GetDefaultParentGeneration(MemberId member) override;
    qint32 GetGenerationsBelow(MemberId member) override;

    std::shared_ptr<EntityAttributes> entityAttributes() override;
    std::shared_ptr<AccountAttributes> accountAttributes() override;
    std::shared_ptr<CustomAttributes> customAttributes() override;

private:
    void requireMember(MemberId member) const;
    void requireMemberOrRoot(MemberId member) const;

    std::shared_ptr<const Application> mApplication;
    const StoredDimension &mDimension;
};

/// Fails as HFM fails where it is given something that it does not have.
[[noreturn]] void failUnknown(const QString &description = {});

} // namespace hfm::offline
