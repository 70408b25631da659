#pragma once

#include "hfm/Dimension.h"
#include "runtime/Prompts.h"

/// The base members below one parent that are missing below another.
namespace BaseMemberCompare {

/// What the user is told who did not choose both parents.
Prompt choiceMissing();

/// The first line of the report, and the blank one behind it. Both are labels as they were chosen.
QString heading(const QString &from, const QString &to);

/// Appends to `text` the label of every occurrence of a base member below `from` that does not
/// occur below `to`, in the client's order, each ended by CR LF. Fails as the dimension's
/// operations do, with RuntimeError TypeMismatch where there is no base member below one of the
/// two and with Overflow where there are more than 32,767 occurrences below one; what was appended
/// by then stays.
void append(hfm::Dimension &dimension, const QString &from, const QString &to, QString &text);

} // namespace BaseMemberCompare
