#include "shell/TextSearch.h"

#include <algorithm>

namespace TextSearch {

namespace {

Result resultAt(qsizetype position, QStringView words, Outcome outcome)
{
    if (position < 0)
        return {};
    return {outcome, {position, position + words.size()}};
}

} // namespace

Result forward(QStringView text, QStringView words, qsizetype from, Qt::CaseSensitivity sensitivity)
{
    if (words.isEmpty())
        return {};
    const qsizetype next = text.indexOf(words, from, sensitivity);
    if (next >= 0)
        return resultAt(next, words, Outcome::Found);
    // What begins before `from` may end behind it.
    const qsizetype rest = std::min(from + words.size() - 1, text.size());
    return resultAt(text.first(rest).indexOf(words, 0, sensitivity), words,
                    Outcome::FoundBeyondEnd);
}

Result backward(QStringView text, QStringView words, qsizetype to, Qt::CaseSensitivity sensitivity)
{
    if (words.isEmpty())
        return {};
    const qsizetype previous = text.first(to).lastIndexOf(words, sensitivity);
    if (previous >= 0)
        return resultAt(previous, words, Outcome::Found);
    const qsizetype rest = std::max<qsizetype>(to - words.size() + 1, 0);
    const qsizetype last = text.sliced(rest).lastIndexOf(words, sensitivity);
    return resultAt(last < 0 ? last : rest + last, words, Outcome::FoundBeyondBeginning);
}

QString outcomeText(Outcome outcome)
{
    switch (outcome) {
    case Outcome::FoundBeyondEnd:
        return QStringLiteral("Continued from the beginning");
    case Outcome::FoundBeyondBeginning:
        return QStringLiteral("Continued from the end");
    case Outcome::NotFound:
        return QStringLiteral("Not found");
    case Outcome::Found:
        break;
    }
    return {};
}

} // namespace TextSearch
