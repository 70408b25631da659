#include "appinfo/frmSecurityTab.h"

#include "shell/frmLargeText.h"

#include <QGridLayout>

using namespace Qt::StringLiterals;
using namespace TabControls;

namespace {

frmChoiceList *makeCaptionedList(QLabel *label, const char *name, const QString &accessibleName)
{
    auto *list = new frmChoiceList(label->parentWidget());
    setUpListBox(list, name, accessibleName);
    label->setBuddy(list);
    return list;
}

QListView *makeHiddenList(QWidget *page, const char *name)
{
    QListView *list = makeListBox(page, name, u"Lines for the spreadsheet"_s);
    list->hide();
    return list;
}

} // namespace

frmSecurityTab::frmSecurityTab(ErrorTrap &trap, QWidget *page)
{
    QLabel *users = makeLabel(page, "lblUsers", u"Users/Groups:"_s);
    lstUsers = makeCaptionedList(users, "lstUsers", u"Users/Groups"_s);
    QLabel *roles = makeLabel(page, "lblRoles", u"Roles:"_s);
    lstRoles = makeCaptionedList(roles, "lstRoles", u"Roles"_s);
    QLabel *classes = makeLabel(page, "lblSecurityClasses", u"Classes:"_s);
    lstSecurityClasses = makeCaptionedList(classes, "lstSecurityClasses", u"Classes"_s);
    txtTemp = makeReport(trap, page, "txtTemp", u"Users or roles"_s);
    txtTemp2 = makeReport(trap, page, "txtTemp2", u"Security class access"_s);
    lstTemp = makeHiddenList(page, "lstTemp");
    lstTemp2 = makeHiddenList(page, "lstTemp2");
    cmdSendToExcel = makeButton(page, "cmdSendToExcel", u"Send to E&xcel -->"_s);

    auto *layout = new QGridLayout(page);
    layout->addWidget(users, 0, 0, 1, 2);
    layout->addWidget(lstUsers, 1, 0, 1, 2);
    layout->addWidget(roles, 0, 2, 1, 2);
    layout->addWidget(lstRoles, 1, 2, 1, 2);
    layout->addWidget(classes, 0, 4, 1, 2);
    layout->addWidget(lstSecurityClasses, 1, 4, 1, 2);
    layout->addWidget(txtTemp, 2, 0, 1, 3);
    layout->addWidget(txtTemp2, 2, 3, 1, 3);
    layout->addWidget(cmdSendToExcel, 3, 0, 1, 6, Qt::AlignRight);
    layout->setRowStretch(1, 1);
    layout->setRowStretch(2, 1);
    for (int column = 0; column < 6; ++column)
        layout->setColumnStretch(column, 1);
}

void frmSecurityTab::show(const SecurityAccess::Columns &columns)
{
    txtTemp->setText(SecurityAccess::text(columns.first));
    txtTemp2->setText(SecurityAccess::text(columns.second));
    setLines(lstTemp, columns.first);
    setLines(lstTemp2, columns.second);
}
