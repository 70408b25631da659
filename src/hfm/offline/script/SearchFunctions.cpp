#include "hfm/offline/script/Builtins.h"
#include "hfm/offline/script/Coercions.h"

#include <algorithm>

// InStr InStrRev Replace StrComp

namespace hfm::offline::script {

namespace {

bool isAnyNull(const Value &left, const Value &right)
{
    return left.kind() == Kind::Null || right.kind() == Kind::Null;
}

/// The steps of a search: with a long text to be found it may look at each place for long.
void chargeSearch(QStringView text, QStringView wanted, RunState &run)
{
    const qint64 deepest = std::min<qint64>(wanted.size(), 64);
    run.bounds.work(text.size() * std::max<qint64>(1, deepest / 8));
}

/// InStr([start, ]text, wanted[, comparison]): from 1, 0 where it is not found. Three arguments
/// begin with the start.
Value inStr(Arguments arguments, RunState &run)
{
    const bool hasStart = arguments.size() > 2;
    const qint32 start = hasStart ? longOf(arguments[0], run) : 1;
    if (start < 1)
        throw fault(InvalidCall);
    const Arguments texts = arguments.subspan(hasStart ? 1 : 0);
    if (isAnyNull(texts[0], texts[1]))
        return Value::null();
    const Qt::CaseSensitivity comparison = comparisonArgument(texts, 2, run);
    const TextOf text(texts[0], run);
    const TextOf wanted(texts[1], run);
    chargeSearch(text.view(), wanted.view(), run);
    if (start > text.size())
        return Value::integer(0);
    return Value::whole(text.view().indexOf(wanted.view(), start - 1, comparison) + 1);
}

/// InStrRev(text, wanted[, start[, comparison]]): the last place that ends at `start` at most.
Value inStrRev(Arguments arguments, RunState &run)
{
    if (isAnyNull(arguments[0], arguments[1]))
        return Value::null();
    const TextOf text(arguments[0], run);
    const TextOf wanted(arguments[1], run);
    const qint32 start = longArgument(arguments, 2, -1, run);
    const Qt::CaseSensitivity comparison = comparisonArgument(arguments, 3, run);
    if (start == 0 || start < -1)
        throw fault(InvalidCall);
    chargeSearch(text.view(), wanted.view(), run);
    if (text.view().isEmpty() || start > text.size())
        return Value::integer(0);
    const QStringView part = start < 0 ? text.view() : text.view().first(start);
    if (wanted.view().isEmpty())
        return Value::whole(part.size());
    return Value::whole(part.lastIndexOf(wanted.view(), -1, comparison) + 1);
}

/// Replace(text, wanted, other[, start[, count[, comparison]]]); what stands before `start` is
/// left out of the result.
Value replace(Arguments arguments, RunState &run)
{
    const TextOf text(arguments[0], run);
    const TextOf wanted(arguments[1], run);
    const TextOf other(arguments[2], run);
    const qint32 start = longArgument(arguments, 3, 1, run);
    const qint32 most = longArgument(arguments, 4, -1, run);
    const Qt::CaseSensitivity comparison = comparisonArgument(arguments, 5, run);
    if (start < 1 || most < -1)
        throw fault(InvalidCall);
    chargeSearch(text.view(), wanted.view(), run);
    QStringView rest = text.view().mid(start - 1);
    if (wanted.view().isEmpty())
        return run.text(rest);
    QString result;
    for (qint32 count = 0; count != most; ++count) {
        const qsizetype at = rest.indexOf(wanted.view(), 0, comparison);
        if (at < 0)
            break;
        run.bounds.work(at + other.size() + 32);
        if (2 * (result.size() + at + other.size()) > run.memory().left())
            throw finalFault(MemoryExhausted);
        result += rest.first(at);
        result += other.view();
        rest = rest.sliced(at + wanted.size());
    }
    result += rest;
    return run.text(result);
}

Value strComp(Arguments arguments, RunState &run)
{
    if (isAnyNull(arguments[0], arguments[1]))
        return Value::null();
    const TextOf left(arguments[0], run);
    const TextOf right(arguments[1], run);
    const Qt::CaseSensitivity comparison = comparisonArgument(arguments, 2, run);
    run.bounds.work(std::min(left.size(), right.size()));
    const int order = left.view().compare(right.view(), comparison);
    return Value::integer(order > 0 ? 1 : order < 0 ? -1 : 0);
}

constexpr Builtin functions[] = {
    {"InStr", 2, 4, inStr},
    {"InStrRev", 2, 4, inStrRev},
    {"Replace", 3, 6, replace},
    {"StrComp", 2, 3, strComp},
};

} // namespace

std::span<const Builtin> searchFunctions()
{
    return functions;
}

} // namespace hfm::offline::script
