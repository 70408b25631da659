#pragma once

#include "shell/Services.h"
#include "support/FakeHfm.h"
#include "support/FakeSpreadsheet.h"

#include <QStringList>

#include <functional>
#include <optional>

/// Prompts that nobody has to click away.
class FakePrompts final : public Prompts
{
public:
    QList<Answer> answers;             ///< of the next prompts, in order
    QList<Prompt> asked;               ///< every prompt there was, in order
    std::function<void()> whileAsking; ///< runs while a prompt is shown, where it is set

    /// The next of `answers`; where none is left, the plain one: Yes where there are Yes and No,
    /// else Ok.
    Answer ask(const Prompt &prompt) override
    {
        asked.append(prompt);
        if (whileAsking)
            whileAsking();
        if (!answers.isEmpty())
            return answers.takeFirst();
        return prompt.buttons == Prompt::Buttons::YesNo ? Answer::Yes : Answer::Ok;
    }
};

/// A clock that stands, unless `stepMilliseconds` lets each reading set it forward.
class FakeClock final : public Clock
{
public:
    mutable QDateTime time{QDate(2012, 3, 14), QTime(15, 9, 26)};
    qint64 stepMilliseconds = 0;

    QDateTime now() const override
    {
        const QDateTime read = time;
        time = time.addMSecs(stepMilliseconds);
        return read;
    }
};

/// Starts nothing.
class FakeLauncher final : public Launcher
{
public:
    QStringList commandLines;            ///< every one there was, in order
    QStringList files;                   ///< every file that was to be opened, in order
    std::optional<RuntimeError> failure; ///< what each start fails with, where it is set

    void run(const QString &commandLine) override
    {
        commandLines.append(commandLine);
        if (failure)
            throw *failure;
    }
    void open(const QString &file) override
    {
        files.append(file);
        if (failure)
            throw *failure;
    }
};

/// A program whose end is only noted.
class FakeProgram final : public Program
{
public:
    QList<int> endCodes; ///< of every call of end(), in order; empty while the program runs

    void end(int exitCode) override { endCodes.append(exitCode); }
    bool isEnding() const override { return !endCodes.isEmpty(); }
};

/// All that a window needs, with nothing real behind it. Lives as long as the window.
struct FakeServices
{
    FakeServices() = default;
    Q_DISABLE_COPY_MOVE(FakeServices)

    FakeHfm hfm;
    FakePrompts prompts;
    FakeLauncher launcher;
    FakeSpreadsheet spreadsheet;
    FakeClock clock;
    FakeProgram program;
    ErrorTrap trap{prompts, program};
    Services services{hfm,   prompts, launcher, spreadsheet,
                      clock, program, trap,     QStringLiteral("/programs/Tessaly")};
};
