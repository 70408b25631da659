#pragma once

#include "hfm/Dimension.h"

/// The hierarchy of a dimension as text: a line for each node, indented by two blanks a level.
inline QString treeOf(hfm::Dimension &dimension)
{
    const hfm::Occurrences all = dimension.EnumHierarchy();
    QString text;
    QList<hfm::MemberId> above;
    for (qsizetype i = 0; i < all.members.size(); ++i) {
        while (!above.isEmpty() && above.last() != all.parents[i])
            above.removeLast();
        text += QString(2 * above.size(), QLatin1Char(' ')) +
                dimension.GetMemberLabel(all.members[i]) + QLatin1Char('\n');
        above.append(all.members[i]);
    }
    return text;
}
