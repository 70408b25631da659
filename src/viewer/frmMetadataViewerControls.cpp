#include "viewer/frmMetadataViewerControls.h"

#include "shell/frmComboWheel.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Button>
Button *makeButton(const QString &name, const QString &caption)
{
    auto *button = new Button(caption);
    button->setObjectName(name);
    return button;
}

/// Option buttons `name`_0, `name`_1, ..., of which one is chosen.
QButtonGroup *makeOptions(const QString &name, const QStringList &captions, int chosen,
                          QObject *parent)
{
    auto *group = new QButtonGroup(parent);
    for (int i = 0; i < captions.size(); ++i)
        group->addButton(makeButton<QRadioButton>(name + u'_' + QString::number(i), captions[i]),
                         i);
    group->button(chosen)->setChecked(true);
    return group;
}

QLabel *makeLabel(const QString &name)
{
    auto *label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// A list that the user may type into as well. It adds and completes nothing: what stands in it is
/// what the entities are compared with.
QComboBox *makeFilter(const QString &name, const QString &accessibleName)
{
    auto *combo = new QComboBox;
    combo->setObjectName(name);
    combo->setAccessibleName(accessibleName);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr);
    new frmComboWheel(combo);
    // A list of a hundred thousand entries is to open at once.
    auto *list = new QListView;
    list->setUniformItemSizes(true);
    combo->setView(list);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(18);
    return combo;
}

MemberTreeView *makeTree(const QString &name, const QString &accessibleName, ErrorTrap &trap,
                         MemberTreeModel *model)
{
    auto *tree = new MemberTreeView(trap, model);
    tree->setObjectName(name);
    tree->setAccessibleName(accessibleName);
    return tree;
}

QLabel *makeCaption(const QString &text, QWidget *buddy)
{
    auto *label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace

ViewerControls::ViewerControls(QMainWindow *window, ErrorTrap &trap, MemberTreeModel *memberModel,
                               MemberTreeModel *topMemberModel)
{
    dimension = makeLabel(u"lblDimension"_s);
    QFont bold = dimension->font();
    bold.setBold(true);
    dimension->setFont(bold);
    totalMembers = makeLabel(u"lblTotalMembers"_s);
    applicationPanel = makeLabel(u"sbStatusBar_1"_s);
    showAttributes =
        makeOptions(u"optShowAttributes"_s, {u"Show Attributes"_s, u"Hide Attributes"_s},
                    ShowAttributes, window);
    expandedAttributes =
        makeButton<QCheckBox>(u"chk_ExpAttribs"_s, u"Display Expanded Attributes"_s);

    entityFilters = new QGroupBox(u" Entity Filters "_s);
    entityFilters->setObjectName(u"fraEntityFilters"_s);
    entityFilterSwitch =
        makeOptions(u"optEntityFilterSwitch"_s, {u"On"_s, u"Off"_s}, FiltersOff, window);
    securityClassFilter = makeFilter(u"cboEntitySecurityClassFilter"_s, u"Security Class"_s);
    currencyFilter = makeFilter(u"cboEntityCurrencyFilter"_s, u"Currency"_s);
    rerunEntityFilters = makeButton<QPushButton>(u"cmdRerunEntityFilters"_s, u"Re-Run Filters"_s);

    members = makeTree(u"trvMembers"_s, u"Members"_s, trap, memberModel);
    topMember = makeTree(u"trvTopMember"_s, u"Members from Top Member"_s, trap, topMemberModel);

    search = new QLineEdit;
    search->setObjectName(u"txtSearch"_s);
    search->setAccessibleName(u"Find"_s);
    find = makeButton<QPushButton>(u"cmdFind"_s, u"&Find"_s);
    expandAll = makeButton<QPushButton>(u"cmdExpandAll"_s, u"Expand All"_s);
    removeTopMember = makeButton<QPushButton>(u"cmdRemoveTopMember"_s, u"Remove Top Member"_s);
    sendToExcel = makeButton<QPushButton>(u"cmdSendToExcel"_s, u"Send to E&xcel -->"_s);

    rightClick = new QMenu(window);
    rightClick->setObjectName(u"mnuRightClick"_s);
    topMemberEntry = rightClick->addAction(u"Set as Top Member"_s);
    topMemberEntry->setObjectName(u"mnuTopMember"_s);
    normalTreeViewEntry = rightClick->addAction(u"Remove Top Member"_s);
    normalTreeViewEntry->setObjectName(u"mnuNormalTreeView"_s);
    arrange(window);
}

void ViewerControls::arrange(QMainWindow *window)
{
    arrangeFilters();
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
    window->statusBar()->setObjectName(u"sbStatusBar"_s);
    window->statusBar()->addWidget(applicationPanel, 1);
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

void ViewerControls::arrangeFilters()
{
    auto *row = new QHBoxLayout;
    row->addWidget(entityFilterSwitch->button(0));
    row->addWidget(entityFilterSwitch->button(1));
    row->addSpacing(12);
    row->addWidget(makeCaption(u"Security Class:"_s, securityClassFilter));
    row->addWidget(securityClassFilter, 1);
    row->addWidget(makeCaption(u"Currency:"_s, currencyFilter));
    row->addWidget(currencyFilter, 1);
    row->addWidget(rerunEntityFilters);
    entityFilters->setLayout(row);
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
