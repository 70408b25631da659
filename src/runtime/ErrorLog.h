#pragma once

#include <QFile>
#include <QString>

/// The program's log of errors: one file that holds the entries of the current run.
class ErrorLog
{
public:
    /// Recreates the file `path`, which is taken as it is given, and leaves it empty. A file that
    /// cannot be written is no failure: the entries go to standard error then.
    explicit ErrorLog(const QString &path);

    /// Appends `entry` as one line, in the code page of CodePage.h and ended with LF; another
    /// program can read it at once. A line break inside the entry becomes a blank.
    void write(const QString &entry);

private:
    QFile mFile;
};
