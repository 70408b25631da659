#include "runtime/RuntimeError.h"

#include <new>

RuntimeError::RuntimeError(qint32 number) : RuntimeError(number, QStringLiteral("Tessaly"), {})
{
}

RuntimeError::RuntimeError(qint32 number, QString source, QString description)
    : mNumber(number), mSource(std::move(source)),
      mDescription(description.isEmpty() ? usualDescription(number) : std::move(description)),
      mWhat(mDescription.toUtf8())
{
}

RuntimeError RuntimeError::naming(qint32 number, const QString &name)
{
    return RuntimeError(number, QStringLiteral("Tessaly"),
                        usualDescription(number) + QStringLiteral(": ") + name);
}

RuntimeError RuntimeError::caught()
{
    try {
        throw;
    } catch (const RuntimeError &error) {
        return error;
    } catch (const std::bad_alloc &) {
        return RuntimeError(OutOfMemory);
    } catch (const std::exception &error) {
        return RuntimeError(InvalidProcedureCall, QStringLiteral("Tessaly"),
                            QString::fromLocal8Bit(error.what()));
    } catch (...) {
        return RuntimeError(InvalidProcedureCall);
    }
}

QString RuntimeError::usualDescription(qint32 number)
{
    switch (number) {
    case InvalidProcedureCall:
        return QStringLiteral("Invalid procedure call or argument");
    case Overflow:
        return QStringLiteral("Overflow");
    case OutOfMemory:
        return QStringLiteral("Out of memory");
    case SubscriptOutOfRange:
        return QStringLiteral("Subscript out of range");
    case DivisionByZero:
        return QStringLiteral("Division by zero");
    case TypeMismatch:
        return QStringLiteral("Type mismatch");
    case OutOfStringSpace:
        return QStringLiteral("Out of string space");
    case FileNotFound:
        return QStringLiteral("File not found");
    case DiskFull:
        return QStringLiteral("Disk full");
    case PermissionDenied:
        return QStringLiteral("Permission denied");
    case PathFileAccessError:
        return QStringLiteral("Path/File access error");
    case PathNotFound:
        return QStringLiteral("Path not found");
    case ObjectVariableNotSet:
        return QStringLiteral("Object variable or With block variable not set");
    case CannotCreateObject:
        return QStringLiteral("ActiveX component can't create object");
    default:
        return QStringLiteral("Application-defined or object-defined error");
    }
}
