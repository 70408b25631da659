#pragma once

#include "appinfo/frmAnalysisTabs.h"
#include "appinfo/frmMemberListsTab.h"
#include "appinfo/frmSecurityTab.h"
#include "shell/modGlobal.h"
#include "shell/Services.h"

#include <QMainWindow>
#include <QStringListModel>
#include <QTabWidget>

/// The application information: counts, compares and lists the members of the open application's
/// dimensions. Most of its choices make the chosen dimension the current one (gDimension) for the
/// whole program; gDimensionName stays what the main window made it.
class frmApplicationInfo final : public QMainWindow
{
    Q_OBJECT

public:
    /// Reads the names of all member lists. Where that fails the user is told, and the window
    /// stays with what was read so far.
    frmApplicationInfo(Services &services, modGlobal &global, QWidget *parent = nullptr);

private:
    using Click = void (frmApplicationInfo::*)(const QString &);

    QWidget *addTab(const QString &caption);
    void makeMenu();
    void connectAnalyses();
    void connectMemberLists();
    void connectSecurity();
    void connectOptions(const QList<QRadioButton *> &options, int first,
                        void (frmApplicationInfo::*click)(int));
    void connectChoice(frmChoiceList *list, Click click);

    void Form_Load();
    void load();
    void PopulateMemberListNames();

    hfm::Dimension &makeCurrent(std::optional<ApplicationDimension> dimension);
    hfm::Security &refreshSecurity();
    QRadioButton *optionOnTheOtherTab(int index) const;
    void fillParentLists(hfm::Dimension &dimension);
    void showList(ApplicationDimension dimension, bool refreshesParents);
    template <typename Append>
    static void showReport(LargeTextView *box, const QString &heading, Append append);

    void optDimension_Click(int index);
    void optDimensionCompare_Click(int index);
    void optDimensionStats_Click(int index);
    void cboParents_Click();
    void cmdCompare_Click();
    void cboParentMembers_Click();
    void lstRoles_Click(const QString &role);
    void lstSecurityClasses_Click(const QString &securityClass);
    void lstUsers_Click(const QString &user);
    void cmdSendToExcel_Click();
    void cmdSendListToExcel_Click();
    void exportList();

    Services &mServices;
    modGlobal &mGlobal;
    QString mRoutine; ///< the guarded routine that runs; the error message of the load names it

    QTabWidget *mTabs;
    frmSecurityTab mSecurity;
    frmSharedMembersTab mSharedMembers;
    frmMemberListsTab mMemberLists;
    frmCompareTab mCompare;
    frmDuplicatesTab mDuplicates;
    frmStatisticsTab mStatistics;
    QMenu *mRolesMenu;
    QLabel *mApplicationPanel;

    /// The parents that the compare and duplicates tabs offer.
    QStringListModel *mParents;
    /// The dimension of the list that was shown last.
    std::optional<ApplicationDimension> mShownDimension;
    /// The table that the shared members were last found in.
    hfm::Occurrences mOccurrences;
};
