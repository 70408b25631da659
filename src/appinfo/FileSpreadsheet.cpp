#include "appinfo/FileSpreadsheet.h"

#include "appinfo/WorkbookFile.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

class FileApplication final : public SpreadsheetApplication
{
public:
    FileApplication(const QString &folder, const Clock &clock, Launcher &launcher)
        : mFolder(folder), mClock(clock), mLauncher(launcher)
    {
    }

    Workbook &addWorkbook() override
    {
        const QString time = mClock.now().toString(u"yyyy-MM-dd HHmmss"_s);
        mWorkbooks.push_back(
            std::make_unique<WorkbookFile>(mFolder + u"/Tessaly Export "_s + time));
        return *mWorkbooks.back();
    }

    void setVisible(bool visible) override
    {
        if (visible)
            for (const auto &workbook : mWorkbooks)
                open(workbook->path());
    }

private:
    void open(const QString &workbook)
    {
        try {
            mLauncher.open(workbook);
        } catch (const RuntimeError &error) {
            throw RuntimeError(CannotCreateObject, error.source(),
                               u"The workbook is written, but no spreadsheet program could open "
                               "it. It is here: "_s +
                                   workbook + u" ("_s + error.description() + u')');
        }
    }

    QString mFolder;
    const Clock &mClock;
    Launcher &mLauncher;
    std::vector<std::unique_ptr<WorkbookFile>> mWorkbooks;
};

} // namespace

std::unique_ptr<SpreadsheetApplication> FileSpreadsheet::createApplication()
{
    return std::make_unique<FileApplication>(mFolder, mClock, mLauncher);
}
