#pragma once

#include "listbuilder/BuilderTree.h"

#include <QAbstractItemModel>
#include <QStringList>

/// Shows a tree to pick members from, and holds the check mark of each node. A mark says nothing
/// about the nodes below it. One column.
class BuilderTreeModel final : public QAbstractItemModel
{
public:
    enum Role {
        KeyRole = Qt::UserRole, ///< the node's key, a QString
        TagRole,                ///< the member's label, a QString
    };

    using QAbstractItemModel::QAbstractItemModel;

    /// Shows `tree`, with no node checked.
    void show(BuilderTree tree);

    /// Sets or clears the mark of every node.
    void checkAll(bool checked);
    /// The tags of the checked nodes, in the order in which the nodes were added.
    QStringList checkedTags() const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    /// The node behind an index; BuilderTree::none for an invalid one.
    static qint32 node(const QModelIndex &index)
    {
        return index.isValid() ? qint32(index.internalId()) : BuilderTree::none;
    }

    BuilderTree mTree;
    std::vector<bool> mChecked; ///< by node
};
