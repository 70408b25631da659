#pragma once

#include "hfm/offline/script/ScriptError.h"

namespace hfm::offline::script {

/// The memory that a run's texts, arrays and variables may take together.
class Memory
{
public:
    explicit Memory(qint64 bytes) : mLeft(bytes) {}
    Memory(const Memory &) = delete;
    Memory &operator=(const Memory &) = delete;

    /// Fails with MemoryExhausted where there is not so much left.
    void take(qint64 bytes)
    {
        if (bytes > mLeft)
            throw finalFault(MemoryExhausted);
        mLeft -= bytes;
    }
    void giveBack(qint64 bytes) { mLeft += bytes; }
    qint64 left() const { return mLeft; }

private:
    qint64 mLeft;
};

/// What one run may take of the machine.
struct Limits
{
    qint64 steps = 10'000'000;
    qint32 calls = 256;
    qint64 memory = qint64(64) << 20;
};

/// What is left of a run's limits.
///
/// A step is a statement, a turn of a loop or a call. What is large takes more of them: a long
/// expression, and every text or array that is copied or searched, so that the steps bound the time
/// as well.
class Bounds
{
public:
    explicit Bounds(const Limits &limits)
        : mSteps(limits.steps), mMostCalls(limits.calls), mMemory(limits.memory)
    {
    }

    void step(qint64 count = 1)
    {
        if ((mSteps -= count) < 0)
            throw finalFault(StepsExhausted);
    }
    /// The steps for work over so many characters or array elements.
    void work(qint64 units)
    {
        constexpr qint64 unitsOfAStep = 32;
        if (units >= unitsOfAStep)
            step(units / unitsOfAStep);
    }
    qint64 stepsLeft() const { return mSteps; }

    /// Begins a call of a procedure whose statements and expressions nest so deep.
    void enter(qint32 nesting)
    {
        // The evaluator's own stack grows with the nesting of what it evaluates.
        constexpr qint32 mostNesting = 6000;
        if (mCalls >= mMostCalls || mNesting + nesting > mostNesting)
            throw finalFault(StackExhausted);
        ++mCalls;
        mNesting += nesting;
    }
    void leave(qint32 nesting)
    {
        --mCalls;
        mNesting -= nesting;
    }

    Memory &memory() { return mMemory; }

private:
    qint64 mSteps;
    qint32 mMostCalls;
    qint32 mCalls = 0;
    qint32 mNesting = 0;
    Memory mMemory;
};

} // namespace hfm::offline::script
