#pragma once

#include "hfm/Dimension.h"
#include "support/FakeAttributes.h"
#include "support/FakeLists.h"

/// The twelve dimensions, in the order of Metadata's accessors.
enum class FakeKind {
    Scenario,
    Year,
    Period,
    View,
    Entity,
    Value,
    Account,
    ICP,
    Custom1,
    Custom2,
    Custom3,
    Custom4,
};
inline constexpr int fakeKindCount = 12;

/// A dimension whose members, attributes and member lists a test sets. It starts without members
/// and with the system lists that follow from a hierarchy: "[Hierarchy]" -1, "[Descendants]" -2,
/// "[Ancestors]" -3, "[Base]" -4, "[Children]" -5 and "[Parents]" -6.
class FakeDimension final : public hfm::Dimension
{
public:
    FakeDimension(FakeKind kind, std::shared_ptr<FakeCalls> calls);

    // For the test.

    /// Replaces the members (see FakeMembers for the outline) and forgets all attributes.
    void setMembers(const QString &outline);
    FakeMembers &members() { return mData->members; }
    /// The attributes of a member, to read and to set. An unknown label fails as GetMemberId does.
    FakeEntity &entity(const QString &label);
    FakeAccount &account(const QString &label);
    FakeCustom &custom(const QString &label);
    void setDefaultParent(const QString &label, const QString &parent);
    /// Another system list, such as "[System]", with an ID below the others'.
    void addSystemList(const QString &name, const QStringList &labels);
    /// A user-defined list; IDs are 1, 2, 3, ... in the order of adding.
    void addUserList(const QString &name, const QStringList &labels);
    /// Leaves the dimension without any list, the system lists included.
    void clearLists() { mLists.clear(); }
    /// The list and the top member of the latest EnumMemberListMembers.
    std::pair<hfm::ListId, hfm::MemberId> listAsked() const { return mListAsked; }
    /// The selectors of every EnumChildMembers so far.
    QSet<qint32> childSelectors() const { return mChildSelectors; }

    // hfm::Dimension.

    QString GetDimensionName() override;
    QList<QString> EnumMemberListNames() override;
    hfm::ListId GetMemberListId(const QString &listName) override;
    QList<hfm::MemberId> EnumMemberListMembers(hfm::ListId list, hfm::MemberId top) override;
    QString GetMemberLabel(hfm::MemberId member) override;
    QString GetMemberDescription(hfm::MemberId member, qint16 language) override;
    hfm::MemberId GetMemberId(const QString &label) override;
    QList<hfm::MemberId> EnumAllMembers() override;
    QList<QString> EnumAllMemberLabels() override;
    QList<hfm::MemberId> EnumChildMembers(qint32 selector, hfm::MemberId parent) override;
    qint32 GetChildCount(hfm::MemberId member) override;
    bool GetHasChildren(hfm::MemberId member) override;
    hfm::Occurrences EnumHierarchy() override;
    hfm::Occurrences EnumHierarchyAux() override;
    QList<hfm::MemberId> EnumBaseMembers(hfm::MemberId top, hfm::Distinct distinct) override;
    QList<hfm::MemberId> EnumMembersBelow(hfm::MemberId top, hfm::Distinct distinct) override;
    QString GetDefaultParentLabel(hfm::MemberId member) override;
    qint32 GetDefaultParentGeneration(hfm::MemberId member) override;
    qint32 GetGenerationsBelow(hfm::MemberId member) override;
    std::shared_ptr<hfm::EntityAttributes> entityAttributes() override;
    std::shared_ptr<hfm::AccountAttributes> accountAttributes() override;
    std::shared_ptr<hfm::CustomAttributes> customAttributes() override;

private:
    hfm::MemberId idOf(const QString &label) const;
    QList<hfm::MemberId> idsOf(const QStringList &labels) const;
    void requireMember(hfm::MemberId member) const;
    void requireMemberOrRoot(hfm::MemberId member) const;

    FakeKind mKind;
    QString mName;
    std::shared_ptr<FakeDimensionData> mData;
    FakeLists mLists;
    std::pair<hfm::ListId, hfm::MemberId> mListAsked;
    QSet<qint32> mChildSelectors;
};
