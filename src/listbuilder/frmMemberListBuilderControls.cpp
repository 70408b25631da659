#include "listbuilder/frmMemberListBuilderControls.h"

#include "listbuilder/frmSyntaxEdit.h"
#include "shell/frmDeepTreeView.h"
#include "shell/frmLargeText.h"
#include "shell/frmTabControls.h"

#include <QFontDatabase>
#include <QLineEdit>
#include <QMenuBar>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace TabControls;

namespace {

/// The parts beside or above each other, without margins, and a bar between two that moves.
QSplitter *splitterOf(Qt::Orientation orientation, std::initializer_list<QWidget *> parts)
{
    auto *splitter = new QSplitter(orientation);
    for (QWidget *part : parts) {
        if (QLayout *layout = part->layout())
            layout->setContentsMargins({});
        splitter->addWidget(part);
    }
    splitter->setChildrenCollapsible(false);
    return splitter;
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

    QSplitter *lists = splitterOf(
        Qt::Horizontal, {treeColumn(trap, tree), flatListColumn(), newListColumn(newList)});
    QSplitter *builder = splitterOf(Qt::Vertical, {lists, syntaxPart()});
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

    applicationPanel = makeStatusPanel(window->statusBar());
    auto *content = new QWidget(window);
    lblDimension = makeHeading(content, "lblDimension");
    ssTabMemberListBuilder = new QTabWidget(content);
    ssTabMemberListBuilder->setObjectName(u"ssTabMemberListBuilder"_s);
    ssTabMemberListBuilder->setAccessibleName(u"Member lists"_s);
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(lblDimension);
    layout->addWidget(ssTabMemberListBuilder);
    window->setCentralWidget(content);
}

QWidget *frmMemberListBuilderControls::syntaxPart()
{
    auto *part = new QWidget;
    QLabel *nameLabel = makeLabel(part, "LblMemberListName", u"New Member List Name:"_s);
    txtMemberListName = new QLineEdit(part);
    txtMemberListName->setObjectName(u"txtMemberListName"_s);
    txtMemberListName->setAccessibleName(u"New Member List Name"_s);
    nameLabel->setBuddy(txtMemberListName);
    cmdGenerateList = makeButton(part, "cmdGenerateList", u"&Generate List"_s);
    cmdGenerateList->setEnabled(false);
    QLabel *syntaxLabel = makeLabel(part, "lblMemberListSyntax", u"Member List Syntax"_s);
    txtMemberListSyntax = new SyntaxEdit(part);
    txtMemberListSyntax->setObjectName(u"txtMemberListSyntax"_s);
    txtMemberListSyntax->setAccessibleName(syntaxLabel->text());
    syntaxLabel->setBuddy(txtMemberListSyntax);
    cmdResetMemberList = makeButton(part, "cmdResetMemberList", u"&Reset List Syntax"_s);
    cmdResetMemberList->setToolTip(u"Reset Member List to Application Stored File"_s);
    cmdSaveMemberListFile = makeButton(part, "cmdSaveMemberListFile", u"&Save List Syntax"_s);
    cmdSaveMemberListFile->setToolTip(u"Save Member List File"_s);

    auto *name = new QHBoxLayout;
    name->addWidget(nameLabel);
    name->addWidget(txtMemberListName, 1);
    name->addWidget(cmdGenerateList);
    auto *commands = new QHBoxLayout;
    commands->addStretch();
    commands->addWidget(cmdResetMemberList);
    commands->addWidget(cmdSaveMemberListFile);
    auto *layout = new QVBoxLayout(part);
    layout->addLayout(name);
    layout->addWidget(syntaxLabel);
    layout->addWidget(txtMemberListSyntax, 1);
    layout->addLayout(commands);
    return part;
}

QWidget *frmMemberListBuilderControls::listViewerPage(ErrorTrap &trap)
{
    auto *members = new QWidget;
    lblDimensionLists = makeLabel(members, "lblDimensionLists", u"Account Lists:"_s);
    cboMemberLists = makeList(lblDimensionLists, "cboMemberLists");
    lblMembersInList = makeLabel(members, "lblMembersInList", {});
    // A long name goes over several lines, and never widens the window.
    lblMembersInList->setWordWrap(true);
    lblMembersInList->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lstMembersInList = makeListBox(members, "lstMembersInList", u"Members in List"_s);
    QLabel *denote = makeLabel(members, "lblDenote", u"** Denotes Parent Member"_s);
    auto *membersLayout = new QVBoxLayout(members);
    membersLayout->addWidget(lblDimensionLists);
    membersLayout->addWidget(cboMemberLists);
    membersLayout->addWidget(lblMembersInList);
    membersLayout->addWidget(lstMembersInList, 1);
    membersLayout->addWidget(denote);

    auto *file = new QWidget;
    QLabel *fileLabel = makeLabel(file, "lblCurrentMemberListFile", u"Current List File "_s);
    txtCurrentMemberListFile =
        makeReport(trap, file, "txtCurrentMemberListFile", u"Current List File"_s);
    txtCurrentMemberListFile->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    fileLabel->setBuddy(txtCurrentMemberListFile);
    auto *fileLayout = new QVBoxLayout(file);
    fileLayout->addWidget(fileLabel);
    fileLayout->addWidget(txtCurrentMemberListFile, 1);

    QSplitter *parts = splitterOf(Qt::Horizontal, {members, file});
    parts->setStretchFactor(0, 2);
    parts->setStretchFactor(1, 3);
    auto *page = new QWidget;
    (new QVBoxLayout(page))->addWidget(parts);
    return page;
}
