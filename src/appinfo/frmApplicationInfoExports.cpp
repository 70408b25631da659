#include "appinfo/frmApplicationInfo.h"
#include "appinfo/MemberListExport.h"
#include "appinfo/SecurityExport.h"
#include "shell/frmLargeText.h"
#include "shell/frmLastingHourglass.h"
#include "shell/SpreadsheetExport.h"

void frmApplicationInfo::cmdSendToExcel_Click()
{
    frmLastingHourglass hourglass(this);
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
    hourglass.done();
}

void frmApplicationInfo::cmdSendListToExcel_Click()
{
    exportList();
}

void frmApplicationInfo::exportList()
{
    frmLastingHourglass hourglass(this);
    SpreadsheetExport::run(mServices, [&](Worksheet &sheet) {
        MemberListExport::write(sheet, mMemberLists.lblMembersInList->text(),
                                mMemberLists.cboParentMembers->currentText(),
                                TabControls::lines(mMemberLists.lstMembersInList));
    });
    hourglass.done();
}
