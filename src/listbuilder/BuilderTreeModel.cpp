#include "listbuilder/BuilderTreeModel.h"

void BuilderTreeModel::show(BuilderTree tree)
{
    beginResetModel();
    mTree = std::move(tree);
    mChecked.assign(size_t(mTree.count()), false);
    endResetModel();
}

void BuilderTreeModel::checkAll(bool checked)
{
    // Telling of each parent's children apart would take a view a look at the whole tree each time.
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::NoLayoutChangeHint);
    mChecked.assign(mChecked.size(), checked);
    Q_EMIT layoutChanged({}, QAbstractItemModel::NoLayoutChangeHint);
}

QStringList BuilderTreeModel::checkedTags() const
{
    QStringList tags;
    for (qint32 each = 0; each < mTree.count(); ++each) {
        if (mChecked[size_t(each)])
            tags.append(mTree.tag(each));
    }
    return tags;
}

QModelIndex BuilderTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column != 0 || row >= rowCount(parent))
        return {};
    return createIndex(row, 0, quintptr(mTree.children(node(parent))[size_t(row)]));
}

QModelIndex BuilderTreeModel::parent(const QModelIndex &child) const
{
    if (!child.isValid())
        return {};
    const qint32 above = mTree.parent(node(child));
    return above == BuilderTree::none ? QModelIndex()
                                      : createIndex(mTree.row(above), 0, quintptr(above));
}

int BuilderTreeModel::rowCount(const QModelIndex &parent) const
{
    return int(mTree.children(node(parent)).size());
}

int BuilderTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant BuilderTreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return mTree.text(node(index));
    case Qt::CheckStateRole:
        return int(mChecked[size_t(node(index))] ? Qt::Checked : Qt::Unchecked);
    case KeyRole:
        return mTree.key(node(index));
    case TagRole:
        return mTree.tag(node(index));
    default:
        return {};
    }
}

bool BuilderTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::CheckStateRole)
        return false;
    mChecked[size_t(node(index))] = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    return true;
}

Qt::ItemFlags BuilderTreeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable;
    return rowCount(index) > 0 ? flags : flags | Qt::ItemNeverHasChildren;
}
