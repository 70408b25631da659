#include "listbuilder/frmMemberListBuilderControls.h"

#include "listbuilder/BuilderTreeModel.h"
#include "listbuilder/frmSyntaxEdit.h"
#include "listbuilder/NewListModel.h"
#include "shell/frmDeepTreeView.h"
#include "shell/frmLargeText.h"
#include "shell/frmTabControls.h"

#include <QFontDatabase>
#include <QLineEdit>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QPushButton *makePictureButton(QWidget *parent, const char *name, QStyle::StandardPixmap picture,
                               const QString &toolTip)
{
    QPushButton *button = TabControls::makeButton(parent, name, {});
    button->setIcon(parent->style()->standardIcon(picture));
    button->setAccessibleName(toolTip);
    button->setToolTip(toolTip);
    return button;
}

/// A widget that its parts fill to the edge.
template <typename Layout>
Layout *fillingLayout(QWidget *widget)
{
    auto *layout = new Layout(widget);
    layout->setContentsMargins({});
    return layout;
}

QLayout *rowOf(std::initializer_list<QWidget *> widgets)
{
    auto *row = new QHBoxLayout;
    for (QWidget *widget : widgets)
        row->addWidget(widget);
    return row;
}

void setTabOrder(std::initializer_list<QWidget *> order)
{
    for (auto next = order.begin() + 1; next != order.end(); ++next)
        QWidget::setTabOrder(next[-1], next[0]);
}

} // namespace

frmMemberListBuilderControls::frmMemberListBuilderControls(QMainWindow *window, ErrorTrap &trap,
                                                           BuilderTreeModel *tree,
                                                           NewListModel *newList)
{
    makeFrame(window);

    auto *lists = new QSplitter(Qt::Horizontal);
    for (QWidget *column : {treeColumn(trap, tree), flatListColumn(), newListColumn(newList)})
        lists->addWidget(column);
    lists->setChildrenCollapsible(false);
    auto *builder = new QSplitter(Qt::Vertical);
    builder->addWidget(lists);
    builder->addWidget(syntaxPart());
    builder->setChildrenCollapsible(false);
    builder->setStretchFactor(0, 3);
    builder->setStretchFactor(1, 2);
    auto *page = new QWidget;
    (new QVBoxLayout(page))->addWidget(builder);
    ssTabMemberListBuilder->addTab(page, u"Static List Builder "_s);
    ssTabMemberListBuilder->addTab(listViewerPage(trap), u"List Viewer "_s);

    setTabOrder({trvMembers, cmdTreeViewCheckAll, cmdTreeViewUncheckAll, cmdTreeViewChecked,
                 lstMetadata, cmdListSelectAll, cmdListDeselectAll, cmdListSelected, lstMemberList,
                 cmdMoveUpMemberInList, cmdMoveDownMemberInList, cmdDeleteMemberInList,
                 cmdClearMemberList, txtMemberListName, cmdGenerateList, txtMemberListSyntax,
                 cmdResetMemberList, cmdSaveMemberListFile});
    trvMembers->setFocus();
}

void frmMemberListBuilderControls::makeFrame(QMainWindow *window)
{
    QMenu *file = window->menuBar()->addMenu(u"&File"_s);
    file->setObjectName(u"mnuFile"_s);
    mnuClose = file->addAction(u"&Close Member List Builder"_s);
    mnuClose->setObjectName(u"mnuClose"_s);
    mnuExit = file->addAction(u"E&xit Tessaly"_s);
    mnuExit->setObjectName(u"mnuExit"_s);

    window->statusBar()->setObjectName(u"sbStatusBar"_s);
    applicationPanel = TabControls::makeLabel(window->statusBar(), "sbStatusBar_1", {});
    // A long name must not widen the window.
    applicationPanel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    window->statusBar()->addWidget(applicationPanel, 1);

    auto *content = new QWidget(window);
    lblDimension = TabControls::makeLabel(content, "lblDimension", {});
    QFont heading = lblDimension->font();
    heading.setBold(true);
    lblDimension->setFont(heading);
    ssTabMemberListBuilder = new QTabWidget(content);
    ssTabMemberListBuilder->setObjectName(u"ssTabMemberListBuilder"_s);
    ssTabMemberListBuilder->setAccessibleName(u"Member lists"_s);
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(lblDimension);
    layout->addWidget(ssTabMemberListBuilder);
    window->setCentralWidget(content);
}

