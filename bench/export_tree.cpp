// How long the export of the viewer's tree with all its attributes takes, from the open tree to the
// workbook on the disk; beside a bare loop that hands the same cells, ready and in order, to
// libxlsxwriter, and beside Python's XlsxWriter, which gets them ready and in order, too. Then the
// memory that the export takes beside the tree. Times are the processor's.
//
//   export_tree WRITE_CELLS.py [MEMBERS]        500000 members at first

#include "appinfo/WorkbookFile.h"
#include "CpuTime.h"
#include "GeneratedApplication.h"
#include "viewer/MemberTexts.h"
#include "viewer/TreeExport.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <malloc.h>

#include <xlsxwriter.h>

namespace {

constexpr int rounds = 3;

std::unique_ptr<MemberTree> openTree(qint32 members)
{
    generator::Request request;
    request.dimension = QStringLiteral("Account");
    request.members = members;
    request.edges = members;
    modGlobal global;
    global.gSession = sessionOn(request);
    global.gMetadata = global.gSession->GetMetadata();
    global.gDimension = global.gMetadata->GetAccountDimension();
    global.gDimensionName = QStringLiteral("ACCOUNT");
    MemberTexts texts(global, {});
    MemberPaths paths;
    paths.read(*global.gDimension);
    auto tree = std::make_unique<MemberTree>();
    tree->build(paths, [&](hfm::MemberId id) { return texts.GetMemberNodeText(id); });
    return tree;
}

void write(const MemberTree &tree, Worksheet &sheet)
{
    TreeExport rows(sheet, {&tree, MemberTree::none, tree.maxLevel(), tree.maxLevel(), true, true});
    rows.writeHeader();
    rows.writeNodes();
}

void exportTree(const MemberTree &tree)
{
    WorkbookFile workbook(QStringLiteral("exported"));
    write(tree, workbook.addWorksheet());
    workbook.complete();
    QFile::remove(workbook.path());
}

/// The export's cells, ready to be handed on.
class Cells final : public Worksheet
{
public:
    explicit Cells(const MemberTree &tree)
    {
        write(tree, *this);
        std::stable_sort(mCells.begin(), mCells.end(),
                         [](const Cell &one, const Cell &other) { return one.row < other.row; });
    }

    void setCell(qint32 row, qint32 column, QStringView text) override
    {
        if (text.startsWith(QLatin1Char('\'')))
            text = text.sliced(1);
        if (text.isEmpty())
            return;
        mCells.push_back({row, column, mTexts.size()});
        mTexts += text.toUtf8();
        mTexts += '\0';
    }
    size_t count() const { return mCells.size(); }

    void handToLibrary() const
    {
        lxw_workbook_options options{};
        options.constant_memory = LXW_TRUE;
        lxw_workbook *const book = workbook_new_opt("bare.xlsx", &options);
        workbook_add_worksheet(book, nullptr);
        lxw_worksheet *const sheet = workbook_add_worksheet(book, nullptr);
        for (const Cell &cell : mCells)
            worksheet_write_string(sheet, lxw_row_t(cell.row - 1), lxw_col_t(cell.column - 1),
                                   mTexts.constData() + cell.text, nullptr);
        if (workbook_close(book) != LXW_NO_ERROR)
            qFatal("the library failed");
        QFile::remove(QStringLiteral("bare.xlsx"));
    }

    /// One row a line: an array of pairs of a column from 0 and a text.
    void dump(const QString &path) const
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qPrintable(path));
        QJsonArray row;
        for (size_t i = 0; i < mCells.size(); ++i) {
            const Cell &cell = mCells[i];
            row.append(
                QJsonArray{cell.column - 1, QString::fromUtf8(mTexts.constData() + cell.text)});
            if (i + 1 == mCells.size() || mCells[i + 1].row != cell.row) {
                file.write(QJsonDocument(row).toJson(QJsonDocument::Compact) + '\n');
                row = {};
            }
        }
    }

private:
    struct Cell
    {
        qint32 row;
        qint32 column;
        qint64 text;
    };
    std::vector<Cell> mCells;
    QByteArray mTexts;
};

/// Milliseconds.
double pythonTime(const QString &script)
{
    QProcess python;
    python.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    python.start(QStringLiteral("/usr/bin/python3"),
                 {script, QStringLiteral("cells.json"), QStringLiteral("python.xlsx")});
    if (!python.waitForFinished(-1) || python.exitCode() != 0)
        qFatal("%s failed", qPrintable(script));
    return python.readAllStandardOutput().toDouble();
}

/// In kilobytes, by the name it has in /proc/self/status.
double memory(const QByteArray &name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        qFatal("no memory is told");
    const QByteArray text = status.readAll();
    const qsizetype start = text.indexOf(name) + name.size();
    return text.sliced(start, text.indexOf("kB", start) - start).trimmed().toDouble();
}

double megabytesTakenBy(const std::function<void()> &action)
{
    malloc_trim(0);
    QFile reset(QStringLiteral("/proc/self/clear_refs"));
    if (!reset.open(QIODevice::WriteOnly) || reset.write("5") != 1)
        qFatal("the peak of the memory cannot be reset");
    reset.close();
    const double before = memory("VmRSS:");
    action();
    return (memory("VmHWM:") - before) / 1024;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const QString script = arguments.value(1);
    const auto tree = openTree(arguments.value(2, QStringLiteral("500000")).toInt());

    const double taken = megabytesTakenBy([&] { exportTree(*tree); });
    const double exporting = cpuMilliseconds(rounds, [&] { exportTree(*tree); });
    const Cells cells(*tree);
    std::printf("nodes                     %9d\n", tree->count());
    std::printf("cells                     %9zu\n", cells.count());
    std::printf("export                    %9.0f ms\n", exporting);
    const double bare = cpuMilliseconds(rounds, [&] { cells.handToLibrary(); });
    std::printf("bare loop                 %9.0f ms   the export takes %.2f of it\n", bare,
                exporting / bare);
    cells.dump(QStringLiteral("cells.json"));
    const double python = pythonTime(script);
    std::printf("Python's XlsxWriter       %9.0f ms   %.2f times the export\n", python,
                python / exporting);
    std::printf("memory beside the tree    %9.1f MB\n", taken);
    return 0;
}
