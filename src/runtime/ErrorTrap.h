#pragma once

#include "runtime/Program.h"
#include "runtime/Prompts.h"
#include "runtime/RuntimeError.h"

#include <QObject>

#include <type_traits>
#include <utility>

/// Where the errors end that no handler took care of: a critical box with the error's number and
/// description, then the end of the program with exit code 1. Every handler of a window is
/// connected through it, so that no exception ever crosses Qt's own code.
class ErrorTrap
{
public:
    ErrorTrap(Prompts &prompts, Program &program) : mPrompts(prompts), mProgram(program) {}

    /// Runs `handler()`. What it throws is shown as a run-time error (std::bad_alloc as "Out of
    /// memory") and ends the program. While the program is ending nothing runs any more.
    template <typename Handler>
    void run(Handler &&handler) noexcept
    {
        if (mProgram.isEnding())
            return;
        try {
            std::forward<Handler>(handler)();
        } catch (...) {
            endWithCurrentError();
        }
    }

    /// QObject::connect for a handler of a window; `handler` takes the signal's arguments or none.
    template <typename Sender, typename Signal, typename Handler>
    QMetaObject::Connection connect(const Sender *sender, Signal signal, const QObject *context,
                                    Handler handler)
    {
        return QObject::connect(
            sender, signal, context, [this, handler](auto &&...arguments) mutable {
                run([&] { call(handler, std::forward<decltype(arguments)>(arguments)...); });
            });
    }

private:
    template <typename Handler, typename... Arguments>
    static void call(Handler &handler, Arguments &&...arguments)
    {
        if constexpr (std::is_invocable_v<Handler &, Arguments...>)
            handler(std::forward<Arguments>(arguments)...);
        else
            handler();
    }

    void endWithCurrentError() noexcept;

    Prompts &mPrompts;
    Program &mProgram;
};
