#include "listbuilder/frmMemberListBuilder.h"

#include "extract/frmDrvDirFil.h"
#include "listbuilder/BuilderRules.h"
#include "listbuilder/frmSyntaxEdit.h"
#include "listbuilder/ListSyntax.h"
#include "listbuilder/ListViewer.h"
#include "listbuilder/MemberRows.h"
#include "runtime/Counter16.h"
#include "runtime/Required.h"
#include "shell/frmDeepTreeView.h"
#include "shell/frmHourglass.h"
#include "shell/frmLargeText.h"
#include "shell/frmTabControls.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The texts of a list's selected rows, from the first to the last.
QStringList selectedRows(const QListView &list)
{
    std::vector<int> rows;
    const QItemSelection selection = list.selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    QStringList texts;
    for (const int row : rows)
        texts.append(list.model()->index(row, 0).data().toString());
    return texts;
}

} // namespace

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
    trap.connect(mControls.trvMembers, &DeepTreeView::doubleClicked, this,
                 [this](const QModelIndex &node) { trvMembers_DblClick(node); });
    trap.connect(mControls.cmdListSelectAll, &QPushButton::clicked, this,
                 [this] { mControls.lstMetadata->selectAll(); });
    trap.connect(mControls.cmdListDeselectAll, &QPushButton::clicked, this,
                 [this] { mControls.lstMetadata->clearSelection(); });
    onClick(mControls.cmdListSelected, &frmMemberListBuilder::cmdListSelected_Click);
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
        const bool isKeyUp = event->type() == QEvent::KeyRelease;
        if (watched == mControls.txtMemberListName && isKeyUp)
            enableGenerating();
        else if (watched == mControls.lstMemberList && isKeyUp)
            lstMemberList_KeyUp(*static_cast<const QKeyEvent *>(event));
        else if (watched == mControls.lstMemberList && event->type() == QEvent::FocusIn)
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

// Picking members.

void frmMemberListBuilder::cmdTreeViewChecked_Click()
{
    mNewList.append(mTree.checkedTags());
    focusNewList();
}

void frmMemberListBuilder::trvMembers_DblClick(const QModelIndex &node)
{
    mNewList.append({node.data(BuilderTreeModel::TagRole).toString()});
    focusNewList();
}

void frmMemberListBuilder::cmdListSelected_Click()
{
    insertRows(selectedRows(*mControls.lstMetadata));
}

void frmMemberListBuilder::lstMetadata_DblClick(const QModelIndex &row)
{
    insertRows({row.data().toString()});
}

void frmMemberListBuilder::insertRows(const QStringList &rows)
{
    QStringList labels;
    for (const QString &row : rows)
        labels.append(MemberRows::labelPart(row));
    mNewList.append(labels);
    focusNewList();
    mControls.lstMetadata->setFocus();
}

// The new list.

void frmMemberListBuilder::lstMemberList_KeyUp(const QKeyEvent &key)
{
    // A key that is held down is released once, whatever the platform sends while it is.
    if (key.isAutoRepeat())
        return;
    if (key.key() == Qt::Key_Delete)
        mNewList.remove(selectedRow());
    enableGenerating();
}

void frmMemberListBuilder::cmdDeleteMemberInList_Click()
{
    mNewList.remove(selectedRow());
    focusNewList();
}

void frmMemberListBuilder::cmdClearMemberList_Click()
{
    mNewList.clear();
    focusNewList();
}

void frmMemberListBuilder::cmdMoveUpMemberInList_Click()
{
    select(mNewList.moveUp(selectedRow()));
    focusNewList();
}

void frmMemberListBuilder::cmdMoveDownMemberInList_Click()
{
    select(mNewList.moveDown(selectedRow()));
    focusNewList();
}

/// -1 where no row is selected.
int frmMemberListBuilder::selectedRow() const
{
    return mControls.lstMemberList->selectionModel()->selectedIndexes().value(0).row();
}

void frmMemberListBuilder::select(int row)
{
    if (row >= 0)
        mControls.lstMemberList->setCurrentIndex(mNewList.index(row));
}

/// Gives the new list the focus, and does what its getting it does even where it has it already.
void frmMemberListBuilder::focusNewList()
{
    mControls.lstMemberList->setFocus();
    enableGenerating();
}

void frmMemberListBuilder::enableGenerating()
{
    mControls.cmdGenerateList->setEnabled(
        BuilderRules::canGenerate(mNewList.rowCount(), mControls.txtMemberListName->text()));
}

// The script.

void frmMemberListBuilder::cmdGenerateList_Click()
{
    mControls.txtMemberListSyntax->setText({});
    const QString dimension = required(mGlobal.gDimension).GetDimensionName();
    mControls.txtMemberListSyntax->setText(GenerateListSyntax(dimension, mNewList.entries()));
    const QString message = listSyntaxMessage(dimension, mControls.txtMemberListName->text(),
                                              Counter16(mNewList.rowCount()).value());
    mServices.prompts.ask({u"Member List Syntax Written Successfully"_s, message,
                           Prompt::Icon::Information, Prompt::Buttons::Ok});
}

void frmMemberListBuilder::cmdResetMemberList_Click()
{
    BuilderRules::resetSyntax(mControls.txtMemberListSyntax->text());
}

void frmMemberListBuilder::cmdSaveMemberListFile_Click()
{
    mGlobal.gPendingText = mControls.txtMemberListSyntax->text();
    mGlobal.gSaveFilePattern = u".lst"_s;
    mGlobal.gSaveMode = u"MEMBERLIST"_s;
    (new frmDrvDirFil(mServices, mGlobal, this))->show();
}

// The list viewer.

void frmMemberListBuilder::cboMemberLists_Click()
{
    const frmHourglass hourglass(this);
    const ListViewer::ShownList shown =
        ListViewer::show(required(mGlobal.gDimension), mGlobal.gDimensionName,
                         mControls.cboMemberLists->currentText());
    TabControls::setLines(mControls.lstMembersInList, shown.rows);
    mControls.lblMembersInList->setText(shown.caption);
    mControls.lstMembersInList->setAccessibleName(shown.caption);
}
