// What the pointer does to a long text: clicks, drags and the context menu.

#include "shell/frmLargeText.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

namespace {

using Unit = TextCaret::Unit;

constexpr int autoScrollMilliseconds = 50;

} // namespace

void LargeTextView::mousePressEvent(QMouseEvent *event)
{
    mTrap.run([this, event] {
        if (event->button() == Qt::LeftButton)
            press(*event, isThirdClick(*event) ? Unit::Line : Unit::Character);
    });
}

void LargeTextView::mouseDoubleClickEvent(QMouseEvent *event)
{
    mTrap.run([this, event] {
        if (event->button() != Qt::LeftButton)
            return;
        mDoubleClickTime = event->timestamp();
        mDoubleClickPlace = event->position().toPoint();
        press(*event, Unit::Word);
    });
}

bool LargeTextView::isThirdClick(const QMouseEvent &event) const
{
    const QPoint moved = event.position().toPoint() - mDoubleClickPlace;
    return mDoubleClickTime && moved.manhattanLength() < QApplication::startDragDistance() &&
           event.timestamp() - *mDoubleClickTime < quint64(QApplication::doubleClickInterval());
}

qsizetype LargeTextView::pointedAt(QPoint place, TextCaret::Unit unit)
{
    return unit == Unit::Character ? positionAt(place) : characterAt(place);
}

void LargeTextView::press(const QMouseEvent &event, TextCaret::Unit unit)
{
    mIsDragging = true;
    mDragPlace = event.position().toPoint();
    TextCaret caret = mCaret;
    if (unit == Unit::Character && event.modifiers().testFlag(Qt::ShiftModifier)) {
        caret.beginDrag(caret.anchor(), unit);
        caret.dragTo(positionAt(mDragPlace));
    } else {
        caret.beginDrag(pointedAt(mDragPlace, unit), unit);
    }
    setCaret(caret);
}

void LargeTextView::mouseMoveEvent(QMouseEvent *event)
{
    mTrap.run([this, event] {
        if (!mIsDragging)
            return;
        dragTo(event->position().toPoint());
        if (viewport()->rect().contains(mDragPlace))
            mAutoScroll.stop();
        else if (!mAutoScroll.isActive())
            mAutoScroll.start(autoScrollMilliseconds, this);
    });
}

void LargeTextView::dragTo(QPoint place)
{
    mDragPlace = place;
    TextCaret caret = mCaret;
    caret.dragTo(pointedAt(place, caret.dragUnit()));
    setCaret(caret);
}

void LargeTextView::scrollWhileDragging()
{
    // The farther outside, the faster.
    const auto beyond = [](int place, int last) {
        return place < 0 ? place : std::max(place - last, 0);
    };
    const int below = beyond(mDragPlace.y(), viewport()->height() - 1);
    const int beside = beyond(mDragPlace.x(), viewport()->width() - 1);
    const int rows = below / mLayout.rowHeight() + (below > 0) - (below < 0);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + rows);
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + beside);
    dragTo(mDragPlace);
}

void LargeTextView::mouseReleaseEvent(QMouseEvent *event)
{
    mTrap.run([this, event] {
        if (event->button() != Qt::LeftButton || !mIsDragging)
            return;
        mIsDragging = false;
        mAutoScroll.stop();
        offerSelection();
    });
}

void LargeTextView::contextMenuEvent(QContextMenuEvent *event)
{
    mTrap.run([this, event] {
        const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
        const QPoint atCaret = characterRect(mCaret.position()).bottomLeft();
        auto *const menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addActions(actions());
        menu->popup(isByKey ? viewport()->mapToGlobal(atCaret) : event->globalPos());
    });
}
