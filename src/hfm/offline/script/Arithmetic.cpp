#include "hfm/offline/script/Coercions.h"
#include "hfm/offline/script/Operations.h"

#include <cmath>
#include <limits>

// + - * / \ Mod ^, And Or Xor Not, &

namespace hfm::offline::script {

namespace {

bool isNull(const Value &value)
{
    return value.kind() == Kind::Null;
}

/// A whole number that arithmetic keeps whole, as opposed to a Double, a Date or a text.
bool isWhole(const Value &value)
{
    return value.kind() == Kind::Integer || value.kind() == Kind::Boolean ||
           value.kind() == Kind::Empty;
}

qint64 wholeOf(const Value &value)
{
    return value.kind() == Kind::Empty ? 0 : value.asInteger();
}

Value wholeResult(TokenKind operation, qint64 left, qint64 right)
{
    switch (operation) {
    case TokenKind::Plus:
        return Value::whole(left + right);
    case TokenKind::Minus:
        return Value::whole(left - right);
    default:
        return Value::whole(left * right);
    }
}

/// Adding to a date moves it; between two dates are days.
bool givesDate(TokenKind operation, const Value &left, const Value &right)
{
    const bool ofLeft = left.kind() == Kind::Date;
    const bool ofRight = right.kind() == Kind::Date;
    return operation == TokenKind::Plus ? ofLeft || ofRight
                                        : operation == TokenKind::Minus && ofLeft && !ofRight;
}

Value sumOrProduct(TokenKind operation, const Value &left, const Value &right, RunState &run)
{
    if (isWhole(left) && isWhole(right))
        return wholeResult(operation, wholeOf(left), wholeOf(right));
    const double first = doubleOf(left, run);
    const double second = doubleOf(right, run);
    const double result = operation == TokenKind::Plus    ? first + second
                          : operation == TokenKind::Minus ? first - second
                                                          : first * second;
    const Value number = finite(result);
    return givesDate(operation, left, right) ? Value::date(result) : number;
}

/// + joins where both sides are text, Empty counting as the empty one.
bool joinsTexts(const Value &left, const Value &right)
{
    return (left.isTextual() && (right.isTextual() || right.kind() == Kind::Empty)) ||
           (left.kind() == Kind::Empty && right.isTextual());
}

Value quotient(const Value &left, const Value &right, RunState &run)
{
    const double dividend = doubleOf(left, run);
    const double divisor = doubleOf(right, run);
    if (divisor == 0)
        throw fault(dividend == 0 ? NumberOverflow : DividedByZero);
    return finite(dividend / divisor);
}

Value wholeQuotient(TokenKind operation, const Value &left, const Value &right, RunState &run)
{
    const qint64 dividend = longOf(left, run);
    const qint64 divisor = longOf(right, run);
    if (divisor == 0)
        throw fault(DividedByZero);
    return Value::whole(operation == TokenKind::Mod ? dividend % divisor : dividend / divisor);
}

Value power(const Value &left, const Value &right, RunState &run)
{
    const double base = doubleOf(left, run);
    const double exponent = doubleOf(right, run);
    if ((base == 0 && exponent < 0) || (base < 0 && exponent != std::trunc(exponent)))
        throw fault(InvalidCall);
    return finite(std::pow(base, exponent));
}

} // namespace

Value calculated(TokenKind operation, const Value &left, const Value &right, RunState &run)
{
    if (isNull(left) || isNull(right))
        return Value::null();
    switch (operation) {
    case TokenKind::Plus:
        return joinsTexts(left, right) ? joined(left, right, run)
                                       : sumOrProduct(operation, left, right, run);
    case TokenKind::Divide:
        return quotient(left, right, run);
    case TokenKind::IntegerDivide:
    case TokenKind::Mod:
        return wholeQuotient(operation, left, right, run);
    case TokenKind::Power:
        return power(left, right, run);
    default:
        return sumOrProduct(operation, left, right, run);
    }
}

Value joined(const Value &left, const Value &right, RunState &run)
{
    if (isNull(left) && isNull(right))
        return Value::null();
    static const Value nothing{};
    const TextOf first(isNull(left) ? nothing : left, run);
    const TextOf second(isNull(right) ? nothing : right, run);
    run.bounds.work(first.size() + second.size());
    return Value(Text::joined(first.view(), second.view(), &run.memory()));
}

Value combined(TokenKind operation, const Value &left, const Value &right, RunState &run)
{
    if (isNull(left) || isNull(right)) {
        if (isNull(left) && isNull(right))
            return Value::null();
        const Value &other = isNull(left) ? right : left;
        const qint32 bits = longOf(other, run);
        const bool decides =
            (operation == TokenKind::And && bits == 0) || (operation == TokenKind::Or && bits != 0);
        return decides ? other : Value::null();
    }
    const bool isTruth = left.kind() == Kind::Boolean && right.kind() == Kind::Boolean;
    const qint32 first = isTruth ? left.asInteger() : longOf(left, run);
    const qint32 second = isTruth ? right.asInteger() : longOf(right, run);
    const qint32 bits = operation == TokenKind::And  ? first & second
                        : operation == TokenKind::Or ? first | second
                                                     : first ^ second;
    return isTruth ? Value::boolean(bits != 0) : Value::integer(bits);
}

Value negated(const Value &value, RunState &run)
{
    if (isNull(value))
        return value;
    if (isWhole(value))
        return Value::whole(-wholeOf(value));
    return Value::number(-doubleOf(value, run));
}

Value complemented(const Value &value, RunState &run)
{
    if (isNull(value))
        return value;
    if (value.kind() == Kind::Boolean)
        return Value::boolean(value.asInteger() == 0);
    return Value::integer(~longOf(value, run));
}

Value sameObject(const Value &left, const Value &right)
{
    if (left.kind() != Kind::Object || right.kind() != Kind::Object)
        throw fault(ObjectRequired);
    return Value::boolean(left.asObject() == right.asObject());
}

} // namespace hfm::offline::script
