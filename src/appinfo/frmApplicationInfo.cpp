#include "appinfo/frmApplicationInfo.h"

#include "appinfo/LoadError.h"
#include "appinfo/MemberLists.h"

#include <QMenu>
#include <QStatusBar>

using namespace Qt::StringLiterals;

namespace {

constexpr int securityTab = 0;
constexpr int sharedMembersTab = 1;

} // namespace

frmApplicationInfo::frmApplicationInfo(Services &services, modGlobal &global, QWidget *parent)
    : QMainWindow(parent), mServices(services), mGlobal(global), mTabs(new QTabWidget(this)),
      mSecurity(services.trap, addTab(u"&Security"_s)),
      mSharedMembers(services.trap, addTab(u"Shared &Members"_s)),
      mMemberLists(addTab(u"Member &Lists "_s)),
      mCompare(services.trap, addTab(u"*Base Member &Compare "_s)),
      mDuplicates(services.trap, addTab(u"&Duplicates Below Parent"_s)),
      mStatistics(services.trap, addTab(u"S&tatistics"_s)), mParents(new QStringListModel(this))
{
    setObjectName(u"frmApplicationInfo"_s);
    setWindowTitle(u"Tessaly - Application Information"_s);
    mTabs->setObjectName(u"sstabApplicationInfo"_s);
    mTabs->setAccessibleName(u"Application information"_s);
    setCentralWidget(mTabs);
    for (QComboBox *list : {mCompare.cboTopMember1, mCompare.cboTopMember2, mDuplicates.cboParents})
        list->setModel(mParents);
    makeMenu();
    mApplicationPanel = TabControls::makeStatusPanel(statusBar());
    connectAnalyses();
    connectMemberLists();
    connectSecurity();
    const QFontMetrics font = fontMetrics();
    resize(sizeHint().expandedTo({112 * font.averageCharWidth(), 40 * font.lineSpacing()}));
    Form_Load();
}

QWidget *frmApplicationInfo::addTab(const QString &caption)
{
    auto *page = new QWidget(mTabs);
    mTabs->addTab(page, caption);
    return page;
}

void frmApplicationInfo::makeMenu()
{
    mRolesMenu = new QMenu(u"Security Roles"_s, this);
    mRolesMenu->setObjectName(u"mnuRoles"_s);
    QAction *entry = mRolesMenu->addAction(u"Show All Users with Access"_s);
    entry->setObjectName(u"mnuRoleAccess"_s);
}

void frmApplicationInfo::connectAnalyses()
{
    ErrorTrap &trap = mServices.trap;
    connectOptions(mSharedMembers.optDimension, 0, &frmApplicationInfo::optDimension_Click);
    connectOptions(mDuplicates.optDimensionCompare, 0,
                   &frmApplicationInfo::optDimensionCompare_Click);
    connectOptions(mCompare.optDimensionCompare, frmCompareTab::firstOption,
                   &frmApplicationInfo::optDimensionCompare_Click);
    connectOptions(mStatistics.optDimensionStats, frmStatisticsTab::firstOption,
                   &frmApplicationInfo::optDimensionStats_Click);
    trap.connect(mDuplicates.cboParents, &QComboBox::activated, this,
                 [this] { cboParents_Click(); });
    trap.connect(mDuplicates.cboParents->lineEdit(), &QLineEdit::returnPressed, this, [this] {
        if (TabControls::chooseTyped(mDuplicates.cboParents))
            cboParents_Click();
    });
    trap.connect(mCompare.cmdCompare, &QPushButton::clicked, this, [this] { cmdCompare_Click(); });
}

void frmApplicationInfo::connectMemberLists()
{
    for (int i = 0; i < ApplicationDimensions::count; ++i)
        mServices.trap.connect(mMemberLists.cboLists[size_t(i)], &QComboBox::activated, this,
                               [this, i] { showList(ApplicationDimension(i), true); });
    mServices.trap.connect(mMemberLists.cboParentMembers, &QComboBox::activated, this,
                           [this] { cboParentMembers_Click(); });
    mServices.trap.connect(mMemberLists.cmdSendListToExcel, &QPushButton::clicked, this,
                           [this] { cmdSendListToExcel_Click(); });
}

void frmApplicationInfo::connectSecurity()
{
    connectChoice(mSecurity.lstRoles, &frmApplicationInfo::lstRoles_Click);
    connectChoice(mSecurity.lstSecurityClasses, &frmApplicationInfo::lstSecurityClasses_Click);
    connectChoice(mSecurity.lstUsers, &frmApplicationInfo::lstUsers_Click);
    mServices.trap.connect(mSecurity.cmdSendToExcel, &QPushButton::clicked, this,
                           [this] { cmdSendToExcel_Click(); });
}

void frmApplicationInfo::connectOptions(const QList<QRadioButton *> &options, int first,
                                        void (frmApplicationInfo::*click)(int))
{
    for (int i = 0; i < options.size(); ++i)
        mServices.trap.connect(options[i], &QRadioButton::clicked, this,
                               [this, click, index = first + i] { (this->*click)(index); });
}

void frmApplicationInfo::connectChoice(frmChoiceList *list, Click click)
{
    mServices.trap.connect(list, &frmChoiceList::chosen, this,
                           [this, click](const QString &entry) { (this->*click)(entry); });
}

void frmApplicationInfo::Form_Load()
{
    try {
        load();
    } catch (...) {
        mServices.prompts.ask(loadError(mRoutine, RuntimeError::caught()));
    }
}

void frmApplicationInfo::load()
{
    mRoutine = LoadRoutines::formLoad();
    mRolesMenu->menuAction()->setVisible(false);
    mTabs->setTabEnabled(securityTab, false);
    mTabs->setCurrentIndex(sharedMembersTab);
    PopulateMemberListNames();
    mApplicationPanel->setText(u"Application: "_s + mGlobal.gApplicationName);
}

void frmApplicationInfo::PopulateMemberListNames()
{
    mRoutine = LoadRoutines::populateMemberListNames();
    for (int i = 0; i < ApplicationDimensions::count; ++i) {
        const auto dimension = ApplicationDimension(i);
        TabControls::setEntries(mMemberLists.listsOf(dimension),
                                MemberLists::offered(makeCurrent(dimension)), -1);
    }
}
