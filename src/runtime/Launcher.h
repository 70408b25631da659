#pragma once

#include <QString>

/// Starts other programs.
class Launcher
{
public:
    virtual ~Launcher() = default;
    /// Starts a command line in a normal window and does not wait for its end.
    /// Fails with RuntimeError FileNotFound when there is nothing that could be started.
    virtual void run(const QString &commandLine) = 0;
    /// Opens a file in the desktop's own program for files of its kind, and does not wait for its
    /// end. Fails with RuntimeError FileNotFound, naming the file or the program that is missing.
    virtual void open(const QString &file) = 0;
};
