#include "hfm/offline/script/StatementParser.h"

// The statements that hold blocks of other statements.

namespace hfm::offline::script {

namespace {

/// Counts one up for as long as it lives.
class CountedUp
{
public:
    explicit CountedUp(qint32 &count) : mCount(count) { ++mCount; }
    ~CountedUp() { --mCount; }
    CountedUp(const CountedUp &) = delete;
    CountedUp &operator=(const CountedUp &) = delete;

private:
    qint32 &mCount;
};

} // namespace

Statement *StatementParser::ifStatement()
{
    auto node = made<If>(StatementKind::If, mReader.take().position);
    std::vector<If::Branch> branches = {{mExpressions.expression(), {}}};
    charge(node);
    mReader.expect(TokenKind::Then);
    if (mReader.kind() == TokenKind::EndOfLine && mOneLineIfs == 0)
        ifLines(node, branches);
    else
        ifOnOneLine(node, branches);
    node.branches = mProgram.keep(branches);
    return store(node);
}

void StatementParser::ifLines(If &node, std::vector<If::Branch> &branches)
{
    branches.back().block = block();
    while (mReader.takeIf(TokenKind::ElseIf)) {
        Expression *condition = mExpressions.expression();
        charge(node);
        mReader.expect(TokenKind::Then);
        branches.push_back({condition, block()});
    }
    if (mReader.takeIf(TokenKind::Else))
        node.otherwise = block();
    mReader.expect(TokenKind::End);
    mReader.expect(TokenKind::If);
}

void StatementParser::ifOnOneLine(If &node, std::vector<If::Branch> &branches)
{
    if (mReader.kind() == TokenKind::EndOfLine)
        mReader.failExpecting(QStringLiteral("statement"));
    const CountedUp inside(mOneLineIfs);
    branches.back().block = blockOnOneLine();
    if (mReader.takeIf(TokenKind::Else))
        node.otherwise = blockOnOneLine();
    if (mReader.kind() == TokenKind::End && mReader.peek(1).kind == TokenKind::If) {
        mReader.take();
        mReader.take();
    }
}

/// Statements with colons between them, up to the line's end or an Else.
Block StatementParser::blockOnOneLine()
{
    const CountedUp deeper(mDepth);
    std::vector<const Statement *> statements;
    do {
        if (atEnd())
            continue;
        statement(statements);
        expectEnd();
    } while (mReader.takeIf(TokenKind::Colon));
    return mProgram.keep(statements);
}

Statement *StatementParser::select()
{
    auto node = made<Select>(StatementKind::Select, mReader.take().position);
    mReader.expect(TokenKind::Case);
    node.subject = mExpressions.expression();
    expectEnd();
    skipSeparators();
    std::vector<Select::Case> cases;
    bool hasElse = false;
    while (mReader.kind() == TokenKind::Case && !hasElse) {
        mReader.take();
        hasElse = mReader.takeIf(TokenKind::Else);
        std::span<Expression *const> values;
        if (!hasElse)
            values = mExpressions.list();
        charge(node);
        const Block found = block();
        if (hasElse)
            node.otherwise = found;
        else
            cases.push_back({values, found});
    }
    mReader.expect(TokenKind::End);
    mReader.expect(TokenKind::Select);
    node.cases = mProgram.keep(cases);
    return store(node);
}

Statement *StatementParser::forStatement()
{
    const Position position = mReader.take().position;
    if (mReader.takeIf(TokenKind::Each))
        return forEach(position);
    auto node = made<For>(StatementKind::For, position);
    node.variable = mExpressions.name();
    mReader.expect(TokenKind::Equal);
    node.from = mExpressions.expression();
    mReader.expect(TokenKind::To);
    node.to = mExpressions.expression();
    node.step = mReader.takeIf(TokenKind::Step) ? mExpressions.expression() : nullptr;
    charge(node);
    expectEnd();
    {
        const CountedUp inside(mFors);
        node.block = block();
    }
    mReader.expect(TokenKind::Next);
    return store(node);
}

Statement *StatementParser::forEach(Position position)
{
    auto node = made<ForEach>(StatementKind::ForEach, position);
    node.variable = mExpressions.name();
    mReader.expect(TokenKind::In);
    node.collection = mExpressions.expression();
    charge(node);
    expectEnd();
    {
        const CountedUp inside(mFors);
        node.block = block();
    }
    mReader.expect(TokenKind::Next);
    return store(node);
}

Statement *StatementParser::doLoop()
{
    auto node = made<DoLoop>(StatementKind::DoLoop, mReader.take().position);
    node.condition = nullptr;
    node.isUntil = false;
    node.isTestedLast = false;
    const auto condition = [&] {
        if (mReader.kind() != TokenKind::While && mReader.kind() != TokenKind::Until)
            return false;
        node.isUntil = mReader.take().kind == TokenKind::Until;
        node.condition = mExpressions.expression();
        return true;
    };
    const bool isTestedFirst = condition();
    charge(node);
    expectEnd();
    {
        const CountedUp inside(mDos);
        node.block = block();
    }
    mReader.expect(TokenKind::Loop);
    if (!isTestedFirst)
        node.isTestedLast = condition();
    return store(node);
}

/// While condition ... Wend, which no Exit leaves.
Statement *StatementParser::whileLoop()
{
    auto node = made<DoLoop>(StatementKind::DoLoop, mReader.take().position);
    node.isUntil = false;
    node.isTestedLast = false;
    node.condition = mExpressions.expression();
    charge(node);
    expectEnd();
    node.block = block();
    mReader.expect(TokenKind::Wend);
    return store(node);
}

} // namespace hfm::offline::script
