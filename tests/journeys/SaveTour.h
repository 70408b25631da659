#pragma once

#include "Journey.h"

/// The part of the tour in the save dialog: saves under that name in the journey's folder and reads
/// that it was saved. Starts at the open dialog.
void saveAs(Journey &journey, const QString &name);
