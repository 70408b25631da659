#include "shell/TextPiece.h"

namespace {

constexpr QLatin1StringView plainText("text/plain");

} // namespace

QStringList TextPiece::formats() const
{
    return {QString(plainText)};
}

QVariant TextPiece::retrieveData(const QString &format, QMetaType type) const
{
    if (format != plainText)
        return QMimeData::retrieveData(format, type);
    return mText.mid(mRange.start, mRange.end - mRange.start);
}
