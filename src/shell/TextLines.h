#pragma once

#include <QString>

#include <vector>

/// The lines of one text that may be hundreds of megabytes long. The text is shared, not copied,
/// and read once; per line only its start is kept. Lines end in CR LF, LF or a lone CR. Positions
/// and lengths count QString's units; lines count from 0.
///
/// There is always one line more than there are line ends: an empty text is one empty line, and a
/// text that ends in a line end has an empty last line, where a text box would put the caret.
class TextLines
{
public:
    TextLines() : TextLines(QString()) {}
    explicit TextLines(QString text);

    const QString &text() const { return mText; }
    qsizetype length() const { return mText.size(); }
    qsizetype count() const { return static_cast<qsizetype>(mStarts.size()); }

    /// The position of the line's first character; `line` is one of the lines.
    qsizetype start(qsizetype line) const { return mStarts[static_cast<std::size_t>(line)]; }
    /// The position behind the line's last character, where its line end or the text's end is.
    qsizetype end(qsizetype line) const;
    /// The line's characters, without its line end.
    QStringView line(qsizetype line) const;

    /// The line that holds a position; a line end belongs to the line that it ends. Positions
    /// before or behind the text are in its first or last line.
    qsizetype lineOf(qsizetype position) const;

    /// The first of the lines that have the most characters, whatever their width on a screen.
    qsizetype longestLine() const { return mLongestLine; }

private:
    void findLines();

    QString mText;
    std::vector<qsizetype> mStarts;
    qsizetype mLongestLine = 0;
};
