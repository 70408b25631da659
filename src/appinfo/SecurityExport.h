#pragma once

#include "runtime/Prompts.h"
#include "runtime/Spreadsheet.h"

#include <QStringList>

/// The last answer about the security in a worksheet.
namespace SecurityExport {

/// Says that there is no answer yet.
Prompt nothingToPrint();

/// Writes the lines of the answer's first column from row 1 down into column 1, then those of the
/// second into column 3. They are written as they are, without a mark that they are text.
/// Fails as setCell() does, and with RuntimeError Overflow beyond row 32,767.
void write(Worksheet &sheet, const QStringList &first, const QStringList &second);

} // namespace SecurityExport
