#pragma once

#include <QString>
#include <QStringView>

/// Writes `text` to the file `path` in the code page of CodePage.h, exactly as it stands: no line
/// end is added or changed. The file is created, or replaced as a whole: it is written beside the
/// target, checked and renamed over it, so that a failed write leaves what was there. Where the
/// folder allows no rename it is written in place.
/// Fails with RuntimeError PathNotFound, PathFileAccessError, PermissionDenied or DiskFull; the
/// description names the path.
void writeTextFile(const QString &path, QStringView text);
