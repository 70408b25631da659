#include "shell/frmLargeText.h"

#include <QPainter>
#include <QPaintEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// Between the frame and the text, as in the toolkit's own text boxes.
constexpr int margin = 4;

/// The most that a scroll bar's value is made to count, with room for its own sums.
constexpr qreal largestScroll = std::numeric_limits<int>::max() / 2;

} // namespace

LargeTextView::LargeTextView(ErrorTrap &trap, QWidget *parent)
    : QAbstractScrollArea(parent), mTrap(trap)
{
    setFocusPolicy(Qt::WheelFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    // Every line starts at the left, whatever side the program's language starts at.
    horizontalScrollBar()->setLayoutDirection(Qt::LeftToRight);
    mLayout.setLines(&mLines);
    useFont();
}

void LargeTextView::setText(const QString &text)
{
    mLines = TextLines(text);
    mLayout.setLines(&mLines);
    mTextWidth = mLayout.lineWidth(mLines.longestLine());
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
    updateScrollBars();
    measureShownLines();
    viewport()->update();
}

void LargeTextView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        mTrap.run([this] { useFont(); });
}

void LargeTextView::useFont()
{
    mLayout.setFont(font(), viewport());
    mTextWidth = mLayout.lineWidth(mLines.longestLine());
    updateScrollBars();
    measureShownLines();
    viewport()->update();
}

void LargeTextView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    mTrap.run([this] {
        updateScrollBars();
        measureShownLines();
    });
}

void LargeTextView::scrollContentsBy(int, int)
{
    mTrap.run([this] {
        measureShownLines();
        viewport()->update();
    });
}

void LargeTextView::measureShownLines()
{
    const qreal before = mTextWidth;
    const qsizetype last = lineAt(viewport()->height());
    for (qsizetype line = firstShownLine(); line <= last; ++line)
        mTextWidth = std::max(mTextWidth, mLayout.lineWidth(line));
    if (mTextWidth > before)
        updateScrollBars();
}

void LargeTextView::updateScrollBars()
{
    const int rows = shownRows();
    const qsizetype lastFirst = std::max<qsizetype>(mLines.count() - rows, 0);
    verticalScrollBar()->setPageStep(rows);
    verticalScrollBar()->setRange(
        0, int(std::min<qsizetype>(lastFirst, std::numeric_limits<int>::max())));

    const int width = viewport()->width();
    const qreal hidden = std::ceil(mTextWidth) + 2 * margin - width;
    horizontalScrollBar()->setPageStep(width);
    horizontalScrollBar()->setSingleStep(std::max(int(4 * mLayout.blankWidth()), 1));
    horizontalScrollBar()->setRange(0, int(std::clamp(hidden, 0.0, largestScroll)));
}

qsizetype LargeTextView::firstShownLine() const
{
    return verticalScrollBar()->value();
}

int LargeTextView::shownRows() const
{
    return std::max((viewport()->height() - margin) / mLayout.rowHeight(), 1);
}

qreal LargeTextView::horizontalOffset() const
{
    const QScrollBar *const bar = horizontalScrollBar();
    const qreal hidden = std::ceil(mTextWidth) + 2 * margin - viewport()->width();
    // Of a line wider than a scroll bar can count, a step is several pixels.
    return hidden <= largestScroll ? bar->value() : bar->value() * (hidden / largestScroll);
}

qsizetype LargeTextView::lineAt(int y) const
{
    const qsizetype row = std::max(y - margin, 0) / mLayout.rowHeight();
    return std::min(firstShownLine() + row, mLines.count() - 1);
}

QPointF LargeTextView::topLeftOf(qsizetype line) const
{
    const qreal row = qreal(line - firstShownLine());
    return {margin - horizontalOffset(), margin + row * mLayout.rowHeight()};
}

void LargeTextView::paintEvent(QPaintEvent *event)
{
    mTrap.run([this, event] { paint(event->rect()); });
}

void LargeTextView::paint(const QRect &area)
{
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    const qsizetype last = lineAt(area.bottom());
    for (qsizetype line = lineAt(area.top()); line <= last; ++line)
        mLayout.draw(painter, line, topLeftOf(line), area, {});
}
