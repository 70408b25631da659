#include "hfm/offline/script/ExpressionParser.h"

#include <algorithm>

namespace hfm::offline::script {

namespace {

// How strongly operators bind.
constexpr int lowest = 1;
constexpr int ofNot = 4;
constexpr int ofComparison = 5;
constexpr int ofSign = 11;
constexpr int ofPower = 12;

int precedenceOf(TokenKind kind)
{
    switch (kind) {
    case TokenKind::Xor:
        return lowest;
    case TokenKind::Or:
        return 2;
    case TokenKind::And:
        return 3;
    case TokenKind::Equal:
    case TokenKind::NotEqual:
    case TokenKind::Less:
    case TokenKind::LessOrEqual:
    case TokenKind::Greater:
    case TokenKind::GreaterOrEqual:
    case TokenKind::Is:
        return ofComparison;
    case TokenKind::Join:
        return 6;
    case TokenKind::Plus:
    case TokenKind::Minus:
        return 7;
    case TokenKind::Mod:
        return 8;
    case TokenKind::IntegerDivide:
        return 9;
    case TokenKind::Times:
    case TokenKind::Divide:
        return 10;
    case TokenKind::Power:
        return ofPower;
    default:
        return 0;
    }
}

const Value *constantOf(TokenKind keyword)
{
    static const Value values[] = {Value::boolean(true), Value::boolean(false), Value(),
                                   Value::null(), Value::object(nullptr)};
    switch (keyword) {
    case TokenKind::True:
        return &values[0];
    case TokenKind::False:
        return &values[1];
    case TokenKind::Empty:
        return &values[2];
    case TokenKind::Null:
        return &values[3];
    case TokenKind::Nothing:
        return &values[4];
    default:
        return nullptr;
    }
}

quint16 deeper(std::initializer_list<const Expression *> parts,
               std::span<Expression *const> more = {})
{
    quint16 depth = 0;
    for (const Expression *part : parts)
        depth = std::max(depth, part->depth);
    for (const Expression *part : more)
        depth = std::max(depth, part->depth);
    return quint16(depth + 1);
}

} // namespace

Expression *ExpressionParser::expression()
{
    return operations(lowest);
}

/// Operands joined by operators that bind at least as strongly as `precedence`.
Expression *ExpressionParser::operations(int precedence)
{
    const TokenReader::Nesting nesting(mReader);
    Expression *first = signedOrNot(precedence);
    std::vector<Chain::Link> links;
    int ofLinks = 0;
    for (;;) {
        const int next = precedenceOf(mReader.kind());
        if (next == 0 || next < precedence)
            break;
        if (!links.empty() && next != ofLinks)
            first = join(first, std::exchange(links, {}));
        ofLinks = next;
        const Token operation = mReader.take();
        links.push_back({operation.kind, operation.position, operations(next + 1)});
    }
    return links.empty() ? first : join(first, std::move(links));
}

Expression *ExpressionParser::join(Expression *first, std::vector<Chain::Link> links)
{
    Chain chain;
    chain.kind = ExpressionKind::Chain;
    chain.position = first->position;
    chain.depth = deeper({first});
    for (const Chain::Link &link : links)
        chain.depth = std::max(chain.depth, deeper({link.operand}));
    chain.first = first;
    chain.links = mProgram.keep(links);
    return note(chain);
}

Expression *ExpressionParser::signedOrNot(int precedence)
{
    const Token token = mReader.peek();
    const bool isNot = token.kind == TokenKind::Not;
    if (!isNot && token.kind != TokenKind::Minus && token.kind != TokenKind::Plus)
        return primary();
    mReader.take();
    Unary unary;
    unary.kind = ExpressionKind::Unary;
    unary.position = token.position;
    unary.operation = token.kind;
    unary.operand = operations(std::max(precedence, isNot ? ofNot : ofSign));
    unary.depth = deeper({unary.operand});
    return note(unary);
}

Expression *ExpressionParser::primary()
{
    const Token token = mReader.peek();
    if (token.kind == TokenKind::Name)
        return postfix();
    if (token.kind == TokenKind::Literal)
        return literal(&mReader.literal(mReader.take()), token.position);
    if (const Value *constant = constantOf(token.kind)) {
        mReader.take();
        return literal(constant, token.position);
    }
    if (!mReader.takeIf(TokenKind::Open))
        mReader.failExpecting(QStringLiteral("expression"));
    Expression *inner = expression();
    mReader.expect(TokenKind::Close);
    inner->isParenthesized = true;
    return behind(inner);
}

Expression *ExpressionParser::literal(const Value *value, Position position)
{
    Literal node;
    node.kind = ExpressionKind::Literal;
    node.position = position;
    node.value = value;
    return note(node);
}

Name *ExpressionParser::name()
{
    const Token token = mReader.expectName();
    Name node;
    node.kind = ExpressionKind::Name;
    node.position = token.position;
    node.name = token.index;
    Name *const made = note(node);
    mScope->uses.push_back(made);
    return made;
}

Expression *ExpressionParser::postfix()
{
    return behind(name());
}

Expression *ExpressionParser::callee()
{
    Expression *found = name();
    for (;;) {
        if (mReader.kind() == TokenKind::Dot)
            found = member(found);
        else if (mReader.kind() == TokenKind::Open && dotFollowsParentheses())
            found = apply(found, arguments(), found->position);
        else
            return found;
    }
}

/// The .members and (arguments) behind an expression.
Expression *ExpressionParser::behind(Expression *expression)
{
    for (;;) {
        if (mReader.kind() == TokenKind::Dot)
            expression = member(expression);
        else if (mReader.kind() == TokenKind::Open)
            expression = apply(expression, arguments(), expression->position);
        else
            return expression;
    }
}

Expression *ExpressionParser::member(Expression *object)
{
    mReader.expect(TokenKind::Dot);
    const Token token = mReader.expectName();
    markCallee(object);
    Member node;
    node.kind = ExpressionKind::Member;
    node.position = token.position;
    node.depth = deeper({object});
    node.object = object;
    node.name = token.index;
    return note(node);
}

Apply *ExpressionParser::apply(Expression *callee, std::span<Expression *const> arguments,
                               Position position)
{
    markCallee(callee);
    Apply node;
    node.kind = ExpressionKind::Apply;
    node.position = position;
    node.depth = deeper({callee}, arguments);
    node.callee = callee;
    node.arguments = arguments;
    return note(node);
}

void ExpressionParser::markCallee(Expression *expression)
{
    if (expression->kind == ExpressionKind::Name)
        static_cast<Name *>(expression)->isCallee = true;
}

std::span<Expression *const> ExpressionParser::arguments()
{
    mReader.expect(TokenKind::Open);
    if (mReader.takeIf(TokenKind::Close))
        return {};
    const auto found = list();
    mReader.expect(TokenKind::Close);
    return found;
}

std::span<Expression *const> ExpressionParser::list()
{
    std::vector<Expression *> found = {expression()};
    while (mReader.takeIf(TokenKind::Comma))
        found.push_back(expression());
    return mProgram.keep(found);
}

bool ExpressionParser::dotFollowsParentheses() const
{
    int open = 0;
    for (size_t ahead = 0;; ++ahead) {
        const TokenKind kind = mReader.peek(ahead).kind;
        if (kind == TokenKind::Open)
            ++open;
        else if (kind == TokenKind::Close && --open == 0)
            return mReader.peek(ahead + 1).kind == TokenKind::Dot;
        else if (kind == TokenKind::EndOfLine || kind == TokenKind::EndOfFile)
            return false;
    }
}

} // namespace hfm::offline::script
