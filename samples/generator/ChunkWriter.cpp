#include "generator/ChunkWriter.h"

#include <QIODevice>
#include <QStringConverter>

#include <stdexcept>

namespace generator {

namespace {

QByteArray lineEndBytes(LineEnd lineEnd)
{
    switch (lineEnd) {
    case LineEnd::Lf:
        return QByteArrayLiteral("\n");
    case LineEnd::Cr:
        return QByteArrayLiteral("\r");
    case LineEnd::CrLf:
        break;
    }
    return QByteArrayLiteral("\r\n");
}

QByteArray encoded(const QByteArray &utf8, QStringConverter::Encoding encoding)
{
    return QStringEncoder(encoding)(QString::fromUtf8(utf8));
}

} // namespace

ChunkWriter::ChunkWriter(const Request &request, QIODevice &out)
    : mOut(out), mEncoding(request.encoding), mDelimiter(request.delimiter),
      mLineEnd(lineEndBytes(request.lineEnd))
{
    mChunk.reserve(chunkSize + 4096);
    if (mEncoding == Encoding::Utf8WithMark)
        write(QByteArrayLiteral("\xEF\xBB\xBF"));
    else if (mEncoding == Encoding::Utf16LittleEndian)
        write(QByteArrayLiteral("\xFF\xFE"));
    else if (mEncoding == Encoding::Utf16BigEndian)
        write(QByteArrayLiteral("\xFE\xFF"));
}

// A chunk ends at a line's end, so no character is ever cut in two.
void ChunkWriter::flush()
{
    switch (mEncoding) {
    case Encoding::Utf8:
    case Encoding::Utf8WithMark:
        write(mChunk);
        break;
    case Encoding::Utf16LittleEndian:
        write(encoded(mChunk, QStringConverter::Utf16LE));
        break;
    case Encoding::Utf16BigEndian:
        write(encoded(mChunk, QStringConverter::Utf16BE));
        break;
    case Encoding::Windows1252: // what is generated stays within the part it shares with Latin-1
        write(encoded(mChunk, QStringConverter::Latin1));
        break;
    }
    mChunk.resize(0);
}

void ChunkWriter::write(const QByteArray &bytes)
{
    if (mOut.write(bytes) != bytes.size())
        throw std::runtime_error(mOut.errorString().toStdString());
}

} // namespace generator
