#include "TestHost.h"

#include <QTimeZone>

using namespace hfm::offline::script;

namespace {

Value words(qint32 count, RunState &run)
{
    ArrayData *data = ArrayData::ofSize(count, run.memory());
    for (qint32 i = 0; i < count; ++i)
        data->elements[size_t(i)] = Value::label({0, i});
    return Value::array(data);
}

} // namespace

QString TestHost::put(const Value &value, RunState &run)
{
    switch (value.kind()) {
    case Kind::Empty:
        return QStringLiteral("Empty");
    case Kind::Null:
        return QStringLiteral("Null");
    case Kind::Object:
        return value.asObject() == nullptr ? QStringLiteral("Nothing") : QStringLiteral("Object");
    case Kind::Text:
    case Kind::Label:
        return u'"' + textOf(value, run).view().toString() + u'"';
    case Kind::Double:
        return textOf(value, run).view().toString() + u'#';
    case Kind::Date:
        return u'#' + textOf(value, run).view().toString() + u'#';
    case Kind::Array: {
        QStringList elements;
        for (const Value &element : value.asArray()->elements)
            elements.append(put(element, run));
        return u'[' + elements.join(QStringLiteral(", ")) + u']';
    }
    default:
        return textOf(value, run).view().toString();
    }
}

Value TestHost::invoke(qint32 member, Arguments arguments, RunState &run)
{
    switch (member) {
    case 0: {
        QStringList line;
        for (const Value &argument : arguments)
            line.append(put(argument, run));
        output.append(line.join(u' '));
        return {};
    }
    case 1:
        return words(longOf(arguments[0], run), run);
    case 2:
        return Value::label({0, longOf(arguments[0], run)});
    case 3:
        return Value::object(this);
    default:
        throw finalFaultSaying(HostFault, QStringLiteral("Refused"));
    }
}

QStringList outcomeOf(const QString &script, Limits limits)
{
    TestHost host;
    try {
        // The procedure stands last, so that places in the script are as they are.
        const auto program = readProgram(
            QString(script + QStringLiteral("\nSub DoNothing\nEnd Sub")), TestHost::objects());
        RunState run{Bounds(limits), host, QDateTime(QDate(2012, 11, 21), QTime(16, 5, 9))};
        runSub(*program, program->findProcedure(u"donothing"), run);
        if (run.memory().left() != limits.memory)
            host.output.append(QStringLiteral("memory that was not given back"));
    } catch (const ScriptError &error) {
        host.output.append(QStringLiteral("! ") + QString::fromUtf8(error.what()));
    }
    return host.output;
}
