#include "appinfo/BaseMemberCompare.h"

#include "appinfo/ArrayCounts.h"

#include <QSet>
#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace {

QList<hfm::MemberId> baseMembers(hfm::Dimension &dimension, const QString &top)
{
    return dimension.EnumBaseMembers(dimension.GetMemberId(top), hfm::EveryOccurrence);
}

void requireWalkable(const QList<hfm::MemberId> &members)
{
    countOfFilled(members);
    countForWalk(members);
}

} // namespace

Prompt BaseMemberCompare::choiceMissing()
{
    return {u"Compare Error"_s,
            u"You must choose a top member from BOTH drop-down boxes to compare."_s,
            Prompt::Icon::Exclamation, Prompt::Buttons::Ok};
}

QString BaseMemberCompare::heading(const QString &from, const QString &to)
{
    return u"Base members under top member "_s + from.toUpper() + u" and NOT under "_s +
           to.toUpper() + u": \r\n\r\n"_s;
}

void BaseMemberCompare::append(hfm::Dimension &dimension, const QString &from, const QString &to,
                               QString &text)
{
    const QList<hfm::MemberId> fromMembers = baseMembers(dimension, from);
    const QList<hfm::MemberId> toMembers = baseMembers(dimension, to);
    requireWalkable(fromMembers);
    requireWalkable(toMembers);

    const QSet<hfm::MemberId> found(toMembers.begin(), toMembers.end());
    for (const hfm::MemberId member : fromMembers)
        if (!found.contains(member))
            text += dimension.GetMemberLabel(member) % u"\r\n";
}
