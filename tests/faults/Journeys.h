#pragma once

#include "WholeProgram.h"

/// What the program does about a failing call while a step runs, beside ending with a run-time
/// error.
enum class Guard {
    None,
    StartUpMessages, ///< asking for the client's version: the error is logged and shown
    LoadMessage,     ///< loading the application information: the window says so and stays
    ParentMarks,     ///< listing members: one that cannot be asked for its children has no mark
};

/// One thing that a user does.
struct Step
{
    const char *name;
    std::function<void(WholeProgram &)> act;
    Guard guard = Guard::None;
};

/// A way through the program, from its start on.
struct Journey
{
    const char *name;
    QList<Step> steps;
    /// The titles of the messages that it meets when nothing fails.
    QStringList titles;
    /// What fails in the steps before this one is another journey's.
    int firstOwnStep = 0;
};

/// A journey through every window, each small, together making every call that the program makes.
QList<Journey> everyJourney();
