#include "viewer/frmMemberTreeView.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>

#include <algorithm>

MemberTreeView::MemberTreeView(ErrorTrap &trap, MemberTreeModel *model, QWidget *parent)
    : DeepTreeView(trap, parent), mTrap(trap), mModel(model)
{
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectItems); // whole rows, by ranges, would take quadratic time
    setEditTriggers(NoEditTriggers);
    setModel(model);
}

QModelIndex MemberTreeView::selectedNode() const
{
    const QModelIndex current = currentIndex();
    if (selectionModel()->isSelected(current))
        return current;
    // Ctrl and the mouse can make another node current.
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    const auto first = std::min_element(selected.begin(), selected.end(), [this](auto &a, auto &b) {
        return mModel->node(a) < mModel->node(b);
    });
    return first == selected.end() ? QModelIndex() : *first;
}

void MemberTreeView::mouseReleaseEvent(QMouseEvent *event)
{
    mTrap.run([&] {
        DeepTreeView::mouseReleaseEvent(event);
        if (event->button() == Qt::RightButton)
            Q_EMIT menuRequested(event->globalPosition().toPoint());
    });
}

void MemberTreeView::contextMenuEvent(QContextMenuEvent *event)
{
    // Some platforms send this as the mouse button goes down.
    if (event->reason() == QContextMenuEvent::Mouse)
        return;
    mTrap.run([&] {
        const QPoint position = visualRect(selectedNode()).intersected(viewport()->rect()).center();
        Q_EMIT menuRequested(viewport()->mapToGlobal(position));
    });
}

void MemberTreeView::keyPressEvent(QKeyEvent *event)
{
    mTrap.run([&] {
        if (event->matches(QKeySequence::Copy))
            copySelection();
        else
            DeepTreeView::keyPressEvent(event);
    });
}

void MemberTreeView::copySelection()
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    if (!selected.isEmpty())
        QApplication::clipboard()->setText(mModel->joinedTexts(selected));
}

/// Goes to the next open node whose label begins with what was typed, from the top again after the
/// last one. The same letter typed again and again goes from one to the next.
void MemberTreeView::keyboardSearch(const QString &typed)
{
    if (typed.isEmpty())
        return;
    const bool goesOn =
        mSinceTyped.isValid() && mSinceTyped.elapsed() < QApplication::keyboardInputInterval();
    mSinceTyped.start();
    mTyped = goesOn ? mTyped + typed : typed;
    const bool isRepeated =
        std::all_of(mTyped.begin(), mTyped.end(), [&](QChar c) { return c == mTyped.front(); });
    const QString wanted = isRepeated ? mTyped.first(1) : mTyped;

    const QModelIndex top = mModel->index(0, 0);
    const bool startsAtCurrent = visualRect(currentIndex()).height() > 0; // it may be hidden
    const QModelIndex start = startsAtCurrent ? currentIndex() : top;
    QModelIndex candidate = start;
    do {
        const bool isPassedOver = isRepeated && startsAtCurrent && candidate == start;
        if (!isPassedOver && labelStartsWith(candidate, wanted)) {
            setCurrentIndex(candidate);
            return;
        }
        candidate = indexBelow(candidate);
        if (!candidate.isValid())
            candidate = top;
    } while (candidate != start);
}

bool MemberTreeView::labelStartsWith(const QModelIndex &index, const QString &text) const
{
    return index.isValid() &&
           mModel->tree()->label(mModel->node(index)).startsWith(text, Qt::CaseInsensitive);
}

void MemberTreeView::selectAll()
{
    const QModelIndex first = mModel->index(0, 0);
    if (!first.isValid())
        return;
    const QModelIndex last = moveCursor(MoveEnd, Qt::NoModifier);
    const QRect all(visualRect(first).center(), visualRect(last).center());
    if (all.height() <= mostSelected * visualRect(first).height())
        setSelection(all, QItemSelectionModel::ClearAndSelect);
}

void MemberTreeView::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    const int rowHeight = std::max(1, visualRect(currentIndex()).height());
    if (std::abs(rect.height()) / rowHeight > mostSelected)
        selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
    else
        DeepTreeView::setSelection(rect, command);
}

/// Everything, since the exact region takes longer than painting it.
QRegion MemberTreeView::visualRegionForSelection(const QItemSelection &) const
{
    return viewport()->rect();
}

bool MemberTreeView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const QModelIndex index = indexAt(help->pos());
        if (!index.isValid() || isWhollySeen(index)) {
            event->ignore();
            return true;
        }
    }
    return DeepTreeView::viewportEvent(event);
}

bool MemberTreeView::isWhollySeen(const QModelIndex &index) const
{
    QRect text = visualRect(index);
    text.setWidth(sizeHintForIndex(index).width());
    return text.left() >= 0 && text.right() < viewport()->width();
}
