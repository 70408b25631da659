// How long an extract of the offline client's application takes to build, beside copying the
// finished text once, piece by piece, from strings that are ready; and how long it takes from the
// click on "Run Extract" until the text is shown.
//
//   extract_build [MEMBERS ...]      numbers of members, 10000 100000 1000000 at first

#include "extract/ExtractBuilder.h"
#include "extract/frmExtract.h"
#include "generator/ApplicationGenerator.h"
#include "hfm/offline/OfflineDimension.h"
#include "NoSpreadsheet.h"

#include <QApplication>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>
#include <vector>

namespace {

constexpr int rounds = 7;

class NoClients final : public hfm::ClientFactory
{
public:
    std::unique_ptr<hfm::VersionInformation> createVersionInformation() override { return {}; }
    std::shared_ptr<hfm::LogonUserInterface> createLogonUserInterface() override { return {}; }
    std::shared_ptr<hfm::Client> createClient() override { return {}; }
};

class NoPrompts final : public Prompts
{
public:
    Answer ask(const Prompt &prompt) override { qFatal("%s", qPrintable(prompt.text)); }
};

class NoLauncher final : public Launcher
{
public:
    void run(const QString &) override {}
    void open(const QString &) override {}
};

class NoProgram final : public Program
{
public:
    void end(int exitCode) override { std::exit(exitCode); }
    bool isEnding() const override { return false; }
};

std::shared_ptr<hfm::Dimension> generatedDimension(qint32 members)
{
    generator::Request request;
    request.members = members;
    request.edges = members + members / 5;
    const QTemporaryDir folder;
    hfm::offline::ApplicationFiles files;
    files.metadata = folder.filePath(QStringLiteral("bench.app"));
    QFile file(files.metadata);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(files.metadata));
    generator::generate(request, file);
    file.close();
    return std::make_shared<hfm::offline::OfflineDimension>(
        hfm::offline::readApplication(files, 2012), hfm::offline::DimensionKind::Entity);
}

/// The pieces of the rows, in order, each a string that is ready: fields, and what stands between
/// them.
std::vector<QString> piecesOf(hfm::Dimension &dimension, const ExtractIndicators &indicators)
{
    std::vector<QString> labels{QString()};
    std::vector<QString> descriptions{QString()};
    for (hfm::MemberId member : dimension.EnumAllMembers()) {
        labels.push_back(dimension.GetMemberLabel(member));
        descriptions.push_back(dimension.GetMemberDescription(member, 0));
    }
    const QString quote = QStringLiteral("\"");
    const QString between = QStringLiteral("\",\"");
    const QString end = QStringLiteral("\"\r\n");

    std::vector<QString> pieces;
    const hfm::Occurrences occurrences = dimension.EnumHierarchy();
    for (qsizetype i = 0; i < occurrences.members.size(); ++i) {
        const auto parent = size_t(occurrences.parents[i] + 1);
        const auto child = size_t(occurrences.members[i] + 1);
        const bool isParent = dimension.GetHasChildren(occurrences.members[i]);
        pieces.insert(pieces.end(), {quote, labels[parent], between, descriptions[parent], between,
                                     labels[child], between, descriptions[child], between,
                                     isParent ? indicators.parent : indicators.base, end});
    }
    return pieces;
}

QString copied(const std::vector<QString> &pieces)
{
    QString text;
    for (const QString &piece : pieces)
        text += piece;
    return text;
}

/// The processor's time of the rounds of one action, in milliseconds; the machine's other work
/// does not count.
class Times
{
public:
    template <typename Action>
    void measure(Action action)
    {
        const double start = now();
        action();
        mValues.push_back(now() - start);
    }
    double median()
    {
        std::sort(mValues.begin(), mValues.end());
        return mValues[mValues.size() / 2];
    }

private:
    static double now()
    {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    }

    std::vector<double> mValues;
};

/// From the click to the text painted.
double timeToShow(const std::shared_ptr<hfm::Dimension> &dimension)
{
    NoClients clients;
    NoPrompts prompts;
    NoLauncher launcher;
    NoSpreadsheet spreadsheet;
    SystemClock clock;
    NoProgram program;
    ErrorTrap trap(prompts, program);
    Services services{clients, prompts, launcher, spreadsheet, clock, program, trap, {}};
    modGlobal global;
    global.gDimension = dimension;
    auto *window = new frmExtract(services, global);
    window->show();
    QCoreApplication::processEvents();
    window->findChild<QAbstractButton *>(QStringLiteral("optUseIndicators_0"))->click();
    auto *run = window->findChild<QPushButton *>(QStringLiteral("cmdExtract"));
    Times showing;
    for (int round = 0; round < rounds; ++round) {
        showing.measure([&] {
            run->click();
            QCoreApplication::processEvents();
            window->grab();
        });
    }
    delete window;
    return showing.median();
}

void measure(qint32 members)
{
    const auto dimension = generatedDimension(members);
    const ExtractIndicators indicators = {QStringLiteral("Dynamic"), QStringLiteral("Store")};
    const std::vector<QString> pieces = piecesOf(*dimension, indicators);
    const ExtractTexts texts = buildExtract(*dimension, 0, indicators);
    if (texts.rows != copied(pieces))
        qFatal("the pieces are not those of the extract");
    const double rows = double(texts.rows.count(u'\n'));

    Times copyingTimes;
    Times buildingTimes;
    for (int round = 0; round < rounds; ++round) {
        copyingTimes.measure([&] { copied(pieces); });
        buildingTimes.measure([&] { buildExtract(*dimension, 0, indicators); });
    }
    const double copying = copyingTimes.median();
    const double building = buildingTimes.median();
    const double showing = timeToShow(dimension);
    std::printf("%9.0f %9.1f %10.1f %10.1f %7.2f %7.0f %10.1f %7.2f\n", rows,
                double(texts.rows.size()) * 2 / 1e6, copying, building, building / copying,
                building / rows * 1e6, showing, showing / building);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    std::vector<qint32> sizes;
    for (const QString &argument : application.arguments().mid(1))
        sizes.push_back(argument.toInt());
    if (sizes.empty())
        sizes = {10'000, 100'000, 1'000'000};
    std::printf("%9s %9s %10s %10s %7s %7s %10s %7s\n", "rows", "MB", "copy ms", "build ms",
                "ratio", "ns/row", "shown ms", "ratio");
    for (qint32 members : sizes)
        measure(members);
    return 0;
}
