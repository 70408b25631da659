#pragma once

#include "hfm/AttributeViews.h"
#include "hfm/Values.h"

#include <memory>

namespace hfm {

/// One of an application's twelve dimensions: its members, hierarchy and member lists.
///
/// An ID that is neither a member of the dimension nor, where the operation takes it, rootMember
/// fails with RuntimeError InvalidProcedureCall. All but the two of the default parent take
/// rootMember: its label and description are empty, and what is below it is the whole dimension.
class Dimension
{
public:
    virtual ~Dimension() = default;

    /// The name as HFM spells it, for example "Account".
    virtual QString GetDimensionName() = 0;

    // Member lists. System lists have names in square brackets, such as "[Hierarchy]".

    /// The names of the member lists, system lists first.
    virtual QList<QString> EnumMemberListNames() = 0;
    /// The ID of the list of that name, in any letter case; a name that is no list of the
    /// dimension fails with RuntimeError InvalidProcedureCall.
    virtual ListId GetMemberListId(const QString &listName) = 0;
    /// The members of a list; an ID that is no list of the dimension fails with RuntimeError
    /// InvalidProcedureCall. `top` narrows a system list to the members below it, "[Parents]" and
    /// "[Ancestors]" to those above it; rootMember, and an ID that is no member, narrow nothing. A
    /// user-defined list is never narrowed.
    virtual QList<MemberId> EnumMemberListMembers(ListId list, MemberId top) = 0;

    // Members.

    virtual QString GetMemberLabel(MemberId member) = 0;
    /// The description in the language at that 0-based position of Metadata::GetLanguages; empty
    /// where none is stored, and so in a language that the application does not have.
    virtual QString GetMemberDescription(MemberId member, qint16 language) = 0;
    /// The ID of a label, in any letter case; an unknown one fails with RuntimeError
    /// InvalidProcedureCall and "'LABEL' is not a member of DIMENSION.".
    virtual MemberId GetMemberId(const QString &label) = 0;
    /// Every member once.
    virtual QList<MemberId> EnumAllMembers() = 0;
    /// The labels of EnumAllMembers, in the same order.
    virtual QList<QString> EnumAllMemberLabels() = 0;

    // Hierarchy.

    /// The direct children in hierarchy order; a parent of rootMember gives the top-level members.
    /// `selector` is always allChildren.
    virtual QList<MemberId> EnumChildMembers(qint32 selector, MemberId parent) = 0;
    /// The number of direct children.
    virtual qint32 GetChildCount(MemberId member) = 0;
    /// Whether the member is a parent.
    virtual bool GetHasChildren(MemberId member) = 0;
    /// Every parent-child occurrence in tree order, a parent's entry before its children's; a
    /// parent of rootMember marks a top-level member.
    virtual Occurrences EnumHierarchy() = 0;
    /// A second reading of the hierarchy that follows EnumHierarchy; no caller uses its answer.
    virtual Occurrences EnumHierarchyAux() = 0;
    /// The childless members below `top` (not `top` itself), in tree order.
    virtual QList<MemberId> EnumBaseMembers(MemberId top, Distinct distinct) = 0;
    /// Every member below `top` (not `top` itself), in tree order.
    virtual QList<MemberId> EnumMembersBelow(MemberId top, Distinct distinct) = 0;
    /// The label of the default parent; empty where that is the root.
    virtual QString GetDefaultParentLabel(MemberId member) = 0;
    /// The generation of the default parent: 0 for the root, 1 for a top-level member.
    virtual qint32 GetDefaultParentGeneration(MemberId member) = 0;
    /// 0 for a base member, else the number of generations below.
    virtual qint32 GetGenerationsBelow(MemberId member) = 0;

    // Attribute views. Each fails with RuntimeError TypeMismatch on a dimension of another kind.

    virtual std::shared_ptr<EntityAttributes> entityAttributes() = 0;
    virtual std::shared_ptr<AccountAttributes> accountAttributes() = 0;
    virtual std::shared_ptr<CustomAttributes> customAttributes() = 0;
};

} // namespace hfm
