#pragma once

#include <QString>

#include <exception>

/// The numbers of the run-time errors that this program raises.
enum ErrorNumber : qint32 {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    OutOfStringSpace = 14,
    FileNotFound = 53,
    DiskFull = 61,
    PermissionDenied = 70,
    PathFileAccessError = 75,
    PathNotFound = 76,
    ObjectVariableNotSet = 91,
    CannotCreateObject = 429,
    ApplicationDefinedError = 1004, ///< the spreadsheet's, for a cell that is not there
};

/// What an HFM operation, a file or a conversion fails with.
class RuntimeError : public std::exception
{
public:
    /// An error of the run time itself: source "Tessaly", the number's usual description.
    explicit RuntimeError(qint32 number);
    /// `description` may name a file or a label; an empty one means the number's usual description.
    RuntimeError(qint32 number, QString source, QString description);
    /// An error of the run time itself over something that has a name, such as a file: "Path not
    /// found: /home/jane".
    static RuntimeError naming(qint32 number, const QString &name);
    /// What a handler of any exception has caught: a RuntimeError as it is, std::bad_alloc as
    /// OutOfMemory, anything else as InvalidProcedureCall. Only for the inside of such a handler.
    static RuntimeError caught();

    qint32 number() const { return mNumber; }
    const QString &source() const { return mSource; }
    const QString &description() const { return mDescription; }
    const char *what() const noexcept override { return mWhat.constData(); }

    /// The usual description of a number, for example "Type mismatch" for 13. Numbers without one
    /// give "Application-defined or object-defined error".
    static QString usualDescription(qint32 number);

private:
    qint32 mNumber;
    QString mSource;
    QString mDescription;
    QByteArray mWhat;
};
