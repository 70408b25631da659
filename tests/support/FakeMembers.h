#pragma once

#include "hfm/Values.h"

#include <QHash>
#include <QSet>

#include <functional>
#include <utility>

/// The members of a fake dimension and their hierarchy, built from an outline: one line a member,
/// "label|description in language 0|description in language 1|...", indented below its parent.
///
///     GROUP|Group
///       US01|US unit
///       FR01|French unit|Unité française
///     LEGAL
///       US01
///
/// IDs are 0, 1, 2, ... in order of first appearance. A label that stands again, in any letter
/// case, is a shared member: its descriptions count where it stands first, and its children are
/// the same wherever it stands, repeated in the outline or not.
class FakeMembers
{
public:
    struct Member
    {
        QString label;
        QStringList descriptions; ///< by language; missing ones are empty
        QList<hfm::MemberId> children;
        QList<hfm::MemberId> parents;                  ///< in order of appearance, with rootMember
        hfm::MemberId defaultParent = hfm::rootMember; ///< the first parent
    };

    FakeMembers() = default;
    explicit FakeMembers(const QString &outline);

    /// A member by such a line, below `parent`; the member of that label where there is one.
    hfm::MemberId add(hfm::MemberId parent, const QString &line);
    /// A member that stands nowhere in the hierarchy.
    hfm::MemberId addUnplaced(const QString &line);

    qint32 count() const { return qint32(mMembers.size()); }
    bool contains(hfm::MemberId id) const { return id >= 0 && id < count(); }
    /// Of an ID that contains() accepts.
    const Member &at(hfm::MemberId id) const { return mMembers[id]; }
    Member &at(hfm::MemberId id) { return mMembers[id]; }
    /// -1 where there is none; `label` in any letter case.
    hfm::MemberId find(const QString &label) const;
    const QList<hfm::MemberId> &childrenOf(hfm::MemberId parent) const;

    /// Visits each occurrence below `top` in tree order, with its depth (1 for a child). With
    /// `once`, only the first occurrence of each member.
    using Visit = std::function<void(hfm::MemberId parent, hfm::MemberId member, qint32 depth)>;
    void walk(hfm::MemberId top, bool once, const Visit &visit) const;
    /// The members that such a walk visits; with `baseOnly` only those without children.
    QList<hfm::MemberId> below(hfm::MemberId top, bool once, bool baseOnly) const;

private:
    QList<Member> mMembers;
    QList<hfm::MemberId> mTopLevel;
    QHash<QString, hfm::MemberId> mIds;
    QSet<std::pair<hfm::MemberId, hfm::MemberId>> mEdges;
};
