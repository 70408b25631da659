#pragma once

#include "runtime/Prompts.h"
#include "runtime/RuntimeError.h"

#include <QString>

/// The decisions and messages of the save-file dialog.
namespace SaveRules {

/// The folder, a separator where it ends without one, and the name exactly as typed.
QString fullFileName(const QString &folder, const QString &name);

/// Whether the user is to be warned that HFM looks for another extension. `saveMode` is
/// modGlobal's gSaveMode.
bool lacksListExtension(const QString &saveMode, const QString &name);

/// Whether a file of exactly the typed name, letter case included, is in the folder. A folder of
/// that name is no file, an empty name is no name, and one with a separator in it never counts.
/// Where the folder may be written but not read, the file system is asked for the name itself.
bool fileExists(const QString &folder, const QString &name);

Prompt listExtensionWarning();
Prompt overwriteQuestion(const QString &fullFileName);
Prompt fileSaved(const QString &fullFileName);
Prompt pathError(const RuntimeError &error);

} // namespace SaveRules
