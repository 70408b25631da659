#include "hfm/offline/AccessTable.h"

#include <algorithm>
#include <numeric>

namespace hfm::offline {

AccessTable::AccessTable(qint32 rows, qint32 columns, std::span<const Record> records,
                         std::vector<size_t> &repeated)
    : mRows(rows), mColumns(columns)
{
    putIntoRows(records, repeated);
    putIntoColumns();
}

void AccessTable::putIntoRows(std::span<const Record> records, std::vector<size_t> &repeated)
{
    std::vector<quint32> ends(mRows.starts.size());
    for (const Record &record : records)
        ++ends[size_t(record.row) + 1];
    std::partial_sum(ends.begin(), ends.end(), ends.begin());
    const std::vector<quint32> starts = ends;
    std::vector<quint32> ordered(records.size());
    for (size_t i = 0; i < records.size(); ++i)
        ordered[ends[size_t(records[i].row)]++] = quint32(i);

    mRows.places.reserve(records.size());
    mRows.found.reserve(records.size());
    std::vector<qint32> lastRow(mColumns.starts.size(), -1); // that has a record in the column
    for (qint32 row = 0; row < mRows.count(); ++row) {
        for (quint32 at = starts[size_t(row)]; at < starts[size_t(row) + 1]; ++at) {
            const Record &record = records[ordered[at]];
            if (lastRow[size_t(record.column)] == row) {
                repeated.push_back(ordered[at]);
                continue;
            }
            lastRow[size_t(record.column)] = row;
            mRows.places.push_back(record.column);
            mRows.found.push_back(record.code);
        }
        mRows.starts[size_t(row) + 1] = quint32(mRows.places.size());
    }
    std::sort(repeated.begin(), repeated.end());
}

void AccessTable::putIntoColumns()
{
    for (const qint32 column : mRows.places)
        ++mColumns.starts[size_t(column) + 1];
    std::partial_sum(mColumns.starts.begin(), mColumns.starts.end(), mColumns.starts.begin());
    std::vector<quint32> ends = mColumns.starts;
    mColumns.places.resize(mRows.places.size());
    mColumns.found.resize(mRows.places.size());
    for (qint32 row = 0; row < mRows.count(); ++row) {
        for (quint32 i = mRows.starts[size_t(row)]; i < mRows.starts[size_t(row) + 1]; ++i) {
            const quint32 place = ends[size_t(mRows.places[i])]++;
            mColumns.places[place] = row;
            mColumns.found[place] = mRows.found[i];
        }
    }
}

QList<qint32> AccessTable::Lines::codes(qint32 line, qint32 length) const
{
    QList<qint32> codes(length, 0);
    for (quint32 i = starts[size_t(line)]; i < starts[size_t(line) + 1]; ++i)
        codes[places[i]] = found[i];
    return codes;
}

} // namespace hfm::offline
