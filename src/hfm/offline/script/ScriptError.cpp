#include "hfm/offline/script/ScriptError.h"

namespace hfm::offline::script {

namespace {

QString textAbout(FaultNumber number, const QString &about)
{
    const QString text = faultText(number);
    return about.isEmpty() ? text : QStringLiteral("%1: '%2'").arg(text, about);
}

} // namespace

QString faultText(FaultNumber number)
{
    switch (number) {
    case InvalidCall:
        return QStringLiteral("Invalid procedure call or argument");
    case NumberOverflow:
        return QStringLiteral("Overflow");
    case MemoryExhausted:
        return QStringLiteral("Out of memory");
    case BadSubscript:
        return QStringLiteral("Subscript out of range");
    case ArrayLocked:
        return QStringLiteral("This array is fixed or temporarily locked");
    case DividedByZero:
        return QStringLiteral("Division by zero");
    case WrongType:
        return QStringLiteral("Type mismatch");
    case StackExhausted:
        return QStringLiteral("Out of stack space");
    case StepsExhausted:
        return QStringLiteral("The script runs too long");
    case ObjectNotSet:
        return QStringLiteral("Object variable not set");
    case LoopNotInitialized:
        return QStringLiteral("For loop not initialized");
    case InvalidNull:
        return QStringLiteral("Invalid use of Null");
    case ObjectRequired:
        return QStringLiteral("Object required");
    case UnknownMember:
        return QStringLiteral("Object doesn't support this property or method");
    case WrongArguments:
        return QStringLiteral("Wrong number of arguments or invalid property assignment");
    case NotACollection:
        return QStringLiteral("Object not a collection");
    case UndefinedVariable:
        return QStringLiteral("Variable is undefined");
    case IllegalAssignment:
        return QStringLiteral("Illegal assignment");
    case HostFault:
    case SyntaxFault:
        break;
    }
    return QStringLiteral("Syntax error");
}

Fault fault(FaultNumber number, const QString &about)
{
    return {number, textAbout(number, about), false};
}

Fault finalFault(FaultNumber number, const QString &about)
{
    return {number, textAbout(number, about), true};
}

Fault finalFaultSaying(FaultNumber number, const QString &text)
{
    return {number, text, true};
}

ScriptError::ScriptError(Position position, FaultNumber number, const QString &text)
    : mPosition(position), mNumber(number), mText(text),
      mWhat(QStringLiteral("%1:%2: %3")
                .arg(QString::number(position.line), QString::number(position.column), text)
                .toUtf8())
{
}

} // namespace hfm::offline::script
