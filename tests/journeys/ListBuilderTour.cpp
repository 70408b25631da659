#include "ListBuilderTour.h"

#include "Hands.h"
#include "SaveTour.h"

#include <QDir>
#include <QFile>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace {

const QString builder = u"frmMemberListBuilder"_s;
const QString scriptFile = u"Board.lst"_s;
constexpr char script[] =
    "Sub EnumMemberLists()\r\n"
    "\r\n"
    "\t'# is a placeholder for you for when you go to copy this text into your list file, "
    "replace that with the new number of total lists for that dimension\r\n"
    "\tDim aAccountLists(#)\r\n"
    "\r\n"
    "\tSelect Case HS.Dimension\r\n"
    "\t\tCase \"Account\"\r\n"
    "\t\t\t'# is a placeholder for the extact number of the specific list when you copy the "
    "syntax into your list file\t\t\taAccountLists(#)\r\n"
    "\t\t\tHS.SetMemberLists aAccountLists\r\n"
    "\tEnd Select\r\n"
    "\r\n"
    "End Sub\r\n"
    "\r\n"
    "Sub EnumMembersInList()\r\n"
    "\r\n"
    "\tSelect Case HS.Dimension\r\n"
    "\t\tCase \"Account\"\r\n"
    "\t\t\tSelect Case HS.MemberListID\r\n"
    "\t\t\t\t'# is a placeholder for the exact number of the list when you copy this syntax into "
    "your list file\r\n"
    "\t\t\t\tCase #\r\n"
    "\t\t\t\t\tHS.AddMemberToList \"TURNOVER\"\r\n"
    "\t\t\t\t\tHS.AddMemberToList \"EBIT\"\r\n"
    "\t\t\t\t\tHS.AddMemberToList \"NETRESULT\"\r\n"
    "\t\t\t\t\tHS.AddMemberToList \"ROCE %\"\r\n"
    "\t\t\t\t\tHS.AddMemberToList \"R\xE9sultat net\"\r\n"
    "\t\t\tEnd Select\r\n"
    "\tEnd Select\r\n"
    "\r\n"
    "End Sub";

void pickMembers(Journey &journey)
{
    journey.on(builder, u"Insert accounts that are checked in the tree"_s, [](QWidget &window) {
        for (const QString &account :
             {u"NETRESULT - Net result"_s, u"EBIT - Operating result"_s, u"TURNOVER - Revenue"_s}) {
            Hands::choose(window, "trvMembers", account);
            Hands::key(window, "trvMembers", Qt::Key_Space);
        }
        Hands::click(window, "cmdTreeViewChecked");
    });
    for (const QString &account :
         {u"Résultat net - Result of the year"_s, u"ROCE % - Return on capital employed"_s}) {
        journey.on(builder, u"Insert one that is selected in the list"_s,
                   [account](QWidget &window) {
                       Hands::choose(window, "lstMetadata", account);
                       Hands::click(window, "cmdListSelected");
                   });
    }
}

void putInOrder(Journey &journey)
{
    journey.on(builder, u"Put them in order"_s, [](QWidget &window) {
        Hands::choose(window, "lstMemberList", u"TURNOVER"_s);
        Hands::key(window, "lstMemberList", Qt::Key_Up, Qt::AltModifier);
        Hands::key(window, "lstMemberList", Qt::Key_Up, Qt::AltModifier);
        Hands::choose(window, "lstMemberList", u"NETRESULT"_s);
        Hands::click(window, "cmdMoveDownMemberInList");
    });
    journey.on(builder, u"Move one more"_s, [](QWidget &window) {
        Hands::choose(window, "lstMemberList", u"ROCE %"_s);
        Hands::click(window, "cmdMoveUpMemberInList");
    });
}

void generate(Journey &journey)
{
    journey.on(builder, u"Name the list and generate it"_s, [](QWidget &window) {
        Hands::type(window, "txtMemberListName", u"Key figures for the board"_s);
        Hands::click(window, "cmdGenerateList");
    });
    journey.on(u"QMessageBox"_s, u"Read that it was generated"_s, [&journey](QWidget &box) {
        auto &message = static_cast<QMessageBox &>(box);
        journey.check(message.text().contains(u"'Key figures for the board'"_s) &&
                          message.text().contains(u"The list contains 5 members."_s),
                      u"the list was generated with its five members"_s);
        message.accept();
    });
    journey.on(builder, u"Save its script"_s, [&journey](QWidget &window) {
        journey.picture(window, u"list-builder"_s);
        Hands::click(window, "cmdSaveMemberListFile");
    });
    saveAs(journey, scriptFile);
}

void checkScript(Journey &journey)
{
    QFile file(QDir(journey.folder()).filePath(scriptFile));
    journey.check(file.open(QIODevice::ReadOnly) && file.readAll() == script,
                  u"the saved script is the one expected"_s);
}

void viewLists(Journey &journey)
{
    journey.on(builder, u"Look at the lists that are there"_s, [&journey](QWidget &window) {
        checkScript(journey);
        Hands::tab(window, "ssTabMemberListBuilder", u"List Viewer "_s);
        Hands::choose(window, "cboMemberLists", u"Main lines"_s);
    });
    journey.on(builder, u"Close the window"_s, [&journey](QWidget &window) {
        journey.check(Hands::text(window, "lblMembersInList") ==
                          u"ACCOUNT list  MAIN LINES  -  12 members"_s,
                      u"the list is shown"_s);
        journey.picture(window, u"list-viewer"_s);
        Hands::menu(window, "mnuClose");
    });
}

} // namespace

void buildList(Journey &journey)
{
    journey.on(u"frmMain"_s, u"Build a list of accounts"_s, [](QWidget &window) {
        Hands::choose(window, "cboSetDimension", u"Account"_s);
        Hands::click(window, "cmdMemberListBuilder");
    });
    pickMembers(journey);
    putInOrder(journey);
    generate(journey);
    viewLists(journey);
}
