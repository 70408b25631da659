#pragma once

#include "hfm/offline/script/ArrayData.h"
#include "hfm/offline/script/Host.h"
#include "hfm/offline/script/Program.h"

namespace hfm::offline::script {

/// Runs the procedures of a program. Failures are Faults; RunState::at tells where.
class Evaluator
{
public:
    /// Both must outlive the evaluator.
    Evaluator(const Program &program, RunState &run);
    ~Evaluator();
    Evaluator(const Evaluator &) = delete;
    Evaluator &operator=(const Evaluator &) = delete;

    /// Runs what stands outside of procedures.
    void runMain();
    /// Calls a Sub without arguments.
    void callSub(qint32 procedure);

private:
    enum class Flow { Normal, ExitFor, ExitDo, ExitProcedure };
    struct Frame
    {
        const Procedure *procedure;
        Value *slots;
        bool resumesNext = false;
    };
    class CallScope;
    class ArgumentList;
    class ElementArguments;

    // StatementRunner.cpp
    Flow runBlock(Block block);
    Flow run(const Statement &statement);
    Flow runIf(const If &statement);
    Flow runSelect(const Select &statement);
    bool matches(const Select::Case &choice, const Value &subject, bool isLiteral);
    Flow runFor(const For &statement);
    Value startOf(const Expression &expression);
    Flow runForEach(const ForEach &statement);
    Flow runWithoutLoop(Block block);
    Flow runDo(const DoLoop &statement);
    void runOnError(const OnError &statement);
    bool holds(const Expression &condition);
    bool passesOver(const Fault &fault);

    // Assignments.cpp
    void assign(const Assign &statement);
    void dim(const Dim &statement);
    void redim(const ReDim &statement);
    /// The variable that a name stands for; nullptr where it stands for none.
    Value *variable(const Name &name)
    {
        switch (name.binding) {
        case Binding::Local:
        case Binding::Result:
            return &mFrame->slots[name.index].target();
        case Binding::Global:
            return &mGlobals[size_t(name.index)];
        default:
            return nullptr;
        }
    }
    Value &writable(const Name &name);
    Value &locate(const Expression &target);
    ArrayData::Extents subscripts(std::span<Expression *const> expressions);

    // ExpressionEvaluator.cpp
    Value evaluate(const Expression &expression);
    /// The value of a literal or a variable, where it stands; nullptr of everything else. Valid
    /// until anything is evaluated.
    const Value *look(const Expression &expression)
    {
        if (expression.kind == ExpressionKind::Literal)
            return static_cast<const Literal &>(expression).value;
        return expression.kind == ExpressionKind::Name
                   ? variable(static_cast<const Name &>(expression))
                   : nullptr;
    }
    Value evaluateName(const Name &name);
    Value evaluateMember(const Member &member, std::span<Expression *const> arguments);
    Value evaluateApply(const Apply &apply, bool isStatement);
    Value evaluateUnary(const Unary &unary);
    Value evaluateChain(const Chain &chain);
    Value operate(const Chain::Link &link, const Value &left, bool leftIsLiteral,
                  const Value &right);
    Value element(const Value &array, const Apply &apply);
    Value lastErrorMember(const Member &member);
    QString nameOf(const Expression &expression) const;

    // Calls.cpp
    void callStatement(const Expression &call);
    Value callName(const Name &name, std::span<Expression *const> arguments, bool isStatement);
    Value callBuiltin(const Name &name, std::span<Expression *const> arguments);
    Value callProcedure(qint32 index, std::span<Expression *const> arguments, bool isStatement);
    Value argument(const Expression &expression, bool isByReference, ElementArguments &elements);
    qint32 memberNumber(NameId name)
    {
        qint32 &number = mMemberNumbers[size_t(name)];
        if (number == notAsked)
            number = mRun.host.memberNumber(spelling(name));
        return number;
    }

    const QString &spelling(NameId name) const { return mProgram.names.spelling(name); }

    static constexpr qint32 notAsked = -2;

    const Program &mProgram;
    RunState &mRun;
    std::vector<Value> mGlobals;
    std::vector<Value> mStack;          ///< arguments of functions and methods
    std::vector<qint32> mMemberNumbers; ///< by name
    Frame *mFrame = nullptr;
};

/// Runs what stands outside of procedures and then a Sub without parameters. Fails with
/// ScriptError.
void runSub(const Program &program, qint32 procedure, RunState &run);

} // namespace hfm::offline::script
