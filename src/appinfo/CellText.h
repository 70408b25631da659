#pragma once

#include <QStringView>

/// The text of a workbook file's cell: XML in UTF-8 that writes a character which XML does not
/// allow as _xHHHH_, its UTF-16 code (ECMA-376 Part 1, 22.9.2.19), and therefore a text that looks
/// like that once it is written, such as "_x0041_", with its first '_' as _x005F_. Escaped are the
/// control characters but for tab and line feed, lone surrogates, U+FFFE and U+FFFF. What else is
/// special in XML is left as it is.
namespace CellText {

/// The most characters that a cell holds, in UTF-16 units; an escape counts with all its seven.
constexpr qsizetype longest = 32'767;

/// The most bytes that write() writes.
constexpr qsizetype mostBytes = 3 * longest;

struct Written
{
    char *end;
    bool isWhole; ///< nothing was cut off
};

/// Writes `text` to `out`, whole characters and escapes of it up to the longest that a cell holds.
Written write(QStringView text, char *out);

} // namespace CellText
