#include "hfm/offline/script/Coercions.h"

#include "hfm/offline/script/DateText.h"
#include "hfm/offline/script/NumberText.h"

#include <cmath>
#include <limits>

namespace hfm::offline::script {

namespace {

[[noreturn]] void failNoValue(const Value &value)
{
    if (value.kind() == Kind::Null)
        throw fault(InvalidNull);
    if (value.kind() != Kind::Object)
        throw fault(WrongType);
    if (value.asObject() == nullptr)
        throw fault(ObjectNotSet);
    throw fault(UnknownMember);
}

Text newText(const QString &text, RunState &run)
{
    return Text(text, &run.memory());
}

double numberInText(const Value &value, RunState &run)
{
    const TextOf text(value, run);
    run.bounds.work(text.size());
    const auto number = numberIn(text.view());
    if (!number)
        throw fault(WrongType, QStringLiteral("[string: \"%1\"]")
                                   .arg(text.view().first(std::min<qsizetype>(text.size(), 80))));
    return *number;
}

} // namespace

Text textOf(const Value &value, RunState &run)
{
    switch (value.kind()) {
    case Kind::Text:
        return value.asText();
    case Kind::Label:
        return run.host.labelText(value.asLabel(), run);
    case Kind::Empty:
        return {};
    case Kind::Boolean:
        return newText(value.asInteger() != 0 ? QStringLiteral("True") : QStringLiteral("False"),
                       run);
    case Kind::Integer:
        return newText(QString::number(value.asInteger()), run);
    case Kind::Double:
        return newText(numberText(value.asDouble()), run);
    case Kind::Date:
        return newText(dateText(value.asDouble()), run);
    default:
        failNoValue(value);
    }
}

double doubleOf(const Value &value, RunState &run)
{
    switch (value.kind()) {
    case Kind::Empty:
        return 0;
    case Kind::Boolean:
    case Kind::Integer:
        return value.asInteger();
    case Kind::Double:
    case Kind::Date:
        return value.asDouble();
    case Kind::Text:
    case Kind::Label:
        return numberInText(value, run);
    default:
        failNoValue(value);
    }
}

qint64 rounded(double number, qint64 least, qint64 most)
{
    const double whole = std::nearbyint(number);
    if (!(whole >= double(least) && whole <= double(most)))
        throw fault(NumberOverflow);
    return qint64(whole);
}

Value finite(double number)
{
    if (!std::isfinite(number))
        throw fault(NumberOverflow);
    return Value::number(number);
}

qint32 longOf(const Value &value, RunState &run)
{
    if (value.kind() == Kind::Integer || value.kind() == Kind::Boolean)
        return value.asInteger();
    return qint32(rounded(doubleOf(value, run), std::numeric_limits<qint32>::min(),
                          std::numeric_limits<qint32>::max()));
}

bool truthOf(const Value &value, RunState &run)
{
    if (value.kind() == Kind::Boolean || value.kind() == Kind::Integer)
        return value.asInteger() != 0;
    if (!value.isTextual())
        return doubleOf(value, run) != 0;
    const TextOf text(value, run);
    if (text.view().compare(QLatin1StringView("True"), Qt::CaseInsensitive) == 0)
        return true;
    if (text.view().compare(QLatin1StringView("False"), Qt::CaseInsensitive) == 0)
        return false;
    return numberInText(value, run) != 0;
}

double daysOf(const Value &value, RunState &run)
{
    if (!value.isTextual())
        return doubleOf(value, run);
    const TextOf text(value, run);
    run.bounds.work(text.size());
    if (const auto days = dateIn(text.view()))
        return *days;
    return numberInText(value, run);
}

} // namespace hfm::offline::script
