#include "viewer/MemberTreeModel.h"

#include <QStringBuilder>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

void MemberTreeModel::show(std::shared_ptr<const MemberTree> tree, qint32 top)
{
    beginResetModel();
    mTree = std::move(tree);
    mTop = top;
    endResetModel();
}

bool MemberTreeModel::isRoot(qint32 node) const
{
    return node == mTop || mTree->parent(node) == MemberTree::none;
}

qint32 MemberTreeModel::level(const QModelIndex &index) const
{
    return mTree->level(node(index)) - (mTop == MemberTree::none ? 0 : mTree->level(mTop) - 1);
}

QModelIndex MemberTreeModel::indexOf(qint32 node) const
{
    if (node == MemberTree::none)
        return {};
    return createIndex(node == mTop ? 0 : mTree->row(node), 0, quintptr(node));
}

QModelIndex MemberTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column != 0 || row >= rowCount(parent))
        return {};
    if (parent.isValid())
        return createIndex(row, 0, quintptr(mTree->child(node(parent), row)));
    const bool isWhole = mTop == MemberTree::none;
    return createIndex(row, 0, quintptr(isWhole ? mTree->child(MemberTree::none, row) : mTop));
}

QModelIndex MemberTreeModel::parent(const QModelIndex &child) const
{
    if (!child.isValid() || isRoot(node(child)))
        return {};
    return indexOf(mTree->parent(node(child)));
}

int MemberTreeModel::rowCount(const QModelIndex &parent) const
{
    if (!mTree)
        return 0;
    if (parent.isValid())
        return mTree->childCount(node(parent));
    return mTop == MemberTree::none ? mTree->childCount(MemberTree::none) : 1;
}

int MemberTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

bool MemberTreeModel::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

QVariant MemberTreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleDescriptionRole:
        return mTree->text(node(index));
    case Qt::ToolTipRole:
        // As rich text, so that it wraps, and a label such as "<Entity>" is no markup.
        return u"<p style=\"white-space:pre-wrap\">"_s + mTree->text(node(index)).toHtmlEscaped() +
               u"</p>"_s;
    case Qt::AccessibleTextRole:
        return spokenText(index);
    case KeyRole:
        return mTree->key(node(index));
    case TagRole:
        return mTree->tag(node(index));
    case LevelRole:
        return level(index);
    default:
        return {};
    }
}

/// "<label>, level 2, 3 of 7"
QString MemberTreeModel::spokenText(const QModelIndex &index) const
{
    return mTree->label(node(index)) % ", level "_L1 % QString::number(level(index)) % ", "_L1 %
           QString::number(index.row() + 1) % " of "_L1 % QString::number(rowCount(index.parent()));
}

Qt::ItemFlags MemberTreeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return rowCount(index) > 0 ? flags : flags | Qt::ItemNeverHasChildren;
}

QString MemberTreeModel::joinedTexts(const QModelIndexList &indexes) const
{
    std::vector<qint32> nodes;
    for (const QModelIndex &index : indexes)
        nodes.push_back(node(index));
    std::sort(nodes.begin(), nodes.end());
    QString text;
    for (const qint32 each : nodes)
        text += mTree->text(each) % u'\n';
    text.chop(1);
    return text;
}
