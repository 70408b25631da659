#pragma once

#include "hfm/Dimension.h"

/// The three searches as one would say them: every entry compared with every other one. What the
/// program does must come to the same.
namespace Pairwise {

inline QString duplicates(hfm::Dimension &dimension, hfm::MemberId parent)
{
    QString text;
    const QList<hfm::MemberId> below = dimension.EnumMembersBelow(parent, hfm::EveryOccurrence);
    for (qsizetype i = 0; i < below.size(); ++i) {
        int count = 0;
        for (qsizetype j = 0; j < below.size(); ++j)
            if (below[j] == below[i])
                ++count;
        if (count > 1)
            text += dimension.GetMemberLabel(below[i]) + QStringLiteral("\r\n");
    }
    return text;
}

inline QString missing(hfm::Dimension &dimension, hfm::MemberId from, hfm::MemberId to)
{
    QString text;
    const QList<hfm::MemberId> first = dimension.EnumBaseMembers(from, hfm::EveryOccurrence);
    const QList<hfm::MemberId> second = dimension.EnumBaseMembers(to, hfm::EveryOccurrence);
    for (qsizetype i = 0; i < first.size(); ++i) {
        bool isFound = false;
        for (qsizetype j = 0; j < second.size() && !isFound; ++j)
            isFound = second[j] == first[i];
        if (!isFound)
            text += dimension.GetMemberLabel(first[i]) + QStringLiteral("\r\n");
    }
    return text;
}

inline void addOccurrences(hfm::Dimension &dimension, hfm::MemberId parent, hfm::Occurrences &table)
{
    const QList<hfm::MemberId> children = dimension.EnumChildMembers(hfm::allChildren, parent);
    for (const hfm::MemberId child : children) {
        table.members.append(child);
        table.parents.append(parent);
        addOccurrences(dimension, child, table);
    }
}

inline QString sharedMembers(hfm::Dimension &dimension, const hfm::Occurrences &table)
{
    QString text;
    for (qsizetype i = 0; i < table.members.size(); ++i) {
        bool isFollowed = false;
        for (qsizetype j = i + 1; j < table.members.size() && !isFollowed; ++j)
            isFollowed = table.members[j] == table.members[i];
        if (!isFollowed)
            continue;
        QString parent = dimension.GetMemberLabel(table.parents[i]);
        if (parent.trimmed().isEmpty())
            parent = QStringLiteral("<DimRoot>");
        text += dimension.GetMemberLabel(table.members[i]) + QStringLiteral(" (") + parent +
                QStringLiteral(")");
        if (dimension.GetHasChildren(table.members[i]))
            text += QStringLiteral(" **");
        text += QStringLiteral("\r\n");
    }
    return text.isEmpty() ? QStringLiteral("No Shared Members Detected") : text;
}

} // namespace Pairwise
