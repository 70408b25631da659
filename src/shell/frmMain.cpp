#include "shell/frmMain.h"

#include "runtime/Counter16.h"
#include "shell/Dimensions.h"
#include "shell/frmAbout.h"
#include "shell/frmActivation.h"
#include "shell/frmHourglass.h"
#include "shell/frmIdentity.h"
#include "shell/frmToolWindow.h"
#include "shell/Identity.h"

#include <QCloseEvent>
#include <QLineEdit>
#include <QTextDocument>

frmMain::frmMain(modGlobal &state, Services &services, Tools tools)
    : mState(state), mServices(services), mTools(std::move(tools)), mControls(this)
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(Identity::title());
    setWindowIcon(frmIdentity::icon());
    setToolButtons(false);
    mControls.cmdApplicationInfo->setEnabled(false);
    mControls.cboLanguages->setEnabled(false);
    connectCommands();
    // Wide enough for the status of a usual logon.
    constexpr int statusCharacters = 100;
    resize(fontMetrics().averageCharWidth() * statusCharacters, sizeHint().height());
    new frmActivation(this, mServices.trap, [this] { setDimension(); });
    logOnNow();
}

void frmMain::connectCommands()
{
    ErrorTrap &trap = mServices.trap;
    const auto onClick = [&](QPushButton *button, void (frmMain::*click)()) {
        trap.connect(button, &QPushButton::clicked, this, [this, click] { (this->*click)(); });
    };
    const auto onEntry = [&](QAction *entry, void (frmMain::*click)()) {
        trap.connect(entry, &QAction::triggered, this, [this, click] { (this->*click)(); });
    };
    onClick(mControls.cmdLogon, &frmMain::logOnNow);
    onEntry(mControls.mnuLogon, &frmMain::logOnNow);
    onEntry(mControls.mnuHFMHelp, &frmMain::mnuHFMHelp_Click);
    onEntry(mControls.mnuHelpAbout, &frmMain::mnuHelpAbout_Click);
    trap.connect(mControls.mnuExit, &QAction::triggered, this,
                 [this] { mServices.program.end(0); });
    trap.connect(mControls.cmdExit, &QPushButton::clicked, this, [this] { close(); });

    const auto chooseDimension = [this] { setDimension(); };
    trap.connect(mControls.cboSetDimension, &QComboBox::activated, this, chooseDimension);
    trap.connect(mControls.cboSetDimension->lineEdit(), &QLineEdit::returnPressed, this,
                 chooseDimension);
    trap.connect(mControls.cboLanguages, &QComboBox::activated, this,
                 [this](int index) { cboLanguages_Click(index); });

    connectTool(mControls.cmdApplicationInfo, mTools.applicationInfo,
                &frmMain::cmdApplicationInfo_Click);
    connectTool(mControls.cmdExtractMetadata, mTools.extract, &frmMain::cmdExtractMetadata_Click);
    connectTool(mControls.cmdMemberListBuilder, mTools.memberListBuilder,
                &frmMain::cmdMemberListBuilder_Click);
    connectTool(mControls.cmdMetadataViewer, mTools.metadataViewer,
                &frmMain::cmdMetadataViewer_Click);
}

void frmMain::connectTool(QPushButton *button, const Tool &tool, void (frmMain::*click)())
{
    button->setVisible(bool(tool));
    mServices.trap.connect(button, &QPushButton::clicked, this,
                           [this, click] { (this->*click)(); });
}

void frmMain::logOnNow()
{
    logOn(mState, mServices, *this);
}

void frmMain::showStatus(const QString &text)
{
    mControls.statusPanel->setText(text);
    // A tool tip would take a cluster's name for markup where it looks like it.
    mControls.statusPanel->setToolTip(Qt::convertFromPlainText(text));
}

void frmMain::enableApplication()
{
    mControls.cboLanguages->setEnabled(true);
    mControls.cmdApplicationInfo->setEnabled(true);
}

void frmMain::addLanguages(const QStringList &languages)
{
    // The languages of an earlier logon stay: a language's index is its position in the whole list.
    mControls.cboLanguages->addItems(languages);
    if (mControls.cboLanguages->count() == 0)
        return;
    mControls.cboLanguages->setCurrentIndex(0);
    cboLanguages_Click(0);
}

void frmMain::cboLanguages_Click(int index)
{
    mState.gLanguageIndex = Counter16(index).value();
}

void frmMain::setDimension()
{
    const QString text = mControls.cboSetDimension->currentText();
    switch (Dimensions::choose(mState, text)) {
    case Dimensions::Choice::Nothing:
        break;
    case Dimensions::Choice::Unknown:
        mServices.prompts.ask({QStringLiteral("Error Setting Dimension"),
                               Dimensions::unableToSet(text), Prompt::Icon::Critical,
                               Prompt::Buttons::Ok});
        break;
    case Dimensions::Choice::Set:
        setToolButtons(true);
        break;
    }
}

void frmMain::setToolButtons(bool flag)
{
    const Dimensions::Tools enabled = Dimensions::enabledTools(flag, mState.gDimensionName);
    mControls.cmdExtractMetadata->setEnabled(enabled.extract);
    mControls.cmdMetadataViewer->setEnabled(enabled.viewer);
    mControls.cmdMemberListBuilder->setEnabled(enabled.memberListBuilder);
}

void frmMain::openTool(const Tool &tool)
{
    const frmHourglass hourglass(this);
    ToolWindow::showOwned(tool(), this);
}

void frmMain::cmdApplicationInfo_Click()
{
    openTool(mTools.applicationInfo);
}

void frmMain::cmdExtractMetadata_Click()
{
    openTool(mTools.extract);
}

void frmMain::cmdMemberListBuilder_Click()
{
    if (Dimensions::opensMemberListBuilder(mState.gDimensionName))
        openTool(mTools.memberListBuilder);
}

void frmMain::cmdMetadataViewer_Click()
{
    openTool(mTools.metadataViewer);
}

void frmMain::mnuHFMHelp_Click()
{
    mServices.launcher.run(QStringLiteral("hh.exe ") + mServices.programFolder +
                           QStringLiteral("\\System11TessalyHelp.chm"));
}

void frmMain::mnuHelpAbout_Click()
{
    frmAbout about(this);
    about.exec();
}

void frmMain::closeEvent(QCloseEvent *event)
{
    mServices.trap.run([this] { ToolWindow::release(this); });
    event->accept();
}
