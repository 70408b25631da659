#include "appinfo/frmAnalysisTabs.h"

#include "shell/frmLargeText.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace TabControls;

namespace {

/// The captions of the six dimensions' option buttons.
QStringList dimensionCaptions()
{
    return {u"Accounts"_s, u"Entities"_s, u"Custom1"_s, u"Custom2"_s, u"Custom3"_s, u"Custom4"_s};
}

QHBoxLayout *rowOf(const QList<QRadioButton *> &options)
{
    auto *row = new QHBoxLayout;
    for (QRadioButton *option : options)
        row->addWidget(option);
    row->addStretch();
    return row;
}

/// A frame that fills the page.
QGroupBox *makeFrame(QWidget *page, const char *name, const QString &caption)
{
    auto *frame = new QGroupBox(caption, page);
    frame->setObjectName(QLatin1StringView(name));
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(frame);
    return frame;
}

} // namespace

frmSharedMembersTab::frmSharedMembersTab(ErrorTrap &trap, QWidget *page)
{
    QGroupBox *frame = makeFrame(page, "frmSharedMembers", u" Shared Member Information "_s);
    optDimension = makeOptions(frame, "optDimension", 0, dimensionCaptions());
    QLabel *caption = makeLabel(frame, "lblDenoteParentSharedMembers",
                                u"Member (Parent)  -  ** Denotes Parent Member"_s);
    txtSharedMembers = makeReport(trap, frame, "txtSharedMembers", u"Shared members"_s);
    caption->setBuddy(txtSharedMembers);

    auto *layout = new QVBoxLayout(frame);
    layout->addLayout(rowOf(optDimension));
    layout->addWidget(caption);
    layout->addWidget(txtSharedMembers, 1);
}

frmCompareTab::frmCompareTab(ErrorTrap &trap, QWidget *page)
{
    QStringList captions = dimensionCaptions();
    std::reverse(captions.begin(), captions.end());
    optDimensionCompare = makeOptions(page, "optDimensionCompare", firstOption, captions);
    QLabel *from = makeLabel(page, "lblTopMember1", u"Base Members FROM Parent:"_s);
    cboTopMember1 = makeTypedList(from, "cboTopMember1");
    cmdCompare = makeButton(page, "cmdCompare", u"  <-----  Compare  ----->   "_s);
    cmdCompare->setAccessibleName(u"Compare"_s);
    QLabel *to = makeLabel(page, "lblTopMember2", u"Base Members TO Parent:"_s);
    cboTopMember2 = makeTypedList(to, "cboTopMember2");
    txtMissingBaseMembers =
        makeReport(trap, page, "txtMissingBaseMembers", u"Missing base members"_s);

    auto *parents = new QGridLayout;
    parents->addWidget(from, 0, 0);
    parents->addWidget(cboTopMember1, 1, 0);
    parents->addWidget(cmdCompare, 1, 1);
    parents->addWidget(to, 0, 2);
    parents->addWidget(cboTopMember2, 1, 2);
    parents->setColumnStretch(0, 1);
    parents->setColumnStretch(2, 1);

    auto *layout = new QVBoxLayout(page);
    layout->addLayout(rowOf(optDimensionCompare));
    layout->addLayout(parents);
    layout->addWidget(txtMissingBaseMembers, 1);
}

frmDuplicatesTab::frmDuplicatesTab(ErrorTrap &trap, QWidget *page)
{
    optDimensionCompare = makeOptions(page, "optDimensionCompare", 0, dimensionCaptions());
    QLabel *caption = makeLabel(page, "lblDuplicatesBelowParent",
                                u"Choose a parent member for a list of duplicate children:"_s);
    cboParents = makeTypedList(caption, "cboParents");
    txtDuplicatesUnderSameParent =
        makeReport(trap, page, "txtDuplicatesUnderSameParent", u"Duplicate members"_s);

    auto *parent = new QHBoxLayout;
    parent->addWidget(caption);
    parent->addWidget(cboParents, 1);
    auto *layout = new QVBoxLayout(page);
    layout->addLayout(rowOf(optDimensionCompare));
    layout->addLayout(parent);
    layout->addWidget(txtDuplicatesUnderSameParent, 1);
}

frmStatisticsTab::frmStatisticsTab(ErrorTrap &trap, QWidget *page)
{
    QGroupBox *frame = makeFrame(page, "frmStatistics", u" Statistics "_s);
    optDimensionStats = makeOptions(frame, "optDimensionStats", firstOption, dimensionCaptions());
    QLabel *caption = makeLabel(frame, "lblParentChildrenCheck",
                                u"Number of Children to Check for per Parent Entity:"_s);
    txtParentChildrenCheck = new QLineEdit(u"200"_s, frame);
    txtParentChildrenCheck->setObjectName(u"txtParentChildrenCheck"_s);
    txtParentChildrenCheck->setAccessibleName(
        u"Number of Children to Check for per Parent Entity"_s);
    caption->setBuddy(txtParentChildrenCheck);
    txtStatistics = makeReport(trap, frame, "txtStatistics", u"Statistics"_s);
    QLabel *note = makeLabel(frame, "lblNote",
                             u"** Reminder:  Counts include system members like currencies in "
                             "Custom1 and Custom2 and ownership/system members in Accounts"_s);
    note->setWordWrap(true);

    auto *threshold = new QHBoxLayout;
    threshold->addWidget(caption);
    threshold->addWidget(txtParentChildrenCheck);
    threshold->addStretch();
    auto *layout = new QVBoxLayout(frame);
    layout->addLayout(rowOf(optDimensionStats));
    layout->addLayout(threshold);
    layout->addWidget(txtStatistics, 1);
    layout->addWidget(note);
}
