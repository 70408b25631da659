#include "Journeys.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int securityTab = 0;
constexpr int memberListsTab = 2;

Step start()
{
    return {"start", [](WholeProgram &program) { program.start(); }, Guard::StartUpMessages};
}

Step click(const char *button)
{
    return {button, [button](WholeProgram &program) { program.click(button); }};
}

Step trigger(const char *action)
{
    return {action, [action](WholeProgram &program) { program.trigger(action); }};
}

Step choose(const char *list, const QString &entry, Guard guard = Guard::None)
{
    return {list, [list, entry](WholeProgram &program) { program.choose(list, entry); }, guard};
}

Step chooseRow(const char *list)
{
    return {list, [list](WholeProgram &program) { program.chooseRow(list, 0); }};
}

Step showTab(const char *tabs, int index)
{
    return {tabs, [tabs, index](WholeProgram &program) { program.showTab(tabs, index); }};
}

Step type(const char *edit, const QString &text)
{
    return {edit, [edit, text](WholeProgram &program) { program.type(edit, text); }};
}

Step fill(const char *list, const QString &line)
{
    return {list, [list, line](WholeProgram &program) { program.fill(list, {line}); }};
}

Step close(const char *window)
{
    return {window, [window](WholeProgram &program) { program.close(window); }};
}

Step chooseDimension(const QString &dimension)
{
    return choose("cboSetDimension", dimension);
}

Step openApplicationInfo()
{
    return {"cmdApplicationInfo",
            [](WholeProgram &program) { program.click("cmdApplicationInfo"); }, Guard::LoadMessage};
}

Journey mainWindow()
{
    QList<Step> steps = {start()};
    for (const QString &dimension :
         {u"Account"_s, u"Entity"_s, u"Scenario"_s, u"Year"_s, u"Period"_s, u"Custom1"_s,
          u"Custom2"_s, u"Custom3"_s, u"Custom4"_s, u"View"_s, u"Value"_s, u"ICP"_s})
        steps.append(chooseDimension(dimension));
    steps += {choose("cboLanguages", u"German"_s), trigger("mnuLogon"), trigger("mnuHFMHelp")};
    return {"the main window", steps, {}};
}

/// The user lets a refused logon and a refused application try again.
Journey secondTry()
{
    const Step refuse = {"refuse", [](WholeProgram &program) {
                             program.fakes.hfm.logonAnswers() = {false, true};
                             program.fakes.hfm.openAnswers() = {false, true};
                         }};
    return {"a logon at the second try",
            {refuse, start()},
            {u"Error Opening HFM"_s, u"Error Opening HFM"_s}};
}

Journey extract()
{
    return {"extract",
            {start(), chooseDimension(u"Entity"_s), click("cmdExtractMetadata"),
             click("chkHeaderRow"), click("optUseIndicators_0"), click("cmdExtract"),
             click("optDelimeter_1"), click("cmdSaveExtract"),
             type("txtFileName", WholeProgram::savedName()), click("cmdSave"), click("cmdExtract"),
             close("frmExtract")},
            {u"File Exists"_s, u"File Saved"_s},
            2};
}

Journey viewer(const char *name, const QString &dimension, const QList<Step> &steps,
               const QStringList &titles = {}, int firstOwnStep = 2)
{
    return {name,
            QList<Step>{start(), chooseDimension(dimension), click("cmdMetadataViewer")} + steps,
            titles, firstOwnStep};
}

