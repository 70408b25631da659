#include "runtime/QtProgram.h"

#include <QCoreApplication>

int QtProgram::run()
{
    // Starting the event loop would forget an exit that was asked for before.
    if (!isEnding()) {
        const int exitCode = QCoreApplication::exec();
        return mExitCode.value_or(exitCode);
    }
    return *mExitCode;
}

void QtProgram::end(int exitCode)
{
    if (isEnding())
        return;
    mExitCode = exitCode;
    QCoreApplication::exit(exitCode);
}
