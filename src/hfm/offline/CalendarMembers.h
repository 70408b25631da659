#pragma once

#include "hfm/offline/ApplicationDraft.h"

namespace hfm::offline {

/// Adds the years, periods and views of an application whose files say nothing of that dimension:
/// `currentYear` with five before and five after; a year over its quarters over their months; the
/// usual views.
void addCalendar(ApplicationDraft &draft, int currentYear);

} // namespace hfm::offline
