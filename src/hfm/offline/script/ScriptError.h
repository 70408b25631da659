#pragma once

#include "hfm/offline/script/Position.h"

#include <QString>

#include <exception>

namespace hfm::offline::script {

/// The numbers of VBScript's run-time errors, as far as scripts can meet them here.
enum FaultNumber : qint32 {
    InvalidCall = 5,
    NumberOverflow = 6,
    MemoryExhausted = 7,
    BadSubscript = 9,
    ArrayLocked = 10,
    DividedByZero = 11,
    WrongType = 13,
    StackExhausted = 28,
    StepsExhausted = 50, ///< ours: a script host has no such bound
    ObjectNotSet = 91,
    LoopNotInitialized = 92,
    InvalidNull = 94,
    ObjectRequired = 424,
    UnknownMember = 438,
    WrongArguments = 450,
    NotACollection = 451,
    UndefinedVariable = 500,
    IllegalAssignment = 501,
    HostFault = 1000,  ///< what the host objects themselves refuse
    SyntaxFault = 1002 ///< the text is no script
};

/// VBScript's words for an error, for example "Type mismatch".
QString faultText(FaultNumber number);

/// Raised where a script does what it cannot do; the evaluator adds the place.
struct Fault
{
    FaultNumber number;
    QString text;
    /// Not even "On Error Resume Next" passes over it: the bounds of a run, and what HFM knows and
    /// this program does not, so that no list silently differs from HFM's.
    bool isFinal = false;
};

/// An error in VBScript's words. `about`, where it is not empty, follows in single quotes.
Fault fault(FaultNumber number, const QString &about = {});
Fault finalFault(FaultNumber number, const QString &about = {});
/// An error in the program's own words.
Fault finalFaultSaying(FaultNumber number, const QString &text);

/// Why a script cannot be read, or why its run ended.
class ScriptError : public std::exception
{
public:
    ScriptError(Position position, FaultNumber number, const QString &text);

    Position position() const { return mPosition; }
    FaultNumber number() const { return mNumber; }
    const QString &text() const { return mText; }
    const char *what() const noexcept override { return mWhat.constData(); }

private:
    Position mPosition;
    FaultNumber mNumber;
    QString mText;
    QByteArray mWhat;
};

} // namespace hfm::offline::script
