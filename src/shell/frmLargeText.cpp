#include "shell/frmLargeText.h"

#include "shell/frmLargeTextAccessible.h"
#include "shell/frmLargeTextFind.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// Between the frame and the text, as in the toolkit's own text boxes.
constexpr int margin = 4;

/// The most that a scroll bar's value is made to count, with room for its own sums.
constexpr qreal largestScroll = std::numeric_limits<int>::max() / 2.0;

} // namespace

LargeTextView::LargeTextView(ErrorTrap &trap, QWidget *parent)
    : QAbstractScrollArea(parent), mTrap(trap), mFindBar(new LargeTextFindBar(this))
{
    makeAccessible(*this);
    mFindBar->hide();
    setFocusPolicy(Qt::WheelFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    // Every line starts at the left, whatever side the program's language starts at.
    horizontalScrollBar()->setLayoutDirection(Qt::LeftToRight);
    mTrap.connect(mFindBar, &LargeTextFindBar::nextWanted, this, [this] { findNext(); });
    mTrap.connect(mFindBar, &LargeTextFindBar::previousWanted, this, [this] { findPrevious(); });
    mTrap.connect(mFindBar, &LargeTextFindBar::closeWanted, this, [this] { hideFind(); });
    addActions();
    mLayout.setLines(&mLines);
    useFont();
}

void LargeTextView::setText(const QString &text)
{
    const QString before = mLines.text();
    mLines = TextLines(text);
    mLayout.setLines(&mLines);
    mTextWidth = mLayout.lineWidth(mLines.longestLine());
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
    updateScrollBars();
    measureShownLines();
    viewport()->update();
    Q_EMIT textReplaced(before);
    setCaret(TextCaret(&mLines));
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
        placeFindBar();
        updateScrollBars();
        measureShownLines();
    });
}

void LargeTextView::placeFindBar()
{
    const QRect above = viewport()->geometry();
    mFindBar->setGeometry(above.left(), above.bottom() + 1, above.width(),
                          mFindBar->sizeHint().height());
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

    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(std::max(int(4 * mLayout.blankWidth()), 1));
    horizontalScrollBar()->setRange(0, int(std::clamp(hiddenWidth(), 0.0, largestScroll)));
}

qsizetype LargeTextView::firstShownLine() const
{
    return verticalScrollBar()->value();
}

int LargeTextView::shownRows() const
{
    return std::max((viewport()->height() - margin) / mLayout.rowHeight(), 1);
}

qreal LargeTextView::hiddenWidth() const
{
    return std::ceil(mTextWidth) + 2 * margin - viewport()->width();
}

qreal LargeTextView::scrollStep() const
{
    return std::max(hiddenWidth() / largestScroll, 1.0);
}

qreal LargeTextView::horizontalOffset() const
{
    return horizontalScrollBar()->value() * scrollStep();
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

qsizetype LargeTextView::positionAt(QPoint place)
{
    const qsizetype line = lineAt(place.y());
    return mLayout.positionAt(line, place.x() - topLeftOf(line).x());
}

qsizetype LargeTextView::characterAt(QPoint place)
{
    const qsizetype line = lineAt(place.y());
    const qreal x = place.x() - topLeftOf(line).x();
    return mLayout.positionAt(line, x, QTextLine::CursorOnCharacter);
}

std::pair<qreal, qreal> LargeTextView::extentOf(qsizetype position)
{
    const qsizetype line = mLines.lineOf(position);
    position = std::clamp(position, mLines.start(line), mLines.end(line));
    const qreal leading = mLayout.xOf(line, position);
    const qreal trailing = position < mLines.end(line)
                               ? mLayout.xOf(line, position, QTextLine::Trailing)
                               : leading + mLayout.blankWidth();
    return std::minmax({leading, trailing});
}

QRect LargeTextView::characterRect(qsizetype position)
{
    const auto [left, right] = extentOf(position);
    const QPointF corner = topLeftOf(mLines.lineOf(position));
    const int x = int(std::floor(corner.x() + left));
    const int end = int(std::ceil(corner.x() + right));
    return {x, int(corner.y()), std::max(end - x, 1), mLayout.rowHeight()};
}

void LargeTextView::reveal(qsizetype position)
{
    const auto scrollTo = [](QScrollBar *bar, qreal value) {
        bar->setValue(int(std::clamp(value, 0.0, qreal(bar->maximum()))));
    };
    const qsizetype line = mLines.lineOf(position);
    if (line < firstShownLine())
        scrollTo(verticalScrollBar(), qreal(line));
    else if (line >= firstShownLine() + shownRows())
        scrollTo(verticalScrollBar(), qreal(line - shownRows() + 1));

    const auto [left, right] = extentOf(position);
    const qreal room = viewport()->width() - 2 * margin;
    if (left < horizontalOffset())
        scrollTo(horizontalScrollBar(), std::floor(left / scrollStep()));
    else if (right > horizontalOffset() + room)
        scrollTo(horizontalScrollBar(), std::ceil((right - room) / scrollStep()));
}
