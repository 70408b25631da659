#pragma once

#include "runtime/Spreadsheet.h"

#include <QStringList>

/// A shown member list in a worksheet.
namespace MemberListExport {

/// Everything stands in column 1: the list's heading, the top member in upper case where there is
/// one, an empty row, the members as they are listed. `topMember` is empty where there is none.
/// Fails as setCell() does, and with RuntimeError Overflow beyond row 32,767.
void write(Worksheet &sheet, const QString &heading, const QString &topMember,
           const QStringList &members);

} // namespace MemberListExport
