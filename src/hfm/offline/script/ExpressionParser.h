#pragma once

#include "hfm/offline/script/Scopes.h"
#include "hfm/offline/script/TokenReader.h"

namespace hfm::offline::script {

/// Reads expressions. From the operators that bind least: Xor, Or, And, Not, comparisons and Is,
/// &, + and -, Mod, \, * and /, the sign, ^.
class ExpressionParser
{
public:
    ExpressionParser(TokenReader &reader, Program &program) : mReader(reader), mProgram(program) {}

    /// The scope that the names met from now on belong to.
    void setScope(Scope *scope) { mScope = scope; }

    Expression *expression();
    /// A name with what is written behind it: .members and (arguments).
    Expression *postfix();
    /// The same for the callee of a statement whose arguments stand without parentheses: arguments
    /// in parentheses belong to it only where a dot follows.
    Expression *callee();
    Name *name();
    /// Expressions with commas between them, at least one.
    std::span<Expression *const> list();

    Apply *apply(Expression *callee, std::span<Expression *const> arguments, Position position);
    /// Marks an expression as what is called, or what has a member.
    static void markCallee(Expression *expression);

    /// How many expressions were read, and how deep they nested, since the last call.
    struct Extent
    {
        qint32 count = 0;
        qint32 depth = 0;
    };
    Extent takeExtent() { return std::exchange(mExtent, {}); }

private:
    Expression *operations(int precedence);
    Expression *signedOrNot(int precedence);
    Expression *primary();
    Expression *behind(Expression *expression);
    Expression *member(Expression *object);
    std::span<Expression *const> arguments();
    Expression *join(Expression *first, std::vector<Chain::Link> links);
    Expression *literal(const Value *value, Position position);
    bool dotFollowsParentheses() const;

    template <typename Node>
    Node *note(Node node)
    {
        constexpr quint16 deepest = 200;
        if (node.depth > deepest)
            TokenReader::failAt(node.position, TokenReader::tooDeep());
        ++mExtent.count;
        mExtent.depth = std::max<qint32>(mExtent.depth, node.depth);
        return mProgram.make(node);
    }

    TokenReader &mReader;
    Program &mProgram;
    Scope *mScope = nullptr;
    Extent mExtent;
};

} // namespace hfm::offline::script
