#pragma once

#include "viewer/frmMemberTreeView.h"

class QAction;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMainWindow;
class QMenu;
class QPushButton;

enum AttributeOption { ShowAttributes, HideAttributes };
enum FilterOption { FiltersOn, FiltersOff };

/// The viewer window's controls, made and arranged, connected to nothing. The window owns them.
struct ViewerControls
{
    ViewerControls(QMainWindow *window, ErrorTrap &trap, MemberTreeModel *members,
                   MemberTreeModel *topMember);

    QLabel *dimension;
    QLabel *totalMembers;
    QLabel *applicationPanel;

    QButtonGroup *showAttributes; ///< by AttributeOption
    QCheckBox *expandedAttributes;

    QGroupBox *entityFilters;
    QButtonGroup *entityFilterSwitch; ///< by FilterOption
    QComboBox *securityClassFilter;
    QComboBox *currencyFilter;
    QPushButton *rerunEntityFilters;

    MemberTreeView *members;
    MemberTreeView *topMember;

    QLineEdit *search;
    QPushButton *find;
    QPushButton *expandAll;
    QPushButton *removeTopMember;
    QPushButton *sendToExcel;

    QMenu *rightClick;
    QAction *topMemberEntry;
    QAction *normalTreeViewEntry;

private:
    void makeFilters(QMainWindow *window);
    void arrange(QMainWindow *window);
    QLayout *titles();
    QLayout *attributes();
    QLayout *commands();
};
