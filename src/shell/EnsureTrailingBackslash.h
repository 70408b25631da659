#pragma once

#include <QString>

/// A folder's path, ready for a file name to be appended: `path` as it stands where it already ends
/// in `separator`, else `path` followed by it. Blanks around the path count for that question only;
/// they stay in the answer. An empty path gives the separator alone.
QString EnsureTrailingBackslash(const QString &path, QChar separator = u'\\');
