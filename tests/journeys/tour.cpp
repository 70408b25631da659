// The tour: the whole program with the sample application Meridian, from its start to a saved
// extract and a saved member list, driven from outside its windows. It is linked with the program's
// own main.cpp and takes the folder for pictures and files as its argument.

#include "ApplicationInfoTour.h"
#include "Hands.h"
#include "Journey.h"
#include "ListBuilderTour.h"
#include "SaveTour.h"
#include "ViewerTour.h"
#include "WorkbookTour.h"

#include <QApplication>
#include <QDir>
#include <QSettings>

namespace {

bool isFilled(const QString &text)
{
    return !text.isEmpty();
}

bool hasHeaderRow(const QString &text)
{
    return text.startsWith(QLatin1String("PARENT_LABEL,PARENT_DESCRIPTION,CHILD_LABEL,"
                                         "CHILD_DESCRIPTION,"));
}

void logOn(Journey &journey)
{
    journey.on(QStringLiteral("frmSplash"), QStringLiteral("The splash window greets"),
               [&](QWidget &splash) {
                   journey.picture(splash, QStringLiteral("splash"));
                   Hands::click(splash, "lblProductName");
               });
    journey.on(QStringLiteral("dlgOfflineLogon"), QStringLiteral("Log on to the sample cluster"),
               [&](QWidget &logon) {
                   Hands::type(logon, "txtUserName", QStringLiteral("analyst"));
                   journey.picture(logon, QStringLiteral("logon"));
                   Hands::click(logon, "cmdLogonOk");
               });
    journey.on(QStringLiteral("dlgOfflineOpen"), QStringLiteral("Open the application Meridian"),
               [&](QWidget &open) {
                   Hands::choose(open, "lstApplications", QStringLiteral("Meridian"));
                   journey.picture(open, QStringLiteral("open"));
                   Hands::click(open, "cmdOpenOk");
               });
}

void extractEntities(Journey &journey)
{
    journey.on(QStringLiteral("frmMain"), QStringLiteral("Choose the Entity dimension"),
               [&](QWidget &window) {
                   Hands::choose(window, "cboSetDimension", QStringLiteral("Entity"));
                   journey.check(Hands::isEnabled(window, "cmdExtractMetadata"),
                                 QStringLiteral("the extract button is on"));
                   journey.picture(window, QStringLiteral("main"));
                   Hands::click(window, "cmdExtractMetadata");
               });
    journey.on(QStringLiteral("frmExtract"), QStringLiteral("Run the extract with indicators"),
               [&](QWidget &extract) {
                   Hands::click(extract, "optUseIndicators_0");
                   Hands::click(extract, "cmdExtract");
               });
    journey.once(QStringLiteral("frmExtract"), "txtParentChild", isFilled,
                 QStringLiteral("Show its header row"),
                 [&](QWidget &extract) { Hands::click(extract, "chkHeaderRow"); });
    journey.once(QStringLiteral("frmExtract"), "txtParentChild", hasHeaderRow,
                 QStringLiteral("Save it"), [&](QWidget &extract) {
                     journey.picture(extract, QStringLiteral("extract"));
                     Hands::click(extract, "cmdSaveExtract");
                 });
}

void leave(Journey &journey)
{
    journey.on(QStringLiteral("frmExtract"), QStringLiteral("Close the extract"),
               [&](QWidget &extract) { Hands::menu(extract, "mnuClose"); });
    journey.on(QStringLiteral("frmMain"), QStringLiteral("See what the program says of itself"),
               [&](QWidget &window) { Hands::menu(window, "mnuHelpAbout"); });
    journey.on(QStringLiteral("frmAbout"), QStringLiteral("Read and close it"),
               [&](QWidget &about) {
                   journey.picture(about, QStringLiteral("about"));
                   Hands::click(about, "cmdOK");
               });
    journey.on(QStringLiteral("frmMain"), QStringLiteral("Leave"),
               [&](QWidget &window) { Hands::menu(window, "mnuExit"); });
}

void startTour()
{
    const QStringList arguments = QCoreApplication::arguments();
    auto *journey = new Journey(
        QDir::current().absoluteFilePath(arguments.value(1, QStringLiteral("tour"))), qApp);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       journey->folder() + QStringLiteral("/settings"));
    WorkbookTour::prepareDesktop(*journey);
    logOn(*journey);
    extractEntities(*journey);
    saveAs(*journey, QStringLiteral("Entity.txt"));
    viewMetadata(*journey);
    buildList(*journey);
    informAboutApplication(*journey);
    leave(*journey);
    journey->start();
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startTour)
