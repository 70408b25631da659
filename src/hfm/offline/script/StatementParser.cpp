#include "hfm/offline/script/StatementParser.h"

namespace hfm::offline::script {

void StatementParser::begin(Place place, Scope &scope)
{
    mPlace = place;
    mScope = &scope;
    mDepth = 0;
    mDeepest = 0;
    mExpressions.setScope(&scope);
}

void StatementParser::charge(Statement &statement)
{
    constexpr qint32 expressionsOfAStep = 16;
    const ExpressionParser::Extent extent = mExpressions.takeExtent();
    statement.cost += extent.count / expressionsOfAStep;
    mDeepest = std::max(mDeepest, mDepth + extent.depth);
}

bool StatementParser::atEnd() const
{
    const TokenKind kind = mReader.kind();
    return kind == TokenKind::EndOfLine || kind == TokenKind::Colon ||
           kind == TokenKind::EndOfFile ||
           (mOneLineIfs > 0 && (kind == TokenKind::Else || kind == TokenKind::End));
}

void StatementParser::expectEnd() const
{
    if (!atEnd())
        mReader.failExpecting(QStringLiteral("end of statement"));
}

void StatementParser::skipSeparators()
{
    while (mReader.kind() == TokenKind::EndOfLine || mReader.kind() == TokenKind::Colon)
        mReader.take();
}

Block StatementParser::block()
{
    ++mDepth;
    const qint32 oneLineIfs = std::exchange(mOneLineIfs, 0);
    std::vector<const Statement *> statements;
    for (;;) {
        skipSeparators();
        switch (mReader.kind()) {
        case TokenKind::Case:
        case TokenKind::Else:
        case TokenKind::ElseIf:
        case TokenKind::End:
        case TokenKind::EndOfFile:
        case TokenKind::Function:
        case TokenKind::Loop:
        case TokenKind::Next:
        case TokenKind::Private:
        case TokenKind::Public:
        case TokenKind::Sub:
        case TokenKind::Wend:
            mOneLineIfs = oneLineIfs;
            --mDepth;
            return mProgram.keep(statements);
        default:
            statement(statements);
            expectEnd();
        }
    }
}

void StatementParser::statement(std::vector<const Statement *> &statements)
{
    const TokenReader::Nesting nesting(mReader);
    switch (mReader.kind()) {
    case TokenKind::Name:
        return assignOrCall(statements);
    case TokenKind::Set:
        mReader.take();
        return statements.push_back(assignment(true));
    case TokenKind::Call:
        return statements.push_back(call());
    case TokenKind::If:
        return statements.push_back(ifStatement());
    case TokenKind::Select:
        return statements.push_back(select());
    case TokenKind::For:
        return statements.push_back(forStatement());
    case TokenKind::Do:
        return statements.push_back(doLoop());
    case TokenKind::While:
        return statements.push_back(whileLoop());
    case TokenKind::Dim:
        mReader.take();
        return variables(statements);
    case TokenKind::ReDim:
        return redim(statements);
    case TokenKind::Const:
        mReader.take();
        return constants();
    case TokenKind::Exit:
        return statements.push_back(exit());
    case TokenKind::On:
        return statements.push_back(onError());
    default:
        mReader.failExpecting(QStringLiteral("statement"));
    }
}

/// Where the name and all .members and (arguments) behind it end that the next tokens are.
size_t StatementParser::endOfTarget() const
{
    size_t at = 1;
    for (int open = 0;; ++at) {
        const TokenKind kind = mReader.peek(at).kind;
        if (kind == TokenKind::EndOfLine || kind == TokenKind::EndOfFile)
            return at;
        if (kind == TokenKind::Open)
            ++open;
        else if (kind == TokenKind::Close && open > 0)
            --open;
        else if (open == 0 && kind == TokenKind::Dot)
            ++at;
        else if (open == 0)
            return at;
    }
}

void StatementParser::assignOrCall(std::vector<const Statement *> &statements)
{
    const TokenKind behind = mReader.peek(endOfTarget()).kind;
    if (behind == TokenKind::Equal)
        return statements.push_back(assignment(false));
    const bool ends = behind == TokenKind::EndOfLine || behind == TokenKind::EndOfFile ||
                      behind == TokenKind::Colon ||
                      (mOneLineIfs > 0 && (behind == TokenKind::Else || behind == TokenKind::End));
    if (!ends)
        return statements.push_back(bareCall());

    auto node = made<CallStatement>(StatementKind::Call, mReader.position());
    node.call = mExpressions.postfix();
    ExpressionParser::markCallee(node.call);
    if (node.call->kind == ExpressionKind::Apply) {
        // One argument in parentheses is an expression in parentheses: given by value.
        const auto arguments = static_cast<Apply *>(node.call)->arguments;
        if (arguments.size() > 1)
            TokenReader::failAt(node.position,
                                QStringLiteral("Cannot use parentheses when calling a Sub"));
        if (arguments.size() == 1)
            arguments[0]->isParenthesized = true;
    }
    statements.push_back(store(node));
}

Statement *StatementParser::assignment(bool isSet)
{
    auto node = made<Assign>(StatementKind::Assign, mReader.position());
    node.isSet = isSet;
    node.target = mExpressions.postfix();
    mReader.expect(TokenKind::Equal);
    node.value = mExpressions.expression();
    return store(node);
}

/// Call Name(arguments)
Statement *StatementParser::call()
{
    auto node = made<CallStatement>(StatementKind::Call, mReader.position());
    mReader.expect(TokenKind::Call);
    node.call = mExpressions.postfix();
    ExpressionParser::markCallee(node.call);
    return store(node);
}

/// Name argument, argument
Statement *StatementParser::bareCall()
{
    auto node = made<CallStatement>(StatementKind::Call, mReader.position());
    Expression *callee = mExpressions.callee();
    const TokenKind next = mReader.kind();
    if (next == TokenKind::Close || next == TokenKind::Comma || next == TokenKind::EndOfLine)
        mReader.failExpecting(QStringLiteral("end of statement"));
    node.call = mExpressions.apply(callee, mExpressions.list(), callee->position);
    return store(node);
}

Statement *StatementParser::exit()
{
    const Position position = mReader.take().position;
    auto node = made<Exit>(StatementKind::Exit, position);
    const Token what = mReader.take();
    bool fits = true;
    switch (what.kind) {
    case TokenKind::For:
        node.what = ExitKind::For;
        fits = mFors > 0;
        break;
    case TokenKind::Do:
        node.what = ExitKind::Do;
        fits = mDos > 0;
        break;
    case TokenKind::Sub:
        node.what = ExitKind::Procedure;
        fits = mPlace == Place::Sub;
        break;
    case TokenKind::Function:
        node.what = ExitKind::Procedure;
        fits = mPlace == Place::Function;
        break;
    default:
        TokenReader::failAt(what.position,
                            QStringLiteral("Expected 'For', 'Do', 'Sub' or 'Function'"));
    }
    if (!fits)
        TokenReader::failAt(position, QStringLiteral("Invalid 'exit' statement"));
    return store(node);
}

Statement *StatementParser::onError()
{
    auto node = made<OnError>(StatementKind::OnError, mReader.take().position);
    mReader.expect(TokenKind::Error);
    node.resumesNext = mReader.takeIf(TokenKind::Resume);
    if (node.resumesNext) {
        mReader.expect(TokenKind::Next);
        return store(node);
    }
    if (!mReader.takeIf(TokenKind::GoTo))
        mReader.failExpecting(QStringLiteral("'Resume Next' or 'GoTo 0'"));
    const Token zero = mReader.peek();
    if (zero.kind != TokenKind::Literal || mReader.literal(zero).kind() != Kind::Integer ||
        mReader.literal(zero).asInteger() != 0)
        mReader.failExpecting(QStringLiteral("0"));
    mReader.take();
    return store(node);
}

} // namespace hfm::offline::script
