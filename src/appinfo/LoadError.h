#pragma once

#include "runtime/Prompts.h"
#include "runtime/RuntimeError.h"

/// The names of the routines that run while the window is loaded.
namespace LoadRoutines {

inline QString formLoad()
{
    return QStringLiteral("Form.Load");
}

inline QString populateMemberListNames()
{
    return QStringLiteral("PopulateMemberListNames");
}

} // namespace LoadRoutines

/// What the user is told when the window could not be loaded. `routine` is the name of the routine
/// that was running, one of the LoadRoutines.
Prompt loadError(const QString &routine, const RuntimeError &error);
