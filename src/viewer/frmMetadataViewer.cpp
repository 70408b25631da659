#include "viewer/frmMetadataViewer.h"

#include "runtime/Required.h"
#include "shell/frmLastingHourglass.h"
#include "viewer/TopMemberView.h"
#include "viewer/ViewerRules.h"

#include <QAbstractButton>
#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

frmMetadataViewer::frmMetadataViewer(Services &services, modGlobal &global, QWidget *parent)
    : QMainWindow(parent), mServices(services), mGlobal(global),
      mControls(this, services.trap, &mMembers, &mTopMember)
{
    setObjectName(u"frmMetadataViewer"_s);
    setWindowTitle(u"Tessaly - Metadata Viewer"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    connectControls();
    connectFilters();
    connectMenu(mControls.members);
    connectMenu(mControls.topMember);
    load();
}

void frmMetadataViewer::connectControls()
{
    ErrorTrap &trap = mServices.trap;
    trap.connect(mControls.showAttributes, &QButtonGroup::idClicked, this,
                 [this](int option) { attributesClicked(option); });
    trap.connect(mControls.expandedAttributes, &QCheckBox::clicked, this, [this] { rebuild(); });
    trap.connect(mControls.expandAll, &QPushButton::clicked, this, [this] { expandAll(); });
    trap.connect(mControls.sendToExcel, &QPushButton::clicked, this,
                 [this] { ExportTreeToExcel(); });
    trap.connect(mControls.removeTopMember, &QPushButton::clicked, this,
                 [this] { removeTopMember(); });
    trap.connect(mControls.topMemberEntry, &QAction::triggered, this, [this] { setTopMember(); });
    trap.connect(mControls.normalTreeViewEntry, &QAction::triggered, this,
                 [this] { removeTopMember(); });
}

void frmMetadataViewer::connectFilters()
{
    ErrorTrap &trap = mServices.trap;
    trap.connect(mControls.entityFilterSwitch, &QButtonGroup::idClicked, this,
                 [this](int option) { filterSwitchClicked(option); });
    trap.connect(mControls.rerunEntityFilters, &QPushButton::clicked, this,
                 [this] { filterSwitchClicked(FiltersOn); });
}

void frmMetadataViewer::connectMenu(MemberTreeView *tree)
{
    mServices.trap.connect(tree, &MemberTreeView::menuRequested, this,
                           [this, tree](const QPoint &position) { showMenu(tree, position); });
}

void frmMetadataViewer::load()
{
    mControls.topMember->hide();
    mControls.normalTreeViewEntry->setVisible(false);
    mControls.rerunEntityFilters->setEnabled(false);
    mControls.applicationPanel->setText(ViewerRules::applicationPanel(mGlobal.gApplicationName));
    mControls.dimension->setText(
        ViewerRules::dimensionCaption(required(mGlobal.gDimension).GetDimensionName()));
    if (ViewerRules::isSupported(mGlobal.gDimensionName)) {
        LoadMemberTree();
        ShowHideFilters(mGlobal.gDimensionName, true);
    } else {
        mServices.prompts.ask(ViewerRules::unsupportedDimension(mGlobal.gDimensionName));
    }
    removeTopMember();
}

void frmMetadataViewer::SetTitles()
{
    const bool isWhole = mControls.topMember->isHidden();
    mControls.totalMembers->setText(
        isWhole ? ViewerRules::totals(mTotalMembers, mMaxLevel)
                : ViewerRules::topMemberTotals(mTopMemberCount, mTopMemberName, mTopMemberLevels));
}

void frmMetadataViewer::EnumChildren(const QModelIndex &node, qint32 &depth)
{
    const TopMemberView::Below below = TopMemberView::below(*mMembers.tree(), mMembers.node(node));
    mTopMemberCount += below.count;
    mTopMemberLevels = std::max(mTopMemberLevels, depth + below.generations);
}

qint32 frmMetadataViewer::GetNodeLevel(const QModelIndex &node)
{
    const qint32 level = mMembers.level(node);
    mMaxLevel = std::max(mMaxLevel, level);
    return level;
}

void frmMetadataViewer::ShowHideFilters(const QString &dimensionName, bool visible)
{
    mControls.entityFilters->setVisible(visible && ViewerRules::hasEntityFilters(dimensionName));
}

void frmMetadataViewer::attributesClicked(int option)
{
    if (option == HideAttributes)
        mControls.expandedAttributes->setChecked(false);
    mControls.expandedAttributes->setEnabled(option == ShowAttributes);
    rebuild();
}

void frmMetadataViewer::filterSwitchClicked(int option)
{
    mFiltersOn = option == FiltersOn;
    if (mFiltersOn)
        LoadFilteredEntities();
    else
        LoadMemberTree();
    mControls.rerunEntityFilters->setEnabled(mFiltersOn);
}

void frmMetadataViewer::expandAll()
{
    frmLastingHourglass hourglass(this);
    visibleTree()->expandBelow({});
    hourglass.done();
}

MemberTreeView *frmMetadataViewer::visibleTree() const
{
    return mControls.members->isHidden() ? mControls.topMember : mControls.members;
}

void frmMetadataViewer::setTopMember()
{
    const QModelIndex top = mControls.members->selectedNode();
    if (!top.isValid())
        return;
    for (QAbstractButton *button : mControls.showAttributes->buttons())
        button->hide();
    mTopMember.show(mMembers.tree(), mMembers.node(top));
    mControls.topMember->setCurrentIndex(mTopMember.index(0, 0));
    mTopMemberName = TopMemberView::name(mMembers.tree()->text(mMembers.node(top)));
    mTopMemberCount = 1;
    mTopMemberLevels = 0;
    qint32 depth = 0;
    EnumChildren(top, depth);
    ++mTopMemberLevels;

    mControls.topMember->show();
    mControls.members->hide();
    mControls.topMember->setFocus();
    mControls.normalTreeViewEntry->setVisible(true);
    mControls.topMemberEntry->setVisible(false);
    mControls.removeTopMember->show();
    ShowHideFilters(mGlobal.gDimensionName, false);
    SetTitles();
}

void frmMetadataViewer::removeTopMember()
{
    mControls.members->show();
    mControls.topMember->hide();
    mControls.members->setFocus();
    mControls.topMemberEntry->setVisible(true);
    mControls.normalTreeViewEntry->setVisible(false);
    mControls.removeTopMember->hide();
    for (QAbstractButton *button : mControls.showAttributes->buttons())
        button->show();
    ShowHideFilters(mGlobal.gDimensionName, true);
    SetTitles();
}

void frmMetadataViewer::showMenu(const MemberTreeView *tree, const QPoint &globalPosition)
{
    const QModelIndex node = tree->selectedNode();
    if (node.isValid() && !node.data().toString().isEmpty())
        mControls.rightClick->popup(globalPosition);
}
