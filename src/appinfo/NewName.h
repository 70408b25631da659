#pragma once

#include <QString>

/// Gives a file a name that nothing has yet, on the same file system. Returns 0 or an errno:
/// EEXIST where there is anything of that name by then, be it a folder or a link to nothing. What
/// exists is neither replaced nor written to. Where the file system can only copy, the file keeps
/// its old name as well.
int moveToNewName(const QString &file, const QString &name);
