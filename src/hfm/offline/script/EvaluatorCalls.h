#pragma once

#include "hfm/offline/script/Evaluator.h"

namespace hfm::offline::script {

/// The evaluated arguments of one call, on the evaluator's stack.
class Evaluator::ArgumentList
{
public:
    ArgumentList(Evaluator &evaluator, std::span<Expression *const> expressions)
        : mStack(evaluator.mStack), mFirst(mStack.size())
    {
        try {
            for (const Expression *expression : expressions)
                mStack.push_back(evaluator.evaluate(*expression));
        } catch (...) {
            mStack.resize(mFirst);
            throw;
        }
    }
    ~ArgumentList() { mStack.resize(mFirst); }
    ArgumentList(const ArgumentList &) = delete;
    ArgumentList &operator=(const ArgumentList &) = delete;

    /// Valid until the next list is made.
    Arguments values() const { return Arguments(mStack).subspan(mFirst); }

private:
    std::vector<Value> &mStack;
    size_t mFirst;
};

} // namespace hfm::offline::script
