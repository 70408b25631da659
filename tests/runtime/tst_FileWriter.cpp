
#include "runtime/FileWriter.h"
#include "runtime/RuntimeError.h"
#include "support/FileFaults.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

ino_t inode(const QString &path)
{
    struct stat status = {};
    return stat(path.toUtf8().constData(), &status) == 0 ? status.st_ino : 0;
}

uid_t owner(const QString &path)
{
    struct stat status = {};
    return stat(path.toUtf8().constData(), &status) == 0 ? status.st_uid : uid_t(-1);
}

mode_t mode(const QString &path)
{
    struct stat status = {};
    return stat(path.toUtf8().constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

void setMode(const QString &path, mode_t mode)
{
    QCOMPARE(chmod(path.toUtf8().constData(), mode), 0);
}

/// "70 Permission denied: /path", or "none".
QString errorOfWriting(const QString &path, QStringView text)
{
    try {
        writeTextFile(path, text);
    } catch (const RuntimeError &error) {
        return QStringLiteral("%1 %2").arg(error.number()).arg(error.description());
    }
    return QStringLiteral("none");
}

} // namespace

class tst_FileWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFolder = std::make_unique<QTemporaryDir>();
        QVERIFY(mFolder->isValid());
        OrdinaryUser::own(mFolder->path());
    }
    void cleanup()
    {
        setMode(mFolder->path(), 0700);
        mFolder.reset();
    }

    void everyByteOfTheTextStandsAsItIs()
    {
        const QString text = QStringLiteral("\"\",\"\",\"A\",\"Alpha\"\r\na\rb\nc\td\"e ");
        writeTextFile(file(), text);
        QCOMPARE(contents(file()), text.toLatin1());
    }

    void theTextIsWrittenInTheCodePage()
    {
        writeTextFile(file(), QString::fromUtf16(u"caf\u00E9 \u20AC \u0416 \U0001F600"));
        QCOMPARE(contents(file()), QByteArray("caf\xE9 \x80 ? ?"));
    }

    void anEmptyTextGivesAnEmptyFile()
    {
        writeTextFile(file(), {});
        QVERIFY(QFileInfo::exists(file()));
        QCOMPARE(contents(file()), QByteArray());
    }

    void aLongTextIsWrittenWhole()
    {
        const QString line = QString::fromUtf16(u"\"Sales\",\"\u20AC\",\"Net Sales\"\r\n");
        const QByteArray bytes("\"Sales\",\"\x80\",\"Net Sales\"\r\n");
        writeTextFile(file(), line.repeated(200'000));
        QVERIFY(contents(file()) == bytes.repeated(200'000));
    }

    void aCharacterOfTwoUnitsIsOneQuestionMarkWhereverItStands()
    {
        const QString pair = QString::fromUtf16(u"\U0001F600");
        for (const qsizetype length : {(1 << 20) - 2, (1 << 20) - 1, 1 << 20}) {
            writeTextFile(file(), QString(length, QLatin1Char('x')) + pair + QLatin1Char('y'));
            QVERIFY(contents(file()) == QByteArray(length, 'x') + "?y");
        }
    }

    void anExistingFileIsReplacedAsAWhole()
    {
        put(file(), "a longer text that stood there before");
        const ino_t before = inode(file());
        writeTextFile(file(), u"new");
        QCOMPARE(contents(file()), QByteArray("new"));
        QVERIFY(inode(file()) != before);
        QCOMPARE(entries(), {QStringLiteral("extract.txt")});
    }

    void anExistingFileKeepsItsPermissions_data()
    {
        QTest::addColumn<int>("permissions");
        for (const int permissions : {0600, 0640, 0644, 0664, 0666, 0755})
            QTest::addRow("%o", permissions) << permissions;
    }
    void anExistingFileKeepsItsPermissions()
    {
        QFETCH(int, permissions);
        put(file(), "old");
        setMode(file(), mode_t(permissions));
        writeTextFile(file(), u"new");
        QCOMPARE(contents(file()), QByteArray("new"));
        QCOMPARE(int(mode(file())), permissions);
    }

    void aReadOnlyFileIsNotMadeWritable()
    {
        put(file(), "old");
        setMode(file(), 0444);
        errorOfWriting(file(), u"new"); // root may write it
        QCOMPARE(int(mode(file())), 0444);
    }

    void aFileOfAnotherUserStaysHis()
    {
        put(file(), "old");
        OrdinaryUser::own(file());
        const uid_t before = owner(file());
        writeTextFile(file(), u"new");
        QCOMPARE(contents(file()), QByteArray("new"));
        QCOMPARE(owner(file()), before);
    }

    void aFileOfAnotherUserThatCannotStayHisIsWrittenInPlace()
    {
        put(file(), "old");
        setMode(file(), 0666);
        const uid_t before = owner(file());
        const ino_t inodeBefore = inode(file());
        bool isAnothers = false;
        {
            const OrdinaryUser user;
            isAnothers = geteuid() != before;
            writeTextFile(file(), u"new");
        }
        QCOMPARE(contents(file()), QByteArray("new"));
        QCOMPARE(owner(file()), before);
        QCOMPARE(inode(file()) == inodeBefore, isAnothers);
    }

    void aNewFileHasTheUsersUsualPermissions()
    {
        const mode_t before = umask(027);
        writeTextFile(file(), u"new");
        umask(before);
        QCOMPARE(int(mode(file())), 0640);
    }

    void aSymbolicLinkStaysAndItsTargetIsWritten()
    {
        QVERIFY(QDir(mFolder->path()).mkdir(QStringLiteral("elsewhere")));
        put(at("elsewhere/target.txt"), "old");
        QVERIFY(QFile::link(QStringLiteral("elsewhere/target.txt"), at("middle.txt")));
        QVERIFY(QFile::link(QStringLiteral("middle.txt"), file()));
        writeTextFile(file(), u"new");
        QVERIFY(QFileInfo(file()).isSymLink());
        QVERIFY(QFileInfo(at("middle.txt")).isSymLink());
        QVERIFY(!QFileInfo(at("elsewhere/target.txt")).isSymLink());
        QCOMPARE(contents(at("elsewhere/target.txt")), QByteArray("new"));
    }

    void aSymbolicLinkIntoAFolderThatTakesNoNewFileHasItsTargetWritten()
    {
        QVERIFY(QDir(mFolder->path()).mkdir(QStringLiteral("elsewhere")));
        put(at("elsewhere/target.txt"), "old");
        OrdinaryUser::own(at("elsewhere/target.txt"));
        setMode(at("elsewhere"), 0555);
        QVERIFY(QFile::link(QStringLiteral("elsewhere/target.txt"), file()));
        {
            const OrdinaryUser user;
            QCOMPARE(errorOfWriting(file(), u"new"), QStringLiteral("none"));
        }
        setMode(at("elsewhere"), 0755);
        QVERIFY(QFileInfo(file()).isSymLink());
        QCOMPARE(contents(at("elsewhere/target.txt")), QByteArray("new"));
    }

    void aSymbolicLinkToWhatIsNoFileFailsAsThatDoes()
    {
        QVERIFY(QDir(mFolder->path()).mkdir(QStringLiteral("elsewhere")));
        QVERIFY(QFile::link(QStringLiteral("elsewhere"), at("folder.txt")));
        QVERIFY(QFile::link(QStringLiteral("circle.txt"), at("circle.txt")));
        QVERIFY(QFile::link(QStringLiteral("missing/target.txt"), at("nowhere.txt")));
        QVERIFY(QFile::link(QStringLiteral("/dev/full"), at("full.txt")));
        const auto failsWith = [this](const char *name, const QString &error) {
            return errorOfWriting(at(name), u"new") == error + QStringLiteral(": ") + at(name);
        };
        QVERIFY(failsWith("folder.txt", QStringLiteral("75 Path/File access error")));
        QVERIFY(failsWith("circle.txt", QStringLiteral("75 Path/File access error")));
        QVERIFY(failsWith("nowhere.txt", QStringLiteral("76 Path not found")));
        const OrdinaryUser user; // who cannot replace the device if this ever goes wrong
        QVERIFY(failsWith("full.txt", QStringLiteral("61 Disk full")));
        QCOMPARE(entries().size(), 5);
    }

    void aSymbolicLinkToNothingMakesItsTarget()
    {
        QVERIFY(QFile::link(QStringLiteral("target.txt"), file()));
        writeTextFile(file(), u"new");
        QVERIFY(QFileInfo(file()).isSymLink());
        QCOMPARE(contents(at("target.txt")), QByteArray("new"));
    }

    void aMissingFolderIsPathNotFound()
    {
        const QString path = at("missing/extract.txt");
        QCOMPARE(errorOfWriting(path, u"new"), QStringLiteral("76 Path not found: ") + path);
        QCOMPARE(entries(), QStringList());
    }

    void aFileAsFolderIsPathNotFound()
    {
        put(file(), "old");
        const QString path = at("extract.txt/extract.txt");
        QCOMPARE(errorOfWriting(path, u"new"), QStringLiteral("76 Path not found: ") + path);
        QCOMPARE(contents(file()), QByteArray("old"));
    }

    void aFolderAsTargetIsAnAccessError()
    {
        QVERIFY(QDir().mkdir(file()));
        QCOMPARE(errorOfWriting(file(), u"new"),
                 QStringLiteral("75 Path/File access error: ") + file());
        QCOMPARE(entries(), {QStringLiteral("extract.txt")});
    }

    void anEmptyNameIsAnAccessError()
    {
        QCOMPARE(errorOfWriting(at(""), u"new"),
                 QStringLiteral("75 Path/File access error: ") + at(""));
        QCOMPARE(errorOfWriting(QString(), u"new"), QStringLiteral("75 Path/File access error: "));
        QCOMPARE(entries(), QStringList());
    }

    void anEmptyNameInAMissingFolderIsPathNotFound()
    {
        QCOMPARE(errorOfWriting(at("missing/"), u"new"),
                 QStringLiteral("76 Path not found: ") + at("missing/"));
    }

    void aNameThatTheDiskCannotHoldIsAnAccessError()
    {
        const QString tooLong = at("") + QString(256, QLatin1Char('x'));
        const QString withNull = file() + QChar(QChar::Null) + QStringLiteral("more");
        const QString withHalfACharacter = file() + QChar(0xD83D);
        for (const QString &path : {tooLong, withNull, withHalfACharacter})
            QCOMPARE(errorOfWriting(path, u"new"),
                     QStringLiteral("75 Path/File access error: ") + path);
        QCOMPARE(entries(), QStringList());
    }

    void anOddNameIsTakenAsItIs_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("blanks") << QStringLiteral("  a  b ");
        QTest::newRow("backslash") << QStringLiteral("folder\\name.txt");
        QTest::newRow("signs") << QStringLiteral("%1 \"'*?<>|:&;$(x)`~#.txt");
        QTest::newRow("line break") << QStringLiteral("a\r\nb\t\x01");
        QTest::newRow("accents") << QString::fromUtf16(u"caf\u00E9 cafe\u0301 \u20AC \U0001F600");
        QTest::newRow("dots") << QStringLiteral("...");
        QTest::newRow("hidden") << QStringLiteral(".lst");
    }
    void anOddNameIsTakenAsItIs()
    {
        QFETCH(QString, name);
        for (const QStringView text : {u"first", u"second"}) {
            writeTextFile(at("") + name, text);
            QCOMPARE(entries(), {name});
            QCOMPARE(contents(at("") + name), text.toLatin1());
        }
    }

    void aNameTooLongForASecondOneBesideItIsWrittenInPlace()
    {
        const QString path = at("") + QString(255, QLatin1Char('x'));
        writeTextFile(path, u"first text");
        const ino_t before = inode(path);
        writeTextFile(path, u"second");
        QCOMPARE(contents(path), QByteArray("second"));
        QCOMPARE(inode(path), before);
        QCOMPARE(entries().size(), 1);
    }

    void aFullDiskLeavesWhatWasThere_data()
    {
        QTest::addColumn<int>("room");
        QTest::addColumn<int>("length");
        QTest::newRow("at the end of a short text") << 10 << 100;
        QTest::newRow("at once") << 0 << 5'000'000;
        QTest::newRow("in the middle of a long text") << 2'500'000 << 5'000'000;
        QTest::newRow("at the last byte") << 4'999'999 << 5'000'000;
    }
    void aFullDiskLeavesWhatWasThere()
    {
        QFETCH(int, room);
        QFETCH(int, length);
        const QString text(length, QLatin1Char('x'));
        const QString diskFull = QStringLiteral("61 Disk full: ") + file();
        {
            const FullDisk full{rlim_t(room)};
            QCOMPARE(errorOfWriting(file(), text), diskFull);
        }
        QCOMPARE(entries(), QStringList());
        put(file(), "old");
        {
            const FullDisk full{rlim_t(room)};
            QCOMPARE(errorOfWriting(file(), text), diskFull);
        }
        QCOMPARE(entries(), {QStringLiteral("extract.txt")});
        QCOMPARE(contents(file()), QByteArray("old"));
    }

    void aFullDiskInPlaceIsDiskFull()
    {
        const OrdinaryUser user; // who cannot replace the device if this ever goes wrong
        QCOMPARE(errorOfWriting(QStringLiteral("/dev/full"), u"new"),
                 QStringLiteral("61 Disk full: /dev/full"));
    }

    void aPipeIsWrittenAndNotReplaced()
    {
        const QByteArray name = file().toUtf8();
        QCOMPARE(mkfifo(name.constData(), 0600), 0);
        const int reader = ::open(name.constData(), O_RDONLY | O_NONBLOCK);
        QVERIFY(reader >= 0);
        writeTextFile(file(), u"new");
        char bytes[10] = {};
        QCOMPARE(read(reader, bytes, sizeof bytes), 3);
        ::close(reader);
        QCOMPARE(bytes, "new");
        QVERIFY(!QFileInfo(file()).isFile());
    }

    void aFolderThatTakesNoNewFileHasItsFilesWrittenInPlace()
    {
        put(file(), "a longer text that stood there before");
        OrdinaryUser::own(file());
        const ino_t before = inode(file());
        setMode(mFolder->path(), 0555);
        {
            const OrdinaryUser user;
            QCOMPARE(errorOfWriting(file(), u"new"), QStringLiteral("none"));
        }
        QCOMPARE(contents(file()), QByteArray("new"));
        QCOMPARE(inode(file()), before);
    }

    void aNewFileInAFolderThatTakesNoneIsPermissionDenied()
    {
        setMode(mFolder->path(), 0555);
        {
            const OrdinaryUser user;
            QCOMPARE(errorOfWriting(file(), u"new"),
                     QStringLiteral("70 Permission denied: ") + file());
        }
        QCOMPARE(entries(), QStringList());
    }

    void aFileThatMayNotBeWrittenIsPermissionDenied()
    {
        put(file(), "old");
        OrdinaryUser::own(file());
        setMode(file(), 0444);
        {
            const OrdinaryUser user;
            QCOMPARE(errorOfWriting(file(), u"new"),
                     QStringLiteral("70 Permission denied: ") + file());
        }
        QCOMPARE(contents(file()), QByteArray("old"));
        QCOMPARE(entries(), {QStringLiteral("extract.txt")});
    }

    void aFolderThatMayNotBeEnteredIsPermissionDenied()
    {
        setMode(mFolder->path(), 0000);
        const OrdinaryUser user;
        QCOMPARE(errorOfWriting(file(), u"new"), QStringLiteral("70 Permission denied: ") + file());
    }

private:
    QString at(const char *name) const
    {
        return mFolder->path() + QLatin1Char('/') + QString::fromLatin1(name);
    }
    QString file() const { return at("extract.txt"); }
    QStringList entries() const
    {
        return QDir(mFolder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> mFolder;
};

QTEST_APPLESS_MAIN(tst_FileWriter)
#include "tst_FileWriter.moc"
