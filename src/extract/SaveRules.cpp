#include "extract/SaveRules.h"

#include "extract/FileList.h"
#include "shell/EnsureTrailingBackslash.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace SaveRules {

QString fullFileName(const QString &folder, const QString &name)
{
    return EnsureTrailingBackslash(folder, u'/') + name;
}

bool lacksListExtension(const QString &saveMode, const QString &name)
{
    return saveMode.trimmed().toUpper() == u"MEMBERLIST" && name.right(4).toUpper() != u".LST";
}

bool fileExists(const QString &folder, const QString &name)
{
    if (name.isEmpty() || name.contains(u'/'))
        return false;
    try {
        return FileList::hasFile(folder, name);
    } catch (const RuntimeError &) {
        return QFileInfo(fullFileName(folder, name)).isFile();
    }
}

Prompt listExtensionWarning()
{
    return {u"HFM Member List Extension"_s,
            u"HFM will be looking for a file with the .lst file extension when loading.\r\r"
            "You may save the file with any extension.  This is a best practices warning."_s,
            Prompt::Icon::Exclamation, Prompt::Buttons::OkCancel};
}

Prompt overwriteQuestion(const QString &fullFileName)
{
    return {u"File Exists"_s,
            u"The file '"_s + fullFileName +
                u"' already exists.\r\rDo you want to overwrite this file?"_s,
            Prompt::Icon::Exclamation, Prompt::Buttons::YesNo};
}

Prompt fileSaved(const QString &fullFileName)
{
    return {u"File Saved"_s, u"Successfully saved member list file to '"_s + fullFileName + u"'."_s,
            Prompt::Icon::Information, Prompt::Buttons::Ok};
}

Prompt pathError(const RuntimeError &error)
{
    return {u"Error in setting path"_s,
            u"Error: "_s + QString::number(error.number()) + u": "_s + error.description(),
            Prompt::Icon::None, Prompt::Buttons::OkCancel};
}

} // namespace SaveRules
