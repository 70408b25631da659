// How long the application information window takes to open on an application of any size, to show
// a list of 30,000 members, to fill its parent lists with 30,000 entries, and to open such a list,
// with its first and with its last entry chosen. From the user's act to everything painted; times
// are the processor's.

#include "appinfo/frmApplicationInfo.h"
#include "BenchServices.h"
#include "CpuTime.h"
#include "GeneratedApplication.h"

#include <QApplication>

#include <cstdio>

namespace {

constexpr int rounds = 9;

/// The window on an application, and everything that it needs.
class Opened
{
public:
    explicit Opened(const generator::Request &request)
    {
        mState.gSession = sessionOn(request);
        mState.gMetadata = mState.gSession->GetMetadata();
    }

    void open()
    {
        mWindow = std::make_unique<frmApplicationInfo>(mServices.services(), mState);
        mWindow->show();
        settle();
    }
    void showTab(int tab)
    {
        mWindow->findChild<QTabWidget *>(QStringLiteral("sstabApplicationInfo"))
            ->setCurrentIndex(tab);
        settle();
    }
    void click(const char *option)
    {
        mWindow->findChild<QAbstractButton *>(QLatin1StringView(option))->click();
        settle();
    }
    void showList(const QString &name)
    {
        QComboBox *const lists = box("cboEntityLists");
        lists->setCurrentIndex(lists->findText(name));
        Q_EMIT lists->activated(lists->currentIndex());
        settle();
    }
    int membersInList() const
    {
        const auto name = QStringLiteral("lstMembersInList");
        return mWindow->findChild<QListView *>(name)->model()->rowCount();
    }
    QComboBox *box(const char *name)
    {
        return mWindow->findChild<QComboBox *>(QLatin1StringView(name));
    }
    void openList(const char *name)
    {
        box(name)->showPopup();
        settle();
        box(name)->view()->window()->grab();
        box(name)->hidePopup();
        settle();
    }

private:
    void settle()
    {
        QCoreApplication::processEvents();
        mWindow->grab();
    }

    BenchServices mServices;
    modGlobal mState;
    std::unique_ptr<frmApplicationInfo> mWindow;
};

template <typename Action>
void measure(const QString &what, Action action)
{
    std::printf("%-58s %8.1f ms\n", qPrintable(what), cpuMilliseconds(rounds, action));
}

void measureOpening(qint32 members)
{
    generator::Request request;
    request.members = members;
    Opened opened(request);
    measure(QStringLiteral("open the window, %1 members").arg(members), [&] { opened.open(); });
}

void measureList(Opened &opened, const char *name, const QString &what)
{
    QComboBox *const list = opened.box(name);
    for (const int entry : {0, list->count() - 1}) {
        list->setCurrentIndex(entry);
        measure(QStringLiteral("open %1 of %2 entries at entry %3")
                    .arg(what)
                    .arg(list->count())
                    .arg(entry + 1),
                [&] { opened.openList(name); });
    }
}

void measureParents(qint32 parents)
{
    generator::Request request;
    request.shape = generator::Shape::Chain;
    request.members = parents + 1;
    Opened opened(request);
    opened.open();
    opened.showTab(4);
    measure(QStringLiteral("fill the three parent lists with %1 entries").arg(parents),
            [&] { opened.click("optDimensionCompare_1"); });
    measureList(opened, "cboParents", QStringLiteral("a typed list"));

    opened.showTab(2);
    measure(QStringLiteral("fill the top members with %1 entries").arg(parents),
            [&] { opened.showList(QStringLiteral("[Base]")); });
    measureList(opened, "cboParentMembers", QStringLiteral("a plain list"));
}

void measureMembers(qint32 members)
{
    generator::Request request;
    request.shape = generator::Shape::Wide;
    request.members = members + 1;
    Opened opened(request);
    opened.open();
    opened.showTab(2);
    opened.showList(QStringLiteral("[Base]"));
    measure(QStringLiteral("show a list of %1 members").arg(opened.membersInList()),
            [&] { opened.showList(QStringLiteral("[Base]")); });
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    for (const qint32 members : {10, 1'000'000})
        measureOpening(members);
    for (const qint32 parents : {300, 30'000})
        measureParents(parents);
    for (const qint32 members : {300, 30'000})
        measureMembers(members);
    return 0;
}
