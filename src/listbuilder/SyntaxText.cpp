#include "listbuilder/SyntaxText.h"

namespace {

constexpr QStringView ends = u"\u2028\u2029\uFDD0\uFDD1";

/// As many as there are ends, unless the text holds nearly all noncharacters of their range.
QString standInsFor(const QString &text)
{
    QString standIns;
    for (char16_t code = 0xFDD2; code <= 0xFDEF && standIns.size() < ends.size(); ++code) {
        if (!text.contains(QChar(code)))
            standIns.append(QChar(code));
    }
    return standIns;
}

} // namespace

QString SyntaxText::toDocument(const QString &text)
{
    mStandIns = standInsFor(text);
    QString raw = text;
    for (qsizetype i = 0; i < mStandIns.size(); ++i)
        raw.replace(ends[i], mStandIns[i]);
    return raw;
}

QString SyntaxText::fromDocument(QString raw, QLatin1StringView lineEnd) const
{
    raw.replace(QChar::LineSeparator, QChar::ParagraphSeparator)
        .replace(QChar::ParagraphSeparator, lineEnd);
    for (qsizetype i = 0; i < mStandIns.size(); ++i)
        raw.replace(mStandIns[i], ends[i]);
    return raw;
}
