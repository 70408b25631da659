#pragma once

#include <QByteArray>
#include <QString>

#include <clocale>
#include <vector>

class CellSpool;
struct lxw_workbook;
struct lxw_worksheet;

/// Writes an .xlsx file through libxlsxwriter, one row in memory at a time. Where the library
/// looks away, this looks: its temporary files on a full disk, above all.
class WorkbookWriter
{
public:
    /// `temporaries` is the folder for temporary files, `workbook` what the errors name.
    WorkbookWriter(const QString &file, const QString &temporaries, QString workbook);
    ~WorkbookWriter();
    Q_DISABLE_COPY_MOVE(WorkbookWriter)

    /// The first sheet; comes before the others.
    void addEmptySheet();
    /// Adds a sheet with these cells, which is the one in front from now on.
    void addSheet(CellSpool &cells);
    /// Writes the file; the last call. Fails as errorFromSystem() tells.
    void close();

private:
    /// While it lives this thread writes numbers with a point, whatever the user's language: the
    /// library writes them as it is told by the locale, and other programs refuse the file then.
    class PointInNumbers
    {
    public:
        PointInNumbers();
        ~PointInNumbers();
        Q_DISABLE_COPY_MOVE(PointInNumbers)

    private:
        locale_t mPlain;
        locale_t mBefore;
    };

    lxw_worksheet *makeSheet();
    void check(int libraryError);
    void finishRows(lxw_worksheet *sheet);
    void makeSureOfRoom();
    void makeSureOfSheets();

    PointInNumbers mNumbers;
    QByteArray mFile;
    QByteArray mTemporaries;
    QString mWorkbook;
    lxw_workbook *mBook;
    qint64 mLargestSheet = 0;        ///< in bytes
    std::vector<qint64> mSheetBytes; ///< of each sheet, beyond those of an empty one
};
