#include "runtime/FileWriter.h"

#include "runtime/CodePage.h"
#include "runtime/InPlaceWriter.h"
#include "runtime/SystemError.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
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

/// The functions that write return the system's error number, 0 when all is well. They ask the
/// system themselves: of a write that takes a part and then fails Qt tells neither.
int writeBytes(int file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t count = write(file, bytes.data(), size_t(bytes.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count < 0 ? errno : EIO;
        bytes = bytes.sliced(count);
    }
    return 0;
}

/// Some file systems report a full disk or a lost server only when the data must reach the disk.
int bringToDisk(int file)
{
    int failed = 0;
    do {
        failed = fdatasync(file);
    } while (failed && errno == EINTR);
    const bool deviceKnowsNoSync = errno == EINVAL || errno == ENOTSUP;
    return failed && !deviceKnowsNoSync ? errno : 0;
}

int writeText(int file, QStringView text)
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

/// Gives a file the owner, group and permissions of another; false where that is not allowed.
bool takeAfter(int file, const struct stat &other)
{
    struct stat own = {};
    if (fstat(file, &own) != 0)
        return false;
    const bool isOthers = own.st_uid != other.st_uid || own.st_gid != other.st_gid;
    if (isOthers && fchown(file, other.st_uid, other.st_gid) != 0)
        return false;
    // A file system without permissions refuses them all.
    fchmod(file, other.st_mode & 07777);
    return true;
}

/// Writes beside the target and renames over it. False when the folder does not allow that, or
/// when the file would become another's; the target is untouched then.
bool replaceAsAWhole(const QString &path, QStringView text)
{
    struct stat target = {};
    const bool exists = stat(QFile::encodeName(path).constData(), &target) == 0;
    if (!exists && errno != ENOENT) // a link in a circle, perhaps, which must stay
        return false;
    QSaveFile file(path);
    if ((exists && !S_ISREG(target.st_mode)) || !file.open(QIODevice::WriteOnly))
        return false;
    if (exists && !takeAfter(file.handle(), target))
        return false;
    if (const int error = writeText(file.handle(), text))
        throw errorFromSystem(error, path);
    return file.commit();
}

} // namespace

void writeTextFile(const QString &path, QStringView text)
{
    refuseWhatIsNoFile(path);
    if (replaceAsAWhole(path, text))
        return;
    writeInPlace(path, text.size(), [&](int file) { return writeText(file, text); });
}
