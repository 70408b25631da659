#pragma once

#include "hfm/offline/Encoding.h"

#include <QIODevice>
#include <QString>

#include <functional>
#include <memory>

namespace hfm::offline {

/// The lines of a text file, one after the other, as UTF-8, within memory that the file's size does
/// not change. Lines end with CR LF, LF or a lone CR, each file with what it likes.
///
/// What is no text fails with ReadingError: a zero byte, a line longer than longestLine, and
/// whatever the device cannot read.
class LineReader
{
public:
    /// In bytes of UTF-8. Records of HFM have some hundred.
    static constexpr qsizetype longestLine = qsizetype(16) << 20;

    /// Reads from where `device` stands. `fileName` is for the messages. `encoding` UTF-8 hands the
    /// bytes on unchecked, so that a file of single bytes can be looked through with it.
    LineReader(QIODevice &device, QString fileName, Encoding encoding);

    /// Calls `observer` with every piece of the file as it stands there.
    void observe(std::function<void(QByteArrayView)> observer) { mObserver = std::move(observer); }

    /// Calls `action` each time before the lines of the last while stop being valid.
    void beforeLinesEnd(std::function<void()> action) { mBeforeLinesEnd = std::move(action); }

    /// Goes to the next line; false at the file's end.
    bool next();
    /// The line without its end, valid up to the next call of next(), or of the action above.
    QByteArrayView line() const { return {mBuffer.get() + mLineStart, mLineEnd - mLineStart}; }
    /// The line's number, from 1; 0 before the first.
    qint64 number() const { return mNumber; }
    /// Whether the line is the file's last and has no line end.
    bool lineIsCut() const { return mCut; }
    const QString &fileName() const { return mFileName; }

private:
    /// Remembers where the next byte of a kind is, so that each byte is looked at once.
    struct NextByte
    {
        char byte;
        qsizetype at = 0; ///< its position; the buffer's end where it has none
    };

    bool fill();
    void makeRoom(qsizetype bytes);
    QByteArrayView readPiece();
    void refuseLongLine(qsizetype length) const;
    void refuseZeroByte(qsizetype from) const;
    void find(NextByte &next) const;
    void take(qsizetype end);

    QIODevice &mDevice;
    QString mFileName;
    Encoding mEncoding;
    Transcoder mTranscoder;
    std::function<void(QByteArrayView)> mObserver;
    std::function<void()> mBeforeLinesEnd;
    QByteArray mPiece;

    std::unique_ptr<char[]> mBuffer; ///< what was read and not yet left behind
    qsizetype mCapacity = 0;
    qsizetype mStart = 0; ///< where the line after this one begins
    qsizetype mEnd = 0;
    qsizetype mLineStart = 0;
    qsizetype mLineEnd = 0;
    NextByte mLineFeed = {'\n'};
    NextByte mReturn = {'\r'};
    qint64 mNumber = 0;
    bool mFileEnded = false;
    bool mAfterReturn = false; ///< a line feed at mStart belongs to the line before
    bool mCut = false;
};

} // namespace hfm::offline
