#pragma once

#include "viewer/MemberTree.h"

#include <QAbstractItemModel>

#include <memory>

/// Shows a member tree, or the part of it below one member, in a tree view. It copies nothing: the
/// tree is shared, so a part stays as it is when the whole is rebuilt. One column.
class MemberTreeModel final : public QAbstractItemModel
{
public:
    enum Role {
        KeyRole = Qt::UserRole, ///< the node's key, a QString
        TagRole,                ///< the node's path entry, a QString
        LevelRole,              ///< 1 for a root of the shown tree, an int
    };

    using QAbstractItemModel::QAbstractItemModel;

    /// Shows `tree`, nothing where it is null; with `top`, that node as the only root and what is
    /// below it. The tree is not changed any more while it is shown.
    void show(std::shared_ptr<const MemberTree> tree, qint32 top = MemberTree::none);

    const std::shared_ptr<const MemberTree> &tree() const { return mTree; }
    /// The node behind a valid index of this model.
    qint32 node(const QModelIndex &index) const { return qint32(index.internalId()); }
    /// 1 for a root of the shown tree. `index` is a valid one of this model.
    qint32 level(const QModelIndex &index) const;
    /// Where a node stands; `node` is none or one of those shown.
    QModelIndex indexOf(qint32 node) const;

    /// The texts of the nodes, in the order of their numbers, joined by line feeds.
    QString joinedTexts(const QModelIndexList &indexes) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    bool isRoot(qint32 node) const;
    QString spokenText(const QModelIndex &index) const;

    std::shared_ptr<const MemberTree> mTree;
    qint32 mTop = MemberTree::none;
};
