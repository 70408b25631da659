#include "shell/EnsureTrailingBackslash.h"

QString EnsureTrailingBackslash(const QString &path, QChar separator)
{
    qsizetype end = path.size();
    while (end > 0 && path[end - 1] == u' ')
        --end;
    const bool endsInSeparator = end > 0 && path[end - 1] == separator;
    return endsInSeparator ? path : path + separator;
}
