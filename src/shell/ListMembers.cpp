#include "shell/ListMembers.h"

#include "runtime/Counter16.h"

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

QStringList ListMembers::lines(hfm::Dimension &dimension, const QList<hfm::MemberId> &members)
{
    QStringList lines;
    lines.reserve(Counter16(members.size()).value());
    for (const hfm::MemberId member : members) {
        QString line = dimension.GetMemberLabel(member);
        if (isParent(dimension, member))
            line += u" **"_s;
        lines.append(line);
    }
    return lines;
}

QString ListMembers::heading(const QString &dimension, const QString &name, qsizetype memberCount)
{
    return headingOfEmpty(dimension) + name.toUpper() + u"  -  "_s + QString::number(memberCount) +
           u" members"_s;
}

QString ListMembers::headingOfEmpty(const QString &dimension)
{
    return dimension + u" list  "_s;
}
