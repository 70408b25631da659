#include "hfm/offline/script/Coercions.h"
#include "hfm/offline/script/Operations.h"

#include <algorithm>
#include <compare>

namespace hfm::offline::script {

namespace {

Value answer(TokenKind operation, std::partial_ordering order)
{
    switch (operation) {
    case TokenKind::Equal:
        return Value::boolean(order == 0);
    case TokenKind::NotEqual:
        return Value::boolean(order != 0);
    case TokenKind::Less:
        return Value::boolean(order < 0);
    case TokenKind::LessOrEqual:
        return Value::boolean(order <= 0);
    case TokenKind::Greater:
        return Value::boolean(order > 0);
    default:
        return Value::boolean(order >= 0);
    }
}

/// By the numbers of the characters, not by any language's order.
std::partial_ordering textOrder(QStringView left, QStringView right)
{
    return std::lexicographical_compare_three_way(left.utf16(), left.utf16() + left.size(),
                                                  right.utf16(), right.utf16() + right.size());
}

std::partial_ordering asTexts(const Value &left, const Value &right, RunState &run)
{
    const TextOf first(left, run);
    const TextOf second(right, run);
    run.bounds.work(std::min(first.size(), second.size()));
    return textOrder(first.view(), second.view());
}

std::partial_ordering asNumbers(const Value &left, const Value &right, RunState &run)
{
    return doubleOf(left, run) <=> doubleOf(right, run);
}

/// A text beside a number or a date. `ofText` is what the text is to the number.
std::partial_ordering mixedOrder(Compared left, Compared right, RunState &run)
{
    const bool textIsLeft = left.value.isTextual();
    const Compared &text = textIsLeft ? left : right;
    const Compared &number = textIsLeft ? right : left;
    if (number.isLiteral && number.value.kind() == Kind::Boolean) {
        const auto order =
            std::partial_ordering((truthOf(text.value, run) ? -1 : 0) <=> number.value.asInteger());
        return textIsLeft ? order : 0 <=> order;
    }
    if (number.isLiteral)
        return asNumbers(left.value, right.value, run);
    if (text.isLiteral)
        return asTexts(left.value, right.value, run);
    return textIsLeft ? std::partial_ordering::greater : std::partial_ordering::less;
}

std::partial_ordering orderOf(Compared left, Compared right, RunState &run)
{
    const bool leftText = left.value.isTextual();
    const bool rightText = right.value.isTextual();
    const bool hasEmpty = left.value.kind() == Kind::Empty || right.value.kind() == Kind::Empty;
    if ((leftText && rightText) || ((leftText || rightText) && hasEmpty))
        return asTexts(left.value, right.value, run);
    if (leftText || rightText) {
        doubleOf(leftText ? right.value : left.value, run); // fails for arrays and objects
        return mixedOrder(left, right, run);
    }
    return asNumbers(left.value, right.value, run);
}

} // namespace

Value compared(TokenKind operation, Compared left, Compared right, RunState &run)
{
    const Kind ofLeft = left.value.kind();
    const Kind ofRight = right.value.kind();
    if (ofLeft == Kind::Integer && ofRight == Kind::Integer)
        return answer(operation, left.value.asInteger() <=> right.value.asInteger());
    const bool isEquality = operation == TokenKind::Equal || operation == TokenKind::NotEqual;
    if (isEquality && ofLeft == Kind::Text && ofRight == Kind::Text) {
        const QStringView first = left.value.textView();
        const QStringView second = right.value.textView();
        run.bounds.work(std::min(first.size(), second.size()));
        const bool isSame = first.size() == second.size() &&
                            std::equal(first.utf16(), first.utf16() + first.size(), second.utf16());
        return Value::boolean(isSame == (operation == TokenKind::Equal));
    }
    if (ofLeft == Kind::Null || ofRight == Kind::Null)
        return Value::null();
    if (ofLeft == Kind::Label && ofRight == Kind::Label &&
        left.value.asLabel() == right.value.asLabel())
        return answer(operation, std::partial_ordering::equivalent);
    return answer(operation, orderOf(left, right, run));
}

} // namespace hfm::offline::script
