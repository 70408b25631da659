#include "appinfo/frmApplicationInfo.h"
#include "appinfo/MemberListExport.h"
#include "appinfo/SecurityExport.h"
#include "shell/frmLargeText.h"
#include "shell/SpreadsheetExport.h"

// An export that fails leaves the hourglass set.

void frmApplicationInfo::cmdSendToExcel_Click()
{
    setCursor(Qt::WaitCursor);
    const auto linesOf = [](const LargeTextView *box, const QListView *list) {
        return box->text().isEmpty() ? QStringList() : TabControls::lines(list);
    };
    if (mSecurity.txtTemp->text().isEmpty())
        mServices.prompts.ask(SecurityExport::nothingToPrint());
    else
        SpreadsheetExport::run(mServices, [&](Worksheet &sheet) {
            SecurityExport::write(sheet, linesOf(mSecurity.txtTemp, mSecurity.lstTemp),
                                  linesOf(mSecurity.txtTemp2, mSecurity.lstTemp2));
        });
    unsetCursor();
}

void frmApplicationInfo::cmdSendListToExcel_Click()
{
    exportList();
}

void frmApplicationInfo::exportList()
{
    setCursor(Qt::WaitCursor);
    SpreadsheetExport::run(mServices, [&](Worksheet &sheet) {
        MemberListExport::write(sheet, mMemberLists.lblMembersInList->text(),
                                mMemberLists.cboParentMembers->currentText(),
                                TabControls::lines(mMemberLists.lstMembersInList));
    });
    unsetCursor();
}
