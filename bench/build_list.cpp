// How long the member list builder takes for what its user does with every member of a dimension
// at once, to the picture of the result.
//
//   build_list [MEMBERS]     30000 at first; a list can hold 32,767

#include "generator/ApplicationGenerator.h"
#include "hfm/offline/OfflineSession.h"
#include "listbuilder/frmMemberListBuilder.h"
#include "shell/frmDeepTreeView.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

class NoClients final : public hfm::ClientFactory
{
public:
    std::unique_ptr<hfm::VersionInformation> createVersionInformation() override { return {}; }
    std::shared_ptr<hfm::LogonUserInterface> createLogonUserInterface() override { return {}; }
    std::shared_ptr<hfm::Client> createClient() override { return {}; }
};

class SilentPrompts final : public Prompts
{
public:
    Answer ask(const Prompt &prompt) override
    {
        if (prompt.icon != Prompt::Icon::Information)
            qFatal("%s", qPrintable(prompt.text));
        return Answer::Ok;
    }
};

class NoLauncher final : public Launcher
{
public:
    void run(const QString &) override {}
};

class NoProgram final : public Program
{
public:
    void end(int exitCode) override { std::exit(exitCode); }
    bool isEnding() const override { return false; }
};

std::shared_ptr<hfm::Session> generatedSession(generator::Shape shape, qint32 members)
{
    generator::Request request;
    request.dimension = QStringLiteral("Account");
    request.shape = shape;
    request.members = members;
    const QTemporaryDir folder;
    hfm::offline::ApplicationFiles files;
    files.metadata = folder.filePath(QStringLiteral("bench.app"));
    QFile file(files.metadata);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(files.metadata));
    generator::generate(request, file);
    file.close();
    return std::make_shared<hfm::offline::OfflineSession>(
        hfm::offline::readApplication(files, 2012), QStringLiteral("Bench"));
}

/// The processor's time in milliseconds; the machine's other work does not count.
double now()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/// A builder window and the time that each action with it takes.
class Builder
{
public:
    explicit Builder(std::shared_ptr<hfm::Session> session)
    {
        mGlobal.gSession = std::move(session);
        mGlobal.gDimension = mGlobal.gSession->GetMetadata()->GetAccountDimension();
        mGlobal.gDimensionName = QStringLiteral("ACCOUNT");
    }

    template <typename Action>
    void measure(const char *name, Action action)
    {
        const double start = now();
        action();
        QCoreApplication::processEvents();
        mWindow->grab();
        std::printf("  %-28s %8.1f ms\n", name, now() - start);
    }

    void open()
    {
        mWindow = std::make_unique<frmMemberListBuilder>(mServices, mGlobal);
        mWindow->show();
    }
    void click(const char *name) { find<QPushButton>(name)->click(); }
    template <typename Control>
    Control *find(const char *name) const
    {
        return mWindow->findChild<Control *>(QLatin1StringView(name));
    }

private:
    NoClients mClients;
    SilentPrompts mPrompts;
    NoLauncher mLauncher;
    SystemClock mClock;
    NoProgram mProgram;
    ErrorTrap mTrap{mPrompts, mProgram};
    Services mServices{mClients, mPrompts, mLauncher, mClock, mProgram, mTrap, {}};
    modGlobal mGlobal;
    std::unique_ptr<frmMemberListBuilder> mWindow;
};

void measure(const char *title, generator::Shape shape, qint32 members)
{
    std::printf("%s, %d members\n", title, members);
    Builder builder(generatedSession(shape, members));
    builder.measure("open the window", [&] { builder.open(); });
    builder.measure("check all", [&] { builder.click("cmdTreeViewCheckAll"); });
    builder.measure("insert the checked", [&] { builder.click("cmdTreeViewChecked"); });
    builder.measure("type the name", [&] {
        builder.find<QLineEdit>("txtMemberListName")->setText(QStringLiteral("All"));
    });
    builder.measure("generate", [&] {
        builder.click("cmdMoveUpMemberInList"); // enables it
        builder.click("cmdGenerateList");
    });
    builder.measure("clear", [&] { builder.click("cmdClearMemberList"); });
    builder.measure("select all", [&] { builder.click("cmdListSelectAll"); });
    builder.measure("insert the selected", [&] { builder.click("cmdListSelected"); });
    builder.measure("deselect all", [&] { builder.click("cmdListDeselectAll"); });
    builder.measure("open every node",
                    [&] { builder.find<DeepTreeView>("trvMembers")->expandBelow({}); });
    builder.measure("uncheck all, all open", [&] { builder.click("cmdTreeViewUncheckAll"); });
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const qint32 members = argc > 1 ? application.arguments().at(1).toInt() : 30'000;
    measure("A tree", generator::Shape::Tree, members);
    measure("One parent", generator::Shape::Wide, members);
    measure("A chain", generator::Shape::Chain, members);
    return 0;
}
