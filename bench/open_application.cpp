// What opening an application costs, in time beside a bare pass over the same bytes and beside a
// plain Python script, and in memory beside the file's size.
//
//   open_application FILE.app [ROUNDS]
//
// FILE.app must be UTF-8 delimited by ';'.

#include "BarePass.h"
#include "hfm/offline/Application.h"
#include "runtime/RuntimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

constexpr double megabyte = 1e6;

/// One of the figures in /proc/self/status, in bytes.
double memory(const char *name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        qFatal("cannot read the memory in use");
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(name))
            return line.simplified().split(' ').at(1).toDouble() * 1024;
    }
    qFatal("the memory in use is not told");
}

/// The processor time of this process, in seconds. Everything runs on one thread, and other
/// programs of the machine do not count.
double processorTime()
{
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

template <typename Action>
double bestOf(int rounds, Action action)
{
    double best = 0;
    for (int round = 0; round < rounds; ++round) {
        const double start = processorTime();
        action();
        const double seconds = processorTime() - start;
        best = round == 0 ? seconds : std::min(best, seconds);
    }
    return best;
}

/// The time that the script itself tells, without the start of the interpreter.
double pythonSeconds(const QString &path)
{
    const QString script = QStringLiteral(TESSALY_BENCH "/open_dictionaries.py");
    QProcess python;
    python.start(QStringLiteral("python3"), {script, path});
    if (!python.waitForFinished(-1) || python.exitCode() != 0)
        qFatal("python3 %s failed", qPrintable(script));
    return python.readAllStandardOutput().split(' ').first().toDouble();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2)
        qFatal("usage: open_application FILE.app [ROUNDS]");
    const QString path = QString::fromLocal8Bit(argv[1]);
    const int rounds = argc > 2 ? std::max(1, QByteArrayView(argv[2]).toInt()) : 5;
    const double size = double(QFileInfo(path).size());
    hfm::offline::ApplicationFiles files;
    files.name = QFileInfo(path).completeBaseName();
    files.metadata = path;
    const auto open = [&] { return hfm::offline::readApplication(files, 2012); };

    // Memory first: what later rounds leave behind would count.
    const double before = memory("VmRSS:");
    auto application = open();
    const double held = memory("VmRSS:") - before;
    const double peak = memory("VmHWM:") - before;
    qint64 members = 0;
    for (const auto &dimension : application->dimensions)
        members += dimension.labels.count();
    application.reset();

    Extent extent;
    const double byLine = bestOf(rounds, [&] { extent = barePass(path, Converted::Lines); });
    const double byField = bestOf(rounds, [&] { barePass(path, Converted::Fields); });
    const double opening = bestOf(rounds, [&] { open(); });
    const double python = pythonSeconds(path);

    std::printf("file         %8.1f MB, %lld fields, %lld UTF-16 units\n", size / megabyte,
                extent.fields, extent.units);
    std::printf("members      %8lld, those that the client adds included\n", members);
    std::printf("opening      %8.3f s\n", opening);
    std::printf("bare pass    %8.3f s   opening is %5.2f times that; lines converted as a whole\n",
                byLine, opening / byLine);
    std::printf(
        "bare pass    %8.3f s   opening is %5.2f times that; each field converted by itself\n",
        byField, opening / byField);
    std::printf("python       %8.3f s   is %5.2f times opening\n", python, python / opening);
    std::printf("memory held  %8.1f MB  is %5.2f times the file\n", held / megabyte, held / size);
    std::printf("memory peak  %8.1f MB  is %5.2f times the file\n", peak / megabyte, peak / size);
    return 0;
}
