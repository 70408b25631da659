#pragma once

#include <QStringView>

/// Where characters and words of a text begin and end, found by looking at the text around a
/// position only, however long the text. Positions count QString's units; those outside the text
/// stand for its beginning or end.
///
/// A character is what a reader takes for one: a surrogate pair, a letter with its combining marks
/// and CR LF are one character each. A chain of marks too long to be a character is cut.
///
/// A word is a run of letters, digits and underscores, or a run of other visible characters; runs
/// of blanks and single line ends stand between words.
namespace TextBoundaries {

struct Range
{
    qsizetype start = 0;
    qsizetype end = 0; ///< behind the last one
    friend bool operator==(const Range &, const Range &) = default;
};

/// The start of the character that `position` is in; `position` itself where a character starts,
/// and at the end of the text.
qsizetype characterStart(QStringView text, qsizetype position);
/// The end of the character that `position` is within; `position` itself where none is parted.
qsizetype characterEnd(QStringView text, qsizetype position);
/// The start of the character after the one that starts at `position`; the text's end stays.
qsizetype nextCharacter(QStringView text, qsizetype position);
/// The start of the character before `position`; 0 stays.
qsizetype previousCharacter(QStringView text, qsizetype position);

/// The word, run of blanks or line end that the character at `position` belongs to. Empty at the
/// end of the text.
Range wordAt(QStringView text, qsizetype position);
/// The start of the word or line end after `position`'s own; the text's end if there is none.
qsizetype nextWord(QStringView text, qsizetype position);
/// The start of the word or line end before `position`, the one that `position` is within included;
/// 0 if there is none.
qsizetype previousWord(QStringView text, qsizetype position);

} // namespace TextBoundaries
