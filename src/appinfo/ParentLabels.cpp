#include "appinfo/ParentLabels.h"

#include "appinfo/ArrayCounts.h"

#include <QStringList>

QStringList parentLabels(hfm::Dimension &dimension)
{
    const QList<QString> labels = dimension.EnumAllMemberLabels();
    const qint16 count = countForWalk(labels);
    QStringList parents;
    for (qint16 i = 0; i < count; ++i)
        if (dimension.GetHasChildren(dimension.GetMemberId(labels[i])))
            parents.append(labels[i]);
    return parents;
}
