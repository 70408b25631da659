#include "viewer/frmMemberTreeView.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>

#include <algorithm>

MemberTreeView::MemberTreeView(ErrorTrap &trap, MemberTreeModel *model, QWidget *parent)
    : QTreeView(parent), mTrap(trap), mModel(model)
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectItems); // whole rows, by ranges, would take quadratic time
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(false); // see mouseDoubleClickEvent()
    header()->setStretchLastSection(false);
    header()->setResizeContentsPrecision(0); // the rows that are seen
    header()->setMinimumSectionSize(1);
    setModel(model);
}

// Nodes are opened while a layout is pending, so that they are laid out once, and in linear time.
void MemberTreeView::expandBelow(const QModelIndex &index)
{
    scheduleDelayedItemsLayout();
    std::vector<QModelIndex> open = {index};
    if (index.isValid())
        expand(index);
    while (!open.empty()) {
        const QModelIndex parent = open.back();
        open.pop_back();
        const int rows = mModel->rowCount(parent);
        if (rows == 0 || (parent.isValid() && mModel->level(parent) >= deepestExpansion))
            continue;
        for (int row = 0; row < rows; ++row) {
            const QModelIndex child = mModel->index(row, 0, parent);
            if (!mModel->hasChildren(child))
                continue;
            expand(child);
            open.push_back(child);
        }
    }
    executeDelayedItemsLayout();
}

QModelIndex MemberTreeView::selectedNode() const
{
    const QModelIndex current = currentIndex();
    return selectionModel()->isSelected(current) ? current : QModelIndex();
}

/// Opening a node whose children are open already makes a tree view insert them parent by parent,
/// which takes minutes in a large tree. Laying out everything anew takes a tenth of a second.
void MemberTreeView::open(const QModelIndex &index)
{
    bool hasOpenChildren = false;
    for (int row = 0; row < mModel->rowCount(index) && !hasOpenChildren; ++row)
        hasOpenChildren = isExpanded(mModel->index(row, 0, index));
    if (hasOpenChildren)
        scheduleDelayedItemsLayout();
    expand(index);
    if (hasOpenChildren)
        executeDelayedItemsLayout();
}

bool MemberTreeView::isClosedParent(const QModelIndex &index) const
{
    return index.isValid() && mModel->hasChildren(index) && !isExpanded(index);
}

/// Whether there was a closed node's sign at `position`, which is now open.
bool MemberTreeView::openAt(const QPoint &position)
{
    const QModelIndex index = indexAt(position);
    if (!isClosedParent(index))
        return false;
    QRect sign = visualRect(index);
    if (isRightToLeft())
        sign.setLeft(sign.right() + 1);
    else
        sign.setLeft(sign.left() - indentation());
    sign.setWidth(indentation());
    if (!sign.contains(position))
        return false;
    open(index);
    return true;
}

void MemberTreeView::mousePressEvent(QMouseEvent *event)
{
    mTrap.run([&] {
        if (event->button() != Qt::LeftButton || !openAt(event->position().toPoint()))
            QTreeView::mousePressEvent(event);
    });
}

void MemberTreeView::mouseReleaseEvent(QMouseEvent *event)
{
    mTrap.run([&] {
        QTreeView::mouseReleaseEvent(event);
        if (event->button() == Qt::RightButton)
            Q_EMIT menuRequested(event->globalPosition().toPoint());
    });
}

void MemberTreeView::mouseDoubleClickEvent(QMouseEvent *event)
{
    mTrap.run([&] {
        QTreeView::mouseDoubleClickEvent(event);
        const QPoint position = event->position().toPoint();
        const QModelIndex index = indexAt(position);
        if (event->button() != Qt::LeftButton || !visualRect(index).contains(position))
            return;
        if (isClosedParent(index))
            open(index);
        else
            collapse(index);
    });
}

void MemberTreeView::contextMenuEvent(QContextMenuEvent *event)
{
    // Some platforms send this as the mouse button goes down.
    if (event->reason() == QContextMenuEvent::Mouse)
        return;
    mTrap.run([&] {
        const QPoint position = visualRect(currentIndex()).intersected(viewport()->rect()).center();
        Q_EMIT menuRequested(viewport()->mapToGlobal(position));
    });
}

void MemberTreeView::keyPressEvent(QKeyEvent *event)
{
    mTrap.run([&] {
        if (!handleKey(*event))
            QTreeView::keyPressEvent(event);
    });
}

bool MemberTreeView::handleKey(const QKeyEvent &event)
{
    if (event.matches(QKeySequence::Copy)) {
        copySelection();
        return true;
    }
    const QModelIndex current = currentIndex();
    const int forward = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    if ((event.key() == forward || event.key() == Qt::Key_Plus) && isClosedParent(current)) {
        open(current);
        return true;
    }
    if (event.key() == Qt::Key_Asterisk && current.isValid()) {
        expandBelow(current);
        return true;
    }
    return false;
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
    const bool goesOn =
        mSinceTyped.isValid() && !mSinceTyped.hasExpired(QApplication::keyboardInputInterval());
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
        QTreeView::setSelection(rect, command);
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
    return QTreeView::viewportEvent(event);
}

bool MemberTreeView::isWhollySeen(const QModelIndex &index) const
{
    QRect text = visualRect(index);
    text.setWidth(sizeHintForIndex(index).width());
    return text.left() >= 0 && text.right() < viewport()->width();
}

void MemberTreeView::reset()
{
    mWidest = 0;
    QTreeView::reset();
}

void MemberTreeView::updateGeometries()
{
    fitColumn();
    QTreeView::updateGeometries();
}

void MemberTreeView::scrollContentsBy(int dx, int dy)
{
    QTreeView::scrollContentsBy(dx, dy);
    if (dy != 0)
        fitColumn();
}

/// As wide as the widest row seen so far, so that long texts can be scrolled to, and never
/// narrower than the view.
void MemberTreeView::fitColumn()
{
    mWidest = std::max(mWidest, sizeHintForColumn(0));
    const int width = std::max(mWidest, viewport()->width());
    if (header()->count() > 0 && header()->sectionSize(0) != width)
        header()->resizeSection(0, width);
}
