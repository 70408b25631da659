#include "extract/frmDrvDirFil.h"
#include "listbuilder/BuilderRules.h"
#include "listbuilder/frmMemberListBuilder.h"
#include "listbuilder/frmSyntaxEdit.h"
#include "listbuilder/ListSyntax.h"
#include "listbuilder/ListViewer.h"
#include "listbuilder/MemberRows.h"
#include "runtime/Counter16.h"
#include "runtime/Required.h"
#include "shell/frmDeepTreeView.h"
#include "shell/frmHourglass.h"
#include "shell/frmTabControls.h"

#include <QKeyEvent>
#include <QLineEdit>

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

void frmMemberListBuilder::lstMemberList_KeyDown(const QKeyEvent &key)
{
    if (key.key() == Qt::Key_Delete)
        mDeleteKey.press(key.timestamp(), key.isAutoRepeat());
}

void frmMemberListBuilder::lstMemberList_KeyUp(const QKeyEvent &key)
{
    if (key.key() == Qt::Key_Delete && mDeleteKey.release(key.timestamp(), key.isAutoRepeat()))
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
