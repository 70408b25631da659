#include "appinfo/frmMemberListsTab.h"

#include <QGridLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace TabControls;

frmMemberListsTab::frmMemberListsTab(QWidget *page)
{
    auto *lists = new QGridLayout;
    for (int i = 0; i < ApplicationDimensions::count; ++i) {
        const QString word = ApplicationDimensions::word(ApplicationDimension(i));
        QLabel *label =
            makeLabel(page, qPrintable(u"lbl"_s + word + u"Lists"_s), word + u" Lists:"_s);
        cboLists[size_t(i)] = makeList(label, qPrintable(u"cbo"_s + word + u"Lists"_s));
        lists->addWidget(label, i, 0);
        lists->addWidget(cboLists[size_t(i)], i, 1);
    }
    QLabel *top = makeLabel(page, "lblTopMember", u"Top Member:"_s);
    cboParentMembers = makeList(top, "cboParentMembers");
    lists->setRowStretch(ApplicationDimensions::count, 1);
    lists->addWidget(top, ApplicationDimensions::count + 1, 0);
    lists->addWidget(cboParentMembers, ApplicationDimensions::count + 1, 1);
    lists->setColumnStretch(1, 1);

    lblMembersInList = makeLabel(page, "lblMembersInList", {});
    // The name of a list must not widen the window.
    lblMembersInList->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lstMembersInList = makeListBox(page, "lstMembersInList", u"Members of the list"_s);
    lstMembersInList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    QLabel *denote = makeLabel(page, "lblDenote", u"** Denotes Parent Member"_s);
    cmdSendListToExcel = makeButton(page, "cmdSendListToExcel", u"Send to E&xcel -->"_s);

    auto *foot = new QHBoxLayout;
    foot->addWidget(denote);
    foot->addStretch();
    foot->addWidget(cmdSendListToExcel);
    auto *members = new QVBoxLayout;
    members->addWidget(lblMembersInList);
    members->addWidget(lstMembersInList, 1);
    members->addLayout(foot);
    auto *layout = new QHBoxLayout(page);
    layout->addLayout(lists, 2);
    layout->addLayout(members, 3);
}
