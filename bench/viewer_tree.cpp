// How long the viewer's tree of an application of the offline client takes: beside one pass that
// only makes the node texts, beside a QTreeWidget whose items find their parents by the backward
// search, and what a tree of that size then takes to open, to scroll and to select in.
//
//   viewer_tree [MEMBERS ...]        numbers of members, 10000 100000 1000000 at first
//
// Each size is measured with narrow parents (8 children on average, one in fifty ten times that)
// and with wide ones (50 children), since the backward search passes over a parent's earlier
// children. The QTreeWidget is built up to 100,000 members. Both sides make the same texts: "alone"
// compares what either takes beyond that.

#include "generator/ApplicationGenerator.h"
#include "hfm/offline/OfflineSession.h"
#include "viewer/frmMemberTreeView.h"
#include "viewer/MemberTexts.h"

#include <QApplication>
#include <QFile>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <random>

namespace {

constexpr int rounds = 5;
constexpr qint32 fanOuts[] = {8, 50};
constexpr qint32 largestPeer = 100'000;

class NoPrompts final : public Prompts
{
public:
    Answer ask(const Prompt &prompt) override { qFatal("%s", qPrintable(prompt.text)); }
};

class NoProgram final : public Program
{
public:
    void end(int exitCode) override { std::exit(exitCode); }
    bool isEnding() const override { return false; }
};

/// The processor's time in milliseconds; the machine's other work does not count.
template <typename Action>
double timeOf(Action action)
{
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    };
    const double start = now();
    action();
    return now() - start;
}

template <typename Action>
double medianTimeOf(Action action)
{
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round)
        times.push_back(timeOf(action));
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

modGlobal openAccounts(qint32 members, qint32 fanOut)
{
    generator::Request request;
    request.dimension = QStringLiteral("Account");
    request.members = members;
    request.edges = members + members / 20;
    request.fanOut = fanOut;
    const QTemporaryDir folder;
    hfm::offline::ApplicationFiles files;
    files.metadata = folder.filePath(QStringLiteral("bench.app"));
    QFile file(files.metadata);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(files.metadata));
    generator::generate(request, file);
    file.close();
    modGlobal global;
    global.gSession = std::make_shared<hfm::offline::OfflineSession>(
        hfm::offline::readApplication(files, 2012), QStringLiteral("bench"));
    global.gMetadata = global.gSession->GetMetadata();
    global.gDimension = global.gMetadata->GetAccountDimension();
    global.gDimensionName = QStringLiteral("ACCOUNT");
    return global;
}

std::shared_ptr<const MemberTree> build(modGlobal &global, MemberTexts &texts)
{
    MemberPaths paths;
    paths.read(*global.gDimension);
    auto tree = std::make_shared<MemberTree>();
    tree->build(paths, [&](hfm::MemberId id) { return texts.GetMemberNodeText(id); });
    return tree;
}

/// The straightforward build of the same tree.
class Peer
{
public:
    Peer(modGlobal &global, MemberTexts &texts) : mGlobal(global), mTexts(texts) {}

    void build()
    {
        mWidget.clear();
        mPaths.clear();
        mItems.clear();
        const QString root = QStringLiteral("-1_ROOT");
        addChildMembers(-1, root);
        for (const QString &path : mPaths)
            addItem(path, root);
        mMaxLevel = 1;
        for (const QTreeWidgetItem *item : mItems)
            mMaxLevel = std::max(mMaxLevel, levelOf(item));
    }
    qsizetype count() const { return mItems.size(); }
    qint32 maxLevel() const { return mMaxLevel; }

private:
    static constexpr int tagRole = Qt::UserRole + 1;

    void addChildMembers(hfm::MemberId parent, const QString &parentPart)
    {
        for (const hfm::MemberId child : mGlobal.gDimension->EnumChildMembers(-1, parent)) {
            const QString part = QString::number(child) + QLatin1Char('_') +
                                 mGlobal.gDimension->GetMemberLabel(child);
            mPaths.append(parentPart + QLatin1Char('#') + part);
            addChildMembers(child, part);
        }
    }
    static QString childPart(const QString &path)
    {
        return path.sliced(path.indexOf(QLatin1Char('#')) + 1);
    }
    void addItem(const QString &path, const QString &root)
    {
        const QStringView parentPart = QStringView(path).first(path.indexOf(QLatin1Char('#')));
        QTreeWidgetItem *parent = mWidget.invisibleRootItem();
        if (parentPart != root)
            for (qsizetype i = mItems.size() - 1; i >= 0; --i)
                if (childPart(mItems[i]->data(0, tagRole).toString()) == parentPart) {
                    parent = mItems[i];
                    break;
                }
        const QString child = childPart(path);
        const hfm::MemberId id = child.first(child.indexOf(QLatin1Char('_'))).toInt();
        auto *item = new QTreeWidgetItem({mTexts.GetMemberNodeText(id)});
        item->setData(0, Qt::UserRole, QStringLiteral("KEY") + QString::number(mItems.size()));
        item->setData(0, tagRole, path);
        parent->addChild(item);
        mItems.append(item);
    }

    static qint32 levelOf(const QTreeWidgetItem *item)
    {
        qint32 level = 0;
        for (; item; item = item->parent())
            ++level;
        return level;
    }

