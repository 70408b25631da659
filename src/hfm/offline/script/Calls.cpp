#include "hfm/offline/script/Builtins.h"
#include "hfm/offline/script/EvaluatorCalls.h"

namespace hfm::offline::script {

/// The variables of a procedure that is being called; entered when its arguments are known.
class Evaluator::CallScope
{
public:
    CallScope(Evaluator &evaluator, const Procedure &procedure)
        : mEvaluator(evaluator), mProcedure(procedure), mCaller(evaluator.mFrame)
    {
        mEvaluator.mRun.bounds.step();
        mEvaluator.mRun.memory().take(bytes());
        mSlots.resize(size_t(procedure.slotCount));
    }
    ~CallScope()
    {
        leave();
        mEvaluator.mRun.memory().giveBack(bytes());
    }
    CallScope(const CallScope &) = delete;
    CallScope &operator=(const CallScope &) = delete;

    Value &slot(qint32 index) { return mSlots[size_t(index)]; }
    void enter()
    {
        mEvaluator.mRun.bounds.enter(mProcedure.nesting);
        mIsEntered = true;
        mFrame = {&mProcedure, mSlots.data(), false};
        mEvaluator.mFrame = &mFrame;
    }
    void leave()
    {
        if (!std::exchange(mIsEntered, false))
            return;
        mEvaluator.mFrame = mCaller;
        mEvaluator.mRun.bounds.leave(mProcedure.nesting);
    }

private:
    qint64 bytes() const { return qint64(mProcedure.slotCount) * qint64(sizeof(Value)); }

    Evaluator &mEvaluator;
    const Procedure &mProcedure;
    Frame *mCaller;
    Frame mFrame = {};
    bool mIsEntered = false;
    std::vector<Value> mSlots;
};

/// Array elements that a procedure is given by reference: it works on copies, which are put back
/// when it returns, so that nothing refers into an array that the procedure may give new bounds.
class Evaluator::ElementArguments
{
public:
    struct Element
    {
        const Name *array;
        ArrayData::Extents subscripts;
        qint32 slot;
    };
    qint32 slot = 0; ///< of the argument that is being evaluated
    void add(const Name &array, const ArrayData::Extents &subscripts)
    {
        mElements.push_back({&array, subscripts, slot});
    }
    void putBack(Evaluator &evaluator, CallScope &call)
    {
        for (const Element &element : mElements) {
            Value &array = *evaluator.variable(*element.array);
            if (array.kind() == Kind::Array)
                writableArray(array, evaluator.mRun.bounds).at(element.subscripts) =
                    std::move(call.slot(element.slot));
        }
    }

private:
    std::vector<Element> mElements;
};

void Evaluator::callStatement(const Expression &call)
{
    switch (call.kind) {
    case ExpressionKind::Apply:
        evaluateApply(static_cast<const Apply &>(call), true);
        return;
    case ExpressionKind::Name:
        callName(static_cast<const Name &>(call), {}, true);
        return;
    default:
        evaluate(call);
    }
}

/// Calls what a name stands for that is no variable.
Value Evaluator::callName(const Name &name, std::span<Expression *const> arguments,
                          bool isStatement)
{
    mRun.at = name.position;
    switch (name.binding) {
    case Binding::Procedure:
        return callProcedure(name.index, arguments, isStatement);
    case Binding::Result:
        return callProcedure(qint32(mFrame->procedure - mProgram.procedures.data()), arguments,
                             isStatement);
    case Binding::Builtin:
        return callBuiltin(name, arguments);
    case Binding::HostObject:
        throw fault(UnknownMember, spelling(name.name));
    case Binding::Undefined:
        throw fault(UndefinedVariable, spelling(name.name));
    case Binding::Unknown:
        throw finalFaultSaying(WrongType, QStringLiteral("Type mismatch: '%1' is no procedure, "
                                                         "array or object that is known here")
                                              .arg(spelling(name.name)));
    default:
        throw fault(WrongType, spelling(name.name));
    }
}

Value Evaluator::callBuiltin(const Name &name, std::span<Expression *const> arguments)
{
    const Builtin &builtin = *name.builtin;
    const auto count = arguments.size();
    if (count < size_t(builtin.leastArguments) || count > size_t(builtin.mostArguments))
        throw fault(WrongArguments, QLatin1StringView(builtin.name));
    const ArgumentList list(*this, arguments);
    mRun.at = name.position;
    return builtin.function(list.values(), mRun);
}

Value Evaluator::callProcedure(qint32 index, std::span<Expression *const> arguments,
                               bool isStatement)
{
    const Procedure &procedure = mProgram.procedures[size_t(index)];
    if (!procedure.isFunction && !isStatement)
        throw fault(WrongType, spelling(procedure.name));
    if (arguments.size() != procedure.parameters.size())
        throw fault(WrongArguments, spelling(procedure.name));
    const Position at = mRun.at;
    CallScope call(*this, procedure);
    ElementArguments elements;
    for (; elements.slot < qint32(arguments.size()); ++elements.slot)
        call.slot(elements.slot) =
            argument(*arguments[size_t(elements.slot)],
                     procedure.parameters[size_t(elements.slot)].isByReference, elements);
    mRun.at = at;
    call.enter();
    runBlock(procedure.body);
    call.leave();
    mRun.at = at;
    elements.putBack(*this, call);
    return procedure.isFunction ? std::move(call.slot(procedure.resultSlot())) : Value();
}

/// What a parameter's slot is given: the value, or a reference to the caller's variable.
Value Evaluator::argument(const Expression &expression, bool isByReference,
                          ElementArguments &elements)
{
    if (!isByReference || expression.isParenthesized)
        return evaluate(expression);
    if (expression.kind == ExpressionKind::Name) {
        const auto &name = static_cast<const Name &>(expression);
        Value *const slot = variable(name);
        return slot != nullptr ? Value::reference(slot) : evaluateName(name);
    }
    if (expression.kind != ExpressionKind::Apply)
        return evaluate(expression);
    const auto &apply = static_cast<const Apply &>(expression);
    if (apply.callee->kind != ExpressionKind::Name)
        return evaluate(expression);
    const auto &name = static_cast<const Name &>(*apply.callee);
    const bool isVariable = name.binding == Binding::Local || name.binding == Binding::Global;
    if (!isVariable || variable(name)->kind() != Kind::Array)
        return evaluate(expression);
    const ArrayData::Extents at = subscripts(apply.arguments);
    mRun.at = apply.position;
    const Value &array = *variable(name);
    if (array.kind() != Kind::Array)
        throw fault(WrongType, spelling(name.name));
    Value value = array.asArray()->at(at);
    elements.add(name, at);
    return value;
}

} // namespace hfm::offline::script
