#pragma once

#include "Journey.h"

/// The part of the tour that looks at the accounts and the entities of the application Meridian in
/// the metadata viewer. Starts and ends at the main window.
void viewMetadata(Journey &journey);