    modGlobal &mGlobal;
    MemberTexts &mTexts;
    QTreeWidget mWidget;
    QStringList mPaths;
    QList<QTreeWidgetItem *> mItems;
    qint32 mMaxLevel = 1;
};

std::vector<hfm::MemberId> occurrences(hfm::Dimension &dimension)
{
    MemberPaths paths;
    paths.read(dimension);
    std::vector<hfm::MemberId> members;
    for (qint32 i = 0; i < paths.count(); ++i)
        members.push_back(paths.at(i).member);
    return members;
}

/// Bytes in use for a tree, less two for each character of its texts.
double bytesOverText(modGlobal &global, MemberTexts &texts)
{
    malloc_trim(0);
    const double before = bytesInUse();
    const auto tree = build(global, texts);
    const double used = bytesInUse() - before;
    double characters = 0;
    for (qint32 node = 0; node < tree->count(); ++node)
        characters += double(tree->text(node).size());
    return used - 2 * characters;
}

/// Both trees are built again where one stood before, and that one is freed.
void compareWithPeer(modGlobal &global, MemberTexts &texts, double textsOnly, double building)
{
    const auto tree = build(global, texts);
    Peer peer(global, texts);
    peer.build();
    const double straightforward = timeOf([&] { peer.build(); });
    if (peer.count() != tree->count() || peer.maxLevel() != tree->maxLevel())
        qFatal("the trees differ");
    std::printf(" %10.0f %7.1f %7.1f", straightforward, straightforward / building,
                (straightforward - textsOnly) / (building - textsOnly));
}

void measureBuild(modGlobal &global, qint32 fanOut, bool showAttributes)
{
    MemberTexts texts(global, {.showAttributes = showAttributes});
    const std::vector<hfm::MemberId> members = occurrences(*global.gDimension);
    const auto nodes = double(members.size());
    const double overText = bytesOverText(global, texts);
    const double textsOnly = medianTimeOf([&] {
        for (const hfm::MemberId member : members)
            texts.GetMemberNodeText(member);
    });
    const double building = medianTimeOf([&] { build(global, texts); });
    std::printf("%9.0f %5d  %-6s %9.1f %9.1f %6.2f %8.0f %9.1f", nodes, fanOut,
                showAttributes ? "shown" : "hidden", textsOnly, building, building / textsOnly,
                building / nodes * 1e6, overText / nodes);
    if (members.size() <= 2 * largestPeer)
        compareWithPeer(global, texts, textsOnly, building);
    std::printf("\n");
}

/// The longest of a number of single actions, in milliseconds.
template <typename Action>
double longestOf(int times, Action action)
{
    double longest = 0;
    for (int i = 0; i < times; ++i)
        longest = std::max(longest, timeOf([&] {
                               action();
                               QCoreApplication::processEvents();
                           }));
    return longest;
}

void measureView(modGlobal &global)
{
    MemberTexts texts(global, {});
    NoPrompts prompts;
    NoProgram program;
    ErrorTrap trap(prompts, program);
    MemberTreeModel model;
    MemberTreeView view(trap, &model);
    view.resize(900, 600);
    view.show();
    std::shared_ptr<const MemberTree> tree;
    const double building = timeOf([&] {
        tree = build(global, texts);
        model.show(tree);
        view.setCurrentIndex(model.index(0, 0));
        QCoreApplication::processEvents();
    });
    const double expanding = timeOf([&] { view.expandBelow({}); });
    const double painting = longestOf(1, [] {});

    std::mt19937 random(1);
    std::uniform_int_distribution<qint32> anyNode(0, tree->count() - 1);
    const double scrolling =
        longestOf(50, [&] { view.verticalScrollBar()->setValue(anyNode(random)); });
    const double selecting =
        longestOf(50, [&] { view.setCurrentIndex(model.indexOf(anyNode(random))); });
    const QModelIndex first = model.index(0, 0);
    const double closing = longestOf(1, [&] { view.collapse(first); });
    view.setCurrentIndex(first);
    const double searching = longestOf(1, [&] { view.keyboardSearch(QStringLiteral("no such")); });
    std::printf("%9d %9.1f %10.1f %6.2f %8.1f %9.1f %9.1f %9.1f %9.1f\n", tree->count(), building,
                expanding, expanding / building, painting, scrolling, selecting, closing,
                searching);
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

    std::printf("%9s %5s  %-6s %9s %9s %6s %8s %9s %10s %7s %7s\n", "nodes", "wide", "attr.",
                "texts ms", "build ms", "ratio", "ns/node", "B/node", "widget ms", "ratio",
                "alone");
    std::vector<modGlobal> applications;
    for (const qint32 members : sizes)
        for (const qint32 fanOut : fanOuts) {
            applications.push_back(openAccounts(members, fanOut));
            for (const bool showAttributes : {false, true})
                measureBuild(applications.back(), fanOut, showAttributes);
        }
    std::printf("\n%9s %9s %10s %6s %8s %9s %9s %9s %9s\n", "nodes", "build ms", "expand ms",
                "ratio", "paint ms", "scroll ms", "select ms", "close ms", "search ms");
    for (modGlobal &global : applications)
        measureView(global);
    return 0;
}
