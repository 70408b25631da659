#include "appinfo/MemberLists.h"

#include "appinfo/ArrayCounts.h"

using namespace Qt::StringLiterals;

QStringList MemberLists::offered(hfm::Dimension &dimension)
{
    QStringList names = dimension.EnumMemberListNames();
    countForWalk(names);
    names.removeIf(
        [](const QString &name) { return name == u"[Hierarchy]" || name == u"[System]"; });
    return names;
}

bool MemberLists::isSystemList(const QString &name)
{
    return name.startsWith(u'[');
}

QList<hfm::MemberId> MemberLists::members(hfm::Dimension &dimension, const QString &name,
                                          const QString &top)
{
    const hfm::MemberId topId = top.isEmpty() ? hfm::rootMember : dimension.GetMemberId(top);
    if (isSystemList(name))
        return dimension.EnumBaseMembers(topId, hfm::EachMemberOnce);
    return dimension.EnumMemberListMembers(dimension.GetMemberListId(name), topId);
}
