#include "hfm/offline/script/Builtins.h"
#include "hfm/offline/script/Coercions.h"
#include "hfm/offline/script/DateText.h"
#include "hfm/offline/script/NumberText.h"

#include <limits>

// CStr CInt CLng CDbl CBool, IsNumeric IsEmpty IsNull IsDate

namespace hfm::offline::script {

namespace {

Value cStr(Arguments arguments, RunState &run)
{
    return Value(textOf(arguments[0], run));
}

Value cInt(Arguments arguments, RunState &run)
{
    return Value::integer(
        qint32(rounded(doubleOf(arguments[0], run), std::numeric_limits<qint16>::min(),
                       std::numeric_limits<qint16>::max())));
}

Value cLng(Arguments arguments, RunState &run)
{
    return Value::integer(longOf(arguments[0], run));
}

Value cDbl(Arguments arguments, RunState &run)
{
    return Value::number(doubleOf(arguments[0], run));
}

Value cBool(Arguments arguments, RunState &run)
{
    return Value::boolean(truthOf(arguments[0], run));
}

Value isNumeric(Arguments arguments, RunState &run)
{
    const Value &value = arguments[0];
    if (!value.isTextual())
        return Value::boolean(value.isNumeric() || value.kind() == Kind::Empty);
    const TextOf text(value, run);
    run.bounds.work(text.size());
    return Value::boolean(numberIn(text.view()).has_value());
}

Value isEmpty(Arguments arguments, RunState &)
{
    return Value::boolean(arguments[0].kind() == Kind::Empty);
}

Value isNull(Arguments arguments, RunState &)
{
    return Value::boolean(arguments[0].kind() == Kind::Null);
}

Value isDate(Arguments arguments, RunState &run)
{
    const Value &value = arguments[0];
    if (!value.isTextual())
        return Value::boolean(value.kind() == Kind::Date);
    return Value::boolean(dateIn(TextOf(value, run).view()).has_value());
}

constexpr Builtin functions[] = {
    {"CStr", 1, 1, cStr},       {"CInt", 1, 1, cInt},     {"CLng", 1, 1, cLng},
    {"CDbl", 1, 1, cDbl},       {"CBool", 1, 1, cBool},   {"IsNumeric", 1, 1, isNumeric},
    {"IsEmpty", 1, 1, isEmpty}, {"IsNull", 1, 1, isNull}, {"IsDate", 1, 1, isDate},
};

} // namespace

std::span<const Builtin> conversionFunctions()
{
    return functions;
}

} // namespace hfm::offline::script
