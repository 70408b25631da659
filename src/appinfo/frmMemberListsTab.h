#pragma once

#include "appinfo/ApplicationDimensions.h"
#include "shell/frmTabControls.h"

/// "Member &Lists ": its controls, made, captioned and laid out on `page`.
struct frmMemberListsTab
{
    explicit frmMemberListsTab(QWidget *page);

    QComboBox *listsOf(ApplicationDimension dimension) const { return cboLists[size_t(dimension)]; }

    /// cboAccountLists and the others, by ApplicationDimension.
    std::array<QComboBox *, ApplicationDimensions::count> cboLists;
    QComboBox *cboParentMembers;
    QLabel *lblMembersInList;
    QListView *lstMembersInList;
    QPushButton *cmdSendListToExcel;
};
