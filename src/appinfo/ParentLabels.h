#pragma once

#include "hfm/Dimension.h"

/// The labels of the members that have children, each once, in the client's order. None in a
/// dimension without parents. Fails as the dimension's operations do, and with RuntimeError
/// Overflow in a dimension of more than 32,767 members.
QStringList parentLabels(hfm::Dimension &dimension);