QWidget *frmMemberListBuilderControls::treeColumn(ErrorTrap &trap, BuilderTreeModel *tree)
{
    auto *column = new QWidget;
    QLabel *label =
        TabControls::makeLabel(column, "lblDimensionHierarchy", u"Dimension Hierarchy"_s);
    trvMembers = new DeepTreeView(trap, column);
    trvMembers->setObjectName(u"trvMembers"_s);
    trvMembers->setAccessibleName(label->text());
    trvMembers->setModel(tree);
    label->setBuddy(trvMembers);
    cmdTreeViewCheckAll = TabControls::makeButton(column, "cmdTreeViewCheckAll", u"Check All"_s);
    cmdTreeViewUncheckAll =
        TabControls::makeButton(column, "cmdTreeViewUncheckAll", u"Uncheck All"_s);
    cmdTreeViewChecked = TabControls::makeButton(column, "cmdTreeViewChecked", u"Insert"_s);
    cmdTreeViewChecked->setAccessibleDescription(u"Inserts the checked members"_s);
    for (QPushButton *button : {cmdTreeViewCheckAll, cmdTreeViewUncheckAll, cmdTreeViewChecked})
        button->setEnabled(false);

    auto *layout = fillingLayout<QVBoxLayout>(column);
    layout->addWidget(label);
    layout->addWidget(trvMembers, 1);
    layout->addLayout(rowOf({cmdTreeViewCheckAll, cmdTreeViewUncheckAll, cmdTreeViewChecked}));
    return column;
}

QWidget *frmMemberListBuilderControls::flatListColumn()
{
    auto *column = new QWidget;
    QLabel *label = TabControls::makeLabel(column, "lblMemberList", u"All Dimension Members"_s);
    lstMetadata = TabControls::makeListBox(column, "lstMetadata", label->text());
    lstMetadata->setSelectionMode(QAbstractItemView::ExtendedSelection);
    label->setBuddy(lstMetadata);
    cmdListSelectAll = TabControls::makeButton(column, "cmdListSelectAll", u"Select All"_s);
    cmdListDeselectAll = TabControls::makeButton(column, "cmdListDeselectAll", u"Deselect All"_s);
    cmdListSelected = TabControls::makeButton(column, "cmdListSelected", u"Insert"_s);
    cmdListSelected->setAccessibleDescription(u"Inserts the selected members"_s);
    for (QPushButton *button : {cmdListSelectAll, cmdListDeselectAll, cmdListSelected})
        button->setEnabled(false);

    auto *layout = fillingLayout<QVBoxLayout>(column);
    layout->addWidget(label);
    layout->addWidget(lstMetadata, 1);
    layout->addLayout(rowOf({cmdListSelectAll, cmdListDeselectAll, cmdListSelected}));
    return column;
}

QWidget *frmMemberListBuilderControls::newListColumn(NewListModel *newList)
{
    auto *column = new QWidget;
    QLabel *label =
        TabControls::makeLabel(column, "lblMemberListItems", u"Items for New Member List"_s);
    lstMemberList = TabControls::makeListBox(column, "lstMemberList", label->text());
    lstMemberList->setModel(newList);
    label->setBuddy(lstMemberList);
    cmdMoveUpMemberInList = makePictureButton(column, "cmdMoveUpMemberInList", QStyle::SP_ArrowUp,
                                              u"Move Selected List Member UP"_s);
    cmdMoveDownMemberInList =
        makePictureButton(column, "cmdMoveDownMemberInList", QStyle::SP_ArrowDown,
                          u"Move Selected List Member DOWN"_s);
    cmdDeleteMemberInList = makePictureButton(column, "cmdDeleteMemberInList", QStyle::SP_TrashIcon,
                                              u"Delete Selected List Member"_s);
    cmdClearMemberList =
        TabControls::makeButton(column, "cmdClearMemberList", u"C&lear List Items"_s);
    cmdClearMemberList->setToolTip(u"Clear All Members from New List"_s);

    auto *pictures = new QVBoxLayout;
    pictures->addWidget(cmdMoveUpMemberInList);
    pictures->addWidget(cmdMoveDownMemberInList);
    pictures->addWidget(cmdDeleteMemberInList);
    pictures->addStretch();
    auto *list = new QHBoxLayout;
    list->addWidget(lstMemberList, 1);
    list->addLayout(pictures);
    auto *layout = fillingLayout<QVBoxLayout>(column);
    layout->addWidget(label);
    layout->addLayout(list, 1);
    layout->addWidget(cmdClearMemberList);
    return column;
}

