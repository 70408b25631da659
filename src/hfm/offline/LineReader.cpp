#include "hfm/offline/LineReader.h"

#include "hfm/offline/ReadingError.h"

#include <algorithm>
#include <cstring>

namespace hfm::offline {

namespace {
constexpr qsizetype pieceSize = qsizetype(1) << 20;
}

LineReader::LineReader(QIODevice &device, QString fileName, Encoding encoding)
    : mDevice(device), mFileName(std::move(fileName)), mEncoding(encoding), mTranscoder(encoding)
{
    makeRoom(pieceSize);
}

bool LineReader::next()
{
    while (true) {
        if (mAfterReturn && mStart < mEnd) {
            mStart += mBuffer[mStart] == '\n';
            mAfterReturn = false;
        }
        find(mLineFeed);
        find(mReturn);
        const qsizetype end = std::min(mLineFeed.at, mReturn.at);
        refuseLongLine(end - mStart);
        if (end < mEnd) {
            take(end);
            mAfterReturn = mBuffer[end] == '\r';
            mStart = end + 1;
            return true;
        }
        if (!fill())
            break;
    }
    if (mStart == mEnd)
        return false;
    take(mEnd);
    mStart = mEnd;
    mCut = true;
    return true;
}

void LineReader::take(qsizetype end)
{
    mLineStart = mStart;
    mLineEnd = end;
    ++mNumber;
}

void LineReader::find(NextByte &next) const
{
    if (next.at >= mStart)
        return;
    const void *found = std::memchr(mBuffer.get() + mStart, next.byte, size_t(mEnd - mStart));
    next.at = found ? static_cast<const char *>(found) - mBuffer.get() : mEnd;
}

/// Reads one more piece of the file; false at its end.
bool LineReader::fill()
{
    if (mFileEnded)
        return false;
    if (mBeforeLinesEnd)
        mBeforeLinesEnd();
    std::memmove(mBuffer.get(), mBuffer.get() + mStart, size_t(mEnd - mStart));
    mEnd -= mStart;
    mStart = 0;
    const qsizetype from = mEnd;
    if (mEncoding == Encoding::Utf8) {
        makeRoom(pieceSize);
        mEnd += readPiece().size();
    } else {
        const QByteArray text = mTranscoder.toUtf8(readPiece());
        makeRoom(text.size());
        std::memcpy(mBuffer.get() + mEnd, text.constData(), size_t(text.size()));
        mEnd += text.size();
    }
    refuseZeroByte(from);
    for (NextByte *next : {&mLineFeed, &mReturn}) {
        const void *found = std::memchr(mBuffer.get() + from, next->byte, size_t(mEnd - from));
        next->at = found ? static_cast<const char *>(found) - mBuffer.get() : mEnd;
    }
    return true;
}

/// Reads into the buffer itself where the bytes need no change.
QByteArrayView LineReader::readPiece()
{
    char *target = mBuffer.get() + mEnd;
    if (mEncoding != Encoding::Utf8) {
        mPiece.resize(pieceSize);
        target = mPiece.data();
    }
    const qint64 count = mDevice.read(target, pieceSize);
    if (count < 0)
        throw ReadingError(
            mFileName, 0, QStringLiteral("The file cannot be read: %1").arg(mDevice.errorString()));
    mFileEnded = count == 0;
    const QByteArrayView piece(target, count);
    if (mObserver)
        mObserver(piece);
    return piece;
}

void LineReader::makeRoom(qsizetype bytes)
{
    if (mCapacity - mEnd >= bytes)
        return;
    const qsizetype capacity = std::max(2 * mCapacity, mEnd + bytes);
    auto larger = std::make_unique_for_overwrite<char[]>(size_t(capacity));
    std::copy_n(mBuffer.get(), mEnd, larger.get());
    mBuffer = std::move(larger);
    mCapacity = capacity;
}

void LineReader::refuseLongLine(qsizetype length) const
{
    if (length > longestLine)
        throw ReadingError(mFileName, mNumber + 1,
                           QStringLiteral("The line is longer than %1 bytes; this is no file of an "
                                          "application.")
                               .arg(longestLine));
}

void LineReader::refuseZeroByte(qsizetype from) const
{
    const char *begin = mBuffer.get() + from;
    const void *zero = std::memchr(begin, '\0', size_t(mEnd - from));
    if (!zero)
        return;
    qint64 line = mNumber + 1;
    const char *position = mBuffer.get() + (mAfterReturn && mBuffer[0] == '\n');
    for (; position != zero; ++position)
        line += *position == '\n' || (*position == '\r' && position[1] != '\n');
    throw ReadingError(mFileName, line,
                       QStringLiteral("A zero byte stands there; this is no text file."));
}

} // namespace hfm::offline
