#pragma once

#include <QFile>
#include <QStringDecoder>

#include <cstring>
#include <vector>

/// Fields and characters of a file; what the bare pass finds, so that nothing of it can be left
/// out.
struct Extent
{
    qint64 fields = 0;
    qint64 units = 0;
};

inline Extent passOverLine(const char *line, const char *end, QStringDecoder &decoder,
                           std::vector<char16_t> &units)
{
    Extent extent;
    for (const char *at = line; at; ++extent.fields) {
        at = static_cast<const char *>(std::memchr(at, ';', size_t(end - at)));
        at += at ? 1 : 0;
    }
    units.resize(size_t(decoder.requiredSpace(end - line)));
    QChar *begin = reinterpret_cast<QChar *>(units.data());
    extent.units = decoder.appendToBuffer(begin, QByteArrayView(line, end)) - begin;
    return extent;
}

/// Reads a file in pieces, finds the ends of lines and fields and converts the bytes to UTF-16; it
/// keeps nothing. The file must be UTF-8 delimited by ';'.
inline Extent barePass(const QString &path)
{
    constexpr qsizetype pieceSize = 1 << 20;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        qFatal("cannot open %s", qPrintable(path));
    std::vector<char> buffer(2 * pieceSize);
    std::vector<char16_t> units;
    QStringDecoder decoder(QStringConverter::Utf8);
    Extent extent;
    qsizetype kept = 0;
    while (const qint64 count = file.read(buffer.data() + kept, pieceSize)) {
        const char *const end = buffer.data() + kept + count;
        const char *line = buffer.data();
        while (const void *found = std::memchr(line, '\n', size_t(end - line))) {
            const char *const lineEnd = static_cast<const char *>(found);
            const Extent ofLine = passOverLine(line, lineEnd, decoder, units);
            extent.fields += ofLine.fields;
            extent.units += ofLine.units;
            line = lineEnd + 1;
        }
        kept = end - line;
        std::memmove(buffer.data(), line, size_t(kept));
    }
    return extent;
}
