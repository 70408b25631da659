// How long saving an extract of about 120 MB takes, beside writing the same bytes, ready made, with
// one call. Both sides bring the data to the disk before they are done. On a memory file system
// (save_text /dev/shm) there is no disk to wait for, and the program's own work shows.
//
//   save_text [FOLDER]      FOLDER: where to write, the working folder at first

#include "runtime/CodePage.h"
#include "runtime/FileWriter.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int rows = 1'050'000;
constexpr int rounds = 9;

QString extractText()
{
    QString text;
    text.reserve(rows * 110LL);
    for (int row = 0; row < rows; ++row) {
        const QString number = QString::number(1'000'000 + row);
        const QString parent = QString::number(1'000'000 + row / 12);
        // Every tenth description holds a character that Latin-1 lacks.
        const QString region = row % 10 == 0 ? QString::fromUtf16(u"C\u00F4te d\u2019Azur")
                                             : QStringLiteral("region North");
        text += QStringLiteral("\"ENT_%1\",\"Subsidiary number %1, holding\",\"ENT_%2\","
                               "\"Subsidiary number %2, %3\",\"Store\"\r\n")
                    .arg(parent, number, region);
    }
    return text;
}

enum class Until { Handed, OnDisk };

/// Writes a new file with one call, which takes everything at once.
void writeAtOnce(const QString &path, const QByteArray &bytes, Until until)
{
    const int file = open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL, 0666);
    const bool written = write(file, bytes.constData(), size_t(bytes.size())) == bytes.size();
    if (!written || (until == Until::OnDisk && fdatasync(file) != 0))
        qFatal("cannot write %s", qPrintable(path));
    close(file);
}

/// The same beside the file that is there, and renamed over it.
void replaceAtOnce(const QString &path, const QByteArray &bytes)
{
    const QString beside = path + QStringLiteral(".new");
    writeAtOnce(beside, bytes, Until::OnDisk);
    if (rename(QFile::encodeName(beside).constData(), QFile::encodeName(path).constData()) != 0)
        qFatal("cannot rename %s", qPrintable(beside));
}

/// Times of the rounds of one way to save, in milliseconds.
struct Times
{
    const char *name;
    std::vector<double> values;

    template <typename Action>
    void measure(Action action)
    {
        QElapsedTimer timer;
        timer.start();
        action();
        values.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    double median()
    {
        std::sort(values.begin(), values.end());
        return values[values.size() / 2];
    }
    void print(Times *base)
    {
        const double middle = median();
        std::printf("%-34s %7.1f ms (%.1f to %.1f)", name, middle, values.front(), values.back());
        if (base)
            std::printf("   %.2f of it", middle / base->median());
        std::printf("\n");
    }
};

long peakKilobytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

int main(int argc, char **argv)
{
    const QString where = argc > 1 ? QFile::decodeName(argv[1]) : QDir::currentPath();
    const QTemporaryDir folder(where + QStringLiteral("/save_text-XXXXXX"));
    const QString path = folder.filePath(QStringLiteral("extract.txt"));
    const QString text = extractText();

    const long before = peakKilobytes();
    writeTextFile(path, text);
    const long memory = peakKilobytes() - before;
    const QByteArray bytes = CodePage::encode(text);

    Times handed{"one call, left to the system", {}};
    Times once{"one call, brought to the disk", {}};
    Times created{"saved as a new file", {}};
    Times onceOver{"one call, renamed over the old", {}};
    Times replaced{"saved over a file that exists", {}};
    Times encoded{"encoded as a whole, not written", {}};
    for (int round = 0; round < rounds; ++round) {
        QFile::remove(path);
        handed.measure([&] { writeAtOnce(path, bytes, Until::Handed); });
        QFile::remove(path);
        once.measure([&] { writeAtOnce(path, bytes, Until::OnDisk); });
        QFile::remove(path);
        created.measure([&] { writeTextFile(path, text); });
        onceOver.measure([&] { replaceAtOnce(path, bytes); });
        replaced.measure([&] { writeTextFile(path, text); });
        encoded.measure([&] { CodePage::encode(text); });
    }

    std::printf("%lld characters, median of %d rounds (fastest to slowest)\n",
                static_cast<long long>(text.size()), rounds);
    handed.print(nullptr);
    once.print(nullptr);
    created.print(&once);
    onceOver.print(nullptr);
    replaced.print(&onceOver);
    encoded.print(nullptr);
    std::printf("memory that saving takes beside the text: %.1f MB\n", double(memory) / 1024);
    return 0;
}
