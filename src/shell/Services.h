#pragma once

#include "hfm/Client.h"
#include "runtime/Clock.h"
#include "runtime/ErrorTrap.h"
#include "runtime/Launcher.h"
#include "runtime/Program.h"
#include "runtime/Prompts.h"
#include "runtime/Spreadsheet.h"

/// What the windows need from outside the program. Made once, in main.cpp, and lives as long as
/// every window.
struct Services
{
    hfm::ClientFactory &clients;
    Prompts &prompts;
    Launcher &launcher;
    Spreadsheet &spreadsheet;
    Clock &clock;
    Program &program;
    ErrorTrap &trap;
    /// The folder of the running program, without a separator at its end unless it is a root.
    QString programFolder;
};
