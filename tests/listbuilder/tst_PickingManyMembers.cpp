#include "BuilderWindow.h"
#include "shell/frmDeepTreeView.h"

#include <QScrollBar>

using namespace Qt::StringLiterals;

/// Moving members of large dimensions into the new list.
class tst_PickingManyMembers : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<BuilderWindow> mBuilder;

    QStringList newList() const { return mBuilder->rows("lstMemberList"); }
    QModelIndex node(std::initializer_list<int> rows) const { return mBuilder->node(rows); }

    /// A dimension of so many members below one.
    void openLarge(int members)
    {
        mBuilder = std::make_unique<BuilderWindow>(u"Top"_s);
        for (int i = 1; i < members; ++i)
            mBuilder->account().members().add(0, u"M%1|Member %1"_s.arg(i));
        mBuilder->open();
    }

    /// A dimension of so many members, each below the one before: Top, 1, 2, ...
    void openChain(int members)
    {
        mBuilder = std::make_unique<BuilderWindow>(u"Top"_s);
        hfm::MemberId parent = 0;
        for (int i = 1; i < members; ++i)
            parent = mBuilder->account().members().add(parent, QString::number(i));
        mBuilder->open();
    }

private Q_SLOTS:
    void cleanup() { mBuilder.reset(); }

    void everyMemberOfTheLargestDimensionIsCheckedSelectedAndInserted()
    {
        openLarge(32'767);
        mBuilder->click("cmdTreeViewCheckAll");
        mBuilder->click("cmdTreeViewChecked");
        QCOMPARE(newList().size(), 32'767);
        mBuilder->click("cmdListSelectAll");
        mBuilder->click("cmdListSelected");
        QCOMPARE(newList().size(), 2 * 32'767);
        QCOMPARE(newList().constLast(), u"M32766"_s);
        QVERIFY(mBuilder->fake.prompts.asked.isEmpty());
    }

    void aChainAsDeepAsThereCanBeIsOpenedForTenThousandLevels()
    {
        openChain(32'767);
        mBuilder->tree()->setCurrentIndex(node({0}));
        mBuilder->key("trvMembers", Qt::Key_Asterisk);
        QModelIndex deepest = node({0});
        for (int level = 1; level <= DeepTreeView::deepestExpansion; ++level) {
            QVERIFY(mBuilder->tree()->isExpanded(deepest));
            deepest = deepest.model()->index(0, 0, deepest);
        }
        QCOMPARE(deepest.data().toString(), u"10000 - "_s);
        QVERIFY(!mBuilder->tree()->isExpanded(deepest));
        mBuilder->window->grab();
    }

    void aNodeBelowThoseLevelsIsOpenedOneByOne()
    {
        openChain(11'000);
        mBuilder->tree()->setCurrentIndex(node({0}));
        mBuilder->key("trvMembers", Qt::Key_Asterisk);
        mBuilder->key("trvMembers", Qt::Key_End);
        const QModelIndex last = mBuilder->tree()->currentIndex();
        QCOMPARE(last.data().toString(), u"10000 - "_s);
        mBuilder->key("trvMembers", Qt::Key_Right);
        QVERIFY(mBuilder->tree()->isExpanded(last));
        mBuilder->key("trvMembers", Qt::Key_Down);
        mBuilder->key("trvMembers", Qt::Key_Space);
        mBuilder->click("cmdTreeViewChecked");
        QCOMPARE(newList(), QStringList{u"10001"_s});
    }

    void checkAllReachesTheWholeOfAChainAsDeepAsThereCanBe()
    {
        openChain(32'767);
        mBuilder->click("cmdTreeViewCheckAll");
        mBuilder->click("cmdTreeViewChecked");
        QCOMPARE(newList().size(), 32'767);
        QCOMPARE(newList().constLast(), u"32766"_s);
    }

    void insertKeepsTheScrollPositions()
    {
        openLarge(2000);
        mBuilder->tree()->expandAll();
        mBuilder->click("cmdListSelectAll");
        mBuilder->click("cmdListSelected");
        mBuilder->click("cmdListDeselectAll");
        mBuilder->select("lstMetadata", 3);
        mBuilder->check(node({0, 2}));
        const QList<QScrollBar *> bars = {mBuilder->tree()->verticalScrollBar(),
                                          mBuilder->list("lstMetadata")->verticalScrollBar(),
                                          mBuilder->list("lstMemberList")->verticalScrollBar()};
        QList<int> places;
        for (QScrollBar *bar : bars) {
            QVERIFY(bar->maximum() > 0);
            bar->setValue(bar->maximum() / 2);
            places.append(bar->value());
        }
        mBuilder->click("cmdListSelected");
        mBuilder->click("cmdTreeViewChecked");
        QCOMPARE(newList().size(), 2002);
        mBuilder->window->grab();
        for (qsizetype i = 0; i < bars.size(); ++i)
            QCOMPARE(bars[i]->value(), places[i]);
    }

    void checkAllAndSelectAllKeepTheScrollPositions()
    {
        openLarge(2000);
        mBuilder->tree()->expandAll();
        QScrollBar *const nodes = mBuilder->tree()->verticalScrollBar();
        QScrollBar *const rows = mBuilder->list("lstMetadata")->verticalScrollBar();
        nodes->setValue(nodes->maximum() / 2);
        rows->setValue(rows->maximum() / 2);
        const int node = nodes->value();
        const int row = rows->value();
        QVERIFY(node > 0 && row > 0);
        for (const char *button : {"cmdTreeViewCheckAll", "cmdTreeViewUncheckAll",
                                   "cmdListSelectAll", "cmdListDeselectAll"}) {
            mBuilder->click(button);
            mBuilder->window->grab();
            QCOMPARE(nodes->value(), node);
            QCOMPARE(rows->value(), row);
        }
    }
};

QTEST_MAIN(tst_PickingManyMembers)
#include "tst_PickingManyMembers.moc"
