#include "hfm/offline/script/Builtins.h"

#include "hfm/offline/script/Coercions.h"
#include "hfm/offline/script/NameTable.h"

#include <initializer_list>

namespace hfm::offline::script {

namespace {

QHash<QString, const Builtin *> makeTable()
{
    QHash<QString, const Builtin *> table;
    for (const auto functions : {arrayFunctions(), conversionFunctions(), dateFunctions(),
                                 numberFunctions(), searchFunctions(), textFunctions()}) {
        for (const Builtin &builtin : functions)
            table.insert(NameTable::folded(QLatin1StringView(builtin.name).toString()), &builtin);
    }
    return table;
}

QHash<QString, Value> makeConstants()
{
    const auto text = [](QStringView units) { return Value(Text(units, nullptr)); };
    return {
        {QStringLiteral("vbcrlf"), text(u"\r\n")},
        {QStringLiteral("vbcr"), text(u"\r")},
        {QStringLiteral("vblf"), text(u"\n")},
        {QStringLiteral("vbtab"), text(u"\t")},
        {QStringLiteral("vbbinarycompare"), Value::integer(0)},
        {QStringLiteral("vbtextcompare"), Value::integer(1)},
    };
}

} // namespace

const Builtin *findBuiltin(QStringView name)
{
    static const QHash<QString, const Builtin *> table = makeTable();
    return table.value(NameTable::folded(name));
}

const Value *findBuiltinConstant(QStringView name)
{
    static const QHash<QString, Value> constants = makeConstants();
    const auto found = constants.constFind(NameTable::folded(name));
    return found == constants.constEnd() ? nullptr : &*found;
}

qint32 longArgument(Arguments arguments, size_t position, qint32 otherwise, RunState &run)
{
    return position < arguments.size() ? longOf(arguments[position], run) : otherwise;
}

Qt::CaseSensitivity comparisonArgument(Arguments arguments, size_t position, RunState &run)
{
    const qint32 comparison = longArgument(arguments, position, 0, run);
    if (comparison != 0 && comparison != 1)
        throw fault(InvalidCall);
    return comparison == 0 ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

} // namespace hfm::offline::script
