#include "shell/frmLargeTextLayout.h"

#include "shell/TextSlices.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace {

const TextLines noLines;

/// Characters kept laid out, several screens full of them.
constexpr int charactersKept = 200'000;
/// Edges of slices kept; those of a line of a thousand million characters.
constexpr qsizetype edgesKept = 1'000'000;

constexpr qreal charactersInATab = 8;

/// Wide enough for any slice, and within what QTextLayout can count.
constexpr qreal unlimitedWidth = 10'000'000;

} // namespace

LargeTextLayout::LargeTextLayout() : mLines(&noLines), mSlices(charactersKept)
{
}

void LargeTextLayout::setLines(const TextLines *lines)
{
    mLines = lines;
    forget();
}

void LargeTextLayout::setFont(const QFont &font, const QPaintDevice *device)
{
    mFont = font;
    mDevice = device;
    const QFontMetricsF metrics(font, device);
    mAscent = std::ceil(metrics.ascent());
    mRowHeight = std::max(int(std::ceil(metrics.ascent()) + std::ceil(metrics.descent()) +
                              std::ceil(std::max(metrics.leading(), 0.0))),
                          1);
    mBlankWidth = std::max(metrics.horizontalAdvance(QLatin1Char(' ')), 1.0);
    mTabDistance = charactersInATab * std::max(metrics.averageCharWidth(), 1.0);
    mAdvances.clear();
    forget();
}

void LargeTextLayout::forget()
{
    mSlices.clear();
    mEdges.clear();
    mEdgeCount = 0;
}

bool LargeTextLayout::isRightToLeft(qsizetype line) const
{
    return TextSlices(mLines->line(line)).text(0).isRightToLeft();
}

qreal LargeTextLayout::lineWidth(qsizetype line)
{
    return TextSlices(mLines->line(line)).count() == 1 ? slice(line, 0).lineAt(0).naturalTextWidth()
                                                       : edges(line).back();
}

qreal LargeTextLayout::xOf(qsizetype line, qsizetype position, QTextLine::Edge edge)
{
    const bool isTab =
        position < mLines->end(line) && mLines->text()[position] == QLatin1Char('\t');
    if (edge == QTextLine::Trailing && isTab) // whose width QTextLine leaves out
        return xOf(line, position + 1);
    const TextSlices slices(mLines->line(line));
    const qsizetype offset = position - mLines->start(line);
    const qsizetype index = slices.sliceOf(offset);
    const int offsetInSlice = int(offset - slices.start(index));
    return leftOf(line, index) + slice(line, index).lineAt(0).cursorToX(offsetInSlice, edge);
}

qsizetype LargeTextLayout::positionAt(qsizetype line, qreal x, QTextLine::CursorPosition kind)
{
    const qsizetype index = sliceAt(line, x);
    const int offset = slice(line, index).lineAt(0).xToCursor(x - leftOf(line, index), kind);
    return mLines->start(line) + TextSlices(mLines->line(line)).start(index) + offset;
}

void LargeTextLayout::draw(QPainter &painter, qsizetype line, QPointF topLeft,
                           const QRectF &visible, const Selection &selection)
{
    const TextSlices slices(mLines->line(line));
    for (qsizetype index = sliceAt(line, visible.left() - topLeft.x()); index < slices.count();
         ++index) {
        const QPointF place = topLeft + QPointF(leftOf(line, index), 0);
        if (place.x() > visible.right())
            return;
        const QTextLayout &layout = slice(line, index);
        const qsizetype start = mLines->start(line) + slices.start(index);
        const qsizetype length = layout.text().size();
        const qsizetype from = std::clamp<qsizetype>(selection.start - start, 0, length);
        const qsizetype to = std::clamp<qsizetype>(selection.end - start, 0, length);
        QList<QTextLayout::FormatRange> ranges;
        if (from < to)
            ranges.append({int(from), int(to - from), selection.format});
        const qreal drop = mAscent - layout.lineAt(0).ascent();
        layout.draw(&painter, place + QPointF(0, drop), ranges, visible);
    }
}

qsizetype LargeTextLayout::sliceAt(qsizetype line, qreal x)
{
    if (TextSlices(mLines->line(line)).count() == 1)
        return 0;
    const Edges &lefts = edges(line);
    return std::upper_bound(lefts.begin() + 1, lefts.end() - 1, x) - lefts.begin() - 1;
}

qreal LargeTextLayout::leftOf(qsizetype line, qsizetype index)
{
    return index == 0 ? 0 : edges(line)[std::size_t(index)];
}

const QTextLayout &LargeTextLayout::slice(qsizetype line, qsizetype index)
{
    const TextSlices slices(mLines->line(line));
    const qsizetype key = mLines->start(line) + slices.start(index);
    if (const QTextLayout *known = mSlices.object(key))
        return *known;
    const auto direction = isRightToLeft(line) ? Qt::RightToLeft : Qt::LeftToRight;
    const QStringView text = slices.text(index);
    QTextLayout *const layout = layOut(text, direction);
    mSlices.insert(key, layout, std::max(int(text.size()), 1));
    return *layout;
}

QTextLayout *LargeTextLayout::layOut(QStringView text, Qt::LayoutDirection direction) const
{
    QString shown = text.toString();
    // These two would break the row, but do not end a line.
    shown.replace(QChar::LineSeparator, QLatin1Char(' '));
    shown.replace(QChar::ParagraphSeparator, QLatin1Char(' '));
    auto layout = std::make_unique<QTextLayout>(shown, mFont, mDevice);
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    option.setTextDirection(direction);
    option.setTabStopDistance(mTabDistance);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    layout->beginLayout();
    QTextLine row = layout->createLine();
    row.setLeadingIncluded(true);
    row.setLineWidth(unlimitedWidth);
    layout->endLayout();
    return layout.release();
}

const LargeTextLayout::Edges &LargeTextLayout::edges(qsizetype line)
{
    const auto known = mEdges.constFind(line);
    if (known != mEdges.constEnd())
        return *known;
    const TextSlices slices(mLines->line(line));
    if (mEdgeCount + slices.count() > edgesKept) {
        mEdges.clear();
        mEdgeCount = 0;
    }
    Edges lefts(std::size_t(slices.count()) + 1);
    for (qsizetype index = 0; index < slices.count(); ++index)
        lefts[std::size_t(index) + 1] =
            lefts[std::size_t(index)] + estimatedWidth(slices.text(index));
    mEdgeCount += slices.count();
    return *mEdges.insert(line, std::move(lefts));
}

qreal LargeTextLayout::estimatedWidth(QStringView text)
{
    qreal width = 0;
    for (const QChar character : text) {
        if (character == QLatin1Char('\t'))
            width = (std::floor(width / mTabDistance) + 1) * mTabDistance;
        else
            width += advance(character);
    }
    return width;
}

qreal LargeTextLayout::advance(QChar character)
{
    constexpr std::size_t units = std::numeric_limits<char16_t>::max() + std::size_t(1);
    if (mAdvances.empty())
        mAdvances.assign(units, -1);
    float &known = mAdvances[character.unicode()];
    if (known < 0) {
        const QFontMetricsF metrics(mFont, mDevice);
        if (character.isLowSurrogate())
            known = 0;
        else if (character.isHighSurrogate())
            known = float(2 * metrics.averageCharWidth());
        else
            known = float(std::max(metrics.horizontalAdvance(character), 0.0));
    }
    return qreal(known);
}
