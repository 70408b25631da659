#include "shell/frmDeepTreeView.h"

#include <QHeaderView>
#include <QMouseEvent>

#include <algorithm>
#include <vector>

namespace {

/// 0 for the invisible root.
qint32 levelOf(QModelIndex index)
{
    qint32 level = 0;
    for (; index.isValid(); index = index.parent())
        ++level;
    return level;
}

} // namespace

DeepTreeView::DeepTreeView(ErrorTrap &trap, QWidget *parent) : QTreeView(parent), mTrap(trap)
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setExpandsOnDoubleClick(false); // see mouseDoubleClickEvent()
    header()->setStretchLastSection(false);
    header()->setResizeContentsPrecision(0); // the rows that are seen
    header()->setMinimumSectionSize(1);
}

// Nodes are opened while a layout is pending, so that they are laid out once, and in linear time.
void DeepTreeView::expandBelow(const QModelIndex &index)
{
    scheduleDelayedItemsLayout();
    std::vector<std::pair<QModelIndex, qint32>> open = {{index, levelOf(index)}};
    if (index.isValid())
        expand(index);
    while (!open.empty()) {
        const auto [parent, level] = open.back();
        open.pop_back();
        const int rows = level < deepestExpansion ? model()->rowCount(parent) : 0;
        for (int row = 0; row < rows; ++row) {
            const QModelIndex child = model()->index(row, 0, parent);
            if (!model()->hasChildren(child))
                continue;
            expand(child);
            open.emplace_back(child, level + 1);
        }
    }
    executeDelayedItemsLayout();
}

/// Opening a node whose children are open already makes a tree view insert them parent by parent,
/// which takes minutes in a large tree. Laying out everything anew takes a tenth of a second.
void DeepTreeView::open(const QModelIndex &index)
{
    bool hasOpenChildren = false;
    for (int row = 0; row < model()->rowCount(index) && !hasOpenChildren; ++row)
        hasOpenChildren = isExpanded(model()->index(row, 0, index));
    if (hasOpenChildren)
        scheduleDelayedItemsLayout();
    expand(index);
    if (hasOpenChildren)
        executeDelayedItemsLayout();
}

bool DeepTreeView::isClosedParent(const QModelIndex &index) const
{
    return index.isValid() && model()->hasChildren(index) && !isExpanded(index);
}

/// Whether there was a closed node's sign at `position`, which is now open.
bool DeepTreeView::openAt(const QPoint &position)
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

void DeepTreeView::mousePressEvent(QMouseEvent *event)
{
    mTrap.run([&] {
        // A tree view would open and close nodes by their signs with any button.
        if (event->button() != Qt::LeftButton)
            QAbstractItemView::mousePressEvent(event);
        else if (!openAt(event->position().toPoint()))
            QTreeView::mousePressEvent(event);
    });
}

void DeepTreeView::mouseDoubleClickEvent(QMouseEvent *event)
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

void DeepTreeView::keyPressEvent(QKeyEvent *event)
{
    mTrap.run([&] {
        if (!handleKey(*event))
            QTreeView::keyPressEvent(event);
    });
}

bool DeepTreeView::handleKey(const QKeyEvent &event)
{
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

void DeepTreeView::reset()
{
    mWidest = 0;
    QTreeView::reset();
}

void DeepTreeView::updateGeometries()
{
    fitColumn();
    QTreeView::updateGeometries();
}

void DeepTreeView::scrollContentsBy(int dx, int dy)
{
    QTreeView::scrollContentsBy(dx, dy);
    if (dy != 0)
        fitColumn();
}

/// As wide as the widest row seen so far, so that long texts can be scrolled to, and never
/// narrower than the view.
void DeepTreeView::fitColumn()
{
    mWidest = std::max(mWidest, sizeHintForColumn(0));
    const int width = std::max(mWidest, viewport()->width());
    if (header()->count() > 0 && header()->sectionSize(0) != width)
        header()->resizeSection(0, width);
}
