#include "shell/TextBoundaries.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace TextBoundaries {

namespace {

/// How far around a position a character is looked for: far more than any script or emoji needs.
constexpr qsizetype reach = 64;

bool splitsAPair(QStringView text, qsizetype position)
{
    return position > 0 && position < text.size() && text[position].isLowSurrogate() &&
           text[position - 1].isHighSurrogate();
}

/// Between two ASCII characters, CR LF excepted, there is always a boundary. Spares the analysis
/// in nearly all texts.
bool isPlainBoundary(QStringView text, qsizetype position)
{
    const char16_t before = text[position - 1].unicode();
    const char16_t after = text[position].unicode();
    return before < 0x80 && after < 0x80 && !(before == u'\r' && after == u'\n');
}

enum class Kind { Blank, LineEnd, Word, Other, Continuation };

Kind kindOf(char32_t character)
{
    if (character == U'\r' || character == U'\n')
        return Kind::LineEnd;
    if (QChar::isSpace(character))
        return Kind::Blank;
    if (QChar::isLetterOrNumber(character) || character == U'_')
        return Kind::Word;
    // Marks and joiners belong to whatever they follow.
    if (QChar::isMark(character) || QChar::category(character) == QChar::Other_Format)
        return Kind::Continuation;
    return Kind::Other;
}

struct CodePoint
{
    Kind kind;
    qsizetype size;
};

CodePoint codePointAt(QStringView text, qsizetype position)
{
    if (splitsAPair(text, position + 1))
        return {kindOf(QChar::surrogateToUcs4(text[position], text[position + 1])), 2};
    return {kindOf(text[position].unicode()), 1};
}

CodePoint codePointBefore(QStringView text, qsizetype position)
{
    return codePointAt(text, position - (splitsAPair(text, position - 1) ? 2 : 1));
}

qsizetype startOfRun(QStringView text, qsizetype position, Kind kind)
{
    qsizetype start = position;
    while (position > 0) {
        const CodePoint before = codePointBefore(text, position);
        if (before.kind != kind && before.kind != Kind::Continuation)
            break;
        position -= before.size;
        // A mark is part of the run only if what it follows is.
        if (before.kind == kind)
            start = position;
    }
    return start;
}

qsizetype endOfRun(QStringView text, qsizetype position, Kind kind)
{
    while (position < text.size()) {
        const CodePoint next = codePointAt(text, position);
        if (next.kind != kind && next.kind != Kind::Continuation)
            break;
        position += next.size;
    }
    return position;
}

} // namespace

qsizetype characterStart(QStringView text, qsizetype position)
{
    if (position <= 0 || position >= text.size() || isPlainBoundary(text, position))
        return std::clamp<qsizetype>(position, 0, text.size());
    qsizetype from = std::max<qsizetype>(position - reach, 0);
    from -= splitsAPair(text, from) ? 1 : 0;
    qsizetype to = position + 1;
    to += splitsAPair(text, to) ? 1 : 0;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.sliced(from, to - from));
    finder.setPosition(position - from);
    if (finder.isAtBoundary())
        return position;
    const qsizetype start = from + finder.toPreviousBoundary();
    if (start == from && from > 0)
        return position - (splitsAPair(text, position) ? 1 : 0);
    return start;
}

qsizetype characterEnd(QStringView text, qsizetype position)
{
    const qsizetype start = characterStart(text, position);
    return start < position ? nextCharacter(text, start) : start;
}

qsizetype nextCharacter(QStringView text, qsizetype position)
{
    position = std::max<qsizetype>(position, 0);
    if (position >= text.size())
        return text.size();
    if (position + 1 == text.size() || isPlainBoundary(text, position + 1))
        return position + 1;
    qsizetype to = std::min(position + reach, text.size());
    to += splitsAPair(text, to) ? 1 : 0;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.sliced(position, to - position));
    return position + finder.toNextBoundary();
}

qsizetype previousCharacter(QStringView text, qsizetype position)
{
    return position > 0 ? characterStart(text, position - 1) : 0;
}

Range wordAt(QStringView text, qsizetype position)
{
    const qsizetype start = characterStart(text, position);
    if (start == text.size())
        return {start, start};
    const Kind found = codePointAt(text, start).kind;
    if (found == Kind::LineEnd)
        return {start, nextCharacter(text, start)};
    const Kind kind = found == Kind::Continuation ? Kind::Word : found;
    return {startOfRun(text, start, kind), endOfRun(text, start, kind)};
}

qsizetype nextWord(QStringView text, qsizetype position)
{
    return endOfRun(text, wordAt(text, position).end, Kind::Blank);
}

qsizetype previousWord(QStringView text, qsizetype position)
{
    position = std::min(position, text.size());
    while (position > 0 && codePointBefore(text, position).kind == Kind::Blank)
        --position;
    return position > 0 ? wordAt(text, position - 1).start : 0;
}

} // namespace TextBoundaries
