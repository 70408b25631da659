#pragma once

#include "appinfo/CellSpool.h"
#include "appinfo/HiddenFolder.h"
#include "runtime/Spreadsheet.h"

#include <memory>
#include <vector>

/// A new workbook that becomes an .xlsx file: a default sheet, which stays empty, then the sheets
/// that are added, the last of them in front. All cells are text, neither formulas nor numbers.
///
/// The file is written beside its place, in a hidden folder that goes with this object, and renamed
/// when it is whole: what fails leaves nothing behind, and no file that exists is ever replaced.
class WorkbookFile final : public Workbook
{
public:
    /// `path` is the file's full name, without the ".xlsx" at its end. Where there is such a file
    /// by the time that the workbook is complete, its name gets " (2)", " (3)" and so on.
    /// Fails as errorFromSystem() tells, naming the file, where its folder cannot be written.
    explicit WorkbookFile(QString path);
    ~WorkbookFile() override;
    Q_DISABLE_COPY_MOVE(WorkbookFile)

    /// Its setCell() fails as CellSpool's does. A text that is longer than a cell is cut, and a
    /// line on standard error names the cell.
    Worksheet &addWorksheet() override;
    /// Writes the file. Fails as errorFromSystem() tells.
    void complete() override;

    /// The file's full name; final once the workbook is complete.
    const QString &path() const { return mPath; }

private:
    class Sheet;

    QString inFolder(const QString &name) const;
    void write(const QString &file);
    void moveInPlace(const QString &file);

    QString mBasePath;
    QString mPath;
    HiddenFolder mFolder;
    std::vector<std::unique_ptr<Sheet>> mSheets;
};
