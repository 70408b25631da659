#pragma once

#include "listbuilder/BuilderTreeModel.h"
#include "listbuilder/frmMemberListBuilderControls.h"
#include "listbuilder/KeyHold.h"
#include "listbuilder/NewListModel.h"
#include "shell/modGlobal.h"
#include "shell/Services.h"

class QKeyEvent;

/// The member list builder: picks members of the current dimension into a new list and writes its
/// script; shows the lists and the member list file that the application has. It reads the shared
/// state as it is made, and deletes itself when it is closed.
class frmMemberListBuilder final : public QMainWindow
{
    Q_OBJECT

public:
    /// Fails with RuntimeError ObjectVariableNotSet where no dimension is chosen or no application
    /// open, with RuntimeError Overflow where the dimension has more than 32,767 members, places of
    /// members or lists, and as the HFM operations do.
    frmMemberListBuilder(Services &services, modGlobal &global, QWidget *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Handler = void (frmMemberListBuilder::*)();
    void connectPicking();
    void connectNewList();
    void connectSyntax();
    void onClick(QPushButton *button, Handler click);
    void onKey(const QKeySequence &key, Handler action);

    void Form_Load();
    void showApplication();
    void fillMembers(hfm::Dimension &dimension);
    void showStoredFile();

    void cmdTreeViewChecked_Click();
    void trvMembers_DblClick(const QModelIndex &node);
    void cmdListSelected_Click();
    void lstMetadata_DblClick(const QModelIndex &row);
    void insertRows(const QStringList &rows);

    void lstMemberList_KeyDown(const QKeyEvent &key);
    void lstMemberList_KeyUp(const QKeyEvent &key);
    void cmdDeleteMemberInList_Click();
    void cmdClearMemberList_Click();
    void cmdMoveUpMemberInList_Click();
    void cmdMoveDownMemberInList_Click();
    int selectedRow() const;
    void select(int row);
    void focusNewList();
    void enableGenerating();

    void cmdGenerateList_Click();
    void cmdResetMemberList_Click();
    void cmdSaveMemberListFile_Click();
    void cboMemberLists_Click();

    Services &mServices;
    modGlobal &mGlobal;
    BuilderTreeModel mTree;
    NewListModel mNewList;
    KeyHold mDeleteKey; ///< in the new list
    frmMemberListBuilderControls mControls;
};
