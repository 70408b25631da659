#include "shell/TextPiece.h"

#include <utility>

namespace {

constexpr QLatin1StringView plainText("text/plain");

/// A piece of so many units costs next to nothing to cut out.
constexpr qsizetype longestCutAtOnce = 1 << 16;

} // namespace

TextPiece::TextPiece(QString text, TextBoundaries::Range range)
    : mText(std::move(text)), mRange(range)
{
    const qsizetype length = range.end - range.start;
    if (length <= longestCutAtOnce) {
        mText = mText.mid(range.start, length);
        mRange = {0, length};
    }
}

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
