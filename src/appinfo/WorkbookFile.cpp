#include "appinfo/WorkbookFile.h"

#include "appinfo/NewName.h"
#include "appinfo/WorkbookWriter.h"
#include "runtime/SystemError.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// "C7" for row 7, column 3.
QString cellName(qint32 row, qint32 column)
{
    QString letters;
    for (; column > 0; column = (column - 1) / 26)
        letters.prepend(QChar(u'A' + (column - 1) % 26));
    return letters + QString::number(row);
}

} // namespace

class WorkbookFile::Sheet final : public Worksheet
{
public:
    Sheet(const QString &spool, const QString &workbook)
        : mCells(spool, workbook), mWorkbook(workbook)
    {
    }

    void setCell(qint32 row, qint32 column, QStringView text) override
    {
        if (text.startsWith(u'\''))
            text = text.sliced(1);
        if (!mCells.setCell(row, column, text))
            std::fprintf(stderr,
                         "%s: the text of cell %s is cut: a cell holds 32,767 characters, and one "
                         "that XML does not allow counts as 7\n",
                         qPrintable(mWorkbook), qPrintable(cellName(row, column)));
    }
    CellSpool &cells() { return mCells; }

private:
    CellSpool mCells;
    QString mWorkbook;
};

namespace {

const QString suffix = u".xlsx"_s;

int lastError()
{
    return errno != 0 ? errno : EIO;
}

/// Some file systems report a full disk only when the data must reach the disk.
void bringToDisk(const QString &file, const QString &workbook)
{
    QFile written(file);
    errno = 0;
    if (!written.open(QIODevice::ReadOnly))
        throw errorFromSystem(lastError(), workbook);
    const bool isDone = fdatasync(written.handle()) == 0;
    const bool deviceKnowsNoSync = errno == EINVAL || errno == ENOTSUP;
    if (!isDone && !deviceKnowsNoSync)
        throw errorFromSystem(errno, workbook);
}

} // namespace

WorkbookFile::WorkbookFile(QString path)
    : mBasePath(std::move(path)), mPath(mBasePath + suffix), mFolder(mPath)
{
}

WorkbookFile::~WorkbookFile() = default;

Worksheet &WorkbookFile::addWorksheet()
{
    const QString spool = inFolder(u"cells"_s + QString::number(mSheets.size()));
    mSheets.push_back(std::make_unique<Sheet>(spool, mPath));
    return *mSheets.back();
}

void WorkbookFile::complete()
{
    const QString file = inFolder(u"workbook"_s);
    write(file);
    bringToDisk(file, mPath);
    moveInPlace(file);
}

QString WorkbookFile::inFolder(const QString &name) const
{
    return mFolder.path() + u'/' + name;
}

void WorkbookFile::write(const QString &file)
{
    WorkbookWriter writer(file, mFolder.path(), mPath);
    writer.addEmptySheet();
    for (const auto &sheet : mSheets) {
        sheet->cells().endWriting();
        writer.addSheet(sheet->cells());
    }
    mSheets.clear(); // which frees the room that the library needs next
    writer.close();
}

void WorkbookFile::moveInPlace(const QString &file)
{
    for (int number = 2;; ++number) {
        const int error = moveToNewName(file, mPath);
        if (error == 0)
            return;
        if (error != EEXIST)
            throw errorFromSystem(error, mPath);
        mPath = mBasePath + u" ("_s + QString::number(number) + u')' + suffix;
    }
}
