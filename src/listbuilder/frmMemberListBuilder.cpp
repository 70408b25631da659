#include "listbuilder/frmMemberListBuilder.h"

#include "listbuilder/BuilderRules.h"
#include "listbuilder/frmLeftDoubleClick.h"
#include "listbuilder/ListViewer.h"
#include "listbuilder/MemberRows.h"
#include "runtime/Required.h"
#include "shell/frmDeepTreeView.h"
#include "shell/frmLargeText.h"
#include "shell/frmTabControls.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

using namespace Qt::StringLiterals;

frmMemberListBuilder::frmMemberListBuilder(Services &services, modGlobal &global, QWidget *parent)
    : QMainWindow(parent), mServices(services), mGlobal(global),
      mControls(this, services.trap, &mTree, &mNewList)
{
    setObjectName(u"frmMemberListBuilder"_s);
    setWindowTitle(u"Tessaly - Member List Builder"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    resize(sizeHint().expandedTo(
        {130 * fontMetrics().averageCharWidth(), 38 * fontMetrics().lineSpacing()}));
    connectPicking();
    connectNewList();
    connectSyntax();
    mServices.trap.connect(mControls.cboMemberLists, &QComboBox::activated, this,
                           [this] { cboMemberLists_Click(); });
    mServices.trap.connect(mControls.mnuClose, &QAction::triggered, this, [this] { close(); });
    mServices.trap.connect(mControls.mnuExit, &QAction::triggered, this,
                           [this] { mServices.program.end(0); });
    Form_Load();
}

void frmMemberListBuilder::connectPicking()
{
    ErrorTrap &trap = mServices.trap;
    trap.connect(mControls.cmdTreeViewCheckAll, &QPushButton::clicked, this,
                 [this] { mTree.checkAll(true); });
    trap.connect(mControls.cmdTreeViewUncheckAll, &QPushButton::clicked, this,
                 [this] { mTree.checkAll(false); });
    onClick(mControls.cmdTreeViewChecked, &frmMemberListBuilder::cmdTreeViewChecked_Click);
    new frmLeftDoubleClick(mControls.trvMembers);
    trap.connect(mControls.trvMembers, &DeepTreeView::doubleClicked, this,
                 [this](const QModelIndex &node) { trvMembers_DblClick(node); });
    trap.connect(mControls.cmdListSelectAll, &QPushButton::clicked, this,
                 [this] { mControls.lstMetadata->selectAll(); });
    trap.connect(mControls.cmdListDeselectAll, &QPushButton::clicked, this,
                 [this] { mControls.lstMetadata->clearSelection(); });
    onClick(mControls.cmdListSelected, &frmMemberListBuilder::cmdListSelected_Click);
    new frmLeftDoubleClick(mControls.lstMetadata);
    trap.connect(mControls.lstMetadata, &QListView::doubleClicked, this,
                 [this](const QModelIndex &row) { lstMetadata_DblClick(row); });
}

void frmMemberListBuilder::connectNewList()
{
    onClick(mControls.cmdDeleteMemberInList, &frmMemberListBuilder::cmdDeleteMemberInList_Click);
    onClick(mControls.cmdClearMemberList, &frmMemberListBuilder::cmdClearMemberList_Click);
    onClick(mControls.cmdMoveUpMemberInList, &frmMemberListBuilder::cmdMoveUpMemberInList_Click);
    onClick(mControls.cmdMoveDownMemberInList,
            &frmMemberListBuilder::cmdMoveDownMemberInList_Click);
    onKey(Qt::ALT | Qt::Key_Up, &frmMemberListBuilder::cmdMoveUpMemberInList_Click);
    onKey(Qt::ALT | Qt::Key_Down, &frmMemberListBuilder::cmdMoveDownMemberInList_Click);
    mControls.lstMemberList->installEventFilter(this);
}

void frmMemberListBuilder::connectSyntax()
{
    onClick(mControls.cmdGenerateList, &frmMemberListBuilder::cmdGenerateList_Click);
    onClick(mControls.cmdResetMemberList, &frmMemberListBuilder::cmdResetMemberList_Click);
    onClick(mControls.cmdSaveMemberListFile, &frmMemberListBuilder::cmdSaveMemberListFile_Click);
    mControls.txtMemberListName->installEventFilter(this);
}

void frmMemberListBuilder::onClick(QPushButton *button, Handler click)
{
    mServices.trap.connect(button, &QPushButton::clicked, this,
                           [this, click] { (this->*click)(); });
}

void frmMemberListBuilder::onKey(const QKeySequence &key, Handler action)
{
    auto *shortcut = new QShortcut(key, mControls.lstMemberList);
    shortcut->setContext(Qt::WidgetShortcut);
    mServices.trap.connect(shortcut, &QShortcut::activated, this,
                           [this, action] { (this->*action)(); });
}

bool frmMemberListBuilder::eventFilter(QObject *watched, QEvent *event)
{
    mServices.trap.run([&] {
        const bool isNewList = watched == mControls.lstMemberList;
        if (isNewList && event->type() == QEvent::KeyPress)
            lstMemberList_KeyDown(*static_cast<const QKeyEvent *>(event));
        else if (isNewList && event->type() == QEvent::KeyRelease)
            lstMemberList_KeyUp(*static_cast<const QKeyEvent *>(event));
        else if (event->type() == (isNewList ? QEvent::FocusIn : QEvent::KeyRelease))
            enableGenerating();
    });
    return QMainWindow::eventFilter(watched, event);
}

// Loading.

void frmMemberListBuilder::Form_Load()
{
    showApplication();
    hfm::Dimension &dimension = required(mGlobal.gDimension);
    const QString name = dimension.GetDimensionName().toUpper();
    mControls.lblDimension->setText(BuilderRules::dimensionCaption(name));
    if (BuilderRules::isPickable(name))
        fillMembers(dimension);
    showStoredFile();
    mControls.lblDimensionLists->setText(BuilderRules::listsCaption(name));
    mControls.cboMemberLists->setAccessibleName(BuilderRules::listsCaption(name));
    TabControls::setEntries(mControls.cboMemberLists, ListViewer::listNames(dimension), -1);
    showApplication();
}

void frmMemberListBuilder::showApplication()
{
    mControls.applicationPanel->setText(BuilderRules::applicationPanel(mGlobal.gApplicationName));
}

void frmMemberListBuilder::fillMembers(hfm::Dimension &dimension)
{
    TabControls::setLines(mControls.lstMetadata, MemberRows::ofAllMembers(dimension));
    mTree.show(readBuilderTree(dimension));
    for (QPushButton *button : {mControls.cmdTreeViewCheckAll, mControls.cmdTreeViewUncheckAll,
                                mControls.cmdTreeViewChecked, mControls.cmdListSelectAll,
                                mControls.cmdListDeselectAll, mControls.cmdListSelected})
        button->setEnabled(true);
}

void frmMemberListBuilder::showStoredFile()
{
    mGlobal.gSystemInfo = required(mGlobal.gSession).GetSystemInfo();
    mControls.txtCurrentMemberListFile->setText(
        ListViewer::storedFileText(required(mGlobal.gSystemInfo).GetMemberListFile()));
}
