#pragma once

#include "hfm/Dimension.h"

/// The members that occur more than once below a parent.
namespace Duplicates {

/// The first line of the report, and the blank one behind it. `parent` is a label as it was chosen.
QString heading(const QString &parent);

/// Appends to `text` the label of every occurrence below `parent` whose member occurs there more
/// than once, in the client's order, each ended by CR LF: a member that occurs k times is listed k
/// times. Fails as the dimension's operations do, with RuntimeError TypeMismatch where there is
/// nothing below the parent and with Overflow where there are more than 32,767 occurrences; what
/// was appended by then stays.
void append(hfm::Dimension &dimension, const QString &parent, QString &text);

} // namespace Duplicates
