#pragma once

#include "hfm/Dimension.h"

#include <QStringList>

/// The members of an application's member lists.
namespace MemberLists {

/// The names of a dimension's lists but for "[Hierarchy]" and "[System]", in the client's order.
/// Fails as EnumMemberListNames does, and with RuntimeError Overflow at more than 32,767 lists.
QStringList offered(hfm::Dimension &dimension);

/// Whether the list is HFM's own: its name begins with "[".
bool isSystemList(const QString &name);

/// What is shown of a list. A system list stands for the base members below `top`, each once,
/// whatever the list itself holds; a user-defined one for its own members. `top` is a label, or
/// empty for the whole dimension. Fails as the dimension's operations do.
QList<hfm::MemberId> members(hfm::Dimension &dimension, const QString &name, const QString &top);

} // namespace MemberLists
