#include "appinfo/FileSpreadsheet.h"
#include "appinfo/WorkbookFile.h"
#include "support/Errors.h"
#include "support/FakeServices.h"
#include "support/FileFaults.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <clocale>
#include <cstdio>
#include <memory>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// Workbooks as files, read back by a library that did not write them.
class tst_WorkbookFile : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> mFolder;
    FakeClock mClock;
    FakeLauncher mLauncher;

    QString at(const QString &name) const { return mFolder->filePath(name); }
    QString folder() const { return mFolder->path(); }
    /// What is in the folder, hidden things included.
    QStringList found() const
    {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    static QStringList printed(const QString &workbook)
    {
        QProcess python;
        python.start(QStringLiteral(TESSALY_PYTHON),
                     {u"-B"_s, QStringLiteral(TESSALY_PRINT_WORKBOOK), workbook});
        if (!python.waitForFinished(120'000) || python.exitCode() != 0)
            return {QString::fromLocal8Bit(python.readAllStandardError())};
        return QString::fromUtf8(python.readAllStandardOutput()).trimmed().split(u'\n');
    }
    QStringList written(const std::function<void(Worksheet &)> &write)
    {
        WorkbookFile workbook(at(u"book"_s));
        write(workbook.addWorksheet());
        workbook.complete();
        return printed(workbook.path());
    }
    static QString errorText(const std::optional<RuntimeError> &error)
    {
        return error ? QString::number(error->number()) + u' ' + error->description() : u"none"_s;
    }
    /// What goes to standard error while `call` runs.
    QString standardErrorOf(const std::function<void()> &call)
    {
        std::fflush(stderr);
        const int saved = dup(STDERR_FILENO);
        QFile file(at(u"errors"_s));
        if (!file.open(QIODevice::ReadWrite))
            return u"no file"_s;
        dup2(file.handle(), STDERR_FILENO);
        call();
        std::fflush(stderr);
        dup2(saved, STDERR_FILENO);
        close(saved);
        file.seek(0);
        const QString text = QString::fromUtf8(file.readAll());
        file.remove();
        return text;
    }

private Q_SLOTS:
    void init()
    {
        mFolder = std::make_unique<QTemporaryDir>();
        mClock = {};
        mLauncher = {};
    }

    void theDefaultSheetStaysEmptyAndTheFurtherOneIsInFront()
    {
        QCOMPARE(written([](Worksheet &sheet) { sheet.setCell(1, 1, u"x"); }),
                 QStringList({u"Sheet1 Sheet2"_s, u"Sheet2"_s, u"A1 s 'x'"_s}));
    }

    void anEmptyWorksheetIsAWorkbookToo()
    {
        QCOMPARE(written([](Worksheet &) {}), QStringList({u"Sheet1 Sheet2"_s, u"Sheet2"_s}));
    }

    void everyTextIsATextCell()
    {
        const QStringList texts = {u"=1+1"_s,       u"12"_s,           u"1.5e3"_s, u"TRUE"_s,
                                   u"2012-03-14"_s, u"http://a.b/c"_s, u"{=A1}"_s, u"<b>&amp;"_s};
        QStringList expected = {u"Sheet1 Sheet2"_s, u"Sheet2"_s};
        for (qsizetype i = 0; i < texts.size(); ++i)
            expected.append(u"A%1 s '%2'"_s.arg(i + 1).arg(texts[i]));
        QCOMPARE(written([&](Worksheet &sheet) {
                     for (qint32 i = 0; i < texts.size(); ++i)
                         sheet.setCell(i + 1, 1, texts[i]);
                 }),
                 expected);
    }

    void aLeadingApostropheIsTheMarkOfATextAndNoPartOfIt()
    {
        QCOMPARE(written([](Worksheet &sheet) {
                     sheet.setCell(1, 1, u"'=1+1");
                     sheet.setCell(2, 1, u"''quoted'");
                     sheet.setCell(3, 1, u"'");
                     sheet.setCell(4, 1, u"");
                     sheet.setCell(5, 1, u"it's");
                 }).sliced(2),
                 QStringList({u"A1 s '=1+1'"_s, u"A2 s \"'quoted'\""_s, u"A5 s \"it's\""_s}));
    }

    void everyTextSurvives()
    {
        const QString high = QChar(0xD834);
        QCOMPARE(written([&](Worksheet &sheet) {
                     sheet.setCell(1, 1, u" leading and trailing ");
                     sheet.setCell(1, 2, u"Ä€𝄞");
                     sheet.setCell(1, 3, u"a_x0041_b");
                     sheet.setCell(1, 4, u"\u0001\r\n\t\u001F");
                     sheet.setCell(1, 5, QString(high + u'!'));
                     sheet.setCell(1, 6, u"\uFFFE\uFFFF");
                     sheet.setCell(1, 7, u" ");
                     sheet.setCell(1, 8, QString(QChar::Null));
                     sheet.setCell(1, 9, u"_x005F_x0041_");
                     sheet.setCell(1, 10, u"_x0041\u0001");
                 }).sliced(2),
                 QStringList({
                     u"A1 s ' leading and trailing '"_s,
                     u"B1 s '\\xc4\\u20ac\\U0001d11e'"_s,
                     u"C1 s 'a_x0041_b'"_s,
                     u"D1 s '\\x01\\r\\n\\t\\x1f'"_s,
                     u"E1 s '\\ud834!'"_s,
                     u"F1 s '\\ufffe\\uffff'"_s,
                     u"G1 s ' '"_s,
                     u"H1 s '\\x00'"_s,
                     u"I1 s '_x005F_x0041_'"_s,
                     u"J1 s '_x0041\\x01'"_s,
                 }));
    }

    void aHeaderWrittenAfterTheFirstRowIsInItsPlace()
    {
        QCOMPARE(
            written([](Worksheet &sheet) {
                sheet.setCell(1, 1, u"'Level 1");
                sheet.setCell(2, 1, u"A");
                sheet.setCell(1, 4, u"'Type");
                sheet.setCell(2, 4, u"'Type=x");
                sheet.setCell(1, 5, u"' UD1");
                sheet.setCell(2, 5, u"' UD1=");
                sheet.setCell(3, 1, u"B");
            }).sliced(2),
            QStringList({u"A1 s 'Level 1'"_s, u"D1 s 'Type'"_s, u"E1 s ' UD1'"_s, u"A2 s 'A'"_s,
                         u"D2 s 'Type=x'"_s, u"E2 s ' UD1='"_s, u"A3 s 'B'"_s}));
    }

    void aColumnWrittenAfterAnotherIsBesideIt()
    {
        QStringList expected = {u"Sheet1 Sheet2"_s, u"Sheet2"_s};
        for (int i = 1; i <= 3000; ++i)
            expected += {u"A%1 s 'a%1'"_s.arg(i), u"C%1 s 'c%1'"_s.arg(i)};
        QCOMPARE(written([](Worksheet &sheet) {
                     for (const auto &[column, letter] : {std::pair(1, u'a'), std::pair(3, u'c')})
                         for (qint32 row = 1; row <= 3000; ++row)
                             sheet.setCell(row, column, letter + QString::number(row));
                 }),
                 expected);
    }

    void aTooLongTextIsCutAndStandardErrorNamesItsCell()
    {
        QStringList cells;
        const QString errors = standardErrorOf([&] {
            cells = written([](Worksheet &sheet) {
                sheet.setCell(1, 1, QString(u'\'' + QString(32'767, u'a')));
                sheet.setCell(7, 3, QString(40'000, u'b'));
                sheet.setCell(8, 28, QString(32'760, u'c') + u"\r\r"_s);
            });
        });
        QCOMPARE(cells.size(), 5);
        QCOMPARE(cells[2], u"A1 s '"_s + QString(32'767, u'a') + u'\'');
        QCOMPARE(cells[3], u"C7 s '"_s + QString(32'767, u'b') + u'\'');
        QCOMPARE(cells[4], u"AB8 s '"_s + QString(32'760, u'c') + u"\\r'"_s);
        const QString line = at(u"book.xlsx"_s) +
                             u": the text of cell %1 is cut: a cell holds 32,767 characters, and "
                             "one that XML does not allow counts as 7\n"_s;
        QCOMPARE(errors, line.arg(u"C7"_s) + line.arg(u"AB8"_s));
    }

    void aUsersDecimalCommaDoesNotSpoilTheFile()
    {
        const QTemporaryDir locales;
        QCOMPARE(QProcess::execute(u"localedef"_s, {u"-i"_s, u"de_DE"_s, u"-f"_s, u"UTF-8"_s,
                                                    locales.filePath(u"de_DE.UTF-8"_s)}),
                 0);
        qputenv("LOCPATH", QFile::encodeName(locales.path()));
        QVERIFY(std::setlocale(LC_NUMERIC, "de_DE.UTF-8"));
        qunsetenv("LOCPATH"); // which makes the C library's newlocale() leak
        const QStringList cells = written([](Worksheet &sheet) { sheet.setCell(1, 1, u"x"); });
        const QByteArray comma = QByteArray::number(0) + std::localeconv()->decimal_point;
        std::setlocale(LC_NUMERIC, "C");
        QCOMPARE(comma, QByteArray("0,")); // which is the user's again
        QCOMPARE(cells.last(), u"A1 s 'x'"_s);
    }

    void nothingButTheWorkbookIsLeft()
    {
        written([](Worksheet &sheet) { sheet.setCell(1, 1, u"x"); });
        QCOMPARE(found(), QStringList{u"book.xlsx"_s});
    }

    void aWorkbookThatIsNotCompletedLeavesNothing()
    {
        {
            WorkbookFile workbook(at(u"book"_s));
            workbook.addWorksheet().setCell(1, 1, u"x");
        }
        QCOMPARE(found(), QStringList());
    }

    void nothingIsSeenOfItBeforeItIsComplete()
    {
        WorkbookFile workbook(at(u"book"_s));
        workbook.addWorksheet().setCell(1, 1, u"x");
        QVERIFY(!QFile::exists(at(u"book.xlsx"_s)));
        workbook.complete();
        QVERIFY(QFile::exists(at(u"book.xlsx"_s)));
    }

    void aWorkbookNeverReplacesAnother()
    {
        for (int i = 0; i < 3; ++i)
            QCOMPARE(
                written([&](Worksheet &sheet) { sheet.setCell(1, 1, QString::number(i)); }).last(),
                u"A1 s '%1'"_s.arg(i));
        QCOMPARE(found(), QStringList({u"book (2).xlsx"_s, u"book (3).xlsx"_s, u"book.xlsx"_s}));
        QCOMPARE(printed(at(u"book.xlsx"_s)).last(), u"A1 s '0'"_s);
    }

    void whateverHasTheNameByThenIsKept()
    {
        WorkbookFile workbook(at(u"book"_s));
        workbook.addWorksheet().setCell(1, 1, u"x");
        QVERIFY(QFile::link(at(u"nothing"_s), at(u"book.xlsx"_s)));
        QVERIFY(QDir(folder()).mkdir(u"book (2).xlsx"_s));
        QFile appeared(at(u"book (3).xlsx"_s));
        QVERIFY(appeared.open(QIODevice::WriteOnly));
        workbook.complete();
        QCOMPARE(workbook.path(), at(u"book (4).xlsx"_s));
        QCOMPARE(printed(workbook.path()).last(), u"A1 s 'x'"_s);
        QVERIFY(!QFile::exists(at(u"nothing"_s)));
        QVERIFY(QFileInfo(at(u"book.xlsx"_s)).isSymLink());
        QVERIFY(QDir(at(u"book (2).xlsx"_s)).isEmpty());
        QCOMPARE(appeared.size(), 0);
    }

    void aFullDiskIsToldWhereverItFills_data()
    {
        QTest::addColumn<int>("bytes");
        // The cells' own file, the library's rows, its copy of them, the archive.
        for (const int bytes : {0, 1000, 4000, 5000, 70'000, 500'000, 1'000'000, 1'200'000})
            QTest::addRow("%d", bytes) << bytes;
    }
    void aFullDiskIsToldWhereverItFills()
    {
        QFETCH(int, bytes);
        const auto error = errorOf([&] {
            WorkbookFile workbook(at(u"book"_s));
            Worksheet &sheet = workbook.addWorksheet();
            const FullDisk disk{rlim_t(bytes)};
            for (qint32 row = 1; row <= (bytes < 7000 ? 3 : 20'000); ++row)
                sheet.setCell(row, 1, u"the text of a member");
            workbook.complete();
        });
        QCOMPARE(errorText(error), u"61 Disk full: "_s + at(u"book.xlsx"_s));
        QCOMPARE(found(), QStringList());
    }

    void moreRowsThanASheetHoldsAreToldAndLeaveNothing()
    {
        const auto error = errorOf([&] {
            WorkbookFile workbook(at(u"book"_s));
            workbook.addWorksheet().setCell(1'048'577, 1, u"x");
        });
        QCOMPARE(errorText(error),
                 u"1004 A worksheet has 1,048,576 rows and 16,384 columns, so there is no cell in "
                 "row 1048577, column 1. The workbook is not written: "_s +
                     at(u"book.xlsx"_s));
        QCOMPARE(found(), QStringList());
    }

    void aMissingFolderIsTold()
    {
        QCOMPARE(errorText(errorOf([&] { WorkbookFile(at(u"gone/book"_s)); })),
                 u"76 Path not found: "_s + at(u"gone/book.xlsx"_s));
    }

    void aFolderThatVanishesIsTold()
    {
        QVERIFY(QDir(folder()).mkdir(u"away"_s));
        const auto error = errorOf([&] {
            WorkbookFile workbook(at(u"away/book"_s));
            workbook.addWorksheet().setCell(1, 1, u"x");
            QDir(at(u"away"_s)).removeRecursively();
            workbook.complete();
        });
        QCOMPARE(errorText(error), u"76 Path not found: "_s + at(u"away/book.xlsx"_s));
    }

    void aFolderThatCannotBeWrittenIsTold()
    {
        QVERIFY(QDir(folder()).mkdir(u"locked"_s));
        OrdinaryUser::own(at(u"locked"_s));
        QVERIFY(QFile::setPermissions(folder(), QFile::Permissions(0x7755)));
        QVERIFY(QFile::setPermissions(at(u"locked"_s), QFile::ReadOwner | QFile::ExeOwner));
        std::optional<RuntimeError> error;
        {
            const OrdinaryUser user;
            error = errorOf([&] { WorkbookFile(at(u"locked/book"_s)); });
        }
        QCOMPARE(errorText(error), u"70 Permission denied: "_s + at(u"locked/book.xlsx"_s));
    }

    // The spreadsheet of such files.

    void aWorkbookIsNamedByItsTimeAndOpenedWhenItIsMadeVisible()
    {
        FileSpreadsheet spreadsheet(folder(), mClock, mLauncher);
        const QString path = at(u"Tessaly Export 2012-03-14 150926.xlsx"_s);
        {
            const auto application = spreadsheet.createApplication();
            Workbook &workbook = application->addWorkbook();
            workbook.addWorksheet().setCell(1, 1, u"x");
            workbook.complete();
            QCOMPARE(mLauncher.files, QStringList());
            application->setVisible(true);
        }
        QCOMPARE(mLauncher.files, QStringList{path});
        QCOMPARE(found(), QStringList{u"Tessaly Export 2012-03-14 150926.xlsx"_s});
    }

    void twoExportsInOneSecondAreTwoFiles()
    {
        FileSpreadsheet spreadsheet(folder(), mClock, mLauncher);
        for (int i = 0; i < 2; ++i) {
            const auto application = spreadsheet.createApplication();
            Workbook &workbook = application->addWorkbook();
            workbook.addWorksheet();
            workbook.complete();
            application->setVisible(true);
        }
        QCOMPARE(mLauncher.files,
                 QStringList({at(u"Tessaly Export 2012-03-14 150926.xlsx"_s),
                              at(u"Tessaly Export 2012-03-14 150926 (2).xlsx"_s)}));
        QCOMPARE(found().size(), 2);
    }

    void withoutASpreadsheetProgramTheErrorSaysWhereTheWorkbookIs()
    {
        mLauncher.failure = RuntimeError::naming(FileNotFound, u"xdg-open"_s);
        FileSpreadsheet spreadsheet(folder(), mClock, mLauncher);
        const QString name = u"Tessaly Export 2012-03-14 150926.xlsx"_s;
        const auto error = errorOf([&] {
            const auto application = spreadsheet.createApplication();
            Workbook &workbook = application->addWorkbook();
            workbook.addWorksheet().setCell(1, 1, u"x");
            workbook.complete();
            application->setVisible(true);
        });
        QCOMPARE(errorText(error),
                 u"429 The workbook is written, but no spreadsheet program could open it. It is "
                 "here: "_s +
                     at(name) + u" (File not found: xdg-open)"_s);
        QCOMPARE(printed(at(name)).last(), u"A1 s 'x'"_s);
    }

    void aMissingDocumentsFolderIsTold()
    {
        FileSpreadsheet spreadsheet(at(u"Documents"_s), mClock, mLauncher);
        const auto error = errorOf([&] { spreadsheet.createApplication()->addWorkbook(); });
        QCOMPARE(errorText(error), u"76 Path not found: "_s +
                                       at(u"Documents/Tessaly Export 2012-03-14 150926.xlsx"_s));
    }
};

QTEST_GUILESS_MAIN(tst_WorkbookFile)
#include "tst_WorkbookFile.moc"
