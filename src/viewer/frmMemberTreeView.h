#pragma once

#include "shell/frmDeepTreeView.h"
#include "viewer/MemberTreeModel.h"

#include <QElapsedTimer>

/// A tree view of a MemberTreeModel that stays quick with a million nodes, all of them open.
class MemberTreeView final : public DeepTreeView
{
    Q_OBJECT

public:
    /// How many nodes can be selected at once: what a tree view does with a selection takes time
    /// that grows with the square of its size.
    static constexpr qint32 mostSelected = 10'000;

    MemberTreeView(ErrorTrap &trap, MemberTreeModel *model, QWidget *parent = nullptr);

    /// The node that commands are about: the current one, if it is selected; else the first of
    /// those that are; invalid where none is.
    QModelIndex selectedNode() const;

    void keyboardSearch(const QString &typed) override;
    void selectAll() override;

Q_SIGNALS:
    /// The user asks for the menu: with the right mouse button, as he releases it, or with the menu
    /// key.
    void menuRequested(const QPoint &globalPosition);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    bool viewportEvent(QEvent *event) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;

private:
    bool isWhollySeen(const QModelIndex &index) const;
    bool labelStartsWith(const QModelIndex &index, const QString &text) const;
    void copySelection();

    ErrorTrap &mTrap;
    MemberTreeModel *mModel;
    QString mTyped; ///< of a label, so far
    QElapsedTimer mSinceTyped;
};
