// How long the member list builder takes for what its user does with every member of a dimension
// at once, and with a single one in a long new list, from the user's act to everything painted;
// the acts with every member beside a tree and lists of one item object a row, whose tree finds
// parents by searching backwards. Times are the processor's.
//
//   build_list [MEMBERS]     30000 at first; a list can hold 32,767

#include "BenchServices.h"
#include "CpuTime.h"
#include "GeneratedApplication.h"
#include "listbuilder/frmMemberListBuilder.h"
#include "listbuilder/MemberRows.h"
#include "shell/frmDeepTreeView.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <cstdio>

namespace {

modGlobal openAccounts(generator::Shape shape, qint32 members)
{
    generator::Request request;
    request.dimension = QStringLiteral("Account");
    request.shape = shape;
    request.members = members;
    modGlobal global;
    global.gSession = sessionOn(request);
    global.gDimension = global.gSession->GetMetadata()->GetAccountDimension();
    global.gDimensionName = QStringLiteral("ACCOUNT");
    return global;
}

template <typename Act>
double paintedAfter(QWidget &window, Act act)
{
    return cpuMilliseconds(1, [&] {
        act();
        QCoreApplication::processEvents();
        window.grab();
    });
}

/// A builder window in use.
class Builder
{
public:
    explicit Builder(modGlobal &global)
    {
        mOpening = cpuMilliseconds(1, [&] {
            mWindow = std::make_unique<frmMemberListBuilder>(mServices.services(), global);
            mWindow->show();
            QCoreApplication::processEvents();
            mWindow->grab();
        });
    }

    double opening() const { return mOpening; }
    double click(const char *name)
    {
        return paintedAfter(*mWindow, [&] { find<QPushButton>(name)->click(); });
    }
    double openEveryNode()
    {
        return paintedAfter(*mWindow, [&] { find<DeepTreeView>("trvMembers")->expandBelow({}); });
    }
    double insertOneMore()
    {
        auto *list = find<QListView>("lstMetadata");
        return paintedAfter(*mWindow,
                            [&] { Q_EMIT list->doubleClicked(list->model()->index(0, 0)); });
    }
    void selectInMiddle()
    {
        auto *list = find<QListView>("lstMemberList");
        list->setCurrentIndex(list->model()->index(list->model()->rowCount() / 2, 0));
    }
    void name() { find<QLineEdit>("txtMemberListName")->setText(QStringLiteral("All")); }

private:
    template <typename Control>
    Control *find(const char *name) const
    {
        return mWindow->findChild<Control *>(QLatin1StringView(name));
    }

    BenchServices mServices;
    std::unique_ptr<frmMemberListBuilder> mWindow;
    double mOpening;
};

/// The straightforward window: items in Qt's own item widgets.
class Peer
{
public:
    explicit Peer(modGlobal &global)
    {
        auto *layout = new QHBoxLayout(&mWindow);
        for (QWidget *part : {static_cast<QWidget *>(&mTree), static_cast<QWidget *>(&mMembers),
                              static_cast<QWidget *>(&mNewList)})
            layout->addWidget(part);
        mMembers.setSelectionMode(QAbstractItemView::ExtendedSelection);
        mOpening = cpuMilliseconds(1, [&] {
            fill(*global.gDimension);
            mWindow.resize(900, 600);
            mWindow.show();
            QCoreApplication::processEvents();
            mWindow.grab();
        });
    }

    double opening() const { return mOpening; }
    double checkAll()
    {
        return paintedAfter(mWindow, [&] {
            for (QTreeWidgetItem *item : mItems)
                item->setCheckState(0, Qt::Checked);
        });
    }
    double insertChecked()
    {
        return paintedAfter(mWindow, [&] {
            for (const QTreeWidgetItem *item : mItems)
                if (item->checkState(0) == Qt::Checked)
                    mNewList.addItem(item->data(0, tagRole).toString());
        });
    }
    double selectAll()
    {
        return paintedAfter(mWindow, [&] { mMembers.selectAll(); });
    }
    double insertSelected()
    {
        return paintedAfter(mWindow, [&] {
            for (int row = 0; row < mMembers.count(); ++row)
                if (mMembers.item(row)->isSelected())
                    mNewList.addItem(MemberRows::labelPart(mMembers.item(row)->text()));
        });
    }

private:
    static constexpr int keyRole = Qt::UserRole;
    static constexpr int tagRole = Qt::UserRole + 1;

