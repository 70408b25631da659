#include "appinfo/BaseMemberCompare.h"
#include "appinfo/Duplicates.h"
#include "appinfo/FileSpreadsheet.h"
#include "appinfo/MemberLists.h"
#include "appinfo/ParentLabels.h"
#include "appinfo/SharedMembers.h"
#include "appinfo/Statistics.h"
#include "extract/frmExtract.h"
#include "hfm/offline/files/Reading.h"
#include "listbuilder/frmMemberListBuilder.h"
#include "listbuilder/ListViewer.h"
#include "listbuilder/MemberRows.h"
#include "shell/frmLargeText.h"
#include "shell/ListMembers.h"
#include "support/FakeServices.h"
#include "viewer/frmMetadataViewer.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int million = 1'000'000;

QByteArray number(int i)
{
    return QByteArray::number(i);
}

/// 0, its child 1, its child 2, ...
QByteArray chain(const QByteArray &dimension, int members)
{
    QByteArray text = "!HIERARCHIES=" + dimension + "\n;0\n";
    for (int i = 1; i < members; ++i)
        text += number(i - 1) + ';' + number(i) + '\n';
    return text;
}

/// 0 with the children 1, 2, ...
QByteArray broad(const QByteArray &dimension, int children)
{
    QByteArray text = "!HIERARCHIES=" + dimension + "\n;0\n";
    for (int i = 1; i <= children; ++i)
        text += "0;" + number(i) + '\n';
    return text;
}

/// What a tool does with a dimension, and the numbers of the errors that it ends with, 0 for none.
struct Work
{
    const char *name;
    std::function<bool(hfm::Dimension &)> isDoneRightly;
    int errorOfChain;
    int errorOfBroad;
};

QList<Work> everyWork()
{
    return {
        {"statistics",
         [](hfm::Dimension &dimension) {
             const QString report = Statistics::report(dimension, Statistics::Section::WideParents,
                                                       {u"200"_s, QLocale::c()});
             return report.contains(u"Total Members:  100000"_s);
         },
         0, 0},
        {"lists of parents",
         [](hfm::Dimension &dimension) { return !parentLabels(dimension).isEmpty(); }, Overflow,
         Overflow},
        {"duplicates",
         [](hfm::Dimension &dimension) {
             QString text;
             Duplicates::append(dimension, u"0"_s, text);
             return text.isEmpty();
         },
         Overflow, Overflow},
        {"compare",
         [](hfm::Dimension &dimension) {
             QString text;
             BaseMemberCompare::append(dimension, u"0"_s, u"1"_s, text);
             return text.isEmpty();
         },
         0, Overflow},
        {"shared members",
         [](hfm::Dimension &dimension) {
             return SharedMembers::occurrences(dimension).members.size() >= million;
         },
         Overflow, Overflow},
        {"a system list",
         [](hfm::Dimension &dimension) {
             const auto members = MemberLists::members(dimension, u"[Base]"_s, u"0"_s);
             return ListMembers::lines(dimension, members) == QStringList{u"999999"_s};
         },
         0, Overflow},
        {"list viewer",
         [](hfm::Dimension &dimension) {
             return !ListViewer::show(dimension, u"ENTITY"_s, u"[Hierarchy]"_s).rows.isEmpty();
         },
         Overflow, Overflow},
        {"builder's rows",
         [](hfm::Dimension &dimension) { return !MemberRows::ofAllMembers(dimension).isEmpty(); },
         Overflow, Overflow},
        {"builder's tree",
         [](hfm::Dimension &dimension) { return readBuilderTree(dimension).count() > 0; }, Overflow,
         Overflow},
    };
}

/// The error's number, 0 where there is none; -1 where the work is done wrongly.
int outcome(const Work &work, hfm::Dimension &dimension)
{
    try {
        return work.isDoneRightly(dimension) ? 0 : -1;
    } catch (const RuntimeError &error) {
        return error.number();
    }
}

} // namespace

/// A chain of a million members and a million children of one parent in every tool: what the tool
/// says of them, or the error that it has for so many, and never a full stack.
class tst_DeepAndWide : public QObject
{
    Q_OBJECT

private:
    enum Shape { Chain, Broad };

    Reading mApplications[2];
    QList<Work> mWorks = everyWork();
    std::unique_ptr<FakeServices> mFakes;
    modGlobal mGlobal;

    void addShapes()
    {
        QTest::addColumn<int>("shape");
        QTest::newRow("a chain of a million") << int(Chain);
        QTest::newRow("a million children") << int(Broad);
    }

    void choose(const Reading &reading, bool account)
    {
        mGlobal.gSession = reading.session();
        mGlobal.gMetadata = reading.metadata();
        mGlobal.gDimension = account ? reading.account() : reading.entity();
        mGlobal.gDimensionName = account ? u"ACCOUNT"_s : u"ENTITY"_s;
    }

    template <typename Window>
    std::unique_ptr<Window> open()
    {
        auto window = std::make_unique<Window>(mFakes->services, mGlobal);
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
        QCoreApplication::processEvents();
        return window;
    }

    static void click(const QWidget &window, const char *button)
    {
        window.findChild<QAbstractButton *>(QLatin1StringView(button))->click();
        QCoreApplication::processEvents();
    }

    QString lastError() const
    {
        return mFakes->prompts.asked.isEmpty() ? QString() : mFakes->prompts.asked.last().text;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        mApplications[Chain] = readText(chain("Entity", million));
        mApplications[Broad] = readText(broad("Entity", million));
    }
    void init() { mFakes = std::make_unique<FakeServices>(); }

