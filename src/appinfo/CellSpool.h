#pragma once

#include <QFile>
#include <QStringView>

#include <functional>
#include <vector>

/// A worksheet's cells on their way to a workbook file. They come in any order, wait in a file of
/// their own and leave row by row, as the file format wants them. In memory are 8 bytes for each
/// row and some hundred kilobytes besides, however many cells there are.
class CellSpool
{
public:
    static constexpr qint32 mostRows = 1'048'576;
    static constexpr qint32 mostColumns = 16'384;

    /// Makes the file `path`, which loses its name at once where the file system has such files;
    /// its errors name `workbook`. Fails as errorFromSystem() tells.
    CellSpool(const QString &path, QString workbook);
    /// Removes the file.
    ~CellSpool() { mFile.remove(); }
    Q_DISABLE_COPY_MOVE(CellSpool)

    /// Sets a cell's text, as CellText makes it. False where it was cut.
    /// Fails with RuntimeError ApplicationDefinedError for a cell that no worksheet has, and as
    /// errorFromSystem() tells.
    bool setCell(qint32 row, qint32 column, QStringView text);

    /// To be called once, after the last setCell() and before the cells are read.
    void endWriting();
    /// The last row that has a cell, from 1; 0 where there is none.
    qint32 rowCount() const { return qint32(mNewest.size()); }

    /// Takes a cell's column and its text in UTF-8, ended with a NUL.
    using Visit = std::function<void(qint32 column, const char *text)>;
    /// Calls `visit` for each cell of a row that is not empty, once, in no order of columns.
    /// Fails as errorFromSystem() tells.
    void visitRow(qint32 row, const Visit &visit);

private:
    // The file is made of chunks: a head, then cells of one row that were written one after the
    // other. A cell is its text, a NUL and a tail, since the cells are read from the last one back.
    struct Head
    {
        qint64 previous; ///< the place of the chunk with the same row's cells before these, or none
        qint64 size;     ///< in bytes, of all its cells
    };
    struct Tail
    {
        qint32 column;
        qint32 size; ///< in bytes, of the text with its NUL
    };
    static constexpr qint64 none = -1;

    template <typename Value>
    void append(const Value &value);
    void beginChunk(qint32 row);
    void endChunk();
    void flush();
    const char *read(qint64 place, qint64 size);

    QFile mFile;
    QString mWorkbook;
    std::vector<qint64> mNewest; ///< the place of each row's newest chunk

    QByteArray mUnwritten; ///< what follows on the file's bytes; its last chunk is being filled
    qsizetype mUsed = 0;   ///< of mUnwritten
    qint64 mWritten = 0;   ///< bytes in the file
    qint32 mRow = 0;       ///< of the chunk that is being filled; 0: none
    qsizetype mChunk = 0;  ///< its position in mUnwritten

    QByteArray mRead; ///< some bytes of the file
    qint64 mReadPlace = 0;
    std::vector<qint32> mSeenIn; ///< for each column, the row that it was last seen in
};
