#include "extract/frmDrvDirFil.h"
#include "support/FakeServices.h"
#include "support/FileFaults.h"
#include "support/Wheel.h"

#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

/// Answers prompts, and does something before each answer.
class ActingPrompts final : public Prompts
{
public:
    std::function<Answer(const Prompt &)> act;
    QList<Prompt> asked;

    Answer ask(const Prompt &prompt) override
    {
        asked.append(prompt);
        return act(prompt);
    }
};

} // namespace

class tst_frmDrvDirFil : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> mHome;
    QByteArray mFormerHome;
    std::unique_ptr<FakeServices> mFake;
    std::unique_ptr<modGlobal> mGlobal;
    QPointer<frmDrvDirFil> mDialog;

    template <typename Control>
    Control *control(const char *name) const
    {
        return mDialog->findChild<Control *>(QString::fromLatin1(name));
    }

    QString program(const QString &name = {}) const
    {
        return mHome->filePath(u"program"_s) + (name.isEmpty() ? QString() : u'/' + name);
    }

    void makeFile(const QString &path, const QByteArray &content = "old")
    {
        QFile file(path);
        QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
        file.write(content);
    }

    QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }

    void open()
    {
        delete mDialog;
        mDialog = new frmDrvDirFil(mFake->services, *mGlobal);
        mDialog->show();
        QVERIFY(QTest::qWaitForWindowActive(mDialog));
    }

    QStringList listedFiles() const
    {
        QStringList names;
        const QAbstractItemModel *model = control<QListView>("Filebox")->model();
        for (int row = 0; row < model->rowCount(); ++row)
            names.append(model->index(row, 0).data().toString());
        return names;
    }

    QString chosenFolder() const
    {
        return control<QTreeView>("Dirbox")->currentIndex().data().toString();
    }

    QString drive() const { return control<QComboBox>("DriveBox")->currentData().toString(); }

    /// Chooses a drive as a user does with the keyboard; the entry is already current where it
    /// is chosen again.
    void chooseDrive(int row)
    {
        auto *box = control<QComboBox>("DriveBox");
        box->showPopup();
        box->view()->setCurrentIndex(box->model()->index(row, 0));
        QTest::keyClick(box->view(), Qt::Key_Return);
    }

    void clickOn(QAbstractItemView *view, const QModelIndex &index)
    {
        QVERIFY(index.isValid());
        view->scrollTo(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
    }

    void clickFolder(const QString &name)
    {
        auto *tree = control<QTreeView>("Dirbox");
        const QModelIndexList found =
            tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole, name, 1,
                                 Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
        QCOMPARE(found.size(), 1);
        clickOn(tree, found.first());
    }

    void clickFile(const QString &name)
    {
        auto *list = control<QListView>("Filebox");
        clickOn(list, list->model()->index(int(listedFiles().indexOf(name)), 0));
    }

    void typeName(const QString &name)
    {
        auto *box = control<QLineEdit>("txtFileName");
        box->selectAll();
        QTest::keyClick(box, Qt::Key_Delete);
        QTest::keyClicks(box, name);
    }

    void clickSave() { QTest::mouseClick(control<QPushButton>("cmdSave"), Qt::LeftButton); }

    QStringList askedTitles() const
    {
        QStringList titles;
        for (const Prompt &prompt : mFake->prompts.asked)
            titles.append(prompt.title);
        return titles;
    }

private Q_SLOTS:
    void initTestCase() { mFormerHome = qgetenv("HOME"); }
    void cleanupTestCase() { qputenv("HOME", mFormerHome); }

    void init()
    {
        mHome = std::make_unique<QTemporaryDir>();
        qputenv("HOME", QFile::encodeName(mHome->path()));
        QVERIFY(QDir(mHome->path()).mkpath(u"program/inner"_s));
        QVERIFY(QDir(mHome->path()).mkpath(u"other"_s));
        makeFile(program(u"b.txt"_s));
        makeFile(program(u"a.TXT"_s));
        makeFile(program(u"list.lst"_s));
        makeFile(mHome->filePath(u"other/o.txt"_s));

        mFake = std::make_unique<FakeServices>();
        mFake->services.programFolder = program();
        mGlobal = std::make_unique<modGlobal>();
        mGlobal->gPendingText = u"\"A\",\"Verkäufe\"\r\n"_s;
        mGlobal->gSaveFilePattern = u"*.txt"_s;
        mGlobal->gSaveMode = u"METADATAEXTRACT"_s;
        open();
    }

    void cleanup() { delete mDialog; }

    // The dialog as it opens.

    void captionsAreThose()
    {
        QCOMPARE(mDialog->objectName(), u"frmDrvDirFil"_s);
        QCOMPARE(mDialog->windowTitle(), u"Tessaly - Save File..."_s);
        QCOMPARE(control<QLabel>("lblFileName")->text(), u"File Name: "_s);
        QCOMPARE(control<QPushButton>("cmdSave")->text(), u"&Save"_s);
        QCOMPARE(control<QPushButton>("cmdCancel")->text(), u"Ca&ncel"_s);
        QVERIFY(mDialog->isModal());
    }

    void itOpensOnTheProgramsOwnFolder()
    {
        QCOMPARE(mDialog->folder(), program());
        QCOMPARE(chosenFolder(), u"program"_s);
        QCOMPARE(drive(), mHome->path());
        QCOMPARE(control<QLineEdit>("txtFileName")->text(), QString());
        QCOMPARE(QApplication::focusWidget(), control<QWidget>("txtFileName"));
    }

    void textFilesAreListedForAnExtract()
    {
        QCOMPARE(listedFiles(), (QStringList{u"a.TXT"_s, u"b.txt"_s}));
    }

    void onlyFilesNamedExactlyLstAreListedForAMemberList()
    {
        mGlobal->gSaveFilePattern = u".lst"_s;
        open();
        QCOMPARE(listedFiles(), QStringList());
        makeFile(program(u".lst"_s));
        open();
        QCOMPARE(listedFiles(), QStringList{u".lst"_s});
    }

    void theRootAndTheHomeFolderAreTheFirstDrives()
    {
        const auto *box = control<QComboBox>("DriveBox");
        QCOMPARE(box->itemText(0), u"/"_s);
        QCOMPARE(box->itemText(1), mHome->path());
    }

    void theWheelOverTheDrivesWithoutTheFocusChoosesNone()
    {
        control<QWidget>("txtFileName")->setFocus();
        control<QComboBox>("DriveBox")->setCurrentIndex(0);
        QVERIFY(!turnWheel(control<QComboBox>("DriveBox")));
        QCOMPARE(control<QComboBox>("DriveBox")->currentIndex(), 0);
        QCOMPARE(mDialog->folder(), program());
    }

    void everyControlHasAnAccessibleName()
    {
        for (const char *name :
             {"DriveBox", "Dirbox", "Filebox", "txtFileName", "cmdSave", "cmdCancel"}) {
            QVERIFY2(control<QWidget>(name), name);
            QVERIFY2(!control<QWidget>(name)->accessibleName().isEmpty(), name);
        }
        QCOMPARE(control<QLabel>("lblFileName")->buddy(), control<QWidget>("txtFileName"));
    }

    void theTabKeyGoesThroughTheControlsInTheirOrder()
    {
        control<QWidget>("DriveBox")->setFocus();
        QStringList names;
        for (int i = 0; i < 6; ++i) {
            names.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(names, (QStringList{u"DriveBox"_s, u"Dirbox"_s, u"Filebox"_s, u"txtFileName"_s,
                                     u"cmdSave"_s, u"cmdCancel"_s}));
    }

    // Drive, folder and file follow one another.

    void changingTheDriveShowsThatDrivesFolder()
    {
        chooseDrive(0);
        QCOMPARE(mDialog->folder(), u"/"_s);
        QCOMPARE(chosenFolder(), u"/"_s);
        QCOMPARE(drive(), u"/"_s);
    }

    void theSameDriveChosenAgainShowsThatDrivesFolder()
    {
        makeFile(mHome->filePath(u"h.txt"_s));
        chooseDrive(1);
        QCOMPARE(mDialog->folder(), mHome->path());
        QCOMPARE(listedFiles(), QStringList{u"h.txt"_s});
    }

    void changingTheFolderListsItsFiles()
    {
        clickFolder(u"other"_s);
        QCOMPARE(mDialog->folder(), mHome->filePath(u"other"_s));
        QCOMPARE(listedFiles(), QStringList{u"o.txt"_s});
    }

    void theFolderIsChangedWithTheKeyboardToo()
    {
        auto *tree = control<QTreeView>("Dirbox");
        QTest::keyClick(tree, Qt::Key_Down);
        QCOMPARE(mDialog->folder(), program(u"inner"_s));
        QCOMPARE(listedFiles(), QStringList());
    }

    void clickingAFileCopiesItsName()
    {
        clickFile(u"b.txt"_s);
        QCOMPARE(control<QLineEdit>("txtFileName")->text(), u"b.txt"_s);
    }

    void clickingTheSameFileAgainCopiesItsNameAgain()
    {
        clickFile(u"b.txt"_s);
        typeName(u"mine"_s);
        clickFile(u"b.txt"_s);
        QCOMPARE(control<QLineEdit>("txtFileName")->text(), u"b.txt"_s);
    }

    void aFileChosenWithTheKeyboardIsCopiedToo()
    {
        auto *list = control<QListView>("Filebox");
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Down);
        QVERIFY(!control<QLineEdit>("txtFileName")->text().isEmpty());
    }

    void goingThroughTheFileListLeavesATypedName()
    {
        typeName(u"mine.txt"_s);
        control<QListView>("Filebox")->setFocus(Qt::TabFocusReason);
        QTest::keyClick(control<QListView>("Filebox"), Qt::Key_Tab);
        QCOMPARE(control<QLineEdit>("txtFileName")->text(), u"mine.txt"_s);
    }

    void changingTheFolderKeepsTheName()
    {
        clickFile(u"b.txt"_s);
        clickFolder(u"other"_s);
        QCOMPARE(control<QLineEdit>("txtFileName")->text(), u"b.txt"_s);
    }

    void namesWithOddCharactersAreSavedUnderThatName()
    {
        const QString name = u"two\nlines & <b>Ä 中.txt"_s;
        makeFile(program(name));
        open();
        QCOMPARE(listedFiles(),
                 (QStringList{u"a.TXT"_s, u"b.txt"_s, u"two␊lines & <b>Ä 中.txt"_s}));
        clickFile(u"two␊lines & <b>Ä 中.txt"_s);
        clickSave();
        QCOMPARE(askedTitles(), (QStringList{u"File Exists"_s, u"File Saved"_s}));
        QCOMPARE(contentOf(program(name)), QByteArray("\"A\",\"Verk\xE4ufe\"\r\n"));
    }

    void aFolderWithOddCharactersIsSavedInto()
    {
        const QString name = u" & <i>\n'\"中"_s;
        QVERIFY(QDir(mHome->path()).mkdir(name));
        mFake->services.programFolder = mHome->filePath(name);
        open();
        QCOMPARE(mDialog->folder(), mHome->filePath(name));
        typeName(u"x.txt"_s);
        clickSave();
        QVERIFY(QFile::exists(mHome->filePath(name) + u"/x.txt"_s));
    }

    // Saving.

    void savingWritesTheTextByteForByteSaysSoAndCloses()
    {
        typeName(u"new.txt"_s);
        clickSave();
        QCOMPARE(contentOf(program(u"new.txt"_s)), QByteArray("\"A\",\"Verk\xE4ufe\"\r\n"));
        QCOMPARE(mFake->prompts.asked.size(), 1);
        QCOMPARE(mFake->prompts.asked[0].title, u"File Saved"_s);
        QCOMPARE(mFake->prompts.asked[0].text,
                 u"Successfully saved member list file to '"_s + program(u"new.txt"_s) + u"'."_s);
        QTRY_VERIFY(!mDialog);
    }

    void theWindowThatSavedIsActiveAfterwards()
    {
        QWidget owner;
        owner.show();
        QWidget other;
        other.show();
        ActingPrompts prompts;
        prompts.act = [&](const Prompt &) {
            // Box and dialog go at once, and a window manager may then lose sight of their owner.
            other.activateWindow();
            return QTest::qWaitForWindowActive(&other) ? Prompts::Answer::Ok
                                                       : Prompts::Answer::Cancel;
        };
        ErrorTrap trap(prompts, mFake->program);
        Services services{
            mFake->hfm,     prompts, mFake->launcher, mFake->spreadsheet, mFake->clock,
            mFake->program, trap,    program()};
        delete mDialog;
        mDialog = new frmDrvDirFil(services, *mGlobal, &owner);
        mDialog->show();
        typeName(u"new.txt"_s);
        clickSave();
        QCOMPARE(prompts.asked.size(), 1);
        QTRY_VERIFY(!mDialog);
        QTRY_VERIFY(owner.isActiveWindow());
    }

    void enterInTheNameSaves()
    {
        typeName(u"new.txt"_s);
        QTest::keyClick(control<QLineEdit>("txtFileName"), Qt::Key_Return);
        QVERIFY(QFile::exists(program(u"new.txt"_s)));
        QCOMPARE(askedTitles(), QStringList{u"File Saved"_s});
        QTRY_VERIFY(!mDialog);
    }

    void enterInTheListsDoesNotSave()
    {
        typeName(u"new.txt"_s);
        for (const char *name : {"DriveBox", "Dirbox", "Filebox"}) {
            control<QWidget>(name)->setFocus();
            QTest::keyClick(control<QWidget>(name), Qt::Key_Return);
        }
        QVERIFY(!QFile::exists(program(u"new.txt"_s)));
        QVERIFY(mDialog->isVisible());
    }

    void enterOnAButtonPressesIt()
    {
        typeName(u"new.txt"_s);
        control<QWidget>("cmdCancel")->setFocus();
        QTest::keyClick(control<QWidget>("cmdCancel"), Qt::Key_Return);
        QVERIFY(!QFile::exists(program(u"new.txt"_s)));
        QTRY_VERIFY(!mDialog);
    }

    void theNameIsUsedAsTyped()
    {
        typeName(u" no extension "_s);
        clickSave();
        QVERIFY(QFile::exists(program(u" no extension "_s)));
    }

    void anExistingFileIsOverwrittenAfterYes()
    {
        clickFile(u"b.txt"_s);
        mFake->prompts.answers = {Prompts::Answer::Yes};
        clickSave();
        QCOMPARE(askedTitles(), (QStringList{u"File Exists"_s, u"File Saved"_s}));
        QCOMPARE(mFake->prompts.asked[0].text, u"The file '"_s + program(u"b.txt"_s) +
                                                   u"' already exists.\r\rDo you want to "
                                                   "overwrite this file?"_s);
        QCOMPARE(contentOf(program(u"b.txt"_s)), QByteArray("\"A\",\"Verk\xE4ufe\"\r\n"));
    }

    void anExistingFileStaysAfterNo()
    {
        clickFile(u"b.txt"_s);
        mFake->prompts.answers = {Prompts::Answer::No};
        clickSave();
        QCOMPARE(askedTitles(), QStringList{u"File Exists"_s});
        QCOMPARE(contentOf(program(u"b.txt"_s)), QByteArray("old"));
        QVERIFY(mDialog->isVisible());
    }

    void aNameInAnotherLetterCaseIsWrittenWithoutAsking()
    {
        typeName(u"B.TXT"_s);
        clickSave();
        QCOMPARE(askedTitles(), QStringList{u"File Saved"_s});
        QVERIFY(QFile::exists(program(u"B.TXT"_s)));
    }

    void aMemberListWithAnotherExtensionWarnsFirst()
    {
        mGlobal->gSaveMode = u"MEMBERLIST"_s;
        typeName(u"b.txt"_s);
        clickSave();
        QCOMPARE(askedTitles(),
                 (QStringList{u"HFM Member List Extension"_s, u"File Exists"_s, u"File Saved"_s}));
    }

    void aMemberListIsNotSavedAfterCancel()
    {
        mGlobal->gSaveMode = u"MEMBERLIST"_s;
        typeName(u"LIST.txt"_s);
        mFake->prompts.answers = {Prompts::Answer::Cancel};
        clickSave();
        QCOMPARE(askedTitles(), QStringList{u"HFM Member List Extension"_s});
        QVERIFY(!QFile::exists(program(u"LIST.txt"_s)));
        QVERIFY(mDialog->isVisible());
    }

    void aMemberListWithItsExtensionIsSavedWithoutAWarning()
    {
        mGlobal->gSaveMode = u"MEMBERLIST"_s;
        typeName(u"Sales.LST"_s);
        clickSave();
        QCOMPARE(askedTitles(), QStringList{u"File Saved"_s});
    }

    void anEmptyNameFailsOnWritingAndEndsTheProgram()
    {
        clickSave();
        QCOMPARE(mFake->prompts.asked.size(), 1);
        QVERIFY(mFake->prompts.asked[0].text.startsWith(u"Run-time error '75':\r\n\r\n"_s));
        QCOMPARE(mFake->program.endCodes, QList<int>{1});
    }

    void aFolderThatVanishedFailsOnWritingAndEndsTheProgram()
    {
        typeName(u"new.txt"_s);
        QVERIFY(QDir(program()).removeRecursively());
        clickSave();
        QCOMPARE(mFake->prompts.asked.size(), 1);
        QVERIFY(mFake->prompts.asked[0].text.startsWith(u"Run-time error '76':\r\n\r\n"_s));
        QCOMPARE(mFake->program.endCodes, QList<int>{1});
    }

    void aNameThatIsAFolderFailsOnWritingWithoutAsking()
    {
        typeName(u"inner"_s);
        clickSave();
        QCOMPARE(mFake->prompts.asked.size(), 1);
        QVERIFY(mFake->prompts.asked[0].text.startsWith(u"Run-time error '75'"_s));
    }

    void aDiskThatFillsUpEndsTheProgramAndLeavesTheOldFile()
    {
        mGlobal->gPendingText = QString(100000, u'x');
        clickFile(u"b.txt"_s);
        {
            const FullDisk disk(50000);
            clickSave();
        }
        QCOMPARE(askedTitles(), (QStringList{u"File Exists"_s, u"Tessaly"_s}));
        QVERIFY(mFake->prompts.asked[1].text.startsWith(u"Run-time error '61':\r\n\r\n"_s));
        QCOMPARE(mFake->program.endCodes, QList<int>{1});
        QCOMPARE(contentOf(program(u"b.txt"_s)), QByteArray("old"));
        QCOMPARE(QDir(program()).entryList(QDir::Files | QDir::Hidden).size(), 3);
    }

    void aFolderWithoutTheRightToWriteEndsTheProgram()
    {
        typeName(u"new.txt"_s);
        OrdinaryUser::own(mHome->path());
        QVERIFY(QFile::setPermissions(program(), QFile::ReadOther | QFile::ExeOther |
                                                     QFile::ReadOwner | QFile::ExeOwner));
        {
            const OrdinaryUser user;
            clickSave();
        }
        QVERIFY(QFile::setPermissions(program(),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(mFake->prompts.asked.size(), 1);
        QVERIFY(mFake->prompts.asked[0].text.startsWith(u"Run-time error '70':\r\n\r\n"_s));
        QCOMPARE(mFake->program.endCodes, QList<int>{1});
        QVERIFY(!QFile::exists(program(u"new.txt"_s)));
    }

    void writeToFileWritesWithoutAQuestion()
    {
        clickFile(u"b.txt"_s);
        mDialog->WriteToFile();
        QCOMPARE(askedTitles(), QStringList{u"File Saved"_s});
        QCOMPARE(contentOf(program(u"b.txt"_s)), QByteArray("\"A\",\"Verk\xE4ufe\"\r\n"));
        QTRY_VERIFY(!mDialog);
    }

    void anEmptyTextWritesAnEmptyFile()
    {
        mGlobal->gPendingText.clear();
        typeName(u"empty.txt"_s);
        clickSave();
        QCOMPARE(contentOf(program(u"empty.txt"_s)), QByteArray());
    }

    // Leaving.

    void cancelClosesWithoutWriting()
    {
        typeName(u"new.txt"_s);
        QTest::mouseClick(control<QPushButton>("cmdCancel"), Qt::LeftButton);
        QVERIFY(!QFile::exists(program(u"new.txt"_s)));
        QTRY_VERIFY(!mDialog);
    }

    void theButtonsHaveTheirKeys()
    {
        typeName(u"new.txt"_s);
        QTest::keyClick(mDialog, Qt::Key_S, Qt::AltModifier);
        QTRY_VERIFY(QFile::exists(program(u"new.txt"_s)));
        open();
        QTest::keyClick(mDialog, Qt::Key_N, Qt::AltModifier);
        QTRY_VERIFY(!mDialog);
    }

    void escapeCloses()
    {
        QTest::keyClick(mDialog, Qt::Key_Escape);
        QTRY_VERIFY(!mDialog);
        QCOMPARE(mFake->prompts.asked.size(), 0);
    }

    // Drives and folders that cannot be read.

    void aDriveThatCannotBeReadCanBeGivenUp()
    {
        control<QComboBox>("DriveBox")->addItem(u"/nowhere"_s, u"/nowhere"_s);
        mFake->prompts.answers = {Prompts::Answer::Cancel};
        chooseDrive(control<QComboBox>("DriveBox")->count() - 1);
        QCOMPARE(mFake->prompts.asked.size(), 1);
        const Prompt expected = {u"Error in setting path"_s,
                                 u"Error: 76: Path not found: /nowhere"_s, Prompt::Icon::None,
                                 Prompt::Buttons::OkCancel};
        QVERIFY(mFake->prompts.asked[0] == expected);
        QCOMPARE(drive(), mHome->path());
        QCOMPARE(mDialog->folder(), program());
        QCOMPARE(listedFiles(), (QStringList{u"a.TXT"_s, u"b.txt"_s}));
    }

    void aDriveThatCannotBeReadIsTriedAgainAfterOk()
    {
        const QString medium = mHome->filePath(u"medium"_s);
        ActingPrompts prompts;
        prompts.act = [&](const Prompt &) {
            if (prompts.asked.size() == 3) {
                QDir().mkdir(medium);
                makeFile(medium + u"/m.txt"_s);
            }
            return Prompts::Answer::Ok;
        };
        ErrorTrap trap(prompts, mFake->program);
        Services services{
            mFake->hfm,     prompts, mFake->launcher, mFake->spreadsheet, mFake->clock,
            mFake->program, trap,    program()};
        delete mDialog;
        mDialog = new frmDrvDirFil(services, *mGlobal);
        mDialog->show();
        control<QComboBox>("DriveBox")->addItem(medium, medium);
        chooseDrive(control<QComboBox>("DriveBox")->count() - 1);
        QCOMPARE(prompts.asked.size(), 3);
        QCOMPARE(drive(), medium);
        QCOMPARE(mDialog->folder(), medium);
        QCOMPARE(listedFiles(), QStringList{u"m.txt"_s});
        delete mDialog;
    }

    void aFolderThatCannotBeReadGoesTheSameWay()
    {
        QVERIFY(QDir(mHome->filePath(u"other"_s)).removeRecursively());
        mFake->prompts.answers = {Prompts::Answer::Ok, Prompts::Answer::Cancel};
        clickFolder(u"other"_s);
        QCOMPARE(askedTitles(),
                 (QStringList{u"Error in setting path"_s, u"Error in setting path"_s}));
        QCOMPARE(mDialog->folder(), program());
        QCOMPARE(chosenFolder(), u"program"_s);
        const QModelIndexList selected =
            control<QTreeView>("Dirbox")->selectionModel()->selectedIndexes();
        QCOMPARE(selected.value(0).data().toString(), u"program"_s);
        QCOMPARE(listedFiles(), (QStringList{u"a.TXT"_s, u"b.txt"_s}));
    }

    void aProgramFolderThatCannotBeReadOpensWithoutFiles()
    {
        mFake->services.programFolder = mHome->filePath(u"gone"_s);
        mFake->prompts.answers = {Prompts::Answer::Cancel};
        open();
        QCOMPARE(askedTitles(), QStringList{u"Error in setting path"_s});
        QCOMPARE(listedFiles(), QStringList());
        clickFolder(u"other"_s);
        QCOMPARE(listedFiles(), QStringList{u"o.txt"_s});
    }

    void aFolderIsOpenedWithItsDrive()
    {
        mDialog->openFolder(u"/"_s);
        QCOMPARE(mDialog->folder(), u"/"_s);
        QCOMPARE(drive(), u"/"_s);
        mDialog->openFolder(mHome->filePath(u"other/"_s));
        QCOMPARE(mDialog->folder(), mHome->filePath(u"other"_s));
        QCOMPARE(drive(), mHome->path());
        QCOMPARE(chosenFolder(), u"other"_s);
    }

    void aFolderThatCannotBeOpenedLeavesAllAsItWas()
    {
        mFake->prompts.answers = {Prompts::Answer::Cancel};
        mDialog->openFolder(u"/nowhere"_s);
        QCOMPARE(askedTitles(), QStringList{u"Error in setting path"_s});
        QCOMPARE(mDialog->folder(), program());
        QCOMPARE(drive(), mHome->path());
    }
};

QTEST_MAIN(tst_frmDrvDirFil)
#include "tst_frmDrvDirFil.moc"
