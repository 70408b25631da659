#pragma once

#include "generator/ApplicationGenerator.h"

#include <QByteArray>

namespace generator {

/// Gathers the fields of a file's lines and hands them on in large pieces, in the encoding and with
/// the delimiter and line ends that were asked for.
class ChunkWriter
{
public:
    ChunkWriter(const Request &request, QIODevice &out);

    /// Appends UTF-8 text to the line.
    ChunkWriter &operator<<(QByteArrayView text)
    {
        mChunk.append(text);
        return *this;
    }
    ChunkWriter &field(QByteArrayView text)
    {
        mChunk.append(mDelimiter).append(text);
        return *this;
    }
    void endLine()
    {
        mChunk.append(mLineEnd);
        if (mChunk.size() >= chunkSize)
            flush();
    }
    void line(QByteArrayView text)
    {
        *this << text;
        endLine();
    }
    /// Hands on what is left. Throws std::runtime_error as generate() does.
    void flush();

private:
    static constexpr qsizetype chunkSize = 1 << 20;

    void write(const QByteArray &bytes);

    QIODevice &mOut;
    Encoding mEncoding;
    char mDelimiter;
    QByteArray mLineEnd;
    QByteArray mChunk;
};

} // namespace generator
