#pragma once

#include "runtime/Program.h"
#include "runtime/Prompts.h"

/// Prompts as message boxes, over the window that is active. The first button is the default one.
/// While `program` is ending no box is shown, and every prompt is answered as a closed box.
class dlgPrompts final : public Prompts
{
public:
    explicit dlgPrompts(const Program &program) : mProgram(program) {}

    Answer ask(const Prompt &prompt) override;

private:
    const Program &mProgram;
};
