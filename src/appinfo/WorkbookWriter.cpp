#include "appinfo/WorkbookWriter.h"

#include "appinfo/CellSpool.h"
#include "appinfo/ZipDirectory.h"
#include "runtime/SystemError.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

#include <xlsxwriter.h>

using namespace Qt::StringLiterals;

namespace {

/// What a sheet in a plain zip file may have. Beyond it an extension is needed, at which not every
/// program is pleased.
constexpr qint64 mostPlainZipBytes = 4'000'000'000;
/// What a sheet has around its rows, with room to spare.
constexpr qint64 mostBytesAroundRows = 2048;

int lastError()
{
    return errno != 0 ? errno : EIO;
}

/// What the library leaves in errno comes after its message to standard error: where that is closed
/// or a broken pipe, it is not about the file.
int causeOf(int systemError)
{
    const bool isOfPrinting = systemError == EBADF || systemError == EPIPE || systemError == EAGAIN;
    return systemError == 0 || isOfPrinting ? ENOSPC : systemError;
}

/// The bytes by which an activated sheet is longer than an empty one that is not.
qint64 bytesMoreThanEmpty(const lxw_worksheet *sheet, qint64 rows)
{
    const qint64 mark = qint64(std::strlen(" tabSelected=\"1\""));
    if (rows == 0)
        return mark;
    char cells[LXW_MAX_CELL_RANGE_LENGTH];
    lxw_rowcol_to_range(cells, sheet->dim_rowmin, sheet->dim_colmin, sheet->dim_rowmax,
                        sheet->dim_colmax);
    return mark + qint64(std::strlen(cells)) - qint64(std::strlen("A1")) + rows +
           qint64(std::strlen("<sheetData></sheetData>") - std::strlen("<sheetData/>"));
}

} // namespace

WorkbookWriter::PointInNumbers::PointInNumbers()
    : mPlain(newlocale(LC_NUMERIC_MASK, "C", duplocale(LC_GLOBAL_LOCALE))),
      mBefore(uselocale(mPlain))
{
}

WorkbookWriter::PointInNumbers::~PointInNumbers()
{
    uselocale(mBefore);
    freelocale(mPlain);
}

WorkbookWriter::WorkbookWriter(const QString &file, const QString &temporaries, QString workbook)
    : mFile(QFile::encodeName(file)), mTemporaries(QFile::encodeName(temporaries)),
      mWorkbook(std::move(workbook))
{
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    options.tmpdir = mTemporaries.data();
    mBook = workbook_new_opt(mFile.constData(), &options);
    if (!mBook)
        throw RuntimeError(OutOfMemory);
}

WorkbookWriter::~WorkbookWriter()
{
    if (mBook)
        lxw_workbook_free(mBook);
}

lxw_worksheet *WorkbookWriter::makeSheet()
{
    errno = 0;
    lxw_worksheet *const sheet = workbook_add_worksheet(mBook, nullptr);
    if (!sheet)
        throw errorFromSystem(lastError(), mWorkbook);
    return sheet;
}

void WorkbookWriter::addEmptySheet()
{
    makeSheet();
}

void WorkbookWriter::addSheet(CellSpool &cells)
{
    lxw_worksheet *const sheet = makeSheet();
    worksheet_activate(sheet);
    for (qint32 row = 1; row <= cells.rowCount(); ++row)
        cells.visitRow(row, [&](qint32 column, const char *text) {
            check(worksheet_write_string(sheet, lxw_row_t(row - 1), lxw_col_t(column - 1), text,
                                         nullptr));
        });
    finishRows(sheet);
}

/// The cells are such that only memory can be missing.
void WorkbookWriter::check(int libraryError)
{
    if (libraryError != LXW_NO_ERROR)
        throw RuntimeError(
            libraryError == LXW_ERROR_MEMORY_MALLOC_FAILED ? OutOfMemory : PathFileAccessError,
            u"libxlsxwriter"_s,
            QString::fromUtf8(lxw_strerror(lxw_error(libraryError))) + u": "_s + mWorkbook);
}

/// The library writes the rows to a temporary file and never asks whether that went well.
void WorkbookWriter::finishRows(lxw_worksheet *sheet)
{
    lxw_worksheet_write_single_row(sheet); // the last one
    errno = 0;
    const bool isWritten = std::fflush(sheet->optimize_tmpfile) == 0;
    if (!isWritten || std::ferror(sheet->optimize_tmpfile))
        throw errorFromSystem(errno != 0 ? errno : ENOSPC, mWorkbook);
    const qint64 rows = ftello(sheet->optimize_tmpfile);
    mLargestSheet = std::max(mLargestSheet, rows);
    mSheetBytes.push_back(bytesMoreThanEmpty(sheet, rows));
}

/// Closing copies each sheet to one more temporary file, out of sight. A place for it is taken and
/// given back beforehand.
void WorkbookWriter::makeSureOfRoom()
{
    QFile room(QFile::decodeName(mTemporaries) + u"/room"_s);
    errno = 0;
    if (!room.open(QIODevice::WriteOnly))
        throw errorFromSystem(lastError(), mWorkbook);
    const int error = posix_fallocate(room.handle(), 0, mLargestSheet + mostBytesAroundRows);
    room.remove();
    if (error != 0)
        throw errorFromSystem(error, mWorkbook);
}

void WorkbookWriter::close()
{
    makeSureOfRoom();
    mBook->options.use_zip64 = mLargestSheet > mostPlainZipBytes; // read when the book is closed
    errno = 0;
    const lxw_error error =
        workbook_close(std::exchange(mBook, nullptr)); // frees it, come what may
    const int systemError = errno;
    if (error == LXW_ERROR_MEMORY_MALLOC_FAILED)
        throw RuntimeError(OutOfMemory);
    if (error != LXW_NO_ERROR)
        throw errorFromSystem(causeOf(systemError), mWorkbook);
    makeSureOfSheets();
}

/// Another program may have taken the place meanwhile, and of what the library could not write to
/// its temporary files it says nothing.
void WorkbookWriter::makeSureOfSheets()
{
    const auto sizes = sizesInZip(QFile::decodeName(mFile));
    const auto sizeOf = [&](size_t sheet) {
        return sizes.value("xl/worksheets/sheet" + QByteArray::number(sheet) + ".xml");
    };
    bool isWhole = !sizes.isEmpty() && !sizes.values().contains(0);
    for (size_t i = 0; i < mSheetBytes.size(); ++i)
        isWhole = isWhole && sizeOf(i + 2) >= sizeOf(1) + mSheetBytes[i];
    if (!isWhole)
        throw errorFromSystem(ENOSPC, mWorkbook);
}
