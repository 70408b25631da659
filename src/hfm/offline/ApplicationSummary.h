#pragma once

#include "hfm/offline/Application.h"

namespace hfm::offline {

/// What an application holds, as text to be read before it is opened: its files with their sizes
/// and dates, its dimensions with their numbers of members, languages, user-defined member lists,
/// users, roles and security classes, and how many `warnings` there are. Lines end with LF. Of many
/// names the first ones are told.
QString summaryOf(const Application &application, qint64 warnings);

} // namespace hfm::offline
