#pragma once

#include <QString>

#include <functional>

/// Writes the file `path` where it is, for want of a way to replace it; it is made where there is
/// none. `write` is given the open file and returns the system's error number, 0 when all is well;
/// `room` is the most bytes that it writes. A disk without that room is found out before a byte is
/// overwritten, and where `write` fails all the same the former content is put back, or the new
/// file removed. Only a computer that stops while this runs, a disk that has no room for what was
/// on it, and a file that may be written but not read are left with a part.
/// A device is just written to. Fails with RuntimeError, whose description names the path.
void writeInPlace(const QString &path, qint64 room, const std::function<int(int file)> &write);
