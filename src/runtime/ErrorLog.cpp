#include "runtime/ErrorLog.h"

#include "runtime/CodePage.h"

#include <cstdio>

namespace {

QString onOneLine(QString text)
{
    text.replace(QLatin1StringView("\r\n"), QLatin1StringView(" "));
    text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text;
}

} // namespace

ErrorLog::ErrorLog(const QString &path) : mFile(path)
{
    mFile.open(QIODevice::Append | QIODevice::Truncate | QIODevice::Unbuffered);
}

void ErrorLog::write(const QString &entry)
{
    const QString line = onOneLine(entry) + QLatin1Char('\n');
    const QByteArray bytes = CodePage::encode(line);
    if (!mFile.isOpen() || mFile.write(bytes) != bytes.size())
        std::fputs(line.toLocal8Bit().constData(), stderr);
}
