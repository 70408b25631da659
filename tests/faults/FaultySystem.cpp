#include "FaultySystem.h"

#include <algorithm>
#include <cerrno>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

FaultySystem *theSystem = nullptr;

bool isRegular(int file)
{
    struct stat status = {};
    return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

qint64 sizeOf(int file)
{
    struct stat status = {};
    return fstat(file, &status) == 0 ? status.st_size : 0;
}

template <typename Function>
Function systems(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

FaultySystem::FaultySystem()
{
    theSystem = this;
}

FaultySystem::~FaultySystem()
{
    theSystem = nullptr;
}

FaultySystem *FaultySystem::alive()
{
    return theSystem;
}

void FaultySystem::fail(const QByteArray &function, int call, int error)
{
    mFunction = function;
    mCall = call;
    mError = error;
}

int FaultySystem::enter(const char *function)
{
    const int call = ++mCalls[function];
    if (mFunction != function || call != mCall)
        return 0;
    mHasFailed = true;
    return mError;
}

ssize_t FaultySystem::allowed(int file, size_t count)
{
    count = std::min(count, mMostWritten.value_or(count));
    if (!mRoom)
        return ssize_t(count);
    const qint64 inside = std::max<qint64>(0, sizeOf(file) - lseek(file, 0, SEEK_CUR));
    const qint64 most = std::min<qint64>(qint64(count), inside + *mRoom);
    if (most == 0 && count > 0)
        return -ENOSPC;
    *mRoom -= std::max<qint64>(0, most - inside);
    return most;
}

bool FaultySystem::takeRoom(qint64 bytes)
{
    if (mRoom && bytes > *mRoom)
        return false;
    if (mRoom && bytes > 0)
        *mRoom -= bytes;
    return true;
}

// These stand before the C library's own, for Qt too.

extern "C" ssize_t write(int file, const void *bytes, size_t count)
{
    static const auto real = systems<ssize_t (*)(int, const void *, size_t)>("write");
    if (!theSystem || !isRegular(file))
        return real(file, bytes, count);
    const int error = theSystem->enter("write");
    const ssize_t most = error ? -error : theSystem->allowed(file, count);
    if (most < 0) {
        errno = int(-most);
        return -1;
    }
    return real(file, bytes, size_t(most));
}

extern "C" int posix_fallocate(int file, off_t offset, off_t length)
{
    static const auto real = systems<int (*)(int, off_t, off_t)>("posix_fallocate");
    if (!theSystem)
        return real(file, offset, length);
    if (const int error = theSystem->enter("posix_fallocate"))
        return error;
    return theSystem->takeRoom(offset + length - sizeOf(file)) ? real(file, offset, length)
                                                               : ENOSPC;
}

namespace {

/// Calls one of the functions that return -1 and set errno.
template <typename Function, typename... Arguments>
int call(const char *name, Arguments... arguments)
{
    const int error = theSystem ? theSystem->enter(name) : 0;
    if (error == 0)
        return systems<Function>(name)(arguments...);
    errno = error;
    return -1;
}

} // namespace

extern "C" int fdatasync(int)
{
    const int error = theSystem ? theSystem->enter("fdatasync") : 0;
    errno = error;
    return error ? -1 : 0; // a test need not wait for the disk
}

extern "C" int rename(const char *from, const char *to) noexcept
{
    return call<int (*)(const char *, const char *)>("rename", from, to);
}

extern "C" int ftruncate(int file, off_t length) noexcept
{
    return call<int (*)(int, off_t)>("ftruncate", file, length);
}

extern "C" int fchown(int file, uid_t owner, gid_t group) noexcept
{
    return call<int (*)(int, uid_t, gid_t)>("fchown", file, owner, group);
}

extern "C" int fchmod(int file, mode_t mode) noexcept
{
    return call<int (*)(int, mode_t)>("fchmod", file, mode);
}
