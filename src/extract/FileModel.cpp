#include "extract/FileModel.h"

#include "extract/FileList.h"

void FileModel::setNames(const QStringList &names)
{
    beginResetModel();
    mNames = names;
    endResetModel();
}

QString FileModel::name(const QModelIndex &index) const
{
    return mNames.value(index.isValid() ? index.row() : -1);
}

int FileModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(mNames.size());
}

QVariant FileModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return FileList::displayName(name(index));
}
