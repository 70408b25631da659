#pragma once

#include "shell/TextLines.h"

#include <QCache>
#include <QFont>
#include <QHash>
#include <QPointF>
#include <QTextLayout>

#include <vector>

class QPainter;
class QPaintDevice;
class QRectF;

/// Where the characters of a text stand when every line is one row, and how they are drawn. Lays
/// out what it is asked for and no more: a line of up to a thousand characters whole, a longer one
/// a slice at a time (TextSlices).
///
/// Horizontal places are device-independent pixels from the line's left edge. Within a slice they
/// are exact; where a slice of a longer line begins is the sum of its characters' own widths, which
/// kerning and joined letters may miss by a few pixels. Slices stand left to right whatever their
/// script. All rows have the height of the font.
class LargeTextLayout
{
public:
    /// The selected part of the text, and how it is drawn.
    struct Selection
    {
        qsizetype start = 0;
        qsizetype end = 0;
        QTextCharFormat format;
    };

    LargeTextLayout();

    /// The text to lay out; `lines` must outlive this or be replaced.
    void setLines(const TextLines *lines);
    /// The font, at the resolution of `device`.
    void setFont(const QFont &font, const QPaintDevice *device);

    int rowHeight() const { return mRowHeight; }
    /// The width of a blank: a sensible step, and what a selected line end shows.
    qreal blankWidth() const { return mBlankWidth; }

    qreal lineWidth(qsizetype line);
    /// The leading or the trailing edge of the character at `position`, a position of that line or
    /// its end. The caret stands at the leading edge.
    qreal xOf(qsizetype line, qsizetype position, QTextLine::Edge edge = QTextLine::Leading);
    /// The position at `x`: of the nearest edge between characters, where a caret goes, or of the
    /// character that is there. Beside the line it is the line's nearer end.
    qsizetype positionAt(qsizetype line, qreal x,
                         QTextLine::CursorPosition kind = QTextLine::CursorBetweenCharacters);
    /// Whether the line reads from the right.
    bool isRightToLeft(qsizetype line) const;

    /// Draws those slices of a line that `visible` needs, in the painter's pen, with the top left
    /// corner of the line's row at `topLeft`.
    void draw(QPainter &painter, qsizetype line, QPointF topLeft, const QRectF &visible,
              const Selection &selection);

private:
    using Edges =
        std::vector<qreal>; ///< the left edges of a line's slices, and the last one's right

    const QTextLayout &slice(qsizetype line, qsizetype index);
    qsizetype sliceAt(qsizetype line, qreal x);
    qreal leftOf(qsizetype line, qsizetype index);
    QTextLayout *layOut(QStringView text, Qt::LayoutDirection direction) const;
    const Edges &edges(qsizetype line);
    qreal estimatedWidth(QStringView text);
    qreal advance(QChar character);
    void forget();

    const TextLines *mLines;
    QFont mFont;
    const QPaintDevice *mDevice = nullptr;
    int mRowHeight = 1;
    qreal mAscent = 0;
    qreal mBlankWidth = 1;
    qreal mTabDistance = 8;

    QCache<qsizetype, QTextLayout> mSlices; ///< by the position of the slice's first character
    QHash<qsizetype, Edges> mEdges;         ///< of lines of several slices
    qsizetype mEdgeCount = 0;
    std::vector<float> mAdvances; ///< of each UTF-16 unit; negative where not measured yet
};
