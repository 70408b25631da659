#include "hfm/offline/script/Coercions.h"
#include "hfm/offline/script/Evaluator.h"
#include "hfm/offline/script/Operations.h"

namespace hfm::offline::script {

/// Runs statements one after another. After an error that is passed over the next one follows.
Evaluator::Flow Evaluator::runBlock(Block block)
{
    size_t next = 0;
    for (;;) {
        try {
            while (next < block.size()) {
                const Statement &statement = *block[next++];
                mRun.at = statement.position;
                mRun.bounds.step(statement.cost);
                const Flow flow = run(statement);
                if (flow != Flow::Normal)
                    return flow;
            }
            return Flow::Normal;
        } catch (const Fault &fault) {
            if (!passesOver(fault))
                throw;
        }
    }
}

/// Whether On Error Resume Next holds here and passes over that error, which is noted then.
bool Evaluator::passesOver(const Fault &fault)
{
    constexpr qint64 stepsOfAnError = 100;
    if (fault.isFinal || !mFrame->resumesNext)
        return false;
    mRun.lastErrorNumber = fault.number;
    mRun.lastErrorText = fault.text;
    mRun.bounds.step(stepsOfAnError);
    return true;
}

Evaluator::Flow Evaluator::run(const Statement &statement)
{
    switch (statement.kind) {
    case StatementKind::Assign:
        assign(static_cast<const Assign &>(statement));
        break;
    case StatementKind::Call:
        callStatement(*static_cast<const CallStatement &>(statement).call);
        break;
    case StatementKind::If:
        return runIf(static_cast<const If &>(statement));
    case StatementKind::Select:
        return runSelect(static_cast<const Select &>(statement));
    case StatementKind::For:
        return runFor(static_cast<const For &>(statement));
    case StatementKind::ForEach:
        return runForEach(static_cast<const ForEach &>(statement));
    case StatementKind::DoLoop:
        return runDo(static_cast<const DoLoop &>(statement));
    case StatementKind::Dim:
        dim(static_cast<const Dim &>(statement));
        break;
    case StatementKind::ReDim:
        redim(static_cast<const ReDim &>(statement));
        break;
    case StatementKind::Exit:
        switch (static_cast<const Exit &>(statement).what) {
        case ExitKind::For:
            return Flow::ExitFor;
        case ExitKind::Do:
            return Flow::ExitDo;
        case ExitKind::Procedure:
            return Flow::ExitProcedure;
        }
        break;
    case StatementKind::OnError:
        runOnError(static_cast<const OnError &>(statement));
        break;
    }
    return Flow::Normal;
}

/// Whether a condition is true; Null is not. An error that is passed over counts as true: the next
/// statement is the first of the block that the condition guards.
bool Evaluator::holds(const Expression &condition)
{
    try {
        const Value value = evaluate(condition);
        if (value.kind() == Kind::Boolean)
            return value.asInteger() != 0;
        mRun.at = condition.position;
        return value.kind() != Kind::Null && truthOf(value, mRun);
    } catch (const Fault &fault) {
        if (!passesOver(fault))
            throw;
    }
    return true;
}

Evaluator::Flow Evaluator::runIf(const If &statement)
{
    for (const If::Branch &branch : statement.branches) {
        if (holds(*branch.condition))
            return runBlock(branch.block);
    }
    return runBlock(statement.otherwise);
}

Evaluator::Flow Evaluator::runSelect(const Select &statement)
{
    const Value subject = evaluate(*statement.subject);
    const bool isLiteral = statement.subject->kind == ExpressionKind::Literal;
    for (const Select::Case &choice : statement.cases) {
        if (matches(choice, subject, isLiteral))
            return runBlock(choice.block);
    }
    return runBlock(statement.otherwise);
}

bool Evaluator::matches(const Select::Case &choice, const Value &subject, bool isLiteral)
{
    for (const Expression *expression : choice.values) {
        const Value value = evaluate(*expression);
        mRun.at = expression->position;
        const Value same = compared(TokenKind::Equal, {subject, isLiteral},
                                    {value, expression->kind == ExpressionKind::Literal}, mRun);
        if (same.kind() == Kind::Boolean && same.asInteger() != 0)
            return true;
    }
    return false;
}

/// A bound of a loop as a number.
Value Evaluator::startOf(const Expression &expression)
{
    Value value = evaluate(expression);
    mRun.at = expression.position;
    if (value.kind() == Kind::Integer || value.kind() == Kind::Double)
        return value;
    if (value.kind() == Kind::Date)
        return value;
    const double number = doubleOf(value, mRun);
    return value.isTextual() ? Value::number(number) : Value::integer(qint32(number));
}

Evaluator::Flow Evaluator::runFor(const For &statement)
{
    Value *variable = nullptr;
    Value step = Value::integer(1);
    double end = 0;
    try {
        Value start = startOf(*statement.from);
        end = doubleOf(startOf(*statement.to), mRun);
        if (statement.step != nullptr)
            step = startOf(*statement.step);
        variable = &writable(*statement.variable);
        *variable = std::move(start);
    } catch (const Fault &fault) {
        if (!passesOver(fault))
            throw;
        return runWithoutLoop(statement.block);
    }
    const bool isUpwards = doubleOf(step, mRun) >= 0;
    for (;;) {
        mRun.at = statement.variable->position;
        mRun.bounds.step();
        const double current =
            variable->kind() == Kind::Integer ? variable->asInteger() : doubleOf(*variable, mRun);
        if (isUpwards ? current > end : current < end)
            return Flow::Normal;
        const Flow flow = runBlock(statement.block);
        if (flow != Flow::Normal)
            return flow == Flow::ExitFor ? Flow::Normal : flow;
        if (variable->kind() == Kind::Integer && step.kind() == Kind::Integer)
            *variable = Value::whole(qint64(variable->asInteger()) + step.asInteger());
        else
            *variable = calculated(TokenKind::Plus, *variable, step, mRun);
    }
}

/// The block of a For whose beginning failed and was passed over: it is what follows, and at its
/// end there is no loop to go on with.
Evaluator::Flow Evaluator::runWithoutLoop(Block block)
{
    const Flow flow = runBlock(block);
    if (flow == Flow::Normal)
        throw fault(LoopNotInitialized);
    return flow == Flow::ExitFor ? Flow::Normal : flow;
}

Evaluator::Flow Evaluator::runForEach(const ForEach &statement)
{
    Value *variable = nullptr;
    Value array;
    try {
        array = evaluate(*statement.collection);
        mRun.at = statement.collection->position;
        if (array.kind() != Kind::Array)
            throw fault(NotACollection);
        variable = &writable(*statement.variable);
    } catch (const Fault &fault) {
        if (!passesOver(fault))
            throw;
        return runWithoutLoop(statement.block);
    }
    for (const Value &element : array.asArray()->elements) {
        mRun.bounds.step();
        *variable = element;
        const Flow flow = runBlock(statement.block);
        if (flow != Flow::Normal)
            return flow == Flow::ExitFor ? Flow::Normal : flow;
    }
    return Flow::Normal;
}

Evaluator::Flow Evaluator::runDo(const DoLoop &statement)
{
    const auto goesOn = [&] {
        return statement.condition == nullptr || holds(*statement.condition) != statement.isUntil;
    };
    if (!statement.isTestedLast && !goesOn())
        return Flow::Normal;
    for (;;) {
        const Flow flow = runBlock(statement.block);
        if (flow != Flow::Normal)
            return flow == Flow::ExitDo ? Flow::Normal : flow;
        mRun.bounds.step(statement.cost);
        if (!goesOn())
            return Flow::Normal;
    }
}

void Evaluator::runOnError(const OnError &statement)
{
    mFrame->resumesNext = statement.resumesNext;
    mRun.lastErrorNumber = 0;
    mRun.lastErrorText.clear();
}

} // namespace hfm::offline::script
