#pragma once

#include "shell/modGlobal.h"
#include "shell/Services.h"
#include "viewer/frmMetadataViewerControls.h"
#include "viewer/MemberTexts.h"
#include "viewer/MemberTreeModel.h"

#include <QMainWindow>

/// The metadata viewer: the current dimension's hierarchy as a tree. It reads the shared state as
/// it is made and at each rebuild of the tree, and deletes itself when it is closed.
class frmMetadataViewer final : public QMainWindow
{
    Q_OBJECT

public:
    /// Loads the tree. Fails as the HFM operations do, and with RuntimeError ObjectVariableNotSet
    /// where no dimension is chosen.
    frmMetadataViewer(Services &services, modGlobal &global, QWidget *parent = nullptr);

    /// Shows the counts of the visible tree.
    void SetTitles();
    /// Adds what stands below `node`, an index of trvMembers, to the count and the levels of the
    /// top-member view; `depth` is the number of generations between the top member and `node`, and
    /// comes back as it was.
    void EnumChildren(const QModelIndex &node, qint32 &depth);
    /// The level of a node of trvMembers, 1 for a root; a deeper one than all before becomes the
    /// deepest level.
    qint32 GetNodeLevel(const QModelIndex &node);
    /// Shows or hides the entity filters of the Entity dimension; those of any other are hidden.
    void ShowHideFilters(const QString &dimensionName, bool visible);

private:
    void connectControls();
    void connectFilters();
    void connectMenu(MemberTreeView *tree);

    void load();
    void LoadMemberTree();
    void LoadFilteredEntities();
    void LoadEntityFilterLists();
    void rebuild();
    void showTree(std::shared_ptr<const MemberTree> tree);
    bool filtersAreOn() const;
    MemberTexts texts() const;

    void attributesClicked(int option);
    void filterSwitchClicked(int option);
    void setTopMember();
    void removeTopMember();
    void expandAll();
    void showMenu(const MemberTreeView *tree, const QPoint &globalPosition);
    MemberTreeView *visibleTree() const;
    void ExportTreeToExcel();

    Services &mServices;
    modGlobal &mGlobal;
    MemberTreeModel mMembers;
    MemberTreeModel mTopMember;
    ViewerControls mControls;

    qint32 mTotalMembers = 0;
    qint32 mMaxLevel = 0;
    QString mTopMemberName;
    qint32 mTopMemberCount = 0;
    qint32 mTopMemberLevels = 0;
    bool mFiltersOn = false;
};
