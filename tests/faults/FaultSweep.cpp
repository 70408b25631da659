#include "FaultSweep.h"

#include <algorithm>
#include <new>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostProblems = 5;
const QString logName = u"tessalyerror.log"_s;

/// No number of the run time's own.
RuntimeError serverGone()
{
    return RuntimeError(4711, u"HFM"_s, u"The server is gone."_s);
}

RuntimeError errorOf(const Fault &fault)
{
    return fault.kind == Fault::Kind::OutOfMemory ? RuntimeError(OutOfMemory) : serverGone();
}

QString runTimeErrorText(const Fault &fault)
{
    const RuntimeError error = errorOf(fault);
    return u"Run-time error '%1':\r\n\r\n%2"_s.arg(error.number()).arg(error.description());
}

QStringList startUpTexts(const Fault &fault)
{
    const QString line = u"Tessaly Error(%1): %2; Source: %3; LastDLLError: 0; Description: %4"_s;
    const RuntimeError error = errorOf(fault);
    return {
        line.arg(u"GetHFMVersion"_s).arg(error.number()).arg(error.source(), error.description()),
        line.arg(u"Main"_s).arg(23001).arg(u"Tessaly (Main)"_s,
                                           u"Invalid Version Returned from GetVersion()"_s)};
}

QString loadText(const Fault &fault)
{
    const RuntimeError error = errorOf(fault);
    return u"Error Encountered in PopulateMemberListNames:\rError#: %1\rError Desc: %2\r"
           "Error Source: %3\r\rPlease stop and restart Tessaly"_s.arg(error.number())
               .arg(error.description(), error.source());
}

bool isCall(const Fault &fault)
{
    return fault.kind == Fault::Kind::Call || fault.kind == Fault::Kind::OutOfMemory;
}

/// The step in which the thing of that index happened.
int stepOfIndex(const QList<qsizetype> &before, qsizetype index)
{
    return int(std::upper_bound(before.begin(), before.end(), index) - before.begin()) - 1;
}

bool isAskedForTheVersion(const QString &operation)
{
    return operation == u"createVersionInformation" || operation == u"SetVersionSelector" ||
           operation == u"GetVersion";
}

} // namespace

FaultSweep::FaultSweep(const Journey &journey) : mJourney(journey)
{
}

QStringList FaultSweep::run()
{
    mWhere = u"no fault"_s;
    runWithoutFault();
    if (!mProblems.isEmpty())
        return mProblems;
    for (const Fault &fault : allFaults()) {
        runWith(fault);
        if (mProblems.size() >= mostProblems)
            break;
    }
    return mProblems;
}

void FaultSweep::runWithoutFault()
{
    WholeProgram program;
    program.calls().whileCalling = [&] {
        mPromptsBefore.append(program.fakes.prompts.asked.size());
    };
    for (const Step &step : mJourney.steps) {
        mCallsBefore.append(program.calls().made().size());
        mStepsBefore.append(program.fakes.spreadsheet.steps.size());
        mLaunchesBefore.append(program.fakes.launcher.commandLines.size());
        step.act(program);
        mLists.append(program.shownList());
    }
    mPlain = traces(program);
    QStringList titles;
    for (const Prompt &prompt : program.fakes.prompts.asked)
        titles.append(prompt.title);
    check(titles == mJourney.titles, u"messages: "_s + titles.join(u", "_s));
    check(program.missed().isEmpty(), u"not found: "_s + program.missed().join(u", "_s));
    check(mPlain.endCodes.isEmpty(), u"the program ended"_s);
}

QList<Fault> FaultSweep::allFaults() const
{
    QList<Fault> faults;
    const auto firstIs = [](const QStringList &all, int index) {
        return all.indexOf(all[index]) == index;
    };
    const auto first = [this](const QList<qsizetype> &before) {
        return int(before[mJourney.firstOwnStep]);
    };
    for (int i = first(mCallsBefore); i < mPlain.calls.size(); ++i) {
        faults.append({Fault::Kind::Call, i, mPlain.calls[i]});
        if (firstIs(mPlain.calls, i))
            faults.append({Fault::Kind::OutOfMemory, i, mPlain.calls[i]});
    }
    for (int i = first(mStepsBefore); i < mPlain.spreadsheetSteps.size(); ++i) {
        const QString &step = mPlain.spreadsheetSteps[i];
        if (step != u"release" && firstIs(mPlain.spreadsheetSteps, i))
            faults.append({Fault::Kind::SpreadsheetStep, i, step});
    }
    if (!mPlain.launches.isEmpty())
        faults.append({Fault::Kind::Launch, 0, mPlain.launches[0]});
    return faults;
}

