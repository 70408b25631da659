#include "listbuilder/ListViewer.h"

#include "runtime/CodePage.h"
#include "runtime/Counter16.h"
#include "shell/ListMembers.h"

using namespace Qt::Literals::StringLiterals;

QStringList ListViewer::listNames(hfm::Dimension &dimension)
{
    const QStringList names = dimension.EnumMemberListNames();
    Counter16(names.size());
    return names;
}

ListViewer::ShownList ListViewer::show(hfm::Dimension &dimension, const QString &dimensionName,
                                       const QString &listName)
{
    const hfm::ListId list = dimension.GetMemberListId(listName);
    // The list's ID stands for the top member too. That of a system list is no member and so
    // narrows nothing; a user-defined list is never narrowed.
    const QList<hfm::MemberId> members = dimension.EnumMemberListMembers(list, list);
    if (members.isEmpty())
        return {ListMembers::headingOfEmpty(dimensionName), {}};
    const QStringList rows = ListMembers::lines(dimension, members);
    return {ListMembers::heading(dimensionName, listName, rows.size()), rows};
}

QString ListViewer::storedFileText(const hfm::MemberListFile &file)
{
    if (file.present == 0)
        return u"No member list file is present in the system."_s;
    return CodePage::decode(file.content);
}
