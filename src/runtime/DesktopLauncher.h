#pragma once

#include "runtime/Launcher.h"

/// Starts programs as a desktop does, without a shell.
class DesktopLauncher final : public Launcher
{
public:
    /// `webPage` is the file that the browser shows in place of a file that the desktop has no
    /// viewer for; empty: none.
    explicit DesktopLauncher(QString webPage = {});

    /// The first word of `commandLine` names the program; all that follows the blank after it is
    /// one argument, a path that may hold blanks and is not quoted. Its "\" become "/".
    /// A program that is not on the PATH is replaced by the desktop's own viewer for that file,
    /// and that by the browser with the web page.
    /// Fails with RuntimeError FileNotFound, naming the file or the programs that are missing.
    void run(const QString &commandLine) override;
    void open(const QString &file) override;

private:
    QString mWebPage;
};
