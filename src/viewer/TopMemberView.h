#pragma once

#include "viewer/MemberTree.h"

/// The view of one member and all below it.
namespace TopMemberView {

/// The name of the top member: its label, taken from its node text as the first (position of the
/// first '-' minus 2) characters. A label that itself holds a '-' is cut short at it: kept.
/// Fails with RuntimeError InvalidProcedureCall where the '-' stands at the very beginning, or
/// nowhere.
QString name(QStringView nodeText);

/// What stands below a node.
struct Below
{
    qint32 count = 0;       ///< nodes, the node itself left out
    qint32 generations = 0; ///< 0 for a node without children
};
Below below(const MemberTree &tree, qint32 node);

} // namespace TopMemberView
