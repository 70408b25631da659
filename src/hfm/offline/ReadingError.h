#pragma once

#include "runtime/RuntimeError.h"

namespace hfm::offline {

/// Why an application's files cannot be read. The description is "FILE, line LINE: REASON", without
/// the line where it concerns the file as a whole.
class ReadingError : public RuntimeError
{
public:
    /// `line` counts from 1; 0 for the file as a whole.
    ReadingError(const QString &file, qint64 line, const QString &reason,
                 qint32 number = PathFileAccessError);

    const QString &file() const { return mFile; }
    qint64 line() const { return mLine; }
    const QString &reason() const { return mReason; }

private:
    QString mFile;
    qint64 mLine;
    QString mReason;
};

/// "FILE, line LINE: TEXT", or "FILE: TEXT" for line 0.
QString withPlace(const QString &file, qint64 line, const QString &text);

} // namespace hfm::offline
