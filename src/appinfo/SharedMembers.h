#pragma once

#include "hfm/Dimension.h"

/// The members that sit under more than one parent.
namespace SharedMembers {

/// Every occurrence of a member in the hierarchy with its parent, in the order of a walk from the
/// top down, each member followed by all below it. Fails as EnumChildMembers does, and with
/// RuntimeError Overflow at more than 32,767 occurrences.
hfm::Occurrences occurrences(hfm::Dimension &dimension);

/// One line for each occurrence that is followed by another one of the same member, in their
/// order: "label (parent)", " **" behind it where the member has children, CR LF. A member that
/// occurs k times is listed k - 1 times. A parent without a label, as the root, is "<DimRoot>".
/// Without any such line: "No Shared Members Detected". Fails as the dimension's operations do.
QString report(hfm::Dimension &dimension, const hfm::Occurrences &occurrences);

} // namespace SharedMembers
