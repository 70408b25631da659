#include "FaultySystem.h"
#include "runtime/FileWriter.h"
#include "runtime/RuntimeError.h"
#include "support/FileFaults.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <memory>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString text = u"\"\",\"\",\"GROUP\",\"Group\"\r\n"_s.repeated(8);
constexpr mode_t permissions = 0640;

/// A file to write, and what stands in it before; nothing where there is none.
struct Target
{
    const char *name;
    std::optional<QByteArray> former;
    bool isInPlace;
};

QList<Target> targets()
{
    const QByteArray longer = QByteArray("former ").repeated(100);
    return {
        {"a new file", std::nullopt, false},
        {"a shorter file", "former", false},
        {"a longer file", longer, false},
        {"a new file in place", std::nullopt, true},
        {"a shorter file in place", "former", true},
        {"a longer file in place", longer, true},
    };
}

/// A folder with such a file in it.
class Place
{
public:
    explicit Place(const Target &target) : mTarget(target)
    {
        if (!target.former)
            return;
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(*target.former) < 0)
            qFatal("The test's folder cannot be written");
        file.close();
        chmod(QFile::encodeName(path()).constData(), permissions);
        OrdinaryUser::own(path()); // so that root has an owner to keep
        mOwner = ownerOf(path());
    }

    /// A name as long as names can be leaves none for a second file beside it.
    QString path() const { return mFolder.filePath(QString(mTarget.isInPlace ? 255 : 8, u'x')); }

    /// The error's number and description; "" when all went well.
    QString write() const
    {
        try {
            writeTextFile(path(), text);
        } catch (const RuntimeError &error) {
            return QString::number(error.number()) + u' ' + error.description();
        }
        return {};
    }

    QStringList entries() const
    {
        return QDir(mFolder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    /// What is wrong after a writing with that outcome; "" when nothing is.
    QString problem(const QString &error) const
    {
        QFile file(path());
        const bool isThere = file.open(QIODevice::ReadOnly);
        const QByteArray content = isThere ? file.readAll() : QByteArray();
        if (entries().size() != isThere)
            return u"other files: "_s + entries().join(u' ');
        if (error.isEmpty() && (!isThere || content != text.toLatin1()))
            return u"not the new file"_s;
        if (!error.isEmpty() && isThere != mTarget.former.has_value())
            return u"a file more or less"_s;
        if (!error.isEmpty() && content != mTarget.former.value_or(QByteArray()))
            return u"not the old file"_s;
        if (!error.isEmpty() && !error.endsWith(u": "_s + path()))
            return u"the error does not name the path"_s;
        struct stat status = {};
        if (mTarget.former &&
            (fstat(file.handle(), &status) != 0 || (status.st_mode & 07777) != permissions))
            return u"other permissions"_s;
        if (mTarget.former && ownerOf(path()) != mOwner)
            return u"another owner"_s;
        return {};
    }

private:
    static uid_t ownerOf(const QString &path)
    {
        struct stat status = {};
        return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_uid : uid_t(-1);
    }

    const Target &mTarget;
    uid_t mOwner = 0;
    QTemporaryDir mFolder;
};

} // namespace

/// Whatever the system refuses while a text is saved: the old file is there or the new one, whole.
class tst_FileFaults : public QObject
{
    Q_OBJECT

private:
    QList<Target> mTargets = targets();
    int mFaults = 0;
    int mOld = 0;
    int mNew = 0;

    void addTargets()
    {
        QTest::addColumn<int>("target");
        for (int i = 0; i < mTargets.size(); ++i)
            QTest::newRow(mTargets[i].name) << i;
    }

    void count(const QString &error)
    {
        ++mFaults;
        ++(error.isEmpty() ? mNew : mOld);
    }

private Q_SLOTS:
    void everyCallThatFailsLeavesTheOldFileOrTheNew_data() { addTargets(); }
    void everyCallThatFailsLeavesTheOldFileOrTheNew()
    {
        QFETCH(const int, target);
        QMap<QByteArray, int> calls;
        {
            const Place place(mTargets[target]);
            const FaultySystem system;
            QCOMPARE(place.problem(place.write()), QString());
            calls = system.calls();
        }
        QVERIFY(calls["write"] > 0);
        for (auto each = calls.begin(); each != calls.end(); ++each) {
            for (int call = 1; call <= each.value(); ++call) {
                for (const int refusal : {EIO, ENOSPC, EDQUOT, EACCES, EPERM, EXDEV, EINVAL}) {
                    const Place place(mTargets[target]);
                    QString error;
                    {
                        FaultySystem system;
                        system.fail(each.key(), call, refusal);
                        error = place.write();
                        QVERIFY(system.hasFailed());
                    }
                    QVERIFY2(
                        place.problem(error).isEmpty(),
                        qPrintable(place.problem(error) + u' ' + QLatin1StringView(each.key())));
                    if (each.key() == "write")
                        QVERIFY(!error.isEmpty());
                    count(error);
                }
            }
        }
    }

