#include "viewer/frmMetadataViewerControls.h"

#include "shell/frmTabControls.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;
using namespace TabControls;

namespace {

MemberTreeView *makeTree(const QString &name, const QString &accessibleName, ErrorTrap &trap,
                         MemberTreeModel *model)
{
    auto *tree = new MemberTreeView(trap, model);
    tree->setObjectName(name);
    tree->setAccessibleName(accessibleName);
    return tree;
}

} // namespace

ViewerControls::ViewerControls(QMainWindow *window, ErrorTrap &trap, MemberTreeModel *memberModel,
                               MemberTreeModel *topMemberModel)
{
    dimension = makeHeading(nullptr, "lblDimension");
    totalMembers = makeLabel(nullptr, "lblTotalMembers", {});
    totalMembers->setMinimumWidth(1); // a long name of a top member is cut, and widens no window
    applicationPanel = makeStatusPanel(window->statusBar());
    showAttributes =
        makeOptionGroup(window, "optShowAttributes", {u"Show Attributes"_s, u"Hide Attributes"_s});
    showAttributes->button(ShowAttributes)->setChecked(true);
    expandedAttributes = makeCheckBox(nullptr, "chk_ExpAttribs", u"Display Expanded Attributes"_s);
    makeFilters(window);

    members = makeTree(u"trvMembers"_s, u"Members"_s, trap, memberModel);
    topMember = makeTree(u"trvTopMember"_s, u"Members from Top Member"_s, trap, topMemberModel);

    search = new QLineEdit;
    search->setObjectName(u"txtSearch"_s);
    search->setAccessibleName(u"Find"_s);
    find = makeButton(nullptr, "cmdFind", u"&Find"_s);
    expandAll = makeButton(nullptr, "cmdExpandAll", u"Expand All"_s);
    removeTopMember = makeButton(nullptr, "cmdRemoveTopMember", u"Remove Top Member"_s);
    sendToExcel = makeButton(nullptr, "cmdSendToExcel", u"Send to E&xcel -->"_s);

    rightClick = new QMenu(window);
    rightClick->setObjectName(u"mnuRightClick"_s);
    topMemberEntry = rightClick->addAction(u"Set as Top Member"_s);
    topMemberEntry->setObjectName(u"mnuTopMember"_s);
    normalTreeViewEntry = rightClick->addAction(u"Remove Top Member"_s);
    normalTreeViewEntry->setObjectName(u"mnuNormalTreeView"_s);
    arrange(window);
}

void ViewerControls::makeFilters(QMainWindow *window)
{
    entityFilters = new QGroupBox(u" Entity Filters "_s);
    entityFilters->setObjectName(u"fraEntityFilters"_s);
    entityFilterSwitch = makeOptionGroup(window, "optEntityFilterSwitch", {u"On"_s, u"Off"_s});
    entityFilterSwitch->button(FiltersOff)->setChecked(true);
    QLabel *securityClass =
        makeLabel(nullptr, "lblEntitySecurityClassFilter", u"Security Class:"_s);
    securityClassFilter = makeTypedList(securityClass, "cboEntitySecurityClassFilter");
    QLabel *currency = makeLabel(nullptr, "lblEntityCurrencyFilter", u"Currency:"_s);
    currencyFilter = makeTypedList(currency, "cboEntityCurrencyFilter");
    rerunEntityFilters = makeButton(nullptr, "cmdRerunEntityFilters", u"Re-Run Filters"_s);

    auto *row = new QHBoxLayout;
    row->addWidget(entityFilterSwitch->button(FiltersOn));
    row->addWidget(entityFilterSwitch->button(FiltersOff));
    row->addSpacing(12);
    row->addWidget(securityClass);
    row->addWidget(securityClassFilter, 1);
    row->addWidget(currency);
    row->addWidget(currencyFilter, 1);
    row->addWidget(rerunEntityFilters);
    entityFilters->setLayout(row);
}

void ViewerControls::arrange(QMainWindow *window)
{
    auto *layout = new QVBoxLayout;
    layout->addLayout(titles());
    layout->addLayout(attributes());
    layout->addWidget(entityFilters);
    layout->addWidget(members, 1);
    layout->addWidget(topMember, 1);
    layout->addLayout(commands());
    auto *content = new QWidget;
    content->setLayout(layout);
    window->setCentralWidget(content);
    window->resize(940, 640);
}

QLayout *ViewerControls::titles()
{
    auto *row = new QHBoxLayout;
    row->addWidget(dimension);
    row->addStretch();
    row->addWidget(totalMembers);
    return row;
}

QLayout *ViewerControls::attributes()
{
    auto *row = new QHBoxLayout;
    row->addWidget(showAttributes->button(0));
    row->addWidget(showAttributes->button(1));
    row->addWidget(expandedAttributes);
    row->addStretch();
    return row;
}

QLayout *ViewerControls::commands()
{
    auto *row = new QHBoxLayout;
    row->addWidget(search);
    row->addWidget(find);
    row->addStretch();
    row->addWidget(expandAll);
    row->addWidget(removeTopMember);
    row->addWidget(sendToExcel);
    return row;
}
