#pragma once

#include "Journey.h"

/// The part of the tour that asks what the application Meridian holds, tab by tab. Starts and ends
/// at the main window.
void informAboutApplication(Journey &journey);
