#pragma once

#include <QString>
#include <QStringList>

/// What a folder holds, read at once. Names come in alphabetical order, in any letter case; links
/// count as what they point to, and a name that is no text in the system's encoding is left out.
/// The readers fail with RuntimeError PathNotFound, PermissionDenied or PathFileAccessError where
/// the folder cannot be read; the description names it.
namespace FileList {

/// The names of the files that match the pattern. "*" stands for any characters and "?" for one,
/// and letters then match in any case; a pattern without them is matched by that very name alone.
QStringList files(const QString &folder, const QString &pattern);

/// The names of the folders within the folder.
QStringList folders(const QString &folder);

/// Whether the folder holds a file of exactly that name, letter case included.
bool hasFile(const QString &folder, const QString &name);

/// A name as one line of a list can show it: control characters become their pictures.
QString displayName(const QString &name);

} // namespace FileList
