#include "appinfo/MemberLists.h"

#include "appinfo/ArrayCounts.h"

using namespace Qt::StringLiterals;

namespace {

bool isParent(hfm::Dimension &dimension, hfm::MemberId member)
{
    try {
        return dimension.GetHasChildren(member);
    } catch (const RuntimeError &) {
        return false;
    }
}

} // namespace

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

QStringList MemberLists::lines(hfm::Dimension &dimension, const QList<hfm::MemberId> &members)
{
    countForWalk(members);
    QStringList lines;
    lines.reserve(members.size());
    for (const hfm::MemberId member : members) {
        QString line = dimension.GetMemberLabel(member);
        if (isParent(dimension, member))
            line += u" **"_s;
        lines.append(line);
    }
    return lines;
}

QString MemberLists::heading(const QString &dimension, const QString &name, qsizetype memberCount)
{
    return headingOfEmpty(dimension) + name.toUpper() + u"  -  "_s + QString::number(memberCount) +
           u" members"_s;
}

QString MemberLists::headingOfEmpty(const QString &dimension)
{
    return dimension + u" list  "_s;
}
