#include "listbuilder/BuilderTreeModel.h"
#include "listbuilder/frmMemberListBuilderControls.h"
#include "listbuilder/NewListModel.h"
#include "shell/frmDeepTreeView.h"
#include "shell/frmTabControls.h"

#include <QStyle>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace TabControls;

namespace {

QPushButton *makePictureButton(QWidget *parent, const char *name, QStyle::StandardPixmap picture,
                               const QString &toolTip)
{
    QPushButton *button = makeButton(parent, name, {});
    button->setIcon(parent->style()->standardIcon(picture));
    button->setAccessibleName(toolTip);
    button->setToolTip(toolTip);
    return button;
}

QLayout *rowOf(std::initializer_list<QWidget *> widgets)
{
    auto *row = new QHBoxLayout;
    for (QWidget *widget : widgets)
        row->addWidget(widget);
    return row;
}

} // namespace

QWidget *frmMemberListBuilderControls::treeColumn(ErrorTrap &trap, BuilderTreeModel *tree)
{
    auto *column = new QWidget;
    QLabel *label = makeLabel(column, "lblDimensionHierarchy", u"Dimension Hierarchy"_s);
    trvMembers = new DeepTreeView(trap, column);
    trvMembers->setObjectName(u"trvMembers"_s);
    trvMembers->setAccessibleName(label->text());
    trvMembers->setModel(tree);
    label->setBuddy(trvMembers);
    cmdTreeViewCheckAll = makeButton(column, "cmdTreeViewCheckAll", u"Check All"_s);
    cmdTreeViewUncheckAll = makeButton(column, "cmdTreeViewUncheckAll", u"Uncheck All"_s);
    cmdTreeViewChecked = makeButton(column, "cmdTreeViewChecked", u"Insert"_s);
    cmdTreeViewChecked->setAccessibleDescription(u"Inserts the checked members"_s);
    for (QPushButton *button : {cmdTreeViewCheckAll, cmdTreeViewUncheckAll, cmdTreeViewChecked})
        button->setEnabled(false);

    auto *layout = new QVBoxLayout(column);
    layout->addWidget(label);
    layout->addWidget(trvMembers, 1);
    layout->addLayout(rowOf({cmdTreeViewCheckAll, cmdTreeViewUncheckAll, cmdTreeViewChecked}));
    return column;
}

QWidget *frmMemberListBuilderControls::flatListColumn()
{
    auto *column = new QWidget;
    QLabel *label = makeLabel(column, "lblMemberList", u"All Dimension Members"_s);
    lstMetadata = makeListBox(column, "lstMetadata", label->text());
    lstMetadata->setSelectionMode(QAbstractItemView::ExtendedSelection);
    label->setBuddy(lstMetadata);
    cmdListSelectAll = makeButton(column, "cmdListSelectAll", u"Select All"_s);
    cmdListDeselectAll = makeButton(column, "cmdListDeselectAll", u"Deselect All"_s);
    cmdListSelected = makeButton(column, "cmdListSelected", u"Insert"_s);
    cmdListSelected->setAccessibleDescription(u"Inserts the selected members"_s);
    for (QPushButton *button : {cmdListSelectAll, cmdListDeselectAll, cmdListSelected})
        button->setEnabled(false);

    auto *layout = new QVBoxLayout(column);
    layout->addWidget(label);
    layout->addWidget(lstMetadata, 1);
    layout->addLayout(rowOf({cmdListSelectAll, cmdListDeselectAll, cmdListSelected}));
    return column;
}

QWidget *frmMemberListBuilderControls::newListColumn(NewListModel *newList)
{
    auto *column = new QWidget;
    QLabel *label = makeLabel(column, "lblMemberListItems", u"Items for New Member List"_s);
    lstMemberList = makeListBox(column, "lstMemberList", label->text());
    lstMemberList->setModel(newList);
    label->setBuddy(lstMemberList);
    cmdMoveUpMemberInList = makePictureButton(column, "cmdMoveUpMemberInList", QStyle::SP_ArrowUp,
                                              u"Move Selected List Member UP"_s);
    cmdMoveDownMemberInList =
        makePictureButton(column, "cmdMoveDownMemberInList", QStyle::SP_ArrowDown,
                          u"Move Selected List Member DOWN"_s);
    cmdDeleteMemberInList = makePictureButton(column, "cmdDeleteMemberInList", QStyle::SP_TrashIcon,
                                              u"Delete Selected List Member"_s);
    cmdClearMemberList = makeButton(column, "cmdClearMemberList", u"C&lear List Items"_s);
    cmdClearMemberList->setToolTip(u"Clear All Members from New List"_s);

    auto *pictures = new QVBoxLayout;
    pictures->addWidget(cmdMoveUpMemberInList);
    pictures->addWidget(cmdMoveDownMemberInList);
    pictures->addWidget(cmdDeleteMemberInList);
    pictures->addStretch();
    auto *list = new QHBoxLayout;
    list->addWidget(lstMemberList, 1);
    list->addLayout(pictures);
    auto *layout = new QVBoxLayout(column);
    layout->addWidget(label);
    layout->addLayout(list, 1);
    layout->addWidget(cmdClearMemberList);
    return column;
}
