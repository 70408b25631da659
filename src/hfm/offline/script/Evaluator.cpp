#include "hfm/offline/script/Evaluator.h"

#include "hfm/offline/script/EvaluatorCalls.h"

namespace hfm::offline::script {

namespace {

qint64 bytesOf(const Procedure &procedure)
{
    return qint64(procedure.slotCount) * qint64(sizeof(Value));
}

} // namespace

Evaluator::Evaluator(const Program &program, RunState &run)
    : mProgram(program), mRun(run), mMemberNumbers(size_t(program.names.count()), notAsked)
{
    mRun.memory().take(bytesOf(program.main));
    mGlobals.resize(size_t(program.main.slotCount));
}

Evaluator::~Evaluator()
{
    mRun.memory().giveBack(bytesOf(mProgram.main));
}

void Evaluator::runMain()
{
    Frame frame = {&mProgram.main, mGlobals.data()};
    mFrame = &frame;
    mRun.bounds.enter(mProgram.main.nesting);
    runBlock(mProgram.main.body);
    mRun.bounds.leave(mProgram.main.nesting);
    mFrame = nullptr;
}

void Evaluator::callSub(qint32 procedure)
{
    mRun.at = mProgram.procedures[size_t(procedure)].position;
    callProcedure(procedure, {}, true);
}

void runSub(const Program &program, qint32 procedure, RunState &run)
{
    try {
        Evaluator evaluator(program, run);
        evaluator.runMain();
        evaluator.callSub(procedure);
    } catch (const Fault &fault) {
        throw ScriptError(run.at, fault.number, fault.text);
    }
}

} // namespace hfm::offline::script