    void aSignalInterruptsNothing_data() { addTargets(); }
    void aSignalInterruptsNothing()
    {
        QFETCH(const int, target);
        for (const char *function : {"write", "fdatasync"}) {
            const Place place(mTargets[target]);
            FaultySystem system;
            system.fail(function, 1, EINTR);
            const QString error = place.write();
            QVERIFY(system.hasFailed());
            QCOMPARE(error, QString());
            QCOMPARE(place.problem(error), QString());
            count(error);
        }
    }

    void shortWritesAreGoneOnWith_data() { addTargets(); }
    void shortWritesAreGoneOnWith()
    {
        QFETCH(const int, target);
        for (const size_t bytes : {1, 7, 100}) {
            const Place place(mTargets[target]);
            FaultySystem system;
            system.setShortWrites(bytes);
            const QString error = place.write();
            QVERIFY(system.calls()["write"] >= text.size() / int(bytes));
            QCOMPARE(error, QString());
            QCOMPARE(place.problem(error), QString());
            count(error);
        }
    }

    void aDiskThatFillsAfterEachByteLeavesTheOldFile_data() { addTargets(); }
    void aDiskThatFillsAfterEachByteLeavesTheOldFile()
    {
        QFETCH(const int, target);
        const Target &chosen = mTargets[target];
        // In place it is written only after there was room for it beside.
        const qint64 needed = text.size() * (chosen.isInPlace ? 2 : 1);
        for (qint64 room = 0; room <= needed; ++room) {
            const Place place(chosen);
            QString error;
            {
                FaultySystem system;
                system.setRoom(room);
                error = place.write();
            }
            QCOMPARE(place.problem(error), QString());
            if (!error.isEmpty())
                QCOMPARE(error, u"61 Disk full: "_s + place.path());
            QVERIFY(error.isEmpty() || room < needed);
            QVERIFY(!error.isEmpty() || room >= text.size());
            count(error);
        }
    }

    /// The same by the system's own limit, which refuses in its own way.
    void aFileThatMayNotGrowIsLeftAsItWas_data() { addTargets(); }
    void aFileThatMayNotGrowIsLeftAsItWas()
    {
        QFETCH(const int, target);
        for (int most = 0; most < text.size(); most += 5) {
            const Place place(mTargets[target]);
            QString error;
            {
                const FullDisk full{rlim_t(most)};
                error = place.write();
            }
            QCOMPARE(error, u"61 Disk full: "_s + place.path());
            QCOMPARE(place.problem(error), QString());
            count(error);
        }
    }

    /// A disk that allows no reservation and refuses in the middle of a file written in place.
    void aWriteThatFailsInTheMiddleIsTakenBack()
    {
        for (const Target &target : mTargets) {
            const Place place(target);
            QString error;
            {
                FaultySystem system;
                system.setShortWrites(20);
                system.fail("write", 4, EIO);
                error = place.write();
                QVERIFY(system.hasFailed());
            }
            QCOMPARE(error, u"75 Path/File access error: "_s + place.path());
            QCOMPARE(place.problem(error), QString());
            count(error);
        }
    }

    void everyCharacterThatAFileSystemAllowsStandsInAName()
    {
        const QTemporaryDir folder;
        QStringList names;
        QString name;
        for (uint character = 1; character < 0x11000; ++character) {
            if (character == '/' || QChar::isSurrogate(character))
                continue;
            name += QChar::fromUcs4(character);
            if (name.size() >= 60) {
                names.append(name);
                name.clear();
            }
        }
        for (const QString &each : names)
            writeTextFile(folder.filePath(u"n"_s) + each, u"new");
        QStringList found =
            QDir(folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
        QCOMPARE(found.size(), names.size());
        for (const QString &each : found)
            QVERIFY(names.contains(each.sliced(1)));
        QVERIFY(names.size() > 1000);
    }

    void printTheFigures()
    {
        QVERIFY(mOld > 0 && mNew > 0);
        QCOMPARE(mOld + mNew, mFaults);
        std::printf("%d savings with a fault: %d left the old file, %d the new one\n", mFaults,
                    mOld, mNew);
    }
};

QTEST_APPLESS_MAIN(tst_FileFaults)
#include "tst_FileFaults.moc"
