#include "hfm/offline/ReadingError.h"

namespace hfm::offline {

QString withPlace(const QString &file, qint64 line, const QString &text)
{
    if (line == 0)
        return QStringLiteral("%1: %2").arg(file, text);
    return QStringLiteral("%1, line %2: %3").arg(file, QString::number(line), text);
}

ReadingError::ReadingError(const QString &file, qint64 line, const QString &reason, qint32 number)
    : RuntimeError(number, QStringLiteral("HFM"), withPlace(file, line, reason)), mFile(file),
      mLine(line), mReason(reason)
{
}

} // namespace hfm::offline