    void fill(hfm::Dimension &dimension)
    {
        const QStringList rows = MemberRows::ofAllMembers(dimension);
        for (const QString &row : rows)
            mMembers.addItem(row);
        const hfm::Occurrences listing = dimension.EnumHierarchy();
        for (qsizetype i = 0; i < listing.members.size(); ++i)
            addNode(dimension, i, listing.parents[i], listing.members[i]);
    }
    void addNode(hfm::Dimension &dimension, qsizetype position, hfm::MemberId parent,
                 hfm::MemberId member)
    {
        const QString label = dimension.GetMemberLabel(member);
        auto *item = new QTreeWidgetItem({MemberRows::ofMember(dimension, member, label)});
        item->setCheckState(0, Qt::Unchecked);
        item->setData(0, keyRole, key(position, member));
        item->setData(0, tagRole, label);
        QTreeWidgetItem *above = mTree.invisibleRootItem();
        for (qsizetype i = position - 1; i >= 0 && parent != hfm::rootMember; --i) {
            if (mItems[i]->data(0, keyRole).toString() == key(i, parent)) {
                above = mItems[i];
                break;
            }
        }
        above->addChild(item);
        mItems.append(item);
    }
    static QString key(qsizetype position, hfm::MemberId member)
    {
        return QStringLiteral("INDX") + QString::number(position) + QLatin1Char('C') +
               QString::number(member);
    }

    QWidget mWindow;
    QTreeWidget mTree{&mWindow};
    QListWidget mMembers{&mWindow};
    QListWidget mNewList{&mWindow};
    QList<QTreeWidgetItem *> mItems;
    double mOpening;
};

void print(const char *act, double time, double peer = 0)
{
    std::printf("  %-32s %8.1f ms", act, time);
    if (peer > 0)
        std::printf(" %10.1f ms %8.1f", peer, peer / time);
    std::printf("\n");
}

void measureBesidePeer(qint32 members)
{
    modGlobal global = openAccounts(generator::Shape::Tree, members);
    Builder builder(global);
    Peer peer(global);
    std::printf("a tree, %d members               builder         items    times\n", members);
    print("open the window", builder.opening(), peer.opening());
    print("check all", builder.click("cmdTreeViewCheckAll"), peer.checkAll());
    print("insert the checked", builder.click("cmdTreeViewChecked"), peer.insertChecked());
    print("select all", builder.click("cmdListSelectAll"), peer.selectAll());
    builder.click("cmdClearMemberList");
    print("insert the selected", builder.click("cmdListSelected"), peer.insertSelected());
}

void measureMore(modGlobal global, const char *shape, qint32 members)
{
    Builder builder(global);
    std::printf("\n%s, %d members\n", shape, members);
    print("open the window", builder.opening());
    print("check all", builder.click("cmdTreeViewCheckAll"));
    print("open every node", builder.openEveryNode());
    print("uncheck all, all open", builder.click("cmdTreeViewUncheckAll"));
    builder.click("cmdListSelectAll");
    print("insert the selected", builder.click("cmdListSelected"));
    builder.selectInMiddle();
    print("move one", builder.click("cmdMoveUpMemberInList"));
    print("delete one", builder.click("cmdDeleteMemberInList"));
    print("insert one more", builder.insertOneMore());
    builder.name();
    builder.click("cmdMoveUpMemberInList"); // enables the next
    print("generate", builder.click("cmdGenerateList"));
    print("clear", builder.click("cmdClearMemberList"));
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const qint32 members = argc > 1 ? application.arguments().at(1).toInt() : 30'000;
    measureBesidePeer(members);
    measureMore(openAccounts(generator::Shape::Wide, members), "below one parent", members);
    measureMore(openAccounts(generator::Shape::Chain, members), "a chain", members);
    return 0;
}
