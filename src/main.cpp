#include "appinfo/FileSpreadsheet.h"
#include "appinfo/frmApplicationInfo.h"
#include "extract/frmExtract.h"
#include "hfm/offline/dlgOfflineDialogs.h"
#include "hfm/offline/OfflineClient.h"
#include "listbuilder/frmMemberListBuilder.h"
#include "runtime/DesktopLauncher.h"
#include "runtime/dlgPrompts.h"
#include "runtime/QtProgram.h"
#include "shell/frmIdentity.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shell/Identity.h"
#include "shell/StartUp.h"
#include "shell/WindowInstance.h"
#include "viewer/frmMetadataViewer.h"

#include <QApplication>
#include <QStandardPaths>

namespace {

/// A main window's tool: its one window, loaded when it is not.
template <typename Window>
frmMain::Tool toolOf(WindowInstance<Window> &instance)
{
    return [&instance] { return instance.window(); };
}

void introduce(QApplication &application)
{
    application.setApplicationName(Identity::title());
    application.setOrganizationName(Identity::title()); // names the folder of the user's settings
    application.setApplicationVersion(Identity::version());
    application.setDesktopFileName(QStringLiteral("tessaly"));
    application.setWindowIcon(frmIdentity::icon());
    // The splash closes before there is a main window; the program goes on all the same.
    application.setQuitOnLastWindowClosed(false);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    introduce(application);

    QtProgram program;
    dlgPrompts prompts(program);
    ErrorTrap trap(prompts, program);
    SystemClock clock;
    const QString programFolder = QCoreApplication::applicationDirPath();
    DesktopLauncher launcher(programFolder + QStringLiteral("/help/pages/index.html"));
    FileSpreadsheet spreadsheet(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                                clock, launcher);
    hfm::offline::OfflineDialogs dialogs(hfm::offline::findSampleCluster(programFolder), clock,
                                         trap);
    hfm::offline::OfflineClientFactory clients(dialogs, dialogs);
    Services services{clients, prompts, launcher, spreadsheet, clock, program, trap, programFolder};

    modGlobal global;
    WindowInstance<frmApplicationInfo> applicationInfo(
        [&] { return new frmApplicationInfo(services, global); });
    WindowInstance<frmExtract> extract([&] { return new frmExtract(services, global); });
    WindowInstance<frmMemberListBuilder> listBuilder(
        [&] { return new frmMemberListBuilder(services, global); });
    WindowInstance<frmMetadataViewer> viewer(
        [&] { return new frmMetadataViewer(services, global); });
    WindowInstance<frmMain> mainWindow([&] {
        return new frmMain(
            global, services,
            {toolOf(applicationInfo), toolOf(extract), toolOf(listBuilder), toolOf(viewer)});
    });

    startUp(services, {[&] { frmSplash(services).showModal(); },
                       [&] {
                           frmMain *window = mainWindow.window();
                           if (program.isEnding())
                               return;
                           window->show();
                           application.setQuitOnLastWindowClosed(true);
                       }});
    return program.run();
}
