#include "runtime/CodePage.h"

#include <algorithm>
#include <array>

// Qt's converter for this code page writes the control character 1A for what the page lacks, and
// the text may hold a 1A of its own, so the page is spelled out here. It is Latin-1 except for the
// bytes 80 to 9F.
namespace {

constexpr char16_t specialsBegin = 0x80;
constexpr char16_t specialsEnd = 0xA0;

/// The characters of the bytes 80 to 9F.
constexpr std::array<char16_t, specialsEnd - specialsBegin> specials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Text is tested and copied by stretches of this length, which the compiler turns into a few
/// vector instructions each. Almost all of them hold nothing but Latin-1.
constexpr qsizetype stretch = 32;

template <typename Unit>
constexpr bool isSpecial(Unit unit)
{
    return (unit & ~0x1F) == specialsBegin;
}

/// Collects units, not truth values: a wider or narrower type would keep it from being vectorised.
template <typename Unit>
bool isPlain(const Unit *units)
{
    Unit strange = 0;
    for (qsizetype i = 0; i < stretch; ++i)
        strange |= Unit(((units[i] > 0xFF) | isSpecial(units[i])) ? ~0 : 0);
    return strange == 0;
}

template <typename From, typename To>
void copyPlain(const From *from, To *to)
{
    for (qsizetype i = 0; i < stretch; ++i)
        to[i] = To(from[i]);
}

char encoded(char16_t unit)
{
    if (unit <= 0xFF && !isSpecial(unit))
        return char(unit);
    const auto special = std::find(specials.begin(), specials.end(), unit);
    return special == specials.end() ? '?' : char(specialsBegin + (special - specials.begin()));
}

char16_t decoded(uchar byte)
{
    return isSpecial(byte) ? specials[byte - specialsBegin] : byte;
}

} // namespace

QByteArray CodePage::encode(QStringView text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    const char16_t *from = text.utf16();
    const char16_t *const end = from + text.size();
    char *to = bytes.data();
    while (from < end) {
        if (end - from >= stretch && isPlain(from)) {
            copyPlain(from, to);
            from += stretch;
            to += stretch;
            continue;
        }
        for (const char16_t *stop = from + std::min(stretch, qsizetype(end - from)); from < stop;) {
            const bool pair =
                QChar::isHighSurrogate(from[0]) && end - from > 1 && QChar::isLowSurrogate(from[1]);
            *to++ = encoded(*from);
            from += pair ? 2 : 1;
        }
    }
    bytes.truncate(to - bytes.constData());
    return bytes;
}

QString CodePage::decode(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    const auto *from = reinterpret_cast<const uchar *>(bytes.data());
    const uchar *const end = from + bytes.size();
    auto *to = reinterpret_cast<char16_t *>(text.data());
    while (from < end) {
        if (end - from >= stretch && isPlain(from)) {
            copyPlain(from, to);
            from += stretch;
            to += stretch;
            continue;
        }
        for (const uchar *stop = from + std::min(stretch, qsizetype(end - from)); from < stop;)
            *to++ = decoded(*from++);
    }
    return text;
}
