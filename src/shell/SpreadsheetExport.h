#pragma once

#include "shell/Services.h"

#include <functional>

/// What every "Send to Excel" does.
namespace SpreadsheetExport {

/// Puts what `write` writes into a worksheet of a new workbook, tells the user that all is done,
/// and then shows the workbook. Fails as the spreadsheet and `write` do; the user is told nothing
/// then.
void run(Services &services, const std::function<void(Worksheet &)> &write);

/// "Excel Export Complete." and how to go on.
Prompt complete();

} // namespace SpreadsheetExport
