#include "hfm/offline/script/Coercions.h"
#include "hfm/offline/script/EvaluatorCalls.h"
#include "hfm/offline/script/Operations.h"

namespace hfm::offline::script {

Value Evaluator::evaluate(const Expression &expression)
{
    switch (expression.kind) {
    case ExpressionKind::Literal:
        return *static_cast<const Literal &>(expression).value;
    case ExpressionKind::Name:
        return evaluateName(static_cast<const Name &>(expression));
    case ExpressionKind::Member:
        return evaluateMember(static_cast<const Member &>(expression), {});
    case ExpressionKind::Apply:
        return evaluateApply(static_cast<const Apply &>(expression), false);
    case ExpressionKind::Unary:
        return evaluateUnary(static_cast<const Unary &>(expression));
    case ExpressionKind::Chain:
        return evaluateChain(static_cast<const Chain &>(expression));
    }
    return {};
}

Value Evaluator::evaluateName(const Name &name)
{
    switch (name.binding) {
    case Binding::Local:
    case Binding::Global:
    case Binding::Result:
        return *variable(name);
    case Binding::Constant:
        return *name.constant;
    case Binding::HostObject:
        return Value::object(mRun.host.object(name.index));
    case Binding::LastError:
        return Value::integer(mRun.lastErrorNumber);
    default:
        return callName(name, {}, false);
    }
}

/// The member of an object, called with these arguments.
Value Evaluator::evaluateMember(const Member &member, std::span<Expression *const> arguments)
{
    if (member.object->kind == ExpressionKind::Name &&
        static_cast<const Name *>(member.object)->binding == Binding::LastError)
        return lastErrorMember(member);
    const Value object = evaluate(*member.object);
    if (object.kind() != Kind::Object) {
        mRun.at = member.object->position;
        throw fault(ObjectRequired, nameOf(*member.object));
    }
    HostObject *const target = object.asObject();
    if (target == nullptr) {
        mRun.at = member.object->position;
        throw fault(ObjectNotSet);
    }
    const qint32 number = memberNumber(member.name);
    if (number < 0) {
        mRun.at = member.position;
        throw finalFault(UnknownMember, target->name() + QLatin1Char('.') + spelling(member.name));
    }
    if (arguments.size() <= 1) {
        const Value only = arguments.empty() ? Value() : evaluate(*arguments[0]);
        mRun.at = member.position;
        return target->invoke(number, {&only, arguments.size()}, mRun);
    }
    const ArgumentList list(*this, arguments);
    mRun.at = member.position;
    return target->invoke(number, list.values(), mRun);
}

/// What On Error Resume Next passed over, as the object Err tells it.
Value Evaluator::lastErrorMember(const Member &member)
{
    const QString &name = spelling(member.name);
    const auto is = [&](const char *other) {
        return name.compare(QLatin1StringView(other), Qt::CaseInsensitive) == 0;
    };
    mRun.at = member.position;
    if (is("Number"))
        return Value::integer(mRun.lastErrorNumber);
    if (is("Description"))
        return mRun.text(mRun.lastErrorText);
    if (!is("Clear"))
        throw finalFault(UnknownMember, QStringLiteral("Err.") + name);
    mRun.lastErrorNumber = 0;
    mRun.lastErrorText.clear();
    return {};
}

Value Evaluator::evaluateApply(const Apply &apply, bool isStatement)
{
    const Expression &callee = *apply.callee;
    if (callee.kind == ExpressionKind::Member)
        return evaluateMember(static_cast<const Member &>(callee), apply.arguments);
    if (callee.kind == ExpressionKind::Name) {
        const auto &name = static_cast<const Name &>(callee);
        const bool isVariable = name.binding == Binding::Local || name.binding == Binding::Global;
        if (!isVariable)
            return callName(name, apply.arguments, isStatement);
        if (!isStatement)
            return element(*variable(name), apply);
        mRun.at = name.position;
        throw fault(WrongType, spelling(name.name));
    }
    return element(evaluate(callee), apply);
}

/// The name that an expression is, for messages; empty where it is none.
QString Evaluator::nameOf(const Expression &expression) const
{
    return expression.kind == ExpressionKind::Name
               ? spelling(static_cast<const Name &>(expression).name)
               : QString();
}

Value Evaluator::element(const Value &array, const Apply &apply)
{
    const Value *only = apply.arguments.size() == 1 ? look(*apply.arguments[0]) : nullptr;
    if (only != nullptr && only->kind() == Kind::Integer && array.kind() == Kind::Array &&
        array.asArray()->extents.size() == 1) {
        const auto &elements = array.asArray()->elements;
        const auto index = size_t(quint32(only->asInteger()));
        if (index < elements.size())
            return elements[index];
    }
    const ArrayData::Extents at = subscripts(apply.arguments);
    mRun.at = apply.position;
    if (array.kind() != Kind::Array)
        throw fault(WrongType, nameOf(*apply.callee));
    return array.asArray()->at(at);
}

Value Evaluator::evaluateUnary(const Unary &unary)
{
    const Value value = evaluate(*unary.operand);
    mRun.at = unary.position;
    switch (unary.operation) {
    case TokenKind::Not:
        return complemented(value, mRun);
    case TokenKind::Minus:
        return negated(value, mRun);
    default:
        return value;
    }
}

Value Evaluator::evaluateChain(const Chain &chain)
{
    Value result;
    const Value *left = look(*chain.first);
    if (left == nullptr || look(*chain.links.front().operand) == nullptr) {
        result = evaluate(*chain.first);
        left = &result;
    }
    bool isLiteral = chain.first->kind == ExpressionKind::Literal;
    for (const Chain::Link &link : chain.links) {
        if (const Value *right = look(*link.operand))
            result = operate(link, *left, isLiteral, *right);
        else
            result = operate(link, *left, isLiteral, evaluate(*link.operand));
        left = &result;
        isLiteral = false;
    }
    return result;
}

Value Evaluator::operate(const Chain::Link &link, const Value &left, bool leftIsLiteral,
                         const Value &right)
{
    mRun.at = link.position;
    switch (link.operation) {
    case TokenKind::Join:
        return joined(left, right, mRun);
    case TokenKind::And:
    case TokenKind::Or:
    case TokenKind::Xor:
        return combined(link.operation, left, right, mRun);
    case TokenKind::Is:
        return sameObject(left, right);
    case TokenKind::Equal:
    case TokenKind::NotEqual:
    case TokenKind::Less:
    case TokenKind::LessOrEqual:
    case TokenKind::Greater:
    case TokenKind::GreaterOrEqual:
        return compared(link.operation, {left, leftIsLiteral},
                        {right, link.operand->kind == ExpressionKind::Literal}, mRun);
    default:
        return calculated(link.operation, left, right, mRun);
    }
}

} // namespace hfm::offline::script
