#pragma once

#include "runtime/Prompts.h"
#include "runtime/RuntimeError.h"

/// What the user is told when the window could not be loaded. `routine` is the name of the routine
/// that was running: "Form.Load" or "PopulateMemberListNames".
Prompt loadError(const QString &routine, const RuntimeError &error);
