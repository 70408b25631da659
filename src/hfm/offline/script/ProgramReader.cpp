#include "hfm/offline/script/Scanner.h"
#include "hfm/offline/script/StatementParser.h"

#include <unordered_set>

namespace hfm::offline::script {

namespace {

/// Reads a whole script: its procedures and what stands between them.
class ProgramReader
{
public:
    ProgramReader(const std::vector<Token> &tokens, Program &program)
        : mReader(tokens, program.literals), mProgram(program), mExpressions(mReader, program),
          mStatements(mReader, program, mExpressions)
    {
    }

    void read(const QList<QString> &objects)
    {
        mStatements.begin(StatementParser::Place::Outside, mMain);
        for (mStatements.skipSeparators(); mReader.kind() != TokenKind::EndOfFile;
             mStatements.skipSeparators())
            readOne();
        mProgram.main.body = mProgram.keep(mBody);
        mProgram.main.nesting = std::max(mMainNesting, mStatements.nesting()) + 1;
        refuseRepeatedNames();

        Binder binder(mProgram, objects, mIsExplicit);
        binder.bindMain(mMain);
        for (size_t i = 0; i < mScopes.size(); ++i)
            binder.bind(mScopes[i], mProgram.procedures[i]);
    }

private:
    void readOne()
    {
        const bool hasVisibility =
            mReader.takeIf(TokenKind::Public) || mReader.takeIf(TokenKind::Private);
        const TokenKind kind = mReader.kind();
        if (kind == TokenKind::Sub || kind == TokenKind::Function) {
            readProcedure(kind == TokenKind::Function);
        } else if (hasVisibility && kind == TokenKind::Name) {
            mStatements.variables(mBody);
        } else if (hasVisibility && kind != TokenKind::Const) {
            mReader.failExpecting(QStringLiteral("identifier"));
        } else if (kind == TokenKind::Option) {
            mReader.take();
            mReader.expect(TokenKind::Explicit);
            mIsExplicit = true;
        } else {
            mStatements.statement(mBody);
        }
        mStatements.expectEnd();
    }

    void readProcedure(bool isFunction)
    {
        mMainNesting = std::max(mMainNesting, mStatements.nesting());
        Procedure procedure;
        procedure.isFunction = isFunction;
        const TokenKind word = mReader.take().kind;
        procedure.position = mReader.position();
        procedure.name = mReader.expectName().index;
        Scope &scope = mScopes.emplace_back();
        readParameters(procedure, scope);
        if (isFunction) {
            scope.resultName = procedure.name;
            scope.addSlot();
        }
        mStatements.begin(
            isFunction ? StatementParser::Place::Function : StatementParser::Place::Sub, scope);
        procedure.body = mStatements.block();
        mReader.expect(TokenKind::End);
        mReader.expect(word);
        procedure.nesting = mStatements.nesting() + 1;
        mProgram.procedures.push_back(std::move(procedure));
        mStatements.begin(StatementParser::Place::Outside, mMain);
    }

    void readParameters(Procedure &procedure, Scope &scope)
    {
        if (!mReader.takeIf(TokenKind::Open) || mReader.takeIf(TokenKind::Close))
            return;
        do {
            Parameter parameter;
            parameter.isByReference = !mReader.takeIf(TokenKind::ByVal);
            if (parameter.isByReference)
                mReader.takeIf(TokenKind::ByRef);
            const Token name = mReader.expectName();
            if (!scope.declare(name.index, {scope.addSlot(), false, nullptr}))
                failRedefined(name.index, name.position);
            procedure.parameters.push_back(parameter);
            if (mReader.takeIf(TokenKind::Open)) // an array, which is told from no other value
                mReader.expect(TokenKind::Close);
        } while (mReader.takeIf(TokenKind::Comma));
        mReader.expect(TokenKind::Close);
    }

    void refuseRepeatedNames() const
    {
        std::unordered_set<NameId> names;
        for (const Procedure &procedure : mProgram.procedures) {
            if (!names.insert(procedure.name).second || mMain.find(procedure.name) != nullptr)
                failRedefined(procedure.name, procedure.position);
        }
    }

    [[noreturn]] void failRedefined(NameId name, Position position) const
    {
        TokenReader::failAt(
            position, QStringLiteral("Name redefined: '%1'").arg(mProgram.names.spelling(name)));
    }

    TokenReader mReader;
    Program &mProgram;
    ExpressionParser mExpressions;
    StatementParser mStatements;
    bool mIsExplicit = false;
    std::vector<const Statement *> mBody;
    Scope mMain;
    qint32 mMainNesting = 0;
    std::deque<Scope> mScopes; ///< by procedure
};

} // namespace

qint32 Program::findProcedure(QStringView name) const
{
    const NameId id = names.find(name);
    for (size_t i = 0; i < procedures.size(); ++i) {
        if (procedures[i].name == id)
            return qint32(i);
    }
    return -1;
}

std::unique_ptr<const Program> readProgram(QStringView text, const QList<QString> &objects)
{
    auto program = std::make_unique<Program>();
    Tokens tokens = scan(text);
    program->names = std::move(tokens.names);
    program->literals = std::move(tokens.literals);
    ProgramReader(tokens.tokens, *program).read(objects);
    return program;
}

} // namespace hfm::offline::script
