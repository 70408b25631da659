#pragma once

#include "hfm/Dimension.h"

#include <QStringList>

/// How the members of a list are shown, wherever they are.
namespace ListMembers {

/// A line for each member: its label, and " **" behind that of a parent. A member that cannot be
/// asked whether it is one is none. Fails as GetMemberLabel does, and with RuntimeError Overflow
/// at more than 32,767 members.
QStringList lines(hfm::Dimension &dimension, const QList<hfm::MemberId> &members);

/// What stands over the members of a list, `dimension` being the dimension's word:
/// "Entity list  EUROPE  -  12 members".
QString heading(const QString &dimension, const QString &name, qsizetype memberCount);
/// What stands there when the list holds no member.
QString headingOfEmpty(const QString &dimension);

} // namespace ListMembers
