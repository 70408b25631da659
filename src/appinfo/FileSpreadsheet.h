#pragma once

#include "runtime/Clock.h"
#include "runtime/Launcher.h"
#include "runtime/Spreadsheet.h"

#include <QString>

/// A spreadsheet program where none can be reached by automation: each workbook is a file "Tessaly
/// Export YYYY-MM-DD HHMMSS.xlsx", named by the time at which it is added, and making it visible
/// opens that file in the desktop's spreadsheet program.
class FileSpreadsheet final : public Spreadsheet
{
public:
    /// `folder` is where the workbooks go.
    FileSpreadsheet(QString folder, const Clock &clock, Launcher &launcher)
        : mFolder(std::move(folder)), mClock(clock), mLauncher(launcher)
    {
    }

    std::unique_ptr<SpreadsheetApplication> createApplication() override;

private:
    QString mFolder;
    const Clock &mClock;
    Launcher &mLauncher;
};
