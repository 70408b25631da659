#include "extract/FileList.h"
#include "runtime/RuntimeError.h"
#include "support/FileFaults.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class tst_FileList : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> mFolder;

    QString path() const { return mFolder->path(); }

    void makeFiles(const QStringList &names)
    {
        for (const QString &name : names) {
            QFile file(mFolder->filePath(name));
            QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(name));
        }
    }

    template <typename Action>
    void compareError(qint32 number, Action action)
    {
        try {
            action();
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), number);
        }
    }

private Q_SLOTS:
    void init() { mFolder = std::make_unique<QTemporaryDir>(); }

    void textFilesAreListedAlphabetically()
    {
        makeFiles({u"b.txt"_s, u"A.txt"_s, u"c.TXT"_s, u"d.lst"_s, u"txt"_s, u"e.txt.old"_s});
        QCOMPARE(FileList::files(path(), u"*.txt"_s),
                 (QStringList{u"A.txt"_s, u"b.txt"_s, u"c.TXT"_s}));
    }

    void thePatternWithoutAnAsteriskListsOnlyFilesNamedExactlySo()
    {
        makeFiles({u"Sales.lst"_s, u"x.LST"_s, u".LST"_s, u"a.lst.b"_s});
        QCOMPARE(FileList::files(path(), u".lst"_s), QStringList());
        makeFiles({u".lst"_s});
        QCOMPARE(FileList::files(path(), u".lst"_s), QStringList{u".lst"_s});
    }

    void aQuestionMarkStandsForOneCharacter()
    {
        makeFiles({u"a1.txt"_s, u"a12.txt"_s, u"a.txt"_s});
        QCOMPARE(FileList::files(path(), u"a?.txt"_s), QStringList{u"a1.txt"_s});
    }

    void otherCharactersOfAPatternStandForThemselves()
    {
        makeFiles({u"a[1].txt"_s, u"a1.txt"_s, u"a+txt"_s, u"a.txt"_s});
        QCOMPARE(FileList::files(path(), u"*[1].txt"_s), QStringList{u"a[1].txt"_s});
        QCOMPARE(FileList::files(path(), u"*a.txt"_s), QStringList{u"a.txt"_s});
    }

    void namesWithOddCharactersAreListedAsTheyAre()
    {
        const QStringList names = {u" blank .txt"_s, u"&amp;.txt"_s, u"<b>x.txt"_s,
                                   u"Verkäufe – 中.txt"_s, u"new\nline.txt"_s};
        makeFiles(names);
        QStringList listed = FileList::files(path(), u"*.txt"_s);
        QCOMPARE(listed.size(), names.size());
        for (const QString &name : names)
            QVERIFY2(listed.contains(name), qPrintable(name));
    }

    void aNameThatIsNoTextIsLeftOut()
    {
        const QByteArray folder = QFile::encodeName(path());
        QCOMPARE(mkdir((folder + "/latin-\xE9").constData(), 0700), 0);
        const int file = creat((folder + "/caf\xE9.txt").constData(), 0600);
        QVERIFY(file >= 0);
        ::close(file);
        makeFiles({u"tea.txt"_s});
        QCOMPARE(FileList::files(path(), u"*"_s), QStringList{u"tea.txt"_s});
        QCOMPARE(FileList::folders(path()), QStringList());
        QVERIFY(!FileList::hasFile(path(), u"caf\uFFFD.txt"_s));
        // Qt cannot name them to remove them.
        unlink((folder + "/caf\xE9.txt").constData());
        rmdir((folder + "/latin-\xE9").constData());
    }

    void foldersAreNotFilesAndFilesAreNotFolders()
    {
        makeFiles({u"a.txt"_s});
        QVERIFY(QDir(path()).mkdir(u"b.txt"_s));
        QCOMPARE(FileList::files(path(), u"*.txt"_s), QStringList{u"a.txt"_s});
        QCOMPARE(FileList::folders(path()), QStringList{u"b.txt"_s});
    }

    void linksCountAsWhatTheyPointTo()
    {
        QVERIFY(QDir(path()).mkdir(u"folder"_s));
        QVERIFY(QFile::link(mFolder->filePath(u"folder"_s), mFolder->filePath(u"link.txt"_s)));
        QVERIFY(QFile::link(u"/nowhere/at/all"_s, mFolder->filePath(u"dead.txt"_s)));
        QCOMPARE(FileList::folders(path()), (QStringList{u"folder"_s, u"link.txt"_s}));
        QCOMPARE(FileList::files(path(), u"*.txt"_s), QStringList{u"dead.txt"_s});
    }

    void anEmptyFolderListsNothing()
    {
        QCOMPARE(FileList::files(path(), u"*.txt"_s), QStringList());
        QCOMPARE(FileList::folders(path()), QStringList());
        QVERIFY(!FileList::hasFile(path(), u"a.txt"_s));
    }

    void aFolderThatIsGoneIsPathNotFound()
    {
        const QString gone = mFolder->filePath(u"gone"_s);
        compareError(PathNotFound, [&] { FileList::files(gone, u"*"_s); });
        compareError(PathNotFound, [&] { FileList::folders(gone); });
        compareError(PathNotFound, [&] { FileList::hasFile(gone, u"a"_s); });
    }

    void aFileIsNoFolder()
    {
        makeFiles({u"a.txt"_s});
        compareError(PathNotFound, [&] { FileList::files(mFolder->filePath(u"a.txt"_s), u"*"_s); });
    }

    void aFolderWithoutTheRightToReadItIsPermissionDenied()
    {
        const QString closed = mFolder->filePath(u"closed"_s);
        QVERIFY(QDir(path()).mkdir(u"closed"_s));
        QVERIFY(QFile::setPermissions(closed, {}));
        {
            const OrdinaryUser user;
            compareError(PermissionDenied, [&] { FileList::files(closed, u"*"_s); });
            compareError(PermissionDenied, [&] { FileList::folders(closed); });
        }
        QVERIFY(QFile::setPermissions(closed, QFile::ReadOwner | QFile::ExeOwner));
    }

    void theErrorNamesTheFolder()
    {
        const QString gone = mFolder->filePath(u"gone"_s);
        try {
            FileList::folders(gone);
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.description(), u"Path not found: "_s + gone);
        }
    }

    void controlCharactersAreShownAsTheirPictures()
    {
        QCOMPARE(FileList::displayName(u"a\nb\tc\x7f.txt"_s), u"a␊b␉c␡.txt"_s);
        QCOMPARE(FileList::displayName(u"Verkäufe 中.txt"_s), u"Verkäufe 中.txt"_s);
    }
};

QTEST_APPLESS_MAIN(tst_FileList)
#include "tst_FileList.moc"
