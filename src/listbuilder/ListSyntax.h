#pragma once

#include <QStringList>

/// The script of a static member list, in the rule language of HFM's member list files: a
/// subroutine that names a dimension's lists and one that adds the members of a list. Lines end in
/// CR LF, the last one in nothing.
///
/// `dimensionName` is the name as HFM spells it, such as "Account". `entries` are member labels,
/// written one a line, in their order and as they stand; an empty list gives a script that adds
/// nothing. What the user has to fill in is "#" for the number of the list and "(#)" for the
/// number of lists, and the list's name is not in the script at all.
/// Fails with RuntimeError Overflow at more than 32,767 entries.
QString GenerateListSyntax(const QString &dimensionName, const QStringList &entries);

/// What the user is told of a script that was written: the list's name and its number of members,
/// a blank line made of two lone CRs, and what to do next.
QString listSyntaxMessage(const QString &dimensionName, const QString &listName, qint16 count);
