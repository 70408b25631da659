#pragma once

#include "hfm/Dimension.h"

#include <QStringList>

/// What the builder shows of the lists that the application holds already.
namespace ListViewer {

/// The names of the dimension's lists, in the client's order. Fails as EnumMemberListNames does,
/// and with RuntimeError Overflow at more than 32,767 lists.
QStringList listNames(hfm::Dimension &dimension);

/// A list as it is shown.
struct ShownList
{
    QString caption;  ///< "ACCOUNT list  SALES  -  2 members"; "ACCOUNT list  " for an empty list
    QStringList rows; ///< a member's label each, with " **" behind that of a parent
};

/// The list of that name. `dimensionName` stands in the caption as it is given.
/// Fails as the dimension's operations do, but for GetHasChildren: a member that cannot be asked
/// is shown as no parent. Fails with RuntimeError Overflow at more than 32,767 members.
ShownList show(hfm::Dimension &dimension, const QString &dimensionName, const QString &listName);

/// The stored member list file as text, a character a byte in the 8-bit code page; where there is
/// none, a text that says so.
QString storedFileText(const hfm::MemberListFile &file);

} // namespace ListViewer
