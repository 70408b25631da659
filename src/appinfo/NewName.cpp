#include "appinfo/NewName.h"

#include <QFile>
#include <QScopeGuard>

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

bool deviceKnowsNo(int error)
{
    return error == EINVAL || error == ENOSYS || error == ENOTSUP;
}

/// 0 or an errno.
int writeAll(int to, const char *bytes, qint64 count)
{
    while (count > 0) {
        const ssize_t written = write(to, bytes, size_t(count));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return written < 0 ? errno : EIO;
        bytes += written;
        count -= written;
    }
    return 0;
}

/// 0 or an errno.
int copyBytes(int from, int to)
{
    std::array<char, 1 << 16> buffer;
    for (;;) {
        const ssize_t count = read(from, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return errno;
        if (count == 0)
            break;
        if (const int error = writeAll(to, buffer.data(), count))
            return error;
    }
    return fdatasync(to) == 0 || deviceKnowsNo(errno) ? 0 : errno;
}

/// 0 or an errno; a copy that fails is removed.
int copyToNewName(const QByteArray &file, const QByteArray &name)
{
    const int from = open(file.constData(), O_RDONLY | O_CLOEXEC);
    if (from < 0)
        return errno;
    const auto closeFrom = qScopeGuard([from] { close(from); });
    const int to = open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (to < 0)
        return errno;
    int error = copyBytes(from, to);
    if (close(to) != 0 && error == 0)
        error = errno;
    if (error != 0)
        unlink(name.constData());
    return error;
}

} // namespace

int moveToNewName(const QString &file, const QString &name)
{
    const QByteArray from = QFile::encodeName(file);
    const QByteArray to = QFile::encodeName(name);
    if (renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (!deviceKnowsNo(errno))
        return errno;
    if (::link(from.constData(), to.constData()) == 0) {
        unlink(from.constData());
        return 0;
    }
    const bool knowsNoLinks = deviceKnowsNo(errno) || errno == EPERM || errno == EMLINK;
    return knowsNoLinks ? copyToNewName(from, to) : errno;
}
