#include "appinfo/CellText.h"

#include <algorithm>
#include <array>

namespace {

constexpr qsizetype escapeLength = 7;

bool isHexDigit(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= u'0' && code <= u'9') || (code >= u'A' && code <= u'F') ||
           (code >= u'a' && code <= u'f');
}

/// Whether a text that is not empty begins with what XML does not allow.
bool isInvalid(QStringView text)
{
    const QChar unit = text.front();
    const char16_t code = unit.unicode();
    if (unit.isHighSurrogate())
        return text.size() == 1 || !text[1].isLowSurrogate();
    const bool isControl = code < 0x20 && code != u'\t' && code != u'\n';
    return isControl || unit.isLowSurrogate() || code >= 0xFFFE;
}

/// Also where the last '_' is that of the next character's own escape.
bool looksLikeAnEscape(QStringView text)
{
    return text.size() >= escapeLength && text[1] == u'x' &&
           std::all_of(text.begin() + 2, text.begin() + 6, isHexDigit) &&
           (text[6] == u'_' || isInvalid(text.sliced(6)));
}

char *appendEscape(char16_t unit, char *out)
{
    constexpr std::array digits = {'0', '1', '2', '3', '4', '5', '6', '7',
                                   '8', '9', 'A', 'B', 'C', 'D', 'E', 'F'};
    *out++ = '_';
    *out++ = 'x';
    for (int shift = 12; shift >= 0; shift -= 4)
        *out++ = digits[size_t(unit >> shift & 0xF)];
    *out++ = '_';
    return out;
}

char *appendCharacter(char32_t code, char *out)
{
    const auto tail = [code](int shift) { return char(0x80 | (code >> shift & 0x3F)); };
    if (code < 0x80) {
        *out++ = char(code);
    } else if (code < 0x800) {
        *out++ = char(0xC0 | code >> 6);
        *out++ = tail(0);
    } else if (code < 0x10000) {
        *out++ = char(0xE0 | code >> 12);
        *out++ = tail(6);
        *out++ = tail(0);
    } else {
        *out++ = char(0xF0 | code >> 18);
        *out++ = tail(12);
        *out++ = tail(6);
        *out++ = tail(0);
    }
    return out;
}

/// The first character of a text, or the unit that is none and needs an escape.
struct Next
{
    char32_t code;
    qsizetype units = 1;
    bool isEscaped = false;
};

Next nextOf(QStringView text)
{
    const QChar unit = text.front();
    if (isInvalid(text) || (unit == u'_' && looksLikeAnEscape(text)))
        return {unit.unicode(), 1, true};
    if (unit.isHighSurrogate())
        return {QChar::surrogateToUcs4(unit, text[1]), 2};
    return {unit.unicode()};
}

bool isPlain(QChar unit)
{
    return unit.unicode() >= 0x20 && unit.unicode() < 0x80 && unit != u'_';
}

/// What nearly every text is; said without a branch, so that many characters are looked at at once.
bool isPlain(QStringView text)
{
    bool isAll = true;
    for (const QChar unit : text)
        isAll &= isPlain(unit);
    return isAll;
}

} // namespace

CellText::Written CellText::write(QStringView text, char *out)
{
    if (text.size() <= longest && isPlain(text)) {
        for (const QChar unit : text)
            *out++ = char(unit.unicode());
        return {out, true};
    }
    for (qsizetype room = longest; !text.isEmpty();) {
        const Next next = nextOf(text);
        const qsizetype taken = next.isEscaped ? escapeLength : next.units;
        if (taken > room)
            break;
        out = next.isEscaped ? appendEscape(char16_t(next.code), out)
                             : appendCharacter(next.code, out);
        room -= taken;
        text = text.sliced(next.units);
    }
    return {out, text.isEmpty()};
}
