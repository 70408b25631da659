#pragma once

/// The running program, as far as ending it goes.
class Program
{
public:
    virtual ~Program() = default;
    /// Ends the program: every window goes and the process leaves with `exitCode` once control is
    /// back in the event loop. The first call counts; later ones change nothing.
    virtual void end(int exitCode) = 0;
    /// True from the first call of end() on. Nothing more is shown or started then.
    virtual bool isEnding() const = 0;
};