QWidget *frmMemberListBuilderControls::syntaxPart()
{
    auto *part = new QWidget;
    QLabel *nameLabel =
        TabControls::makeLabel(part, "LblMemberListName", u"New Member List Name:"_s);
    txtMemberListName = new QLineEdit(part);
    txtMemberListName->setObjectName(u"txtMemberListName"_s);
    txtMemberListName->setAccessibleName(u"New Member List Name"_s);
    nameLabel->setBuddy(txtMemberListName);
    cmdGenerateList = TabControls::makeButton(part, "cmdGenerateList", u"&Generate List"_s);
    cmdGenerateList->setEnabled(false);
    QLabel *syntaxLabel =
        TabControls::makeLabel(part, "lblMemberListSyntax", u"Member List Syntax"_s);
    txtMemberListSyntax = new SyntaxEdit(part);
    txtMemberListSyntax->setObjectName(u"txtMemberListSyntax"_s);
    txtMemberListSyntax->setAccessibleName(syntaxLabel->text());
    syntaxLabel->setBuddy(txtMemberListSyntax);
    cmdResetMemberList =
        TabControls::makeButton(part, "cmdResetMemberList", u"&Reset List Syntax"_s);
    cmdResetMemberList->setToolTip(u"Reset Member List to Application Stored File"_s);
    cmdSaveMemberListFile =
        TabControls::makeButton(part, "cmdSaveMemberListFile", u"&Save List Syntax"_s);
    cmdSaveMemberListFile->setToolTip(u"Save Member List File"_s);

    auto *name = new QHBoxLayout;
    name->addWidget(nameLabel);
    name->addWidget(txtMemberListName, 1);
    name->addWidget(cmdGenerateList);
    auto *commands = new QHBoxLayout;
    commands->addStretch();
    commands->addWidget(cmdResetMemberList);
    commands->addWidget(cmdSaveMemberListFile);
    auto *layout = fillingLayout<QVBoxLayout>(part);
    layout->addLayout(name);
    layout->addWidget(syntaxLabel);
    layout->addWidget(txtMemberListSyntax, 1);
    layout->addLayout(commands);
    return part;
}

QWidget *frmMemberListBuilderControls::listViewerPage(ErrorTrap &trap)
{
    auto *members = new QWidget;
    lblDimensionLists = TabControls::makeLabel(members, "lblDimensionLists", u"Account Lists:"_s);
    cboMemberLists = TabControls::makeList(lblDimensionLists, "cboMemberLists");
    lblMembersInList = TabControls::makeLabel(members, "lblMembersInList", {});
    // A list's name may be longer than the column is wide.
    lblMembersInList->setWordWrap(true);
    lstMembersInList = TabControls::makeListBox(members, "lstMembersInList", u"Members in List"_s);
    lstMembersInList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    QLabel *denote = TabControls::makeLabel(members, "lblDenote", u"** Denotes Parent Member"_s);
    auto *membersLayout = fillingLayout<QVBoxLayout>(members);
    membersLayout->addWidget(lblDimensionLists);
    membersLayout->addWidget(cboMemberLists);
    membersLayout->addWidget(lblMembersInList);
    membersLayout->addWidget(lstMembersInList, 1);
    membersLayout->addWidget(denote);

    auto *file = new QWidget;
    QLabel *fileLabel =
        TabControls::makeLabel(file, "lblCurrentMemberListFile", u"Current List File "_s);
    txtCurrentMemberListFile =
        TabControls::makeReport(trap, file, "txtCurrentMemberListFile", u"Current List File"_s);
    txtCurrentMemberListFile->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    fileLabel->setBuddy(txtCurrentMemberListFile);
    auto *fileLayout = fillingLayout<QVBoxLayout>(file);
    fileLayout->addWidget(fileLabel);
    fileLayout->addWidget(txtCurrentMemberListFile, 1);

    auto *parts = new QSplitter(Qt::Horizontal);
    parts->addWidget(members);
    parts->addWidget(file);
    parts->setChildrenCollapsible(false);
    parts->setStretchFactor(0, 2);
    parts->setStretchFactor(1, 3);
    auto *page = new QWidget;
    (new QVBoxLayout(page))->addWidget(parts);
    return page;
}
