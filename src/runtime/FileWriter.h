#pragma once

#include <QString>
#include <QStringView>

/// Writes `text` to the file `path` in the code page of CodePage.h, exactly as it stands: no line
/// end is added or changed. The file is created, or replaced as a whole: it is written beside the
/// target, brought to the disk and renamed over it, so that a failed write leaves what was there.
/// A file that exists keeps its owner and permissions, and a symbolic link stays and has its target
/// written. Where the folder allows no second file or no rename, where the file would become
/// another user's, and for a device, it is written in place (see InPlaceWriter.h).
/// Fails with RuntimeError, whose description names the path: PathNotFound for a missing folder,
/// PathFileAccessError for a folder, an empty name or one the disk cannot hold, PermissionDenied,
/// and DiskFull.
void writeTextFile(const QString &path, QStringView text);