void FaultSweep::runWith(const Fault &fault)
{
    WholeProgram program;
    arm(fault, program);
    mWhere = u"%1 (%2 of its kind)"_s.arg(fault.what).arg(fault.index + 1);
    mListsNow.clear();
    const int failingStep = stepOf(fault);
    for (int i = 0; i < mJourney.steps.size(); ++i) {
        if (i == failingStep)
            mBefore = traces(program);
        mJourney.steps[i].act(program);
        mListsNow.append(program.shownList());
        if (i == failingStep)
            mAfter = traces(program);
    }

    const Ending ending = expected(fault);
    if (ending == Ending::RunTimeError)
        checkRunTimeError(fault);
    else if (ending == Ending::StartUpMessage)
        checkStartUpMessage(fault);
    else if (ending == Ending::LoadMessage)
        checkLoadMessage(fault);
    else
        checkWithoutMark();
    if (ending == Ending::RunTimeError || ending == Ending::StartUpMessage)
        checkThatNothingFollowed(traces(program));
    else
        check(program.fakes.program.endCodes.isEmpty(), u"the program ended later"_s);

    ++mFaults;
    ++mEndings[ending];
    mSpreadsheetSteps += fault.kind == Fault::Kind::SpreadsheetStep;
    if (isCall(fault))
        ++mOperations[fault.what];
}

void FaultSweep::arm(const Fault &fault, WholeProgram &program) const
{
    switch (fault.kind) {
    case Fault::Kind::Call:
        program.calls().fail({}, serverGone(), fault.index + 1);
        break;
    case Fault::Kind::OutOfMemory:
        program.calls().whileCalling = [left = fault.index + 1]() mutable {
            if (--left == 0)
                throw std::bad_alloc();
        };
        break;
    case Fault::Kind::SpreadsheetStep:
        program.fakes.spreadsheet.failingStep = fault.what;
        program.fakes.spreadsheet.failure = serverGone();
        break;
    case Fault::Kind::Launch:
        program.fakes.launcher.failure = serverGone();
        break;
    }
}

int FaultSweep::stepOf(const Fault &fault) const
{
    if (isCall(fault))
        return stepOfIndex(mCallsBefore, fault.index);
    if (fault.kind == Fault::Kind::SpreadsheetStep)
        return stepOfIndex(mStepsBefore, fault.index);
    return stepOfIndex(mLaunchesBefore, fault.index);
}

Ending FaultSweep::expected(const Fault &fault) const
{
    if (!isCall(fault))
        return Ending::RunTimeError;
    switch (mJourney.steps[stepOf(fault)].guard) {
    case Guard::StartUpMessages:
        return isAskedForTheVersion(fault.what) ? Ending::StartUpMessage : Ending::RunTimeError;
    case Guard::LoadMessage:
        return Ending::LoadMessage;
    case Guard::ParentMarks: {
        // The box of top members asks the same of every member, after its ID; that is not guarded.
        const bool isMark =
            fault.what == u"GetHasChildren" && mPlain.calls[fault.index - 1] == u"GetMemberLabel";
        return isMark && fault.kind == Fault::Kind::Call ? Ending::WithoutMark
                                                         : Ending::RunTimeError;
    }
    case Guard::None:
        break;
    }
    return Ending::RunTimeError;
}

