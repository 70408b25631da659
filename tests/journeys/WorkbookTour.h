#pragma once

#include "Journey.h"

/// What the tour needs to send things to a spreadsheet, which it keeps in its folder of pictures.
namespace WorkbookTour {

/// Makes the folder of pictures the user's documents folder, and a program that only notes what it
/// is to open the desktop's viewer. To be called before the program asks for either.
void prepareDesktop(const Journey &journey);

/// Sends what `window` shows to the spreadsheet by its button, answering Yes to the question about
/// attributes where one comes, and keeps the workbook as "NAME.xlsx".
void sendToExcel(Journey &journey, const QString &window, const char *button, bool isAsked,
                 const QString &name);

} // namespace WorkbookTour
