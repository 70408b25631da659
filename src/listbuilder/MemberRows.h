#pragma once

#include "hfm/Dimension.h"

#include <QStringList>

/// The rows that show a dimension's members.
namespace MemberRows {

/// The row of a member whose label is known: "<label> - <description>". The description is that in
/// the application's first language, whichever is chosen in the main window. Fails as
/// GetMemberDescription does.
QString ofMember(hfm::Dimension &dimension, hfm::MemberId member, const QString &label);

/// A row for each member of the dimension, in the client's order. Fails as the dimension's
/// operations do, and with RuntimeError Overflow at more than 32,767 members.
QStringList ofAllMembers(hfm::Dimension &dimension);

/// The label in a row: what stands before the blank that is before the first hyphen. A label that
/// holds a hyphen itself is cut there. Fails with RuntimeError InvalidProcedureCall where a row
/// begins with a hyphen or holds none.
QString labelPart(const QString &row);

} // namespace MemberRows
