#pragma once

#include "shell/frmTabControls.h"

#include <QLineEdit>

// The tabs whose option buttons choose one of the six dimensions: their controls, made, captioned
// and laid out on `page`.

/// "Shared &Members"
struct frmSharedMembersTab
{
    frmSharedMembersTab(ErrorTrap &trap, QWidget *page);

    QList<QRadioButton *> optDimension;
    LargeTextView *txtSharedMembers;
};

/// "*Base Member &Compare "
struct frmCompareTab
{
    frmCompareTab(ErrorTrap &trap, QWidget *page);

    static constexpr int firstOption = 6; ///< those before are the duplicates tab's
    QList<QRadioButton *> optDimensionCompare;
    QComboBox *cboTopMember1;
    QPushButton *cmdCompare;
    QComboBox *cboTopMember2;
    LargeTextView *txtMissingBaseMembers;
};

/// "&Duplicates Below Parent"
struct frmDuplicatesTab
{
    frmDuplicatesTab(ErrorTrap &trap, QWidget *page);

    QList<QRadioButton *> optDimensionCompare;
    QComboBox *cboParents;
    LargeTextView *txtDuplicatesUnderSameParent;
};

/// "S&tatistics"
struct frmStatisticsTab
{
    frmStatisticsTab(ErrorTrap &trap, QWidget *page);

    static constexpr int firstOption = 12;
    QList<QRadioButton *> optDimensionStats;
    QLineEdit *txtParentChildrenCheck;
    LargeTextView *txtStatistics;
};
