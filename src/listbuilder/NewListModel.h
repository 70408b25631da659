#pragma once

#include <QAbstractListModel>
#include <QStringList>

/// The new member list: a label a row, in the user's order. A label may stand more than once.
class NewListModel final : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    const QStringList &entries() const { return mEntries; }

    /// Adds entries at the end, those that are there already too.
    void append(const QStringList &labels);
    /// Removes a row; -1 for no row removes nothing.
    void remove(int row);
    void clear();
    /// Exchanges a row and the one above it, or below it, and returns where the row is then. The
    /// first row does not move up, the last not down, and -1, no row, not at all.
    /// Fail with RuntimeError Overflow in a list of more than 32,767 rows.
    int moveUp(int row);
    int moveDown(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    void exchangeWithNext(int row);

    QStringList mEntries;
};
