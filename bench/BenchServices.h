#pragma once

#include "NoSpreadsheet.h"
#include "runtime/Clock.h"
#include "runtime/ErrorTrap.h"
#include "shell/Services.h"

#include <cstdlib>

/// Services for a window that is measured: nothing outside it is there. A message that only informs
/// is read at once; any other ends the benchmark.
class BenchServices
{
public:
    Services &services() { return mServices; }

private:
    class Clients final : public hfm::ClientFactory
    {
    public:
        std::unique_ptr<hfm::VersionInformation> createVersionInformation() override { return {}; }
        std::shared_ptr<hfm::LogonUserInterface> createLogonUserInterface() override { return {}; }
        std::shared_ptr<hfm::Client> createClient() override { return {}; }
    };
    class Reader final : public Prompts
    {
    public:
        Answer ask(const Prompt &prompt) override
        {
            if (prompt.icon != Prompt::Icon::Information)
                qFatal("%s", qPrintable(prompt.text));
            return Answer::Ok;
        }
    };
    class Nothing final : public Launcher
    {
    public:
        void run(const QString &) override {}
        void open(const QString &) override {}
    };
    class Process final : public Program
    {
    public:
        void end(int exitCode) override { std::exit(exitCode); }
        bool isEnding() const override { return false; }
    };

    Clients mClients;
    Reader mPrompts;
    Nothing mLauncher;
    NoSpreadsheet mSpreadsheet;
    SystemClock mClock;
    Process mProgram;
    ErrorTrap mTrap{mPrompts, mProgram};
    Services mServices{mClients, mPrompts, mLauncher, mSpreadsheet, mClock, mProgram, mTrap, {}};
};