QList<Journey> viewerJourneys()
{
    const QStringList exported = {u"Print Attributes"_s, u"Excel Export"_s};
    return {
        viewer("entity attributes", u"Entity"_s,
               {click("optShowAttributes_1"), click("optShowAttributes_0"), click("chk_ExpAttribs"),
                click("cmdExpandAll"), close("frmMetadataViewer")}),
        viewer("entity filters", u"Entity"_s,
               {click("optEntityFilterSwitch_0"), choose("cboEntityCurrencyFilter", u"EUR"_s),
                choose("cboEntitySecurityClassFilter", u"SC_FIN"_s), click("cmdRerunEntityFilters"),
                click("optEntityFilterSwitch_1")},
               {}, 3),
        viewer("top member", u"Entity"_s,
               {chooseRow("trvMembers"), trigger("mnuTopMember"), click("cmdSendToExcel"),
                click("cmdRemoveTopMember"), click("cmdSendToExcel")},
               exported + exported, 3),
        viewer("account attributes", u"Account"_s,
               {click("chk_ExpAttribs"), click("cmdSendToExcel")}, exported),
        viewer("custom attributes", u"Custom1"_s, {click("chk_ExpAttribs")}),
        viewer("an unsupported dimension", u"Year"_s, {click("cmdExpandAll")},
               {u"Unsupported Dimension"_s}),
    };
}

Journey applicationInfo(const char *name, const QList<Step> &steps, const QStringList &titles = {},
                        int firstOwnStep = 2)
{
    return {name, QList<Step>{start(), openApplicationInfo()} + steps, titles, firstOwnStep};
}

QList<Journey> applicationInfoJourneys()
{
    QList<Step> lists = {showTab("sstabApplicationInfo", memberListsTab)};
    lists += {choose("cboEntityLists", u"Europe"_s, Guard::ParentMarks),
              choose("cboAccountLists", u"[Base]"_s, Guard::ParentMarks),
              choose("cboParentMembers", u"P"_s, Guard::ParentMarks), click("cmdSendListToExcel")};
    return {
        applicationInfo("analyses",
                        {click("optDimension_1"), click("optDimensionCompare_10"),
                         choose("cboTopMember1", u"G"_s), choose("cboTopMember2", u"L"_s),
                         click("cmdCompare"), choose("cboParents", u"G"_s)},
                        {}, 1),
        applicationInfo("statistics",
                        {click("optDimensionStats_12"), click("optDimensionStats_13"),
                         click("optDimensionStats_14"), click("optDimensionStats_15"),
                         click("optDimensionStats_16"), click("optDimensionStats_17")}),
        applicationInfo("member lists", lists, {u"Excel Export"_s}),
        applicationInfo("security",
                        {showTab("sstabApplicationInfo", securityTab),
                         fill("lstUsers", u"CORP\\jane"_s), fill("lstRoles", u"Administrator"_s),
                         fill("lstSecurityClasses", u"SC_FIN"_s), click("cmdSendToExcel"),
                         chooseRow("lstRoles"), chooseRow("lstSecurityClasses"),
                         chooseRow("lstUsers"), click("cmdSendToExcel")},
                        {u"Send to Excel Error"_s, u"Excel Export"_s}),
    };
}

Journey listBuilder()
{
    return {"member list builder",
            {start(), chooseDimension(u"Account"_s), click("cmdMemberListBuilder"),
             click("cmdTreeViewCheckAll"), click("cmdTreeViewChecked"), click("cmdListSelectAll"),
             click("cmdListSelected"), type("txtMemberListName", u"New"_s),
             click("cmdGenerateList"), showTab("ssTabMemberListBuilder", 1),
             choose("cboMemberLists", u"Key figures"_s, Guard::ParentMarks),
             showTab("ssTabMemberListBuilder", 0), click("cmdSaveMemberListFile"),
             type("txtFileName", WholeProgram::savedName()), click("cmdSave"),
             click("cmdGenerateList")},
            {u"Member List Syntax Written Successfully"_s, u"File Exists"_s, u"File Saved"_s,
             u"Member List Syntax Written Successfully"_s},
            2};
}

} // namespace

QList<Journey> everyJourney()
{
    return QList<Journey>{mainWindow(), secondTry(), extract()} + viewerJourneys() +
           applicationInfoJourneys() + QList<Journey>{listBuilder()};
}
