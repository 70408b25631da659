#include "runtime/FileWriter.h"

#include "runtime/CodePage.h"
#include "runtime/SystemError.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace {

/// So many characters are encoded at a time: a long text needs no second copy of itself in memory,
/// and what was encoded is still near the processor when it is written.
constexpr qsizetype blockLength = 1 << 17;

/// A name that the file system cannot hold as it was typed would be shortened or changed on its
/// way, and another file written.
bool isNameOfAFile(const QString &path)
{
    return !path.isEmpty() && !path.contains(QChar::Null) &&
           QFile::decodeName(QFile::encodeName(path)) == path;
}

void refuseWhatIsNoFile(const QString &path)
{
    if (!isNameOfAFile(path) || QFileInfo(path).isDir())
        throw RuntimeError::naming(PathFileAccessError, path);
    if (path.endsWith(QLatin1Char('/')))
        throw RuntimeError::naming(PathNotFound, path);
}

/// The functions that write return the system's error number, 0 when all is well.
int lastError()
{
    return errno != 0 ? errno : EIO;
}

int writeBytes(QFileDevice &file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        // A disk that fills up takes a part first and says why only when asked once more.
        errno = 0;
        const qint64 count = file.write(bytes.data(), bytes.size());
        if (count <= 0)
            return lastError();
        bytes = bytes.sliced(count);
    }
    return 0;
}

/// Some file systems report a full disk or a lost server only when the data must reach the disk.
int bringToDisk(QFileDevice &file)
{
    errno = 0;
    if (!file.flush())
        return lastError();
    const bool done = fdatasync(file.handle()) == 0;
    const bool deviceKnowsNoSync = errno == EINVAL || errno == ENOTSUP;
    return done || deviceKnowsNoSync ? 0 : lastError();
}

int writeText(QFileDevice &file, QStringView text)
{
    while (!text.isEmpty()) {
        qsizetype length = std::min(blockLength, text.size());
        if (length < text.size() && text[length - 1].isHighSurrogate())
            --length;
        if (const int error = writeBytes(file, CodePage::encode(text.first(length))))
            return error;
        text = text.sliced(length);
    }
    return bringToDisk(file);
}

/// Writes beside the target and renames over it. False when the folder does not allow that; the
/// target is untouched then.
bool replaceAsAWhole(const QString &path, QStringView text)
{
    const QFileInfo target(path);
    const bool isDevice = target.exists() && !target.isFile();
    QSaveFile file(path);
    if (isDevice || !file.open(QIODevice::WriteOnly))
        return false;
    if (target.exists()) {
        // The "user" permissions say what this user may do, not what the file's mode is.
        constexpr QFile::Permissions user = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser;
        file.setPermissions(target.permissions() & ~user);
    }
    if (const int error = writeText(file, text))
        throw errorFromSystem(error, path);
    return file.commit();
}

void writeInPlace(const QString &path, QStringView text)
{
    QFile file(path);
    errno = 0;
    if (!file.open(QIODevice::WriteOnly))
        throw errorFromSystem(errno, path);
    if (const int error = writeText(file, text))
        throw errorFromSystem(error, path);
}

} // namespace

void writeTextFile(const QString &path, QStringView text)
{
    refuseWhatIsNoFile(path);
    if (!replaceAsAWhole(path, text))
        writeInPlace(path, text);
}
