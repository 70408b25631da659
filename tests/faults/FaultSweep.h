#pragma once

#include "Journeys.h"

#include <QMap>

/// How a run ends in which something fails.
enum class Ending {
    RunTimeError,   ///< one run-time error box, exit code 1, and nothing after it
    StartUpMessage, ///< two logged and shown lines, and no window
    LoadMessage,    ///< the window's own message; it stays, with what was read so far
    WithoutMark,    ///< all goes on; one member of a list is not marked as a parent
};

/// What is to fail in a run.
struct Fault
{
    enum class Kind { Call, OutOfMemory, SpreadsheetStep, Launch };
    Kind kind;
    int index; ///< of the call, step or launch in the run in which nothing fails, from 0

    QString what; ///< the call, step or command line, for the reader
};

/// Runs a journey once for everything in it that can fail: every call of the HFM client (and one
/// call of each operation once more, without memory), every step of the spreadsheet, every start of
/// another program.
class FaultSweep
{
public:
    explicit FaultSweep(const Journey &journey);

    /// What was not as it is to be, one line for each; at most a few.
    QStringList run();

    int faults() const { return mFaults; }
    const QMap<Ending, int> &endings() const { return mEndings; }
    /// Of all operations that were made to fail, how often.
    const QMap<QString, int> &operations() const { return mOperations; }
    int spreadsheetSteps() const { return mSpreadsheetSteps; }

private:
    /// All that a run leaves outside.
    struct Traces
    {
        QStringList calls;
        QStringList prompts; ///< their texts
        QStringList spreadsheetSteps;
        QStringList launches;
        QMap<QString, QByteArray> files;
        QStringList windows;
        QList<int> endCodes;

        bool operator==(const Traces &) const = default;
    };

    void runWithoutFault();
    QList<Fault> allFaults() const;
    void runWith(const Fault &fault);
    void arm(const Fault &fault, WholeProgram &program) const;
    Ending expected(const Fault &fault) const;
    int stepOf(const Fault &fault) const;

    void checkRunTimeError(const Fault &fault);
    void checkStartUpMessage(const Fault &fault);
    void checkLoadMessage(const Fault &fault);
    void checkWithoutMark();
    void checkThatNothingFollowed(const Traces &last);
    void checkCalls(const Fault &fault, const QStringList &calls);
    void check(bool isRight, const QString &problem);

    static Traces traces(WholeProgram &program);

    const Journey &mJourney;
    QStringList mProblems;
    QString mWhere; ///< the fault that is tried

    // The run in which nothing fails.
    Traces mPlain;
    QList<qsizetype> mCallsBefore; ///< each step
    QList<qsizetype> mStepsBefore; ///< of the spreadsheet, each step
    QList<qsizetype> mLaunchesBefore;
    QList<qsizetype> mPromptsBefore; ///< each call
    QStringList mLists;              ///< after each step

    // The run with a fault.
    Traces mBefore; ///< the step in which the fault is
    Traces mAfter;  ///< that step
    QStringList mListsNow;

    int mFaults = 0;
    int mSpreadsheetSteps = 0;
    QMap<Ending, int> mEndings;
    QMap<QString, int> mOperations;
};
