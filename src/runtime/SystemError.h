#pragma once

#include "runtime/RuntimeError.h"

/// The run-time error for a file that the system refused: PathNotFound, PermissionDenied, DiskFull
/// or PathFileAccessError. `systemError` is an errno; the description names `path`.
RuntimeError errorFromSystem(int systemError, const QString &path);
