#include "runtime/SystemError.h"

#include <cerrno>

RuntimeError errorFromSystem(int systemError, const QString &path)
{
    switch (systemError) {
    case ENOENT:
    case ENOTDIR:
        return RuntimeError::naming(PathNotFound, path);
    case EACCES:
    case EPERM:
    case EROFS:
        return RuntimeError::naming(PermissionDenied, path);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return RuntimeError::naming(DiskFull, path);
    default:
        return RuntimeError::naming(PathFileAccessError, path);
    }
}
