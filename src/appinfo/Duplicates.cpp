#include "appinfo/Duplicates.h"

#include "appinfo/ArrayCounts.h"

#include <QHash>
#include <QStringBuilder>

using namespace Qt::StringLiterals;

QString Duplicates::heading(const QString &parent)
{
    return u"Duplicate members under parent member "_s + parent.toUpper() + u": \r\n\r\n"_s;
}

void Duplicates::append(hfm::Dimension &dimension, const QString &parent, QString &text)
{
    const QList<hfm::MemberId> below =
        dimension.EnumMembersBelow(dimension.GetMemberId(parent), hfm::EveryOccurrence);
    countOfFilled(below);
    const qint16 count = countForWalk(below);

    QHash<hfm::MemberId, Counter16> occurrences;
    occurrences.reserve(count);
    for (const hfm::MemberId member : below)
        ++occurrences[member];
    for (const hfm::MemberId member : below)
        if (occurrences[member].value() > 1)
            text += dimension.GetMemberLabel(member) % u"\r\n";
}
