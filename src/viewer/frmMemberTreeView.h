#pragma once

#include "runtime/ErrorTrap.h"
#include "viewer/MemberTreeModel.h"

#include <QElapsedTimer>
#include <QTreeView>

/// A tree view of a MemberTreeModel that stays quick with a million nodes, all of them open.
class MemberTreeView final : public QTreeView
{
    Q_OBJECT

public:
    /// How deep nodes are opened by expandBelow(). A tree view lays out open nodes recursively, so
    /// a deeper hierarchy, which no application has, would overflow the thread's stack.
    static constexpr qint32 deepestExpansion = 1000;
    /// How many nodes can be selected at once: what a tree view does with a selection takes time
    /// that grows with the square of its size.
    static constexpr qint32 mostSelected = 10'000;

    MemberTreeView(ErrorTrap &trap, MemberTreeModel *model, QWidget *parent = nullptr);

    /// Opens `index` and every node below it; every node of the tree where it is invalid.
    void expandBelow(const QModelIndex &index);
    /// The node that commands are about: the current one, if it is selected; else invalid.
    QModelIndex selectedNode() const;

    void keyboardSearch(const QString &typed) override;
    void selectAll() override;
    void reset() override;

Q_SIGNALS:
    /// The user asks for the menu: with the right mouse button, as he releases it, or with the menu
    /// key.
    void menuRequested(const QPoint &globalPosition);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    void updateGeometries() override;
    bool viewportEvent(QEvent *event) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;

private:
    bool handleKey(const QKeyEvent &event);
    bool openAt(const QPoint &position);
    void open(const QModelIndex &index);
    bool isClosedParent(const QModelIndex &index) const;
    bool isWhollySeen(const QModelIndex &index) const;
    bool labelStartsWith(const QModelIndex &index, const QString &text) const;
    void copySelection();
    void fitColumn();

    ErrorTrap &mTrap;
    MemberTreeModel *mModel;
    QString mTyped; ///< of a label, so far
    QElapsedTimer mSinceTyped;
    int mWidest = 0; ///< of the rows seen since the last reset, in pixels
};
