#include "appinfo/WorkbookFile.h"
#include "appinfo/ZipDirectory.h"
#include "support/Errors.h"
#include "support/FileFaults.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <dlfcn.h>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <unistd.h>

#include <xlsxwriter.h>

using namespace Qt::StringLiterals;

namespace {

/// Answers an errno or 0 in the place of the system; empty: the system does.
std::function<int()> onReservingRoom;
/// Called with each row, from 0, before a cell of it is handed to the library.
std::function<void(quint32)> onRow;

template <typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

// These stand before the system's and the library's own, as another program's doings on the same
// disk can be timed in no other way.

extern "C" int posix_fallocate(int file, off_t place, off_t size)
{
    if (onReservingRoom)
        return onReservingRoom();
    return next<int (*)(int, off_t, off_t)>("posix_fallocate")(file, place, size);
}

extern "C" lxw_error worksheet_write_string(lxw_worksheet *sheet, lxw_row_t row, lxw_col_t column,
                                            const char *text, lxw_format *format)
{
    if (onRow)
        onRow(row);
    static const auto write = next<decltype(&worksheet_write_string)>("worksheet_write_string");
    return write(sheet, row, column, text, format);
}

/// Disks that are full for a while.
class tst_WorkbookFaults : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> mFolder;
    std::optional<FullDisk> mDisk;

    QString path() const { return mFolder->filePath(u"book"_s); }
    QStringList found() const
    {
        return QDir(mFolder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QString exported(qint32 rows)
    {
        const auto error = errorOf([&] {
            WorkbookFile workbook(path());
            Worksheet &sheet = workbook.addWorksheet();
            for (qint32 row = 1; row <= rows; ++row)
                sheet.setCell(row, 1, u"the text of a member");
            workbook.complete();
        });
        mDisk.reset();
        return error ? QString::number(error->number()) + u' ' + error->description() : u"none"_s;
    }
    QString diskFull() const { return u"61 Disk full: "_s + path() + u".xlsx"_s; }

private Q_SLOTS:
    void init() { mFolder = std::make_unique<QTemporaryDir>(); }
    void cleanup()
    {
        mDisk.reset();
        onReservingRoom = {};
        onRow = {};
    }

    void roomThatIsNotThereIsTold()
    {
        onReservingRoom = [] { return ENOSPC; };
        QCOMPARE(exported(3), diskFull());
        QCOMPARE(found(), QStringList());
    }

    void aDiskThatFillsWhenTheRoomWasFoundIsTold_data()
    {
        QTest::addColumn<int>("missing");
        QTest::newRow("in the middle of the sheet") << 1'000'000;
        QTest::newRow("at its last byte") << 1;
    }
    void aDiskThatFillsWhenTheRoomWasFoundIsTold()
    {
        QFETCH(int, missing);
        QCOMPARE(exported(20'000), u"none"_s);
        const qint64 sheet = sizesInZip(path() + u".xlsx"_s)["xl/worksheets/sheet2.xml"];
        QVERIFY(sheet > missing);
        QVERIFY(QFile::remove(path() + u".xlsx"_s));
        onReservingRoom = [&] {
            mDisk.emplace(rlim_t(sheet - missing));
            return 0;
        };
        QCOMPARE(exported(20'000), diskFull());
        QCOMPARE(found(), QStringList());
    }

    void aDiskThatIsFullWhileSomeRowsAreWrittenIsTold()
    {
        onRow = [&](quint32 row) {
            if (row == 100)
                mDisk.emplace(1000);
            else if (row == 15'000)
                mDisk.reset();
        };
        QCOMPARE(exported(20'000), diskFull());
        QCOMPARE(found(), QStringList());
    }

    void aFullDiskIsToldWhereNothingCanBePrinted()
    {
        const int saved = dup(STDERR_FILENO);
        const int unwritable = open("/dev/null", O_RDONLY);
        dup2(unwritable, STDERR_FILENO);
        mDisk.emplace(5000); // which the archive needs more than
        const QString error = exported(3);
        dup2(saved, STDERR_FILENO);
        close(unwritable);
        close(saved);
        QCOMPARE(error, diskFull());
    }

    void severalSheetsOfAnyExtentAreWhole()
    {
        const auto error = errorOf([&] {
            WorkbookFile workbook(path());
            workbook.addWorksheet().setCell(3, 2, u"x");
            workbook.addWorksheet();
            Worksheet &last = workbook.addWorksheet();
            last.setCell(1'048'576, 16'384, u"y");
            last.setCell(12, 30, u"z");
            workbook.complete();
        });
        QVERIFY(!error);
    }

    void withRoomEnoughNothingIsTold_data()
    {
        QTest::addColumn<int>("rows");
        for (const int rows : {0, 1, 2, 20'000})
            QTest::addRow("%d", rows) << rows;
    }
    void withRoomEnoughNothingIsTold()
    {
        QFETCH(int, rows);
        QCOMPARE(exported(rows), u"none"_s);
        QCOMPARE(found(), QStringList{u"book.xlsx"_s});
    }
};

QTEST_APPLESS_MAIN(tst_WorkbookFaults)
#include "tst_WorkbookFaults.moc"
