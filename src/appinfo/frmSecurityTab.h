#pragma once

#include "appinfo/frmChoiceList.h"
#include "appinfo/SecurityAccess.h"
#include "shell/frmTabControls.h"

/// "&Security": its controls, made, captioned and laid out on `page`.
struct frmSecurityTab
{
    frmSecurityTab(ErrorTrap &trap, QWidget *page);

    /// Shows an answer, and keeps its lines for the spreadsheet.
    void show(const SecurityAccess::Columns &columns);
    void clear() { show({}); }

    frmChoiceList *lstUsers;
    frmChoiceList *lstRoles;
    frmChoiceList *lstSecurityClasses;
    LargeTextView *txtTemp;
    LargeTextView *txtTemp2;
    QListView *lstTemp; ///< hidden, as the other one: their lines are those of the text boxes
    QListView *lstTemp2;
    QPushButton *cmdSendToExcel;
};
