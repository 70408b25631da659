#pragma once

#include "runtime/ErrorTrap.h"

#include <QMainWindow>

class BuilderTreeModel;
class DeepTreeView;
class LargeTextView;
class NewListModel;
class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QTabWidget;
class SyntaxEdit;

/// The builder window's controls, made and arranged, connected to nothing. The window owns them.
struct frmMemberListBuilderControls
{
    /// `tree` and `newList` are shown and outlive the controls.
    frmMemberListBuilderControls(QMainWindow *window, ErrorTrap &trap, BuilderTreeModel *tree,
                                 NewListModel *newList);

    QAction *mnuClose;
    QAction *mnuExit;
    QLabel *applicationPanel;
    QLabel *lblDimension;
    QTabWidget *ssTabMemberListBuilder;

    // The static list builder.
    DeepTreeView *trvMembers;
    QPushButton *cmdTreeViewCheckAll;
    QPushButton *cmdTreeViewUncheckAll;
    QPushButton *cmdTreeViewChecked;
    QListView *lstMetadata;
    QPushButton *cmdListSelectAll;
    QPushButton *cmdListDeselectAll;
    QPushButton *cmdListSelected;
    QListView *lstMemberList;
    QPushButton *cmdClearMemberList;
    QPushButton *cmdMoveUpMemberInList;
    QPushButton *cmdMoveDownMemberInList;
    QPushButton *cmdDeleteMemberInList;
    QLineEdit *txtMemberListName;
    QPushButton *cmdGenerateList;
    SyntaxEdit *txtMemberListSyntax;
    QPushButton *cmdResetMemberList;
    QPushButton *cmdSaveMemberListFile;

    // The list viewer.
    QLabel *lblDimensionLists;
    QComboBox *cboMemberLists;
    QLabel *lblMembersInList;
    QListView *lstMembersInList;
    LargeTextView *txtCurrentMemberListFile;

private:
    void makeFrame(QMainWindow *window);
    QWidget *treeColumn(ErrorTrap &trap, BuilderTreeModel *tree);
    QWidget *flatListColumn();
    QWidget *newListColumn(NewListModel *newList);
    QWidget *syntaxPart();
    QWidget *listViewerPage(ErrorTrap &trap);
};
