#include "extract/SaveRules.h"

#include "extract/FileList.h"
#include "support/FileFaults.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace SaveRules;

class tst_SaveRules : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir mFolder;

    void makeFile(const QString &name)
    {
        QFile file(mFolder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

private Q_SLOTS:
    void init()
    {
        QVERIFY(mFolder.isValid());
        for (const QString &name :
             QDir(mFolder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
            QVERIFY(QFile::remove(mFolder.filePath(name)) ||
                    QDir(mFolder.filePath(name)).removeRecursively());
    }

    void theFullNameIsTheFolderASeparatorAndTheName()
    {
        QCOMPARE(fullFileName(u"/home/jane"_s, u"a.txt"_s), u"/home/jane/a.txt"_s);
    }

    void aRootFolderGetsNoSecondSeparator()
    {
        QCOMPARE(fullFileName(u"/"_s, u"a.txt"_s), u"/a.txt"_s);
    }

    void theNameIsNeitherTrimmedNorGivenAnExtension()
    {
        QCOMPARE(fullFileName(u"/x"_s, u"  a b "_s), u"/x/  a b "_s);
    }

    void anEmptyNameIsJoinedToTheFolder() { QCOMPARE(fullFileName(u"/x"_s, u""_s), u"/x/"_s); }

    void aMemberListNeedsTheLstExtension_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("warns");
        QTest::newRow("LIST.txt") << u"MEMBERLIST"_s << u"LIST.txt"_s << true;
        QTest::newRow("list.LST") << u"MEMBERLIST"_s << u"list.LST"_s << false;
        QTest::newRow("x.lst") << u"MEMBERLIST"_s << u"x.lst"_s << false;
        QTest::newRow("only the extension") << u"MEMBERLIST"_s << u".lst"_s << false;
        QTest::newRow("no point") << u"MEMBERLIST"_s << u"lst"_s << true;
        QTest::newRow("a blank behind") << u"MEMBERLIST"_s << u"x.lst "_s << true;
        QTest::newRow("no name") << u"MEMBERLIST"_s << u""_s << true;
        QTest::newRow("mode in lower case") << u" memberlist "_s << u"x.txt"_s << true;
        QTest::newRow("an extract") << u"METADATAEXTRACT"_s << u"x.txt"_s << false;
        QTest::newRow("no mode") << u""_s << u"x.txt"_s << false;
    }

    void aMemberListNeedsTheLstExtension()
    {
        QFETCH(QString, mode);
        QFETCH(QString, name);
        QTEST(lacksListExtension(mode, name), "warns");
    }

    void aFileOfExactlyThatNameExists()
    {
        makeFile(u"Entity.txt"_s);
        QVERIFY(fileExists(mFolder.path(), u"Entity.txt"_s));
        QVERIFY(!fileExists(mFolder.path(), u"Entity"_s));
        QVERIFY(!fileExists(mFolder.path(), u" Entity.txt"_s));
    }

    void aNameInAnotherLetterCaseDoesNotExist()
    {
        makeFile(u"Entity.txt"_s);
        QVERIFY(!fileExists(mFolder.path(), u"ENTITY.TXT"_s));
    }

    void aPatternIsNoMatch()
    {
        makeFile(u"Entity.txt"_s);
        QVERIFY(!fileExists(mFolder.path(), u"*.txt"_s));
        makeFile(u"*.txt"_s);
        QVERIFY(fileExists(mFolder.path(), u"*.txt"_s));
    }

    void anEmptyNameDoesNotExist()
    {
        QVERIFY(!fileExists(mFolder.path(), u""_s));
        makeFile(u"Entity.txt"_s);
        QVERIFY(!fileExists(mFolder.path(), u""_s));
    }

    void aFolderIsNoFile()
    {
        QVERIFY(QDir(mFolder.path()).mkdir(u"Entity.txt"_s));
        QVERIFY(!fileExists(mFolder.path(), u"Entity.txt"_s));
        QVERIFY(!fileExists(mFolder.path(), u"."_s));
        QVERIFY(!fileExists(mFolder.path(), u".."_s));
    }

    void aLinkThatLeadsNowhereExists()
    {
        QVERIFY(QFile::link(u"/nowhere/at/all"_s, mFolder.filePath(u"link.txt"_s)));
        QVERIFY(fileExists(mFolder.path(), u"link.txt"_s));
    }

    void aNameInAFolderBelowNeverCounts()
    {
        QVERIFY(QDir(mFolder.path()).mkdir(u"below"_s));
        makeFile(u"below/a.txt"_s);
        QVERIFY(!fileExists(mFolder.path(), u"below/a.txt"_s));
    }

    void aFileExistsInAFolderThatMayBeWrittenButNotRead()
    {
        const QString closed = mFolder.filePath(u"closed"_s);
        QVERIFY(QDir(mFolder.path()).mkdir(u"closed"_s));
        makeFile(u"closed/Entity.txt"_s);
        OrdinaryUser::own(mFolder.path());
        OrdinaryUser::own(closed);
        QVERIFY(QFile::setPermissions(closed, QFile::WriteOwner | QFile::ExeOwner));
        {
            const OrdinaryUser user;
            QVERIFY_THROWS_EXCEPTION(RuntimeError, FileList::hasFile(closed, u"Entity.txt"_s));
            QVERIFY(fileExists(closed, u"Entity.txt"_s));
            QVERIFY(!fileExists(closed, u"ENTITY.TXT"_s));
        }
        QVERIFY(
            QFile::setPermissions(closed, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    void nothingExistsInAFolderThatIsGone()
    {
        QVERIFY(!fileExists(mFolder.filePath(u"gone"_s), u"a.txt"_s));
    }

    void theExtensionWarningIsJoinedWithTwoCarriageReturns()
    {
        const Prompt expected = {
            u"HFM Member List Extension"_s,
            u"HFM will be looking for a file with the .lst file extension when loading.\r\r"
            u"You may save the file with any extension.  This is a best practices warning."_s,
            Prompt::Icon::Exclamation, Prompt::Buttons::OkCancel};
        QVERIFY(listExtensionWarning() == expected);
    }

    void theOverwriteQuestionNamesTheFile()
    {
        const Prompt expected = {u"File Exists"_s,
                                 u"The file '/x/a.txt' already exists.\r\r"
                                 u"Do you want to overwrite this file?"_s,
                                 Prompt::Icon::Exclamation, Prompt::Buttons::YesNo};
        QVERIFY(overwriteQuestion(u"/x/a.txt"_s) == expected);
    }

    void everySavedFileIsCalledAMemberListFile()
    {
        const Prompt expected = {u"File Saved"_s,
                                 u"Successfully saved member list file to '/x/a.txt'."_s,
                                 Prompt::Icon::Information, Prompt::Buttons::Ok};
        QVERIFY(fileSaved(u"/x/a.txt"_s) == expected);
    }

    void anErrorInSettingThePathShowsNumberAndDescription()
    {
        const Prompt expected = {u"Error in setting path"_s, u"Error: 76: Path not found"_s,
                                 Prompt::Icon::None, Prompt::Buttons::OkCancel};
        QVERIFY(pathError(RuntimeError(PathNotFound)) == expected);
    }
};

QTEST_APPLESS_MAIN(tst_SaveRules)
#include "tst_SaveRules.moc"
