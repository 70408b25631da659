#pragma once

#include <QStringView>

/// One line cut into slices of about a thousand characters, so that of a line of any length only
/// what a window shows has to be laid out. Nearly every line is a single slice. Cuts never part a
/// character (TextBoundaries). Offsets count from the line's start in QString's units.
class TextSlices
{
public:
    static constexpr qsizetype sliceLength = 1024;

    explicit TextSlices(QStringView line) : mLine(line) {}

    /// At least 1; an empty line is an empty slice.
    qsizetype count() const;
    /// The offset of the slice's first character; that of slice `count()` is the line's length.
    qsizetype start(qsizetype slice) const;
    QStringView text(qsizetype slice) const;
    /// The slice that holds the character at `offset`; the line's end is in the last slice.
    qsizetype sliceOf(qsizetype offset) const;

private:
    QStringView mLine;
};
