#include "hfm/offline/script/Builtins.h"
#include "hfm/offline/script/Coercions.h"
#include "hfm/offline/script/DateText.h"

#include <cmath>

// Now Date Year Month Day

namespace hfm::offline::script {

namespace {

Value now(Arguments, RunState &run)
{
    return Value::date(daysOfDate(run.now));
}

Value today(Arguments, RunState &run)
{
    return Value::date(std::floor(daysOfDate(run.now)));
}

template <typename Part>
Value partOfDay(const Value &value, RunState &run, Part part)
{
    if (value.kind() == Kind::Null)
        return value;
    const auto day = dayOf(daysOf(value, run));
    if (!day)
        throw fault(InvalidCall);
    return Value::integer(part(*day));
}

Value year(Arguments arguments, RunState &run)
{
    return partOfDay(arguments[0], run, [](QDate date) { return date.year(); });
}

Value month(Arguments arguments, RunState &run)
{
    return partOfDay(arguments[0], run, [](QDate date) { return date.month(); });
}

Value day(Arguments arguments, RunState &run)
{
    return partOfDay(arguments[0], run, [](QDate date) { return date.day(); });
}

constexpr Builtin functions[] = {
    {"Now", 0, 0, now},     {"Date", 0, 0, today}, {"Year", 1, 1, year},
    {"Month", 1, 1, month}, {"Day", 1, 1, day},
};

} // namespace

std::span<const Builtin> dateFunctions()
{
    return functions;
}

} // namespace hfm::offline::script
