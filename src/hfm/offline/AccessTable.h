#pragma once

#include <QList>

#include <span>
#include <vector>

namespace hfm::offline {

/// A table of codes of which most are 0, such as the access of users to security classes. It takes
/// memory for the codes that are not absent, and tells a row or a column in the time that its
/// length takes.
class AccessTable
{
public:
    struct Record
    {
        qint32 row;
        qint32 column;
        qint8 code;
    };

    AccessTable() = default;
    /// `records` may come in any order; their rows and columns count from 0. Where two are of the
    /// same row and column the first holds, and `repeated` gets the positions of the others,
    /// ascending.
    AccessTable(qint32 rows, qint32 columns, std::span<const Record> records,
                std::vector<size_t> &repeated);

    /// The code in each column of the row, 0 where there is no record.
    QList<qint32> row(qint32 row) const { return mRows.codes(row, mColumns.count()); }
    /// The code in each row of the column, 0 where there is no record.
    QList<qint32> column(qint32 column) const { return mColumns.codes(column, mRows.count()); }

private:
    /// The records of each line of one direction, side by side.
    struct Lines
    {
        std::vector<quint32> starts; ///< by line, and one more where the last one ends
        std::vector<qint32> places;  ///< where in its line a record stands
        std::vector<qint8> found;    ///< its code

        explicit Lines(qint32 count = 0) : starts(size_t(count) + 1) {}
        qint32 count() const { return qint32(starts.size()) - 1; }
        QList<qint32> codes(qint32 line, qint32 length) const;
    };

    void putIntoRows(std::span<const Record> records, std::vector<size_t> &repeated);
    void putIntoColumns();

    Lines mRows;
    Lines mColumns;
};

} // namespace hfm::offline
