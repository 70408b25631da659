#pragma once

#include <QFile>

/// The most memory that this process has had resident so far, in bytes.
inline qint64 peakOfResidentMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        qFatal("the process does not tell its memory");
    const QByteArrayList lines = status.readAll().split('\n');
    for (const QByteArray &line : lines)
        if (line.startsWith("VmHWM:"))
            return line.sliced(6).chopped(3).trimmed().toLongLong() * 1024;
    qFatal("the process does not tell its highest memory");
}
