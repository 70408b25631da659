#pragma once

#include "hfm/offline/DimensionKind.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QList>

#include <array>

namespace hfm::offline {

/// The fields of member records that are read; every other one is passed over.
enum class Column {
    Label,
    SecurityClass,
    UserDefined1,
    UserDefined2,
    UserDefined3,
    // Entity
    DefCurrency,
    AllowAdjs,
    AllowAdjFromChildren,
    IsICP, // and Account
    HoldingCompany,
    // Account
    AccountType,
    IsCalculated,
    IsConsolidated,
    NumDecimalPlaces,
    UsesLineItems,
    TopMember1,
    TopMember2,
    TopMember3,
    TopMember4,
    EnableAggr1,
    EnableAggr2,
    EnableAggr3,
    EnableAggr4,
    Count
};

/// The custom dimensions' own names, as they are found in the names of columns.
class CustomNames
{
public:
    /// `names` are the dimensions' own names, in order.
    explicit CustomNames(const QList<QByteArray> &names);

    /// The dimension's position, from 0, by what a column's name holds besides the words that all
    /// such columns have: its own name, or "CustomN". -1 where that tells none.
    qsizetype find(const QByteArray &rest) const;

private:
    QHash<QByteArray, qsizetype> mPositions;
};

/// Where the fields of a section's member records stand, as counted from 0, before the
/// DefaultParent field or the first description.
class Layout
{
public:
    /// The order that HFM documents. `customs` is the number of the application's custom
    /// dimensions. The shorter forms of older releases lack fields at the end only.
    static Layout documented(DimensionKind kind, qsizetype customs);
    /// The order that a comment names.
    static Layout named(const QList<QByteArrayView> &columns, const CustomNames &customNames);

    /// The field's index, or -1.
    qsizetype index(Column column) const { return mIndexes[size_t(column)]; }
    /// How many fields there are before the DefaultParent field.
    qsizetype count() const { return mCount; }
    /// Whether the records have a DefaultParent field.
    bool hasDefaultParent() const { return mHasDefaultParent; }

private:
    Layout() { mIndexes.fill(-1); }
    void append(Column column) { mIndexes[size_t(column)] = mCount++; }
    void append(std::initializer_list<Column> columns);
    void appendAccount(qsizetype customs);
    void skip(qsizetype fields) { mCount += fields; }

    std::array<qsizetype, size_t(Column::Count)> mIndexes;
    qsizetype mCount = 0;
    bool mHasDefaultParent = true;
};

/// The column of the k-th custom dimension (from 0, up to 3) among four such columns.
constexpr Column ofCustom(Column first, qsizetype k)
{
    return Column(int(first) + int(k));
}

} // namespace hfm::offline
