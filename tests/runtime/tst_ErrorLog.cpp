#include "runtime/ErrorLog.h"
#include "support/FileFaults.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <memory>

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

/// Takes what the program writes to standard error; a few lines at most.
class StandardError
{
public:
    StandardError()
    {
        std::fflush(stderr);
        mBefore = dup(2);
        int ends[2];
        if (pipe(ends) != 0)
            qFatal("no pipe");
        mReader = ends[0];
        dup2(ends[1], 2);
        close(ends[1]);
    }
    ~StandardError()
    {
        restore();
        close(mReader);
    }
    Q_DISABLE_COPY_MOVE(StandardError)

    QByteArray text()
    {
        restore();
        QByteArray bytes(1000, '\0');
        bytes.resize(read(mReader, bytes.data(), size_t(bytes.size())));
        return bytes;
    }

private:
    void restore()
    {
        if (mBefore < 0)
            return;
        std::fflush(stderr);
        dup2(mBefore, 2);
        close(mBefore);
        mBefore = -1;
    }

    int mBefore;
    int mReader;
};

} // namespace

class tst_ErrorLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFolder = std::make_unique<QTemporaryDir>();
        QVERIFY(mFolder->isValid());
    }

    void aNewLogIsAnEmptyFile()
    {
        const ErrorLog log(path());
        QVERIFY(QFile::exists(path()));
        QCOMPARE(contents(path()), QByteArray());
    }

    void eachEntryIsOneLineAndReadableAtOnce()
    {
        StandardError standardError;
        ErrorLog log(path());
        log.write(QStringLiteral("Tessaly Error(Main): 23001; Source: Tessaly (Main)"));
        QCOMPARE(contents(path()),
                 QByteArray("Tessaly Error(Main): 23001; Source: Tessaly (Main)\n"));
        log.write(QStringLiteral("second"));
        QCOMPARE(contents(path()),
                 QByteArray("Tessaly Error(Main): 23001; Source: Tessaly (Main)\nsecond\n"));
        log.write(QStringLiteral("to tell it from nothing"));
        QVERIFY(!standardError.text().contains("second"));
    }

    void aSecondRunLeavesOnlyItsOwnEntries()
    {
        {
            ErrorLog log(path());
            log.write(QStringLiteral("an entry of the first run, the longer one"));
        }
        ErrorLog log(path());
        QCOMPARE(contents(path()), QByteArray());
        log.write(QStringLiteral("second run"));
        QCOMPARE(contents(path()), QByteArray("second run\n"));
    }

    void anEntryStaysOnOneLine()
    {
        ErrorLog log(path());
        log.write(QStringLiteral("a\r\nb\rc\nd"));
        QCOMPARE(contents(path()), QByteArray("a b c d\n"));
    }

    void entriesAreInTheCodePage()
    {
        ErrorLog log(path());
        log.write(QString::fromUtf16(u"caf\u00E9 \u20AC \u0416"));
        QCOMPARE(contents(path()), QByteArray("caf\xE9 \x80 ?\n"));
    }

    void thePathIsTakenAsItIsGiven()
    {
        const ErrorLog backslash(mFolder->path() + QStringLiteral("/\\tessalyerror.log"));
        QCOMPARE(QDir(mFolder->path()).entryList(QDir::Files),
                 {QStringLiteral("\\tessalyerror.log")});
        const ErrorLog twoSlashes(mFolder->path() + QStringLiteral("//tessalyerror.log"));
        QVERIFY(QFile::exists(path()));
    }

    void aFolderThatCannotBeWrittenSendsTheEntriesToStandardError()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        StandardError standardError;
        ErrorLog log(mFolder->path() + QStringLiteral("/missing/tessalyerror.log"));
        log.write(QString::fromUtf16(u"first caf\u00E9"));
        log.write(QStringLiteral("second\r\nentry"));
        QCOMPARE(standardError.text(), QByteArray("first caf\xC3\xA9\nsecond entry\n"));
    }

    void aFileThatMayNotBeWrittenSendsTheEntriesToStandardError()
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QVERIFY(file.setPermissions(QFile::ReadOwner));
        OrdinaryUser::own(mFolder->path());
        OrdinaryUser::own(path());
        StandardError standardError;
        {
            const OrdinaryUser user;
            ErrorLog log(path());
            log.write(QStringLiteral("entry"));
        }
        QCOMPARE(standardError.text(), QByteArray("entry\n"));
        QCOMPARE(contents(path()), QByteArray());
    }

    void aDiskThatFillsUpSendsTheEntryToStandardError()
    {
        ErrorLog log(path());
        log.write(QStringLiteral("0123456789"));
        StandardError standardError;
        {
            const FullDisk full(11);
            log.write(QStringLiteral("lost"));
        }
        log.write(QStringLiteral("again"));
        QCOMPARE(standardError.text(), QByteArray("lost\n"));
        QCOMPARE(contents(path()), QByteArray("0123456789\nagain\n"));
    }

private:
    QString path() const { return mFolder->path() + QStringLiteral("/tessalyerror.log"); }

    std::unique_ptr<QTemporaryDir> mFolder;
};

QTEST_APPLESS_MAIN(tst_ErrorLog)
#include "tst_ErrorLog.moc"
