#include "BuilderWindow.h"
#include "extract/frmDrvDirFil.h"
#include "listbuilder/ListSyntax.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// The script in the builder window: generated, edited, reset and saved.
class tst_ListScript : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir mFolder;
    std::unique_ptr<BuilderWindow> mBuilder;

    void open(const QString &outline)
    {
        mBuilder = std::make_unique<BuilderWindow>(outline);
        mBuilder->fake.services.programFolder = mFolder.path();
        mBuilder->open();
        mBuilder->click("cmdListSelectAll");
        mBuilder->click("cmdListSelected");
        mBuilder->type("txtMemberListName", u"Sales"_s);
    }
    QPlainTextEdit *box() const { return mBuilder->control<QPlainTextEdit>("txtMemberListSyntax"); }
    QString syntax() const { return box()->property("text").toString(); }
    QList<Prompt> &asked() { return mBuilder->fake.prompts.asked; }
    FakeCalls &calls() { return mBuilder->fake.hfm.calls(); }

    /// Saves the script under that name and returns the file's bytes.
    QByteArray saved(const QString &name)
    {
        mBuilder->click("cmdSaveMemberListFile");
        auto *dialog = mBuilder->window->findChild<frmDrvDirFil *>();
        dialog->findChild<QLineEdit *>(u"txtFileName"_s)->setText(name);
        QTest::mouseClick(dialog->findChild<QAbstractButton *>(u"cmdSave"_s), Qt::LeftButton);
        QFile file(mFolder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private Q_SLOTS:
    void init() { open(u"A|Alpha\nB|Beta\nC"_s); }
    void cleanup() { mBuilder.reset(); }

    // Generating.

    void generateShowsTheScriptOfTheNewList()
    {
        mBuilder->click("cmdGenerateList");
        QCOMPARE(syntax(), GenerateListSyntax(u"Account"_s, {u"A"_s, u"B"_s, u"C"_s}));
        QVERIFY(syntax().contains(u"\r\n\t\t\t\t\tHS.AddMemberToList \"A\"\r\n"_s));
    }

    void generateTellsOfItWithTheNameAndTheCount()
    {
        mBuilder->click("cmdGenerateList");
        QCOMPARE(asked().size(), 1);
        QCOMPARE(asked()[0],
                 (Prompt{u"Member List Syntax Written Successfully"_s,
                         u"Account List 'Sales' successfully written.  The list contains 3 "
                         "members.\r\rThis syntax will need to be saved or copied directly from "
                         "here to your existing list file, then uploaded to HFM to see any changes "
                         "reflected in your application."_s,
                         Prompt::Icon::Information, Prompt::Buttons::Ok}));
    }

    void theTextStandsBeforeTheMessageIsShown()
    {
        QString seen;
        mBuilder->fake.prompts.whileAsking = [&] { seen = syntax(); };
        mBuilder->click("cmdGenerateList");
        mBuilder->fake.prompts.whileAsking = {};
        QVERIFY(seen.endsWith(u"End Sub"_s));
        QCOMPARE(seen, syntax());
    }

    void generateAsksHfmForTheDimensionsNameAloneAndKeepsTheEntries()
    {
        calls().clear();
        mBuilder->click("cmdGenerateList");
        QCOMPARE(calls().made(), QStringList{u"GetDimensionName"_s});
        QCOMPARE(mBuilder->rows("lstMemberList"), QStringList({u"A"_s, u"B"_s, u"C"_s}));
        QVERIFY(mBuilder->isEnabled("cmdGenerateList"));
    }

    void generateHasItsKey()
    {
        QTest::keyClick(mBuilder->window, Qt::Key_G, Qt::AltModifier);
        QTRY_VERIFY(!syntax().isEmpty());
    }

    void insertingTheSameMemberTwiceGivesTwoEqualLines()
    {
        mBuilder->click("cmdListSelected");
        mBuilder->click("cmdGenerateList");
        QCOMPARE(syntax().count(u"HS.AddMemberToList \"A\""_s), 2);
    }

    void aSecondGenerationReplacesTheTextEditsIncluded()
    {
        mBuilder->click("cmdGenerateList");
        const QString first = syntax();
        mBuilder->type("txtMemberListSyntax", u"edited "_s);
        QVERIFY(syntax() != first);
        mBuilder->click("cmdGenerateList");
        QCOMPARE(syntax(), first);
    }

    void theListsNameIsReadAfreshAndNotInTheScript()
    {
        mBuilder->type("txtMemberListName", u" & Co"_s);
        mBuilder->click("cmdGenerateList");
        QVERIFY(asked()[0].text.startsWith(u"Account List 'Sales & Co' successfully "_s));
        QVERIFY(!syntax().contains(u"Sales"_s));
    }

    void theDimensionIsTheCurrentOneReadAfresh()
    {
        mBuilder->choose(FakeKind::Custom1, u"CUSTOM1"_s);
        mBuilder->click("cmdGenerateList");
        QVERIFY(syntax().contains(u"HS.SetMemberLists aCustom1Lists\r\n"_s));
        QVERIFY(asked()[0].text.startsWith(u"Custom1 List 'Sales' "_s));
    }

    void aFailingGetDimensionNameLeavesAnEmptyBoxAndEndsTheProgram()
    {
        mBuilder->click("cmdGenerateList");
        asked().clear();
        calls().fail("GetDimensionName"_L1, RuntimeError(1234, u"HFM"_s, u"Lost."_s));
        mBuilder->click("cmdGenerateList");
        QCOMPARE(syntax(), QString());
        QCOMPARE(asked().size(), 1);
        QCOMPARE(asked()[0].text, u"Run-time error '1234':\r\n\r\nLost."_s);
        QCOMPARE(mBuilder->fake.program.endCodes, QList<int>{1});
    }

    void moreThan32767EntriesEndTheProgramWithOverflow()
    {
        QStringList labels;
        for (int i = 0; i < 16'384; ++i)
            labels.append(QString::number(i));
        open(labels.join(u'\n'));
        mBuilder->click("cmdListSelected");
        QCOMPARE(mBuilder->rows("lstMemberList").size(), 32'768);
        mBuilder->click("cmdGenerateList");
        QCOMPARE(asked().value(0).text, u"Run-time error '6':\r\n\r\nOverflow"_s);
        QCOMPARE(mBuilder->fake.program.endCodes, QList<int>{1});
    }

    // Editing.

    void theScriptCanBeEditedAndTheEditsUndone()
    {
        mBuilder->click("cmdGenerateList");
        const QString generated = syntax();
        box()->moveCursor(QTextCursor::End);
        mBuilder->key("txtMemberListSyntax", Qt::Key_Return);
        mBuilder->type("txtMemberListSyntax", u"'mine"_s);
        QCOMPARE(syntax(), generated + u"\r\n'mine"_s);
        for (int i = 0; i < 10 && syntax() != generated; ++i)
            mBuilder->key("txtMemberListSyntax", Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(syntax(), generated);
        mBuilder->key("txtMemberListSyntax", Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(syntax(), generated);
    }

    void everyLineEndInTheBoxIsCrLfOutsideIt()
    {
        box()->setPlainText(u"one\ntwo\rthree\r\nfour"_s);
        box()->moveCursor(QTextCursor::End);
        mBuilder->key("txtMemberListSyntax", Qt::Key_Return);
        mBuilder->key("txtMemberListSyntax", Qt::Key_Return, Qt::ShiftModifier);
        mBuilder->type("txtMemberListSyntax", u"five"_s);
        QCOMPARE(syntax(), u"one\r\ntwo\r\nthree\r\nfour\r\n\r\nfive"_s);
    }

    void aNoBreakBlankInALabelStaysOne()
    {
        open(u"A\u00A0B"_s);
        mBuilder->click("cmdGenerateList");
        QVERIFY(syntax().contains(u"HS.AddMemberToList \"A\u00A0B\""_s));
        box()->selectAll();
        box()->copy();
        QCOMPARE(QApplication::clipboard()->text(), QString(syntax()).remove(u'\r'));
    }

    void charactersThatEndADocumentsLinesStayThoseOfTheirLabel()
    {
        const QString odd = u"A\u2028B\u2029C\uFDD0D\uFDD1E"_s;
        open(odd);
        QCOMPARE(mBuilder->rows("lstMemberList"), QStringList{odd});
        mBuilder->click("cmdGenerateList");
        const QString generated = GenerateListSyntax(u"Account"_s, {odd});
        QCOMPARE(syntax(), generated);
        box()->moveCursor(QTextCursor::End);
        mBuilder->key("txtMemberListSyntax", Qt::Key_Return);
        QCOMPARE(syntax(), generated + u"\r\n"_s);
        box()->selectAll();
        box()->copy();
        QCOMPARE(QApplication::clipboard()->text(), QString(syntax()).remove(u'\r'));
        mBuilder->click("cmdSaveMemberListFile");
        QCOMPARE(mBuilder->global.gPendingText, syntax());
    }

    void linesAreNotWrapped() { QCOMPARE(box()->lineWrapMode(), QPlainTextEdit::NoWrap); }

    void longScriptsAreShownWhole()
    {
        QStringList lines(32'767, u"HS.AddMemberToList \"A\""_s);
        box()->setProperty("text", lines.join(u"\r\n"_s));
        QCOMPARE(syntax(), lines.join(u"\r\n"_s));
    }

    // Resetting.

    void resettingAnEmptyBoxDoesNothingAndShowsNoBox()
    {
        mBuilder->click("cmdResetMemberList");
        QVERIFY(asked().isEmpty());
        QCOMPARE(mBuilder->fake.program.endCodes, QList<int>());
    }

    void resettingAScriptIsATypeMismatchAndEndsTheProgram()
    {
        mBuilder->click("cmdGenerateList");
        asked().clear();
        const QString generated = syntax();
        mBuilder->click("cmdResetMemberList");
        QCOMPARE(asked().size(), 1);
        QCOMPARE(asked()[0], (Prompt{u"Tessaly"_s, u"Run-time error '13':\r\n\r\nType mismatch"_s,
                                     Prompt::Icon::Critical, Prompt::Buttons::Ok}));
        QCOMPARE(mBuilder->fake.program.endCodes, QList<int>{1});
        QCOMPARE(syntax(), generated);
    }

    void resetHasItsKey()
    {
        box()->setPlainText(u"x"_s);
        QTest::keyClick(mBuilder->window, Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(mBuilder->fake.program.endCodes, QList<int>{1});
    }

    // Saving.

    void saveHandsTheScriptToTheSaveDialog()
    {
        mBuilder->click("cmdGenerateList");
        mBuilder->type("txtMemberListSyntax", u"'mine "_s);
        const QString edited = syntax();
        mBuilder->click("cmdSaveMemberListFile");
        QCOMPARE(mBuilder->global.gPendingText, edited);
        QVERIFY(edited.startsWith(u"'mine Sub "_s));
        QCOMPARE(mBuilder->global.gSaveFilePattern, u".lst"_s);
        QCOMPARE(mBuilder->global.gSaveMode, u"MEMBERLIST"_s);
        const auto *dialog = mBuilder->window->findChild<frmDrvDirFil *>();
        QVERIFY(dialog);
        QVERIFY(dialog->isVisible());
        QVERIFY(dialog->isModal());
        QCOMPARE(dialog->parentWidget(), mBuilder->window.data());
    }

    void theDialogListsTheFilesOfTheMemberListPattern()
    {
        QTemporaryDir folder;
        for (const QString &name : {u".lst"_s, u"a.lst"_s, u".csv"_s, u"b.csv"_s})
            QVERIFY(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
        mBuilder->fake.services.programFolder = folder.path();
        mBuilder->global.gSaveFilePattern = u"*.csv"_s;
        mBuilder->click("cmdSaveMemberListFile");
        const auto *dialog = mBuilder->window->findChild<frmDrvDirFil *>();
        const auto *files = dialog->findChild<QListView *>(u"Filebox"_s)->model();
        QCOMPARE(files->rowCount(), 1);
        QCOMPARE(files->index(0, 0).data().toString(), u".lst"_s);
    }

    void theDialogFindsWhatItSavesAsItIsMade()
    {
        mBuilder->click("cmdGenerateList");
        asked().clear();
        mBuilder->fake.services.programFolder = mFolder.filePath(u"gone"_s);
        mBuilder->fake.prompts.answers = {Prompts::Answer::Cancel};
        const modGlobal &global = mBuilder->global;
        QStringList found;
        mBuilder->fake.prompts.whileAsking = [&] {
            found = {global.gPendingText, global.gSaveFilePattern, global.gSaveMode};
        };
        mBuilder->click("cmdSaveMemberListFile");
        QCOMPARE(asked().size(), 1);
        QCOMPARE(found, QStringList({syntax(), u".lst"_s, u"MEMBERLIST"_s}));
    }

    void savingAnEmptyBoxStillOpensTheDialogWithAnEmptyText()
    {
        mBuilder->global.gPendingText = u"old"_s;
        QTest::keyClick(mBuilder->window, Qt::Key_S, Qt::AltModifier);
        QTRY_VERIFY(mBuilder->window->findChild<frmDrvDirFil *>());
        QVERIFY(mBuilder->window->findChild<frmDrvDirFil *>()->isVisible());
        QCOMPARE(mBuilder->global.gPendingText, QString());
    }

    void theSavedFileIsTheScriptByteForByteAndTheBoxStays()
    {
        open(u"Umsätze|Sales\n中\nA\u00A0B"_s);
        mBuilder->click("cmdGenerateList");
        const QString generated = syntax();
        const QByteArray expected =
            GenerateListSyntax(u"Account"_s, {u"Umsätze"_s, u"?"_s, u"A\u00A0B"_s}).toLatin1();
        QCOMPARE(saved(u"list.LST"_s), expected);
        QCOMPARE(asked().last().title, u"File Saved"_s);
        QCOMPARE(syntax(), generated);
    }

    void anotherExtensionIsWarnedOf()
    {
        mBuilder->click("cmdGenerateList");
        asked().clear();
        mBuilder->fake.prompts.answers = {Prompts::Answer::Cancel};
        QCOMPARE(saved(u"LIST.txt"_s), QByteArray());
        QCOMPARE(asked().size(), 1);
        QCOMPARE(asked()[0].title, u"HFM Member List Extension"_s);
    }

    void aSavedScriptWithItsPlaceholdersFilledInIsAMemberListFile()
    {
        mBuilder->click("cmdGenerateList");
        QString script = QString::fromLatin1(saved(u"filled.lst"_s));
        // What the comments tell: the list's number and the number of lists for "#", the array's
        // element out of its comment with the list's name in it.
        QStringList lines = script.split(u"\r\n"_s);
        lines[7] = u"\t\t\t"_s + lines[7].section(u'\t', -1) + u" = \"Sales\""_s;
        lines.removeIf([](const QString &line) { return line.trimmed().startsWith(u"'#"_s); });
        script = lines.join(u"\r\n"_s).replace(u'#', u'1');
        QCOMPARE(script, u"Sub EnumMemberLists()\r\n"
                         "\r\n"
                         "\tDim aAccountLists(1)\r\n"
                         "\r\n"
                         "\tSelect Case HS.Dimension\r\n"
                         "\t\tCase \"Account\"\r\n"
                         "\t\t\taAccountLists(1) = \"Sales\"\r\n"
                         "\t\t\tHS.SetMemberLists aAccountLists\r\n"
                         "\tEnd Select\r\n"
                         "\r\n"
                         "End Sub\r\n"
                         "\r\n"
                         "Sub EnumMembersInList()\r\n"
                         "\r\n"
                         "\tSelect Case HS.Dimension\r\n"
                         "\t\tCase \"Account\"\r\n"
                         "\t\t\tSelect Case HS.MemberListID\r\n"
                         "\t\t\t\tCase 1\r\n"
                         "\t\t\t\t\tHS.AddMemberToList \"A\"\r\n"
                         "\t\t\t\t\tHS.AddMemberToList \"B\"\r\n"
                         "\t\t\t\t\tHS.AddMemberToList \"C\"\r\n"
                         "\t\t\tEnd Select\r\n"
                         "\tEnd Select\r\n"
                         "\r\n"
                         "End Sub"_s);
    }
};

QTEST_MAIN(tst_ListScript)
#include "tst_ListScript.moc"
