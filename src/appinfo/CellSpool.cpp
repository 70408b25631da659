#include "appinfo/CellSpool.h"

#include "appinfo/CellText.h"
#include "runtime/SystemError.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype fullBuffer = 1 << 16;
/// Small, as a row that was written in two columns is read from two places of the file.
constexpr qint64 readAtOnce = 1 << 13;
constexpr qsizetype mostBytesOfACell = CellText::mostBytes + 64; // with its NUL and tail

RuntimeError noSuchCell(qint32 row, qint32 column, const QString &workbook)
{
    return RuntimeError(
        ApplicationDefinedError, u"Tessaly"_s,
        u"A worksheet has 1,048,576 rows and 16,384 columns, so there is no cell in row %1, "
        "column %2. The workbook is not written: "_s.arg(row)
                .arg(column) +
            workbook);
}

int lastError()
{
    return errno != 0 ? errno : EIO;
}

} // namespace

CellSpool::CellSpool(const QString &path, QString workbook)
    : mFile(path), mWorkbook(std::move(workbook)),
      // A chunk begins before the buffer is full, and ends with the cell that makes it full.
      mUnwritten(2 * (fullBuffer + qsizetype(sizeof(Head))) + mostBytesOfACell, Qt::Uninitialized),
      mSeenIn(mostColumns + 1)
{
    errno = 0;
    if (!mFile.open(QIODevice::ReadWrite | QIODevice::NewOnly | QIODevice::Unbuffered))
        throw errorFromSystem(lastError(), mWorkbook);
    unlink(QFile::encodeName(path).constData()); // its bytes go with this process, come what may
}

bool CellSpool::setCell(qint32 row, qint32 column, QStringView text)
{
    if (row < 1 || row > mostRows || column < 1 || column > mostColumns)
        throw noSuchCell(row, column, mWorkbook);
    if (row != mRow || mUsed - mChunk > fullBuffer)
        beginChunk(row);
    char *const start = mUnwritten.data() + mUsed;
    auto [end, isWhole] = CellText::write(text, start);
    *end++ = '\0';
    const Tail tail{column, qint32(end - start)};
    mUsed += tail.size;
    append(tail);
    return isWhole;
}

template <typename Value>
void CellSpool::append(const Value &value)
{
    std::memcpy(mUnwritten.data() + mUsed, &value, sizeof value);
    mUsed += qsizetype(sizeof value);
}

void CellSpool::beginChunk(qint32 row)
{
    endChunk();
    if (row > rowCount())
        mNewest.resize(size_t(row), none);
    mRow = row;
    mChunk = mUsed;
    append(Head{mNewest[size_t(row - 1)], 0});
    mNewest[size_t(row - 1)] = mWritten + mChunk;
}

void CellSpool::endChunk()
{
    if (mRow == 0)
        return;
    const qint64 size = mUsed - mChunk - qsizetype(sizeof(Head));
    std::memcpy(mUnwritten.data() + mChunk + offsetof(Head, size), &size, sizeof size);
    mRow = 0;
    if (mUsed > fullBuffer)
        flush();
}

void CellSpool::flush()
{
    const char *bytes = mUnwritten.constData();
    const char *const end = bytes + mUsed;
    while (bytes != end) {
        errno = 0;
        const qint64 count = mFile.write(bytes, end - bytes);
        if (count <= 0)
            throw errorFromSystem(lastError(), mWorkbook);
        bytes += count;
    }
    mWritten += mUsed;
    mUsed = 0;
}

void CellSpool::endWriting()
{
    endChunk();
    flush();
    mUnwritten = {};
}

void CellSpool::visitRow(qint32 row, const Visit &visit)
{
    for (qint64 place = mNewest[size_t(row - 1)]; place != none;) {
        Head head;
        std::memcpy(&head, read(place, sizeof head), sizeof head);
        const char *const cells = read(place + qint64(sizeof head), head.size);
        for (const char *end = cells + head.size; end != cells;) {
            Tail tail;
            std::memcpy(&tail, end - sizeof tail, sizeof tail);
            end -= qsizetype(sizeof tail) + tail.size;
            qint32 &seenIn = mSeenIn[size_t(tail.column)];
            if (seenIn != row && *end != '\0')
                visit(tail.column, end);
            seenIn = row;
        }
        place = head.previous;
    }
}

/// The bytes are valid until the next call.
const char *CellSpool::read(qint64 place, qint64 size)
{
    if (place < mReadPlace || place + size > mReadPlace + mRead.size()) {
        mRead.resize(std::max(size, std::min(readAtOnce, mWritten - place)));
        mReadPlace = place;
        qint64 done = 0;
        while (done < mRead.size()) {
            errno = 0;
            const qint64 count = pread(mFile.handle(), mRead.data() + done,
                                       size_t(mRead.size() - done), off_t(place + done));
            if (count <= 0)
                throw errorFromSystem(lastError(), mWorkbook);
            done += count;
        }
    }
    return mRead.constData() + (place - mReadPlace);
}
