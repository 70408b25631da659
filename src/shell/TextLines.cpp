#include "shell/TextLines.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char16_t lineFeed = u'\n';
constexpr char16_t carriageReturn = u'\r';

bool endsALine(char16_t character)
{
    return character == lineFeed || character == carriageReturn;
}

/// The first line end in [from, end), or `end`. Looks at a block at a time without a branch, and
/// counts in the characters' own width, so that compilers make vector instructions of it.
const char16_t *findLineEnd(const char16_t *from, const char16_t *end)
{
    constexpr int block = 32;
    while (end - from >= block) {
        quint16 found = 0;
        for (int i = 0; i < block; ++i)
            found |= quint16(quint16(from[i] == lineFeed) | quint16(from[i] == carriageReturn));
        if (found)
            break;
        from += block;
    }
    return std::find_if(from, end, endsALine);
}

} // namespace

TextLines::TextLines(QString text) : mText(std::move(text))
{
    findLines();
}

void TextLines::findLines()
{
    const char16_t *const begin = QStringView(mText).utf16();
    const char16_t *const end = begin + mText.size();
    qsizetype longest = 0;
    const char16_t *start = begin;
    for (;;) {
        mStarts.push_back(start - begin);
        const char16_t *const lineEnd = findLineEnd(start, end);
        if (lineEnd - start > longest) {
            longest = lineEnd - start;
            mLongestLine = count() - 1;
        }
        if (lineEnd == end)
            return;
        const bool isPair =
            *lineEnd == carriageReturn && lineEnd + 1 != end && lineEnd[1] == lineFeed;
        start = lineEnd + (isPair ? 2 : 1);
    }
}

qsizetype TextLines::end(qsizetype line) const
{
    if (line + 1 == count())
        return length();
    const qsizetype next = start(line + 1);
    const bool isPair = next - start(line) >= 2 && mText[next - 1] == QChar(lineFeed) &&
                        mText[next - 2] == QChar(carriageReturn);
    return next - (isPair ? 2 : 1);
}

QStringView TextLines::line(qsizetype line) const
{
    return QStringView(mText).sliced(start(line), end(line) - start(line));
}

qsizetype TextLines::lineOf(qsizetype position) const
{
    const auto next = std::upper_bound(mStarts.begin(), mStarts.end(), position);
    return std::max<qsizetype>(next - mStarts.begin() - 1, 0);
}
