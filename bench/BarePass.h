#pragma once

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <cstring>
#include <vector>

/// Fields and characters of a file; what the bare pass finds, so that nothing of it can be left
/// out.
struct Extent
{
    qint64 fields = 0;
    qint64 units = 0;
};

/// What the bare pass converts at a time: a line as a whole, or each field by itself.
enum class Converted { Lines, Fields };

/// Converts texts into one buffer, each over the one before.
class Converter
{
public:
    qint64 convert(const char *begin, const char *end)
    {
        mUnits.resize(std::max(mUnits.size(), size_t(mDecoder.requiredSpace(end - begin))));
        QChar *first = reinterpret_cast<QChar *>(mUnits.data());
        return mDecoder.appendToBuffer(first, QByteArrayView(begin, end)) - first;
    }

private:
    QStringDecoder mDecoder{QStringConverter::Utf8};
    std::vector<char16_t> mUnits;
};

inline Extent passOverLine(const char *line, const char *end, Converted converted,
                           Converter &converter)
{
    Extent extent;
    for (const char *at = line; at; ++extent.fields) {
        const auto *found = static_cast<const char *>(std::memchr(at, ';', size_t(end - at)));
        if (converted == Converted::Fields)
            extent.units += converter.convert(at, found ? found : end);
        at = found ? found + 1 : nullptr;
    }
    if (converted == Converted::Lines)
        extent.units = converter.convert(line, end);
    return extent;
}

/// Reads a file in pieces, finds the ends of lines and fields and converts the bytes to UTF-16; it
/// keeps nothing. The file must be UTF-8 delimited by ';'.
inline Extent barePass(const QString &path, Converted converted = Converted::Lines)
{
    constexpr qsizetype pieceSize = 1 << 20;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        qFatal("cannot open %s", qPrintable(path));
    std::vector<char> buffer(2 * pieceSize);
    Converter converter;
    Extent extent;
    qsizetype kept = 0;
    while (const qint64 count = file.read(buffer.data() + kept, pieceSize)) {
        const char *const end = buffer.data() + kept + count;
        const char *line = buffer.data();
        while (const void *found = std::memchr(line, '\n', size_t(end - line))) {
            const char *const lineEnd = static_cast<const char *>(found);
            const Extent ofLine = passOverLine(line, lineEnd, converted, converter);
            extent.fields += ofLine.fields;
            extent.units += ofLine.units;
            line = lineEnd + 1;
        }
        kept = end - line;
        std::memmove(buffer.data(), line, size_t(kept));
    }
    return extent;
}
