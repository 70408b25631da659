#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// The values that cross the boundary to an HFM client.
///
/// Arrays come in the client's own order and may be empty; an empty array is an answer, not a
/// failure. A failing operation throws RuntimeError, with source "HFM" where the client itself
/// found the fault.
namespace hfm {

using MemberId = qint32; ///< Identifies a member within its dimension.
using ListId = qint32;   ///< Identifies a member list within its dimension.
using ClassId = qint32;  ///< Identifies a security class.
using RoleId = qint32;   ///< Identifies a role.
using UserId = qint32;   ///< Identifies a user or a group.

/// The invisible parent of a dimension's top-level members; as a top member it restricts nothing.
inline constexpr MemberId rootMember = -1;
/// What a member without a security class has.
inline constexpr ClassId noClass = -1;
/// The selector that Tessaly passes to EnumChildMembers.
inline constexpr qint32 allChildren = -1;

/// Which occurrences of a shared member an enumeration returns.
enum Distinct : qint32 {
    EveryOccurrence = 0, ///< once for each parent it sits under
    EachMemberOnce = -1,
};

/// Parent and member of each occurrence in a hierarchy, in tree order; both lists are of the same
/// length.
struct Occurrences
{
    QList<MemberId> parents;
    QList<MemberId> members;
};

/// What a logon told of its user.
struct LogonInfo
{
    QString userName;
    QString detail;
    bool flag = false; ///< Documented by nobody; Tessaly ignores it.
};

/// The member list file that is stored in an application.
struct MemberListFile
{
    QByteArray content; ///< 8-bit text; means nothing when `present` is 0
    qint16 present = 0; ///< not 0 when there is a file
};

/// Security classes, in parallel lists.
struct SecurityClasses
{
    QList<ClassId> ids;
    QList<QString> names;
};

/// Names, each with a flag that counts only when it reads "True", in parallel lists.
struct FlaggedNames
{
    QList<QString> names;
    QList<QString> flags;
};

/// Names, each with an access code (0 none, 2 read only, 3 read and promote, 4 all, others
/// unknown), in parallel lists.
struct AccessList
{
    QList<QString> names;
    QList<qint32> codes;
};

} // namespace hfm
