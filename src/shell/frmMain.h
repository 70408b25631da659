#pragma once

#include "shell/frmMainControls.h"
#include "shell/Logon.h"
#include "shell/modGlobal.h"
#include "shell/Services.h"

#include <functional>

/// The hub: logs on, lets the user choose a dimension and a language, and opens the tools.
class frmMain final : public QMainWindow, private LogonDisplay
{
    Q_OBJECT

public:
    /// Gives a tool's window, loaded if it was not. An empty function: the tool is not there, and
    /// has no button.
    using Tool = std::function<QWidget *()>;
    struct Tools
    {
        Tool applicationInfo;
        Tool extract;
        Tool memberListBuilder;
        Tool metadataViewer;
    };

    /// Logs on before the window is shown, and fails as the logon fails.
    frmMain(modGlobal &state, Services &services, Tools tools);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void connectCommands();
    void connectTool(QPushButton *button, const Tool &tool, void (frmMain::*click)());

    void logOnNow();
    void setDimension();
    void setToolButtons(bool flag);
    void openTool(const Tool &tool);

    void cboLanguages_Click(int index);
    void cmdApplicationInfo_Click();
    void cmdExtractMetadata_Click();
    void cmdMemberListBuilder_Click();
    void cmdMetadataViewer_Click();
    void mnuHFMHelp_Click();
    void mnuHelpAbout_Click();

    void showStatus(const QString &text) override;
    void enableApplication() override;
    void addLanguages(const QStringList &languages) override;

    modGlobal &mState;
    Services &mServices;
    Tools mTools;
    frmMainControls mControls;
};