    void everyToolSaysWhatItHasToSay_data()
    {
        QTest::addColumn<int>("work");
        for (int i = 0; i < mWorks.size(); ++i)
            QTest::newRow(mWorks[i].name) << i;
    }
    void everyToolSaysWhatItHasToSay()
    {
        QFETCH(const int, work);
        QCOMPARE(outcome(mWorks[work], *mApplications[Chain].entity()), mWorks[work].errorOfChain);
        QCOMPARE(outcome(mWorks[work], *mApplications[Broad].entity()), mWorks[work].errorOfBroad);
    }

    void theExtractWritesTheChainAndRefusesTheChildren_data() { addShapes(); }
    void theExtractWritesTheChainAndRefusesTheChildren()
    {
        QFETCH(const int, shape);
        choose(mApplications[shape], false);
        const auto window = open<frmExtract>();
        click(*window, "cmdExtract");
        if (shape == Broad) {
            QCOMPARE(lastError(), u"Run-time error '6':\r\n\r\nOverflow"_s);
            QCOMPARE(mFakes->program.endCodes, QList<int>{1});
            return;
        }
        QVERIFY(lastError().isEmpty());
        const QString text = window->findChild<LargeTextView *>(u"txtParentChild"_s)->text();
        QCOMPARE(text.count(u'\n'), qsizetype(million));
        QVERIFY(text.endsWith(u"\"999998\",\"\",\"999999\",\"\"\r\n"_s));
    }

    void theViewerShowsAllAndOpensIt_data() { addShapes(); }
    void theViewerShowsAllAndOpensIt()
    {
        QFETCH(const int, shape);
        choose(mApplications[shape], false);
        const auto window = open<frmMetadataViewer>();
        const auto *total = window->findChild<QLabel *>(u"lblTotalMembers"_s);
        QCOMPARE(total->text(), shape == Chain ? u"1000001 Total Members - 1000000 levels"_s
                                               : u"1000002 Total Members - 2 levels"_s);
        click(*window, "cmdExpandAll");
        const auto *tree = window->findChild<QTreeView *>(u"trvMembers"_s);
        const QModelIndex top = tree->model()->index(0, 0);
        QVERIFY(tree->isExpanded(top));

        window->findChild<QTreeView *>(u"trvMembers"_s)->setCurrentIndex(top);
        window->findChild<QAction *>(u"mnuTopMember"_s)->trigger();
        QVERIFY(total->text().startsWith(shape == Chain ? u"1000000 Total Members from"_s
                                                        : u"1000001 Total Members from"_s));
        click(*window, "cmdExpandAll");
        QVERIFY(lastError().isEmpty());
        QVERIFY(mFakes->program.endCodes.isEmpty());
    }

    /// A sheet has 16,384 columns, and each level is one; of its 1,048,576 rows each node is one.
    void theWorkbookHoldsTheChildrenAndRefusesTheChain_data() { addShapes(); }
    void theWorkbookHoldsTheChildrenAndRefusesTheChain()
    {
        QFETCH(const int, shape);
        choose(mApplications[shape], false);
        const QTemporaryDir folder;
        FileSpreadsheet spreadsheet(folder.path(), mFakes->clock, mFakes->launcher);
        Services services{mFakes->hfm,   mFakes->prompts, mFakes->launcher, spreadsheet,
                          mFakes->clock, mFakes->program, mFakes->trap,     folder.path()};
        mFakes->prompts.answers = {Prompts::Answer::No}; // without the attributes
        frmMetadataViewer window(services, mGlobal);
        window.setAttribute(Qt::WA_DeleteOnClose, false);
        click(window, "cmdSendToExcel");
        if (shape == Broad) {
            QVERIFY(mFakes->program.endCodes.isEmpty());
            QCOMPARE(mFakes->launcher.files.size(), 1);
            QVERIFY(QFileInfo(mFakes->launcher.files[0]).size() > million);
            return;
        }
        QVERIFY(lastError().startsWith(u"Run-time error '1004':"_s));
        QCOMPARE(mFakes->program.endCodes, QList<int>{1});
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void theListBuilderRefusesSoMany()
    {
        choose(readText(broad("Account", million)), true);
        mFakes->trap.run([&] { open<frmMemberListBuilder>(); });
        QCOMPARE(lastError(), u"Run-time error '6':\r\n\r\nOverflow"_s);
        QCOMPARE(mFakes->program.endCodes, QList<int>{1});
    }

    /// As deep as its counters allow.
    void theListBuilderTakesAChainOfThirtyTwoThousand()
    {
        constexpr int members = 32'000;
        choose(readText(chain("Account", members)), true);
        const auto window = open<frmMemberListBuilder>();
        QVERIFY(lastError().isEmpty());
        auto *tree = window->findChild<QTreeView *>(u"trvMembers"_s);
        tree->setCurrentIndex(tree->model()->index(0, 0));
        QTest::keyClick(tree, Qt::Key_Asterisk);
        QVERIFY(tree->isExpanded(tree->model()->index(0, 0)));
        click(*window, "cmdTreeViewCheckAll");
        click(*window, "cmdTreeViewChecked");
        const auto *list = window->findChild<QListView *>(u"lstMemberList"_s);
        QVERIFY(list->model()->rowCount() >= members);
        QVERIFY(lastError().isEmpty());
    }
};

QTEST_MAIN(tst_DeepAndWide)
#include "tst_DeepAndWide.moc"
