#include "appinfo/HiddenFolder.h"

#include "runtime/SystemError.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString prefix = u".Tessaly Export "_s;

/// Makes a folder of its own beside the file.
QString makeFolderBeside(const QString &file)
{
    QByteArray name =
        QFile::encodeName(QFileInfo(file).absolutePath() + u'/' + prefix + u"XXXXXX"_s);
    if (!mkdtemp(name.data()))
        throw errorFromSystem(errno != 0 ? errno : EIO, file);
    return QFile::decodeName(name);
}

int openFolder(const QString &path)
{
    return open(QFile::encodeName(path).constData(),
                O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

/// No export lasts so long, even where locks are not seen from another machine.
bool isOld(const QFileInfo &folder)
{
    return folder.lastModified().secsTo(QDateTime::currentDateTime()) > 24 * 60 * 60;
}

/// Removes what a workbook's making leaves, and the folder if that was all.
void removeLeftFolder(const QString &path)
{
    const int lock = openFolder(path);
    if (lock < 0)
        return;
    if (flock(lock, LOCK_EX | LOCK_NB) == 0) {
        QDir folder(path);
        const QStringList left = folder.entryList({u"cells*"_s, u"room"_s, u"workbook"_s},
                                                  QDir::Files | QDir::NoSymLinks);
        for (const QString &name : left)
            folder.remove(name);
        rmdir(QFile::encodeName(path).constData());
    }
    close(lock);
}

} // namespace

HiddenFolder::HiddenFolder(const QString &file)
    : mPath(makeFolderBeside(file)), mLock(openFolder(mPath))
{
    flock(mLock, LOCK_SH | LOCK_NB);
    const QFileInfoList others = QFileInfo(file).absoluteDir().entryInfoList(
        {prefix + u"??????"_s}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo &other : others)
        if (isOld(other) && other.ownerId() == geteuid())
            removeLeftFolder(other.filePath());
}

HiddenFolder::~HiddenFolder()
{
    if (mLock >= 0)
        close(mLock);
    QDir(mPath).removeRecursively();
}
