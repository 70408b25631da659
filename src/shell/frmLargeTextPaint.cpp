// How a long text is painted: its visible lines, the selection and the blinking caret.

#include "shell/frmLargeText.h"
#include "shell/frmLargeTextFind.h"

#include <QApplication>
#include <QPainter>
#include <QPaintEvent>
#include <QStyle>
#include <QStyleHints>
#include <QTimerEvent>

void LargeTextView::paintEvent(QPaintEvent *event)
{
    mTrap.run([this, event] { paint(event->rect()); });
}

void LargeTextView::paint(const QRect &area)
{
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    const LargeTextLayout::Selection selection = shownSelection();
    const qsizetype last = lineAt(area.bottom());
    for (qsizetype line = lineAt(area.top()); line <= last; ++line) {
        mLayout.draw(painter, line, topLeftOf(line), area, selection);
        const qsizetype end = mLines.end(line);
        if (selection.start <= end && end < selection.end)
            paintLineEnd(painter, line, selection.format.background().color());
    }
    if (hasFocus() && mCaretIsLit)
        paintCaret(painter);
}

LargeTextLayout::Selection LargeTextView::shownSelection() const
{
    // A text whose find bar has the caret is the one the user works with.
    const bool isActive = hasFocus() || mFindBar->isAncestorOf(QApplication::focusWidget());
    const auto group = isActive ? QPalette::Active : QPalette::Inactive;
    LargeTextLayout::Selection selection{mCaret.selection().start, mCaret.selection().end, {}};
    selection.format.setBackground(palette().brush(group, QPalette::Highlight));
    selection.format.setForeground(palette().brush(group, QPalette::HighlightedText));
    return selection;
}

void LargeTextView::paintLineEnd(QPainter &painter, qsizetype line, const QColor &colour)
{
    const QPointF corner = topLeftOf(line) + QPointF(mLayout.lineWidth(line), 0);
    painter.fillRect(QRectF(corner, QSizeF(mLayout.blankWidth(), mLayout.rowHeight())), colour);
}

void LargeTextView::paintCaret(QPainter &painter)
{
    const qsizetype line = mCaret.line();
    const QPointF corner = topLeftOf(line) + QPointF(mLayout.xOf(line, mCaret.position()), 0);
    const int width = style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this);
    painter.fillRect(QRectF(corner, QSizeF(width, mLayout.rowHeight())), painter.pen().color());
}

void LargeTextView::restartBlinking()
{
    const int period = QGuiApplication::styleHints()->cursorFlashTime();
    mCaretIsLit = true;
    if (hasFocus() && period >= 2)
        mBlinking.start(period / 2, this);
    else
        mBlinking.stop();
    viewport()->update();
}

void LargeTextView::timerEvent(QTimerEvent *event)
{
    mTrap.run([this, event] {
        if (event->timerId() == mAutoScroll.timerId()) {
            scrollWhileDragging();
        } else if (event->timerId() == mBlinking.timerId()) {
            mCaretIsLit = !mCaretIsLit;
            viewport()->update();
        }
    });
}

void LargeTextView::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    restartBlinking();
}

void LargeTextView::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    restartBlinking();
}
