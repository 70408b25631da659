#include "hfm/offline/script/Builtins.h"
#include "hfm/offline/script/Coercions.h"
#include "runtime/CodePage.h"

#include <algorithm>

// Len Left Right Mid UCase LCase Trim LTrim RTrim Space String Chr Asc

namespace hfm::offline::script {

namespace {

/// What a function makes of its text; Null stays Null.
template <typename Make>
Value ofText(const Value &value, RunState &run, Make make)
{
    if (value.kind() == Kind::Null)
        return value;
    const TextOf text(value, run);
    return run.text(make(text.view()));
}

qsizetype lengthArgument(const Value &value, RunState &run)
{
    const qint32 length = longOf(value, run);
    if (length < 0)
        throw fault(InvalidCall);
    return length;
}

Value len(Arguments arguments, RunState &run)
{
    if (arguments[0].kind() == Kind::Null)
        return Value::null();
    return Value::whole(TextOf(arguments[0], run).size());
}

Value left(Arguments arguments, RunState &run)
{
    const qsizetype length = lengthArgument(arguments[1], run);
    return ofText(arguments[0], run,
                  [&](QStringView text) { return text.first(std::min(length, text.size())); });
}

Value right(Arguments arguments, RunState &run)
{
    const qsizetype length = lengthArgument(arguments[1], run);
    return ofText(arguments[0], run,
                  [&](QStringView text) { return text.last(std::min(length, text.size())); });
}

Value mid(Arguments arguments, RunState &run)
{
    const qint32 start = longOf(arguments[1], run);
    if (start < 1)
        throw fault(InvalidCall);
    const qsizetype length = arguments.size() > 2 ? lengthArgument(arguments[2], run) : -1;
    return ofText(arguments[0], run, [&](QStringView text) { return text.mid(start - 1, length); });
}

Value uCase(Arguments arguments, RunState &run)
{
    return ofText(arguments[0], run, [](QStringView text) { return text.toString().toUpper(); });
}

Value lCase(Arguments arguments, RunState &run)
{
    return ofText(arguments[0], run, [](QStringView text) { return text.toString().toLower(); });
}

QStringView withoutBlanksBefore(QStringView text)
{
    const auto first = std::find_if(text.begin(), text.end(), [](QChar c) { return c != u' '; });
    return text.sliced(first - text.begin());
}

QStringView withoutBlanksBehind(QStringView text)
{
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

Value trim(Arguments arguments, RunState &run)
{
    return ofText(arguments[0], run,
                  [](QStringView text) { return withoutBlanksBehind(withoutBlanksBefore(text)); });
}

Value lTrim(Arguments arguments, RunState &run)
{
    return ofText(arguments[0], run, withoutBlanksBefore);
}

Value rTrim(Arguments arguments, RunState &run)
{
    return ofText(arguments[0], run, withoutBlanksBehind);
}

Value repeated(qsizetype count, QChar character, RunState &run)
{
    run.bounds.work(count);
    run.memory().take(2 * count); // until it is a text of the run
    const QString text(count, character);
    run.memory().giveBack(2 * count);
    return run.text(text);
}

Value space(Arguments arguments, RunState &run)
{
    return repeated(lengthArgument(arguments[0], run), u' ', run);
}

/// The character of a number in the code page.
QChar characterOf(qint32 number)
{
    if (number < 0 || number > 255)
        throw fault(InvalidCall);
    const char byte = char(number);
    return CodePage::decode(QByteArrayView(&byte, 1)).at(0);
}

/// String(count, character), the character given by its number or as the first of a text.
Value string(Arguments arguments, RunState &run)
{
    const qsizetype count = lengthArgument(arguments[0], run);
    const Value &character = arguments[1];
    if (character.kind() == Kind::Null)
        return character;
    if (!character.isTextual())
        return repeated(count, characterOf(longOf(character, run) & 0xFF), run);
    const TextOf text(character, run);
    if (text.view().isEmpty())
        throw fault(InvalidCall);
    return repeated(count, text.view().front(), run);
}

Value chr(Arguments arguments, RunState &run)
{
    const QChar character = characterOf(longOf(arguments[0], run));
    return run.text(QStringView(&character, 1));
}

Value asc(Arguments arguments, RunState &run)
{
    const TextOf text(arguments[0], run);
    if (text.view().isEmpty())
        throw fault(InvalidCall);
    return Value::integer(uchar(CodePage::encode(text.view().first(1)).at(0)));
}

constexpr Builtin functions[] = {
    {"Len", 1, 1, len},     {"Left", 2, 2, left},     {"Right", 2, 2, right},
    {"Mid", 2, 3, mid},     {"UCase", 1, 1, uCase},   {"LCase", 1, 1, lCase},
    {"Trim", 1, 1, trim},   {"LTrim", 1, 1, lTrim},   {"RTrim", 1, 1, rTrim},
    {"Space", 1, 1, space}, {"String", 2, 2, string}, {"Chr", 1, 1, chr},
    {"Asc", 1, 1, asc},
};

} // namespace

std::span<const Builtin> textFunctions()
{
    return functions;
}

} // namespace hfm::offline::script
