#include "runtime/InPlaceWriter.h"

#include "runtime/SystemError.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// An open file, closed at the end of its life.
class OpenFile
{
public:
    explicit OpenFile(const QByteArray &name)
        : mHandle(open(name.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666))
    {
    }
    ~OpenFile()
    {
        if (mHandle >= 0)
            close(mHandle);
    }
    Q_DISABLE_COPY_MOVE(OpenFile)

    int handle() const { return mHandle; }

private:
    int mHandle;
};

/// The system's error number; 0 as well where the file system cannot reserve.
int reserve(int file, qint64 room)
{
    const int error = room > 0 ? posix_fallocate(file, 0, room) : 0;
    return error == ENOSPC || error == EFBIG || error == EDQUOT ? error : 0;
}

int cutOffBehind(int file)
{
    const off_t end = lseek(file, 0, SEEK_CUR);
    return end < 0 || ftruncate(file, end) != 0 ? errno : 0;
}

int overwrite(int file, qint64 room, const std::function<int(int)> &write)
{
    if (const int error = reserve(file, room))
        return error;
    if (const int error = write(file))
        return error;
    return cutOffBehind(file);
}

std::optional<QByteArray> contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray content = file.readAll();
    return file.error() == QFile::NoError ? std::optional(content) : std::nullopt;
}

/// As well as it goes: there is an error to tell of already.
void putBack(const QString &path, const QByteArray &content)
{
    QFile file(path);
    // Opened for both it is not emptied, which would give its room on the disk away.
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return;
    file.write(content);
    file.resize(content.size());
}

} // namespace

void writeInPlace(const QString &path, qint64 room, const std::function<int(int file)> &write)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    const bool exists = stat(name.constData(), &status) == 0;
    const bool isDevice = exists && !S_ISREG(status.st_mode);
    const auto former = exists && !isDevice ? contentOf(path) : std::nullopt;

    const OpenFile file(name);
    if (file.handle() < 0)
        throw errorFromSystem(errno, path);
    const int error = isDevice ? write(file.handle()) : overwrite(file.handle(), room, write);
    if (error == 0)
        return;
    if (former)
        putBack(path, *former);
    else if (!exists) // through a symbolic link to what was not there
        QFile::remove(QFileInfo(path).canonicalFilePath());
    throw errorFromSystem(error, path);
}
