#include "runtime/DesktopLauncher.h"

#include "runtime/RuntimeError.h"

#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>

namespace {

constexpr QLatin1StringView desktopViewer("xdg-open");

struct Command
{
    QString program;
    QString path; ///< empty: none
};

Command parsed(const QString &commandLine)
{
    const qsizetype blank = commandLine.indexOf(QLatin1Char(' '));
    if (blank < 0)
        return {commandLine, {}};
    QString path = commandLine.sliced(blank + 1);
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return {commandLine.first(blank), path};
}

/// False when there is no such program on the PATH or it does not start.
bool start(const QString &program, const QString &path)
{
    const QString executable = QStandardPaths::findExecutable(program);
    const QStringList arguments = path.isEmpty() ? QStringList() : QStringList(path);
    return !executable.isEmpty() && QProcess::startDetached(executable, arguments);
}

/// False only when the desktop says that no program is there for that kind of file.
bool desktopHasViewer(const QString &path)
{
    const QString askDesktop = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (askDesktop.isEmpty())
        return true;
    QProcess process;
    process.start(askDesktop, {QStringLiteral("query"), QStringLiteral("default"),
                               QMimeDatabase().mimeTypeForFile(path).name()});
    return !process.waitForFinished() || !process.readAllStandardOutput().trimmed().isEmpty();
}

} // namespace

DesktopLauncher::DesktopLauncher(QString webPage) : mWebPage(std::move(webPage))
{
}

void DesktopLauncher::run(const QString &commandLine)
{
    const auto [program, path] = parsed(commandLine);
    if (start(program, path))
        return;
    if (path.isEmpty())
        throw RuntimeError::naming(FileNotFound, program);
    if (!QFileInfo(path).isFile())
        throw RuntimeError::naming(FileNotFound, path);
    const bool isWebPageBetter = QFileInfo(mWebPage).isFile() && !desktopHasViewer(path);
    if (!start(desktopViewer, isWebPageBetter ? mWebPage : path))
        throw RuntimeError::naming(FileNotFound, program + QLatin1StringView(", ") + desktopViewer);
}

void DesktopLauncher::open(const QString &file)
{
    if (!QFileInfo(file).isFile())
        throw RuntimeError::naming(FileNotFound, file);
    // The desktop's viewer says only to itself that it knows no program for a file.
    if (!desktopHasViewer(file))
        throw RuntimeError::naming(FileNotFound, QLatin1StringView("a program for ") +
                                                     QMimeDatabase().mimeTypeForFile(file).name());
    if (!start(desktopViewer, file))
        throw RuntimeError::naming(FileNotFound, desktopViewer);
}
