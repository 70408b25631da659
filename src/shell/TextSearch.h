#pragma once

#include "shell/TextBoundaries.h"

#include <QString>

/// Looking for words in a text of any length. A search that meets the text's end goes on at its
/// other end.
namespace TextSearch {

enum class Outcome { Found, FoundBeyondEnd, FoundBeyondBeginning, NotFound };

struct Result
{
    Outcome outcome = Outcome::NotFound;
    TextBoundaries::Range match; ///< empty where nothing was found
};

/// The first place of `words` that begins at `from` or behind, else the first in the text. Empty
/// words are not found.
Result forward(QStringView text, QStringView words, qsizetype from,
               Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive);
/// The last place of `words` that ends at `to` or before, else the last in the text.
Result backward(QStringView text, QStringView words, qsizetype to,
                Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive);

/// What the user is told of an outcome; empty for a plain find.
QString outcomeText(Outcome outcome);

} // namespace TextSearch
