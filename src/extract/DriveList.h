#pragma once

#include <QString>
#include <QStringList>

/// The drives that a file can be saved to.
namespace DriveList {

/// The root folder and the user's home folder, then every other mounted volume by its folder, in
/// alphabetical order. None twice.
QStringList drives();

/// The drive that a folder is on: the longest of `drives` that the folder lies in or is itself;
/// the first where there is none.
QString driveOf(const QString &folder, const QStringList &drives);

/// Whether `folder` is the drive's own folder or lies below it.
bool isOnDrive(const QString &folder, const QString &drive);

} // namespace DriveList
