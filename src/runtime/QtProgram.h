#pragma once

#include "runtime/Program.h"

#include <optional>

/// The program that runs in QCoreApplication's event loop.
class QtProgram final : public Program
{
public:
    /// Runs the event loop until the program ends; returns its exit code. If end() was called
    /// before, it returns at once.
    int run();

    /// Ends every event loop that is running, those of modal windows and message boxes first.
    void end(int exitCode) override;
    bool isEnding() const override { return mExitCode.has_value(); }

private:
    std::optional<int> mExitCode;
};
