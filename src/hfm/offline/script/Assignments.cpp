#include "hfm/offline/script/Coercions.h"
#include "hfm/offline/script/Evaluator.h"

#include <limits>

namespace hfm::offline::script {

Value &Evaluator::writable(const Name &name)
{
    if (Value *slot = variable(name))
        return *slot;
    mRun.at = name.position;
    throw fault(name.binding == Binding::Undefined ? UndefinedVariable : IllegalAssignment,
                spelling(name.name));
}

ArrayData::Extents Evaluator::subscripts(std::span<Expression *const> expressions)
{
    ArrayData::Extents found;
    for (const Expression *expression : expressions) {
        const Value value = evaluate(*expression);
        mRun.at = expression->position;
        found.append(longOf(value, mRun));
    }
    return found;
}

/// The place that is assigned to: a variable, or an element of an array that nobody shares.
Value &Evaluator::locate(const Expression &target)
{
    if (target.kind == ExpressionKind::Name)
        return writable(static_cast<const Name &>(target));
    if (target.kind != ExpressionKind::Apply) {
        mRun.at = target.position;
        throw finalFault(UnknownMember);
    }
    const auto &apply = static_cast<const Apply &>(target);
    const ArrayData::Extents at = subscripts(apply.arguments);
    // From here on nothing is evaluated but the subscripts of what is further outside.
    Value &slot = locate(*apply.callee);
    mRun.at = apply.position;
    if (slot.kind() != Kind::Array)
        throw fault(WrongType, nameOf(*apply.callee));
    return writableArray(slot, mRun.bounds).at(at);
}

void Evaluator::assign(const Assign &statement)
{
    Value value = evaluate(*statement.value);
    mRun.at = statement.value->position;
    const bool isObject = value.kind() == Kind::Object;
    if (statement.isSet && !isObject)
        throw fault(ObjectRequired);
    if (!statement.isSet && isObject)
        throw fault(value.asObject() == nullptr ? ObjectNotSet : UnknownMember);
    if (statement.target->kind == ExpressionKind::Name) {
        const auto &name = static_cast<const Name &>(*statement.target);
        Value &slot = writable(name);
        if (name.isFixedArray && slot.kind() == Kind::Array) {
            mRun.at = name.position;
            throw fault(WrongType, spelling(name.name));
        }
        slot = std::move(value);
        return;
    }
    locate(*statement.target) = std::move(value);
}

/// Makes the array of a declaration. Where the declaration is met again, as in a loop, the array
/// stays as it is.
void Evaluator::dim(const Dim &statement)
{
    Value &slot = writable(*statement.variable);
    if (slot.kind() == Kind::Array)
        return;
    ArrayData::Extents extents;
    for (const qint32 bound : statement.bounds) {
        if (bound == std::numeric_limits<qint32>::max())
            throw finalFault(MemoryExhausted);
        extents.append(bound + 1);
    }
    mRun.at = statement.position;
    if (extents.size() > ArrayData::mostDimensions)
        throw fault(BadSubscript);
    auto *data = new ArrayData(extents, mRun.memory());
    slot = Value::array(data);
    mRun.bounds.work(qint64(data->elements.size()));
}

void Evaluator::redim(const ReDim &statement)
{
    ArrayData::Extents extents = subscripts(statement.bounds);
    mRun.at = statement.variable->position;
    Value &slot = writable(*statement.variable);
    if (statement.variable->isFixedArray)
        throw fault(ArrayLocked);
    for (qint32 &extent : extents) {
        if (extent < -1 || extent == std::numeric_limits<qint32>::max())
            throw fault(BadSubscript);
        ++extent;
    }
    if (extents.size() > ArrayData::mostDimensions)
        throw fault(BadSubscript);
    auto *data = new ArrayData(extents, mRun.memory());
    Value fresh = Value::array(data);
    mRun.bounds.work(qint64(data->elements.size()));
    if (statement.preserves && slot.kind() == Kind::Array && !slot.asArray()->extents.isEmpty()) {
        // Only the last dimension may change: the elements that stay are the first ones.
        const ArrayData &old = *slot.asArray();
        const bool fits = old.extents.size() == extents.size() &&
                          std::equal(extents.begin(), extents.end() - 1, old.extents.begin());
        if (!fits)
            throw fault(BadSubscript);
        const size_t kept = std::min(old.elements.size(), data->elements.size());
        std::copy_n(old.elements.begin(), kept, data->elements.begin());
    }
    slot = std::move(fresh);
}

} // namespace hfm::offline::script