void FaultSweep::checkRunTimeError(const Fault &fault)
{
    checkCalls(fault, mAfter.calls);
    check(mAfter.endCodes == QList<int>{1}, u"exit code"_s);
    const qsizetype asked = mAfter.prompts.size() - 1;
    check(mAfter.prompts.value(asked) == runTimeErrorText(fault), u"text of the error"_s);
    check(asked >= 0 && mAfter.prompts.first(asked) == mPlain.prompts.mid(0, asked),
          u"messages before the error"_s);
    if (isCall(fault))
        check(asked == mPromptsBefore[fault.index], u"number of messages"_s);
    for (const QString &window : mAfter.windows)
        check(mBefore.windows.contains(window), window + u" was shown"_s);
    QMap<QString, QByteArray> files = mBefore.files;
    if (mJourney.steps[stepOf(fault)].guard == Guard::StartUpMessages)
        files[logName] = {}; // recreated, and nothing to say
    check(mAfter.files == files, u"files"_s);
    check(!mAfter.spreadsheetSteps.mid(mBefore.spreadsheetSteps.size()).contains(u"visible"_s) ||
              fault.what == u"visible",
          u"an unfinished workbook was shown"_s);
}

void FaultSweep::checkStartUpMessage(const Fault &fault)
{
    checkCalls(fault, mAfter.calls);
    check(mAfter.endCodes == QList<int>{0}, u"exit code"_s);
    check(mAfter.prompts == startUpTexts(fault), u"messages"_s);
    check(mAfter.windows.isEmpty(), u"windows"_s);
    QMap<QString, QByteArray> files = mBefore.files;
    files[logName] = (startUpTexts(fault).join(u'\n') + u'\n').toLatin1();
    check(mAfter.files == files, u"files"_s);
}

void FaultSweep::checkLoadMessage(const Fault &fault)
{
    checkCalls(fault, mAfter.calls);
    check(mAfter.endCodes.isEmpty(), u"the program ended"_s);
    check(mAfter.prompts == mBefore.prompts + QStringList{loadText(fault)}, u"messages"_s);
    check(mAfter.windows.contains(u"frmApplicationInfo"_s), u"the window is gone"_s);
    check(mAfter.files == mBefore.files, u"files"_s);
}

/// All is as in the run without a fault, but for one mark at most: a base member has none anyway.
void FaultSweep::checkWithoutMark()
{
    check(mAfter.endCodes.isEmpty(), u"the program ended"_s);
    check(mAfter.prompts == mBefore.prompts, u"messages"_s);
    const QString mark = u" **"_s;
    int marksLeftOut = 0;
    for (qsizetype i = 0; i < mLists.size(); ++i) {
        check(QString(mListsNow[i]).remove(mark) == QString(mLists[i]).remove(mark), u"rows"_s);
        marksLeftOut =
            std::max(marksLeftOut, int(mLists[i].count(mark) - mListsNow[i].count(mark)));
    }
    check(marksLeftOut <= 1, u"marks"_s);
}

/// The user went on with every step that was left.
void FaultSweep::checkThatNothingFollowed(const Traces &last)
{
    Traces withWindows = last;
    withWindows.windows = mAfter.windows; // one that is there still can be closed
    check(withWindows == mAfter, u"the program went on after its end"_s);
    for (const QString &window : last.windows)
        check(mAfter.windows.contains(window), window + u" was shown after the end"_s);
}

/// What was called is what is called without a fault, up to the call that failed.
void FaultSweep::checkCalls(const Fault &fault, const QStringList &calls)
{
    const qsizetype count = isCall(fault) ? fault.index + 1 : calls.size();
    check(calls == mPlain.calls.first(std::min(count, mPlain.calls.size())), u"calls"_s);
}

void FaultSweep::check(bool isRight, const QString &problem)
{
    if (!isRight)
        mProblems.append(mWhere + u": "_s + problem);
}

FaultSweep::Traces FaultSweep::traces(WholeProgram &program)
{
    Traces traces;
    traces.calls = program.calls().made();
    for (const Prompt &prompt : program.fakes.prompts.asked)
        traces.prompts.append(QString(prompt.text).remove(program.fakes.services.programFolder));
    traces.spreadsheetSteps = program.fakes.spreadsheet.steps;
    traces.launches = program.fakes.launcher.commandLines + program.fakes.launcher.files;
    traces.files = program.files();
    traces.windows = program.shownWindows();
    traces.endCodes = program.fakes.program.endCodes;
    return traces;
}
