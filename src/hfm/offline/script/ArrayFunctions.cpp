#include "hfm/offline/script/ArrayData.h"
#include "hfm/offline/script/Builtins.h"
#include "hfm/offline/script/Coercions.h"

#include <limits>

// UBound LBound IsArray Array Split Join Filter

namespace hfm::offline::script {

namespace {

ArrayData &arrayOf(const Value &value)
{
    if (value.kind() != Kind::Array)
        throw fault(WrongType);
    return *value.asArray();
}

/// The elements of an array of one dimension.
std::span<const Value> listOf(const Value &value)
{
    const ArrayData &array = arrayOf(value);
    if (array.extents.size() != 1)
        throw fault(array.extents.isEmpty() ? BadSubscript : WrongType);
    return array.elements;
}

/// Makes an array while its size is still unknown.
class ListMaker
{
public:
    explicit ListMaker(RunState &run) : mRun(run) {}
    void add(Value value)
    {
        mRun.memory().take(sizeof(Value));
        mItems.push_back(std::move(value));
    }
    Value finish()
    {
        ArrayData *data = ArrayData::ofSize(qsizetype(mItems.size()), mRun.memory());
        std::move(mItems.begin(), mItems.end(), data->elements.begin());
        return Value::array(data);
    }
    ~ListMaker() { mRun.memory().giveBack(qint64(mItems.size() * sizeof(Value))); }
    ListMaker(const ListMaker &) = delete;
    ListMaker &operator=(const ListMaker &) = delete;

private:
    RunState &mRun;
    std::vector<Value> mItems;
};

/// The argument at that position, or a blank where it is not given.
Value delimiterArgument(Arguments arguments, size_t position)
{
    static const Value blank(Text(u" ", nullptr));
    return position < arguments.size() ? arguments[position] : blank;
}

qint32 extent(Arguments arguments, RunState &run)
{
    const ArrayData &array = arrayOf(arguments[0]);
    const qint32 dimension = longArgument(arguments, 1, 1, run);
    if (dimension < 1 || dimension > array.extents.size())
        throw fault(BadSubscript);
    return array.extents[dimension - 1];
}

Value uBound(Arguments arguments, RunState &run)
{
    return Value::integer(extent(arguments, run) - 1);
}

Value lBound(Arguments arguments, RunState &run)
{
    extent(arguments, run); // fails where there are no bounds
    return Value::integer(0);
}

Value isArray(Arguments arguments, RunState &)
{
    return Value::boolean(arguments[0].kind() == Kind::Array);
}

Value array(Arguments arguments, RunState &run)
{
    ArrayData *data = ArrayData::ofSize(qsizetype(arguments.size()), run.memory());
    std::copy(arguments.begin(), arguments.end(), data->elements.begin());
    return Value::array(data);
}

Value split(Arguments arguments, RunState &run)
{
    const TextOf text(arguments[0], run);
    const Value delimiterValue = delimiterArgument(arguments, 1);
    const TextOf delimiter(delimiterValue, run);
    const qint32 most = longArgument(arguments, 2, -1, run);
    const Qt::CaseSensitivity comparison = comparisonArgument(arguments, 3, run);
    run.bounds.work(text.size());
    ListMaker list(run);
    QStringView rest = text.view();
    for (qint32 count = 1; !text.view().isEmpty(); ++count) {
        const bool isLast = delimiter.view().isEmpty() || (most >= 0 && count >= most);
        const qsizetype at = isLast ? -1 : rest.indexOf(delimiter.view(), 0, comparison);
        list.add(run.text(at < 0 ? rest : rest.first(at)));
        if (at < 0)
            break;
        rest = rest.sliced(at + delimiter.size());
    }
    return list.finish();
}

Value join(Arguments arguments, RunState &run)
{
    const std::span<const Value> items = listOf(arguments[0]);
    const Value delimiterValue = delimiterArgument(arguments, 1);
    const TextOf delimiter(delimiterValue, run);
    qint64 size = 0;
    for (const Value &item : items) {
        run.bounds.work(32); // one step each
        size += TextOf(item, run).size() + delimiter.size();
    }
    run.memory().take(2 * size); // until it is a text of the run
    QString text;
    text.reserve(size);
    for (const Value &item : items) {
        text += TextOf(item, run).view();
        text += delimiter.view();
    }
    text.chop(items.empty() ? 0 : delimiter.size());
    run.memory().giveBack(2 * size);
    return run.text(text);
}

Value filter(Arguments arguments, RunState &run)
{
    const std::span<const Value> items = listOf(arguments[0]);
    const TextOf wanted(arguments[1], run);
    const bool includes = arguments.size() < 3 || truthOf(arguments[2], run);
    const Qt::CaseSensitivity comparison = comparisonArgument(arguments, 3, run);
    ListMaker list(run);
    for (const Value &item : items) {
        const TextOf text(item, run);
        run.bounds.work(32 + text.size() + wanted.size());
        if (text.view().contains(wanted.view(), comparison) == includes)
            list.add(item);
    }
    return list.finish();
}

constexpr Builtin functions[] = {
    {"UBound", 1, 2, uBound},   {"LBound", 1, 2, lBound},
    {"IsArray", 1, 1, isArray}, {"Array", 0, std::numeric_limits<qint32>::max(), array},
    {"Split", 1, 4, split},     {"Join", 1, 2, join},
    {"Filter", 2, 4, filter},
};

} // namespace

std::span<const Builtin> arrayFunctions()
{
    return functions;
}

} // namespace hfm::offline::script
