#include "hfm/offline/script/Builtins.h"
#include "hfm/offline/script/Coercions.h"

#include <cmath>
#include <cstdlib>

// Abs Int Fix Sgn

namespace hfm::offline::script {

namespace {

bool isWhole(const Value &value)
{
    return value.kind() == Kind::Integer || value.kind() == Kind::Boolean;
}

/// Applies `calculate` to what is no whole number already; Null stays Null.
template <typename Calculate>
Value withoutFraction(const Value &value, RunState &run, Calculate calculate)
{
    if (value.kind() == Kind::Null)
        return value;
    if (value.kind() == Kind::Empty || isWhole(value))
        return Value::integer(longOf(value, run));
    const double number = calculate(doubleOf(value, run));
    return value.kind() == Kind::Date ? Value::date(number) : Value::number(number);
}

Value abs(Arguments arguments, RunState &run)
{
    const Value &value = arguments[0];
    if (value.kind() == Kind::Null)
        return value;
    if (isWhole(value))
        return Value::whole(std::abs(qint64(value.asInteger())));
    if (value.kind() == Kind::Empty)
        return Value::integer(0);
    return Value::number(std::abs(doubleOf(value, run)));
}

Value toInt(Arguments arguments, RunState &run)
{
    return withoutFraction(arguments[0], run, [](double number) { return std::floor(number); });
}

Value fix(Arguments arguments, RunState &run)
{
    return withoutFraction(arguments[0], run, [](double number) { return std::trunc(number); });
}

Value sgn(Arguments arguments, RunState &run)
{
    const double number = doubleOf(arguments[0], run);
    return Value::integer(number > 0 ? 1 : number < 0 ? -1 : 0);
}

constexpr Builtin functions[] = {
    {"Abs", 1, 1, abs},
    {"Int", 1, 1, toInt},
    {"Fix", 1, 1, fix},
    {"Sgn", 1, 1, sgn},
};

} // namespace

std::span<const Builtin> numberFunctions()
{
    return functions;
}

} // namespace hfm::offline::script
