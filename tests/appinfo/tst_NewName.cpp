#include "appinfo/NewName.h"
#include "support/FileFaults.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

bool isRenameKnown = true;
bool areLinksKnown = true;

} // namespace

// These stand before the system's own, for file systems that know less.

extern "C" int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
                         unsigned flags) noexcept
{
    if (isRenameKnown)
        return int(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
    errno = EINVAL;
    return -1;
}

extern "C" int link(const char *from, const char *to) noexcept
{
    if (areLinksKnown)
        return int(syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
    errno = EPERM;
    return -1;
}

class tst_NewName : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> mFolder;

    QString at(const QString &name) const { return mFolder->filePath(name); }
    static void write(const QString &file, const QByteArray &bytes)
    {
        QFile written(file);
        QVERIFY(written.open(QIODevice::WriteOnly));
        QCOMPARE(written.write(bytes), bytes.size());
    }
    static QByteArray contents(const QString &file)
    {
        QFile read(file);
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray("none");
    }
    static void fileSystems()
    {
        QTest::addColumn<bool>("rename");
        QTest::addColumn<bool>("links");
        QTest::newRow("renames to a new name") << true << true;
        QTest::newRow("has links") << false << true;
        QTest::newRow("can only copy") << false << false;
    }
    static void useFileSystem()
    {
        QFETCH(bool, rename);
        QFETCH(bool, links);
        isRenameKnown = rename;
        areLinksKnown = links;
    }

private Q_SLOTS:
    void init()
    {
        mFolder = std::make_unique<QTemporaryDir>();
        write(at(u"file"_s), QByteArray(200'000, 'x'));
    }
    void cleanup() { isRenameKnown = areLinksKnown = true; }

    void aNewNameIsGiven_data() { fileSystems(); }
    void aNewNameIsGiven()
    {
        useFileSystem();
        QCOMPARE(moveToNewName(at(u"file"_s), at(u"name"_s)), 0);
        QCOMPARE(contents(at(u"name"_s)), QByteArray(200'000, 'x'));
    }

    void aFileOfThatNameIsKept_data() { fileSystems(); }
    void aFileOfThatNameIsKept()
    {
        useFileSystem();
        write(at(u"name"_s), "kept");
        QCOMPARE(moveToNewName(at(u"file"_s), at(u"name"_s)), EEXIST);
        QCOMPARE(contents(at(u"name"_s)), QByteArray("kept"));
        QCOMPARE(contents(at(u"file"_s)).size(), 200'000);
    }

    void aLinkToNothingIsNotWrittenThrough_data() { fileSystems(); }
    void aLinkToNothingIsNotWrittenThrough()
    {
        useFileSystem();
        QVERIFY(QFile::link(at(u"nothing"_s), at(u"name"_s)));
        QCOMPARE(moveToNewName(at(u"file"_s), at(u"name"_s)), EEXIST);
        QVERIFY(!QFile::exists(at(u"nothing"_s)));
        QCOMPARE(QFile::symLinkTarget(at(u"name"_s)), at(u"nothing"_s));
    }

    void aFolderOfThatNameIsKept_data() { fileSystems(); }
    void aFolderOfThatNameIsKept()
    {
        useFileSystem();
        QVERIFY(QDir(mFolder->path()).mkdir(u"name"_s));
        QCOMPARE(moveToNewName(at(u"file"_s), at(u"name"_s)), EEXIST);
        QVERIFY(QDir(at(u"name"_s)).isEmpty());
    }

    void aMissingFolderIsTold_data() { fileSystems(); }
    void aMissingFolderIsTold()
    {
        useFileSystem();
        QCOMPARE(moveToNewName(at(u"file"_s), at(u"gone/name"_s)), ENOENT);
    }

    void aCopyThatTheDiskHasNoRoomForIsRemoved()
    {
        isRenameKnown = areLinksKnown = false;
        const FullDisk disk(100'000);
        QCOMPARE(moveToNewName(at(u"file"_s), at(u"name"_s)), EFBIG);
        QVERIFY(!QFile::exists(at(u"name"_s)));
    }
};

QTEST_APPLESS_MAIN(tst_NewName)
#include "tst_NewName.moc"
