#pragma once

#include <QString>

/// A hidden folder for a file that is being written beside its place; it goes with this object.
/// A folder that a program left which was killed goes a day later, when the next is made beside it.
class HiddenFolder
{
public:
    /// `file` is the full name of the file that it is beside. Fails as errorFromSystem() tells,
    /// naming the file.
    explicit HiddenFolder(const QString &file);
    ~HiddenFolder();
    Q_DISABLE_COPY_MOVE(HiddenFolder)

    const QString &path() const { return mPath; }

private:
    QString mPath;
    int mLock; ///< a descriptor; while its folder is locked the folder is in use
};
