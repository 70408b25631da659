#include "appinfo/BaseMemberCompare.h"
#include "appinfo/Duplicates.h"
#include "appinfo/frmApplicationInfo.h"
#include "appinfo/MemberLists.h"
#include "appinfo/ParentLabels.h"
#include "appinfo/SharedMembers.h"
#include "appinfo/Statistics.h"
#include "runtime/Required.h"
#include "shell/frmHourglass.h"
#include "shell/frmLargeText.h"
#include "shell/ListMembers.h"

hfm::Dimension &frmApplicationInfo::makeCurrent(std::optional<ApplicationDimension> dimension)
{
    if (dimension)
        mGlobal.gDimension = ApplicationDimensions::get(required(mGlobal.gMetadata), *dimension);
    return required(mGlobal.gDimension);
}

hfm::Security &frmApplicationInfo::refreshSecurity()
{
    mGlobal.gSecurity = required(mGlobal.gSession).GetSecurity();
    return required(mGlobal.gSecurity);
}

template <typename Append>
void frmApplicationInfo::showReport(LargeTextView *box, const QString &heading, Append append)
{
    QString text = heading;
    box->setText(text);
    try {
        append(text);
    } catch (...) {
        box->setText(text);
        throw;
    }
    box->setText(text);
}

// Shared members.

void frmApplicationInfo::optDimension_Click(int index)
{
    const frmHourglass hourglass(this);
    hfm::Dimension &dimension = makeCurrent(ApplicationDimensions::ofSharedMembersOption(index));
    mOccurrences = SharedMembers::occurrences(dimension);
    mSharedMembers.txtSharedMembers->clear();
    mSharedMembers.txtSharedMembers->setText(SharedMembers::report(dimension, mOccurrences));
}

// Base member compare and duplicates below a parent.

void frmApplicationInfo::optDimensionCompare_Click(int index)
{
    const frmHourglass hourglass(this);
    optionOnTheOtherTab(index)->setChecked(true);
    fillParentLists(makeCurrent(ApplicationDimensions::ofCompareOption(index)));
}

QRadioButton *frmApplicationInfo::optionOnTheOtherTab(int index) const
{
    const auto &first = mDuplicates.optDimensionCompare;
    const auto &reversed = mCompare.optDimensionCompare;
    const qsizetype other = first.size() + reversed.size() - 1 - index;
    return other < first.size() ? first[other] : reversed[other - first.size()];
}

void frmApplicationInfo::fillParentLists(hfm::Dimension &dimension)
{
    mParents->setStringList({});
    mParents->setStringList(parentLabels(dimension));
    for (QComboBox *list : {mCompare.cboTopMember1, mCompare.cboTopMember2, mDuplicates.cboParents})
        list->setCurrentIndex(-1);
}

void frmApplicationInfo::cboParents_Click()
{
    const frmHourglass hourglass(this);
    const QString parent = mDuplicates.cboParents->currentText();
    showReport(mDuplicates.txtDuplicatesUnderSameParent, Duplicates::heading(parent),
               [&](QString &text) { Duplicates::append(makeCurrent({}), parent, text); });
}

void frmApplicationInfo::cmdCompare_Click()
{
    const QString from = mCompare.cboTopMember1->currentText();
    const QString to = mCompare.cboTopMember2->currentText();
    if (from.isEmpty() || to.isEmpty()) {
        mServices.prompts.ask(BaseMemberCompare::choiceMissing());
        return;
    }
    const frmHourglass hourglass(this);
    showReport(mCompare.txtMissingBaseMembers, BaseMemberCompare::heading(from, to),
               [&](QString &text) { BaseMemberCompare::append(makeCurrent({}), from, to, text); });
}

// Statistics.

void frmApplicationInfo::optDimensionStats_Click(int index)
{
    const frmHourglass hourglass(this);
    hfm::Dimension &dimension = makeCurrent(ApplicationDimensions::ofStatisticsOption(index));
    mStatistics.txtStatistics->setText(
        Statistics::report(dimension, Statistics::sectionOfOption(index),
                           {mStatistics.txtParentChildrenCheck->text(), QLocale()}));
}

// Member lists.

void frmApplicationInfo::cboParentMembers_Click()
{
    if (mShownDimension)
        showList(*mShownDimension, false);
}

void frmApplicationInfo::showList(ApplicationDimension dimensionKind, bool refreshesParents)
{
    const frmHourglass hourglass(this);
    hfm::Dimension &dimension = makeCurrent(dimensionKind);
    mShownDimension = dimensionKind;
    const QString word = ApplicationDimensions::word(dimensionKind);
    const QString name = mMemberLists.listsOf(dimensionKind)->currentText();
    QComboBox *parents = mMemberLists.cboParentMembers;
    if (!MemberLists::isSystemList(name))
        parents->setCurrentIndex(0);

    const QList<hfm::MemberId> members =
        MemberLists::members(dimension, name, parents->currentText());
    TabControls::setLines(mMemberLists.lstMembersInList, {});
    if (members.isEmpty()) {
        mMemberLists.lblMembersInList->setText(ListMembers::headingOfEmpty(word));
        return;
    }
    TabControls::setLines(mMemberLists.lstMembersInList, ListMembers::lines(dimension, members));
    mMemberLists.lblMembersInList->setText(ListMembers::heading(word, name, members.size()));
    if (refreshesParents) {
        const QStringList none{QString()};
        TabControls::setEntries(parents, none, 0);
        TabControls::setEntries(parents, none + parentLabels(dimension), 0);
    }
}

// Security.

void frmApplicationInfo::lstRoles_Click(const QString &role)
{
    const frmHourglass hourglass(this);
    mSecurity.clear();
    mSecurity.show(SecurityAccess::ofRole(refreshSecurity(), role));
}

void frmApplicationInfo::lstSecurityClasses_Click(const QString &securityClass)
{
    const frmHourglass hourglass(this);
    mSecurity.clear();
    mSecurity.show(SecurityAccess::ofClass(refreshSecurity(), securityClass));
}

void frmApplicationInfo::lstUsers_Click(const QString &user)
{
    const frmHourglass hourglass(this);
    mSecurity.clear();
    mSecurity.show(SecurityAccess::ofUser(refreshSecurity(), user));
}
