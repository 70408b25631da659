#pragma once

#include "hfm/offline/script/ExpressionParser.h"

namespace hfm::offline::script {

/// Reads the statements of one procedure, or of the script outside of procedures.
class StatementParser
{
public:
    StatementParser(TokenReader &reader, Program &program, ExpressionParser &expressions)
        : mReader(reader), mProgram(program), mExpressions(expressions)
    {
    }

    /// Begins the statements of a procedure (`isFunction`, or a Sub) or those outside.
    enum class Place { Outside, Sub, Function };
    void begin(Place place, Scope &scope);

    /// Statements up to, and without, one of the tokens that end or separate blocks.
    Block block();
    /// Reads one statement into `statements`; some declare only and leave nothing there.
    void statement(std::vector<const Statement *> &statements);
    /// Takes the line ends and colons that separate statements.
    void skipSeparators();
    /// Fails unless a statement may end here.
    void expectEnd() const;
    /// How deep blocks and expressions nested since begin().
    qint32 nesting() const { return mDeepest; }

    /// Const A = 1, B = "x"
    void constants();
    /// Dim A, B(2), C()
    void variables(std::vector<const Statement *> &statements);

private:
    bool atEnd() const;
    void assignOrCall(std::vector<const Statement *> &statements);
    size_t endOfTarget() const;
    Statement *assignment(bool isSet);
    Statement *call();
    Statement *bareCall();
    Statement *ifStatement();
    void ifLines(If &node, std::vector<If::Branch> &branches);
    void ifOnOneLine(If &node, std::vector<If::Branch> &branches);
    Block blockOnOneLine();
    Statement *select();
    Statement *forStatement();
    Statement *forEach(Position position);
    Statement *doLoop();
    Statement *whileLoop();
    Statement *exit();
    Statement *onError();
    void redim(std::vector<const Statement *> &statements);
    const Value *constant();
    qint32 bound();

    template <typename Node>
    Node made(StatementKind kind, Position position) const
    {
        Node node;
        node.kind = kind;
        node.position = position;
        return node;
    }
    /// Stores a node whose expressions have been read.
    template <typename Node>
    Statement *store(Node node)
    {
        charge(node);
        return mProgram.make(node);
    }
    /// Adds the expressions that were read since the last call to what a statement costs. Called
    /// before the blocks of a statement are read.
    void charge(Statement &statement);

    TokenReader &mReader;
    Program &mProgram;
    ExpressionParser &mExpressions;
    Place mPlace = Place::Outside;
    Scope *mScope = nullptr;
    qint32 mFors = 0;
    qint32 mDos = 0;
    qint32 mOneLineIfs = 0;
    qint32 mDepth = 0;
    qint32 mDeepest = 0;
};

} // namespace hfm::offline::script
