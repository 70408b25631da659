#include "listbuilder/NewListModel.h"

#include "runtime/Counter16.h"

void NewListModel::append(const QStringList &labels)
{
    if (labels.isEmpty())
        return;
    beginInsertRows({}, rowCount(), rowCount() + int(labels.size()) - 1);
    mEntries += labels;
    endInsertRows();
}

void NewListModel::remove(int row)
{
    if (row < 0)
        return;
    beginRemoveRows({}, row, row);
    mEntries.removeAt(row);
    endRemoveRows();
}

void NewListModel::clear()
{
    beginResetModel();
    mEntries.clear();
    endResetModel();
}

int NewListModel::moveUp(int row)
{
    const qint16 count = Counter16(mEntries.size()).value();
    if (row <= 0 || row >= count)
        return row;
    exchangeWithNext(row - 1);
    return row - 1;
}

int NewListModel::moveDown(int row)
{
    const qint16 count = Counter16(mEntries.size()).value();
    if (row < 0 || row >= count - 1)
        return row;
    exchangeWithNext(row);
    return row + 1;
}

void NewListModel::exchangeWithNext(int row)
{
    mEntries.swapItemsAt(row, row + 1);
    Q_EMIT dataChanged(index(row), index(row + 1));
}

int NewListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(mEntries.size());
}

QVariant NewListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return mEntries[index.row()];
}

Qt::ItemFlags NewListModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}
