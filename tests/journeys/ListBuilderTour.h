#pragma once

#include "Journey.h"

/// The part of the tour that builds a member list of the application Meridian's accounts, saves its
/// script as Board.lst and looks at the lists that are there. Starts and ends at the main window.
void buildList(Journey &journey);
