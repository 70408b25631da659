#include "hfm/offline/script/StatementParser.h"

// The statements that declare names: Dim, ReDim and Const.

namespace hfm::offline::script {

namespace {

[[noreturn]] void failRedefined(const Name &name, const Program &program)
{
    TokenReader::failAt(
        name.position,
        QStringLiteral("Name redefined: '%1'").arg(program.names.spelling(name.name)));
}

} // namespace

void StatementParser::variables(std::vector<const Statement *> &statements)
{
    do {
        auto node = made<Dim>(StatementKind::Dim, mReader.position());
        node.variable = mExpressions.name();
        const bool isArray = mReader.takeIf(TokenKind::Open);
        std::vector<qint32> bounds;
        if (isArray && mReader.kind() != TokenKind::Close) {
            do
                bounds.push_back(bound());
            while (mReader.takeIf(TokenKind::Comma));
        }
        if (isArray)
            mReader.expect(TokenKind::Close);
        if (!mScope->declare(node.variable->name, {mScope->addSlot(), !bounds.empty(), nullptr}))
            failRedefined(*node.variable, mProgram);
        node.bounds = mProgram.keep(bounds);
        if (isArray)
            statements.push_back(store(node));
    } while (mReader.takeIf(TokenKind::Comma));
}

/// An upper bound of Dim: a number that stands there.
qint32 StatementParser::bound()
{
    const Token token = mReader.peek();
    if (token.kind != TokenKind::Literal || mReader.literal(token).kind() != Kind::Integer)
        mReader.failExpecting(QStringLiteral("integer constant"));
    return mReader.literal(mReader.take()).asInteger();
}

void StatementParser::redim(std::vector<const Statement *> &statements)
{
    const Position position = mReader.take().position;
    const bool preserves = mReader.takeIf(TokenKind::Preserve);
    do {
        auto node = made<ReDim>(StatementKind::ReDim, position);
        node.preserves = preserves;
        node.variable = mExpressions.name();
        mReader.expect(TokenKind::Open);
        node.bounds = mExpressions.list();
        mReader.expect(TokenKind::Close);
        statements.push_back(store(node));
    } while (mReader.takeIf(TokenKind::Comma));
}

void StatementParser::constants()
{
    do {
        const Name *const name = mExpressions.name();
        mReader.expect(TokenKind::Equal);
        if (!mScope->declare(name->name, {-1, false, constant()}))
            failRedefined(*name, mProgram);
    } while (mReader.takeIf(TokenKind::Comma));
}

/// A literal, with a sign or in parentheses.
const Value *StatementParser::constant()
{
    const Token start = mReader.peek();
    Expression *const expression = mExpressions.expression();
    const Expression *value = expression;
    const bool isNegative = value->kind == ExpressionKind::Unary &&
                            static_cast<const Unary *>(value)->operation == TokenKind::Minus;
    if (isNegative)
        value = static_cast<const Unary *>(value)->operand;
    const Value *const literal = value->kind == ExpressionKind::Literal
                                     ? static_cast<const Literal *>(value)->value
                                     : nullptr;
    if (literal == nullptr ||
        (isNegative && literal->kind() != Kind::Integer && literal->kind() != Kind::Double))
        TokenReader::failAt(start.position, QStringLiteral("Expected literal constant"));
    if (!isNegative)
        return literal;
    mProgram.literals.push_back(literal->kind() == Kind::Integer
                                    ? Value::integer(-literal->asInteger())
                                    : Value::number(-literal->asDouble()));
    return &mProgram.literals.back();
}

} // namespace hfm::offline::script
