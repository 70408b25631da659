#include "hfm/offline/SystemLists.h"

#include <QTest>

using namespace hfm;
using namespace hfm::offline;
using namespace Qt::Literals::StringLiterals;

namespace {

using Ids = QList<MemberId>;

Hierarchy make(qint32 members, const std::vector<Edge> &edges)
{
    HierarchyFaults faults;
    return Hierarchy(members, edges, faults);
}

/// 0 GROUP (1 EAST (3, 4), 2 WEST (5, 4)), 6 LEGAL (1 EAST, 8); 7 has no node.
Hierarchy entities()
{
    return make(9,
                {{-1, 0}, {0, 1}, {0, 2}, {1, 3}, {1, 4}, {2, 5}, {2, 4}, {-1, 6}, {6, 1}, {6, 8}});
}

/// A chain of so many generations.
Hierarchy chain(qint32 generations)
{
    std::vector<Edge> edges;
    for (MemberId id = 0; id < generations; ++id)
        edges.push_back({id - 1, id});
    return make(generations, edges);
}

Ids members(const SystemLists &lists, const Hierarchy &hierarchy, const QString &name,
            MemberId top = rootMember)
{
    return lists.members(lists.find(name).value(), hierarchy, top);
}

} // namespace

class tst_SystemLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachDimensionHasItsListsInOrder_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QStringList>("names");
        const QStringList both = {u"[Hierarchy]"_s, u"[Descendants]"_s};
        const QStringList all =
            both + QStringList{u"[Ancestors]"_s, u"[Base]"_s, u"[Children]"_s, u"[Parents]"_s};
        const auto row = [](DimensionKind kind, const QStringList &names) {
            QTest::newRow(dimensionName(kind).data()) << int(kind) << names;
        };
        row(DimensionKind::Scenario, both);
        row(DimensionKind::Year, both);
        row(DimensionKind::Period,
            both + QStringList{u"[Ancestors]"_s, u"[Children]"_s, u"[Parents]"_s,
                               u"[First Generation]"_s, u"[Second Generation]"_s,
                               u"[Third Generation]"_s});
        row(DimensionKind::View, both);
        row(DimensionKind::Entity,
            all + QStringList{u"[Adjustment Entities]"_s, u"[Parent Adjustment Entities]"_s});
        row(DimensionKind::Value, both + QStringList{u"[Adjustments]"_s, u"[Default Currencies]"_s,
                                                     u"[Inputs]"_s, u"[Totals]"_s});
        row(DimensionKind::Account, all + QStringList{u"[System]"_s});
        row(DimensionKind::ICP, all + QStringList{u"[System]"_s});
        row(DimensionKind::Custom1, all + QStringList{u"[Currencies]"_s, u"[ConsolMethods]"_s});
        row(DimensionKind::Custom2, all + QStringList{u"[Currencies]"_s});
        row(DimensionKind::Custom3, all);
        row(DimensionKind::Custom4, all);
    }

    void eachDimensionHasItsListsInOrder()
    {
        QFETCH(int, kind);
        QFETCH(QStringList, names);
        QCOMPARE(SystemLists(DimensionKind(kind), chain(3)).names(), names);
    }

    void generationListsGoAsDeepAsThePeriodsDoAndToSixAtMost()
    {
        const auto count = [](qint32 generations) {
            return SystemLists(DimensionKind::Period, chain(generations)).names().size() - 5;
        };
        QCOMPARE(count(0), 0);
        QCOMPARE(count(1), 1);
        QCOMPARE(count(6), 6);
        QCOMPARE(count(7), 6);
        QCOMPARE(SystemLists(DimensionKind::Period, chain(7)).names().last(),
                 u"[Sixth Generation]"_s);
    }

    void idsCountDownFromMinusOne()
    {
        const SystemLists lists(DimensionKind::Account, chain(1));
        QCOMPARE(lists.find(u"[Hierarchy]"_s), ListId(-1));
        QCOMPARE(lists.find(u"[Descendants]"_s), ListId(-2));
        QCOMPARE(lists.find(u"[System]"_s), ListId(-7));
        QVERIFY(lists.contains(-7));
        QVERIFY(!lists.contains(-8));
        QVERIFY(!lists.contains(0));
        QVERIFY(!lists.contains(1));
    }

    void namesAreFoundInAnyLetterCase()
    {
        const SystemLists lists(DimensionKind::Account, chain(1));
        QCOMPARE(lists.find(u"[sYSTEM]"_s), ListId(-7));
        QCOMPARE(lists.find(u"System"_s), std::nullopt);
        QCOMPARE(lists.find(u"[Currencies]"_s), std::nullopt);
    }

    void withoutATopMemberListsAreOfTheWholeDimension()
    {
        const Hierarchy tree = entities();
        const SystemLists lists(DimensionKind::Entity, tree);
        const Ids order = {0, 1, 3, 4, 2, 5, 6, 8};
        QCOMPARE(members(lists, tree, u"[Hierarchy]"_s), order);
        QCOMPARE(members(lists, tree, u"[Descendants]"_s), order);
        QCOMPARE(members(lists, tree, u"[Base]"_s), Ids({3, 4, 5, 8}));
        QCOMPARE(members(lists, tree, u"[Children]"_s), Ids({0, 6}));
        QCOMPARE(members(lists, tree, u"[Parents]"_s), Ids());
        QCOMPARE(members(lists, tree, u"[Ancestors]"_s), Ids());
    }

    void belowATopMemberListsAreThoseOfThatMember()
    {
        const Hierarchy tree = entities();
        const SystemLists lists(DimensionKind::Entity, tree);
        QCOMPARE(members(lists, tree, u"[Hierarchy]"_s, 2), Ids({5, 4}));
        QCOMPARE(members(lists, tree, u"[Descendants]"_s, 0), Ids({1, 3, 4, 2, 5}));
        QCOMPARE(members(lists, tree, u"[Base]"_s, 6), Ids({3, 4, 8}));
        QCOMPARE(members(lists, tree, u"[Children]"_s, 0), Ids({1, 2}));
        QCOMPARE(members(lists, tree, u"[Parents]"_s, 1), Ids({0, 6}));
        QCOMPARE(members(lists, tree, u"[Parents]"_s, 4), Ids({1, 2}));
        QCOMPARE(members(lists, tree, u"[Parents]"_s, 6), Ids());
        QCOMPARE(members(lists, tree, u"[Ancestors]"_s, 4), Ids({0, 1, 2, 6}));
        QCOMPARE(members(lists, tree, u"[Children]"_s, 4), Ids());
    }

    void aTopMemberThatIsNoMemberRestrictsNothing()
    {
        const Hierarchy tree = entities();
        const SystemLists lists(DimensionKind::Entity, tree,
                                {{SystemList::AdjustmentEntities, {4}}});
        for (const MemberId top : {-2, -7, 9, 1000000}) {
            QCOMPARE(members(lists, tree, u"[Children]"_s, top), Ids({0, 6}));
            QCOMPARE(members(lists, tree, u"[Adjustment Entities]"_s, top), Ids({4}));
        }
    }

    void givenMembersComeOnceInTreeOrderAndWithoutANodeLast()
    {
        const Hierarchy tree = entities();
        const SystemLists lists(DimensionKind::Entity, tree,
                                {{SystemList::AdjustmentEntities, {7, 8, 2, 4, 2}}});
        QCOMPARE(members(lists, tree, u"[Adjustment Entities]"_s), Ids({4, 2, 8, 7}));
        QCOMPARE(members(lists, tree, u"[Parent Adjustment Entities]"_s), Ids());
    }

    void givenMembersAreNarrowedToThoseBelowTheTopMember()
    {
        const Hierarchy tree = entities();
        const SystemLists lists(DimensionKind::Entity, tree,
                                {{SystemList::ParentAdjustmentEntities, {0, 4, 5, 7, 8}}});
        QCOMPARE(members(lists, tree, u"[Parent Adjustment Entities]"_s, 2), Ids({5, 4}));
        QCOMPARE(members(lists, tree, u"[Parent Adjustment Entities]"_s, 0), Ids({4, 5}));
        QCOMPARE(members(lists, tree, u"[Parent Adjustment Entities]"_s, 3), Ids());
    }

    void aGenerationHoldsTheMembersThatStandSoDeep()
    {
        // 0 (1 (3, 4), 2 (5)), 6 (4): 4 stands in the second and in the third generation.
        const Hierarchy tree =
            make(7, {{-1, 0}, {0, 1}, {0, 2}, {1, 3}, {1, 4}, {2, 5}, {-1, 6}, {6, 4}});
        const SystemLists lists(DimensionKind::Period, tree);
        QCOMPARE(members(lists, tree, u"[First Generation]"_s), Ids({0, 6}));
        QCOMPARE(members(lists, tree, u"[Second Generation]"_s), Ids({1, 2, 4}));
        QCOMPARE(members(lists, tree, u"[Third Generation]"_s), Ids({3, 4, 5}));
        QCOMPARE(members(lists, tree, u"[Third Generation]"_s, 2), Ids({5}));
        QCOMPARE(members(lists, tree, u"[Second Generation]"_s, 0), Ids({1, 4, 2}));
        QCOMPARE(members(lists, tree, u"[First Generation]"_s, 0), Ids());
    }

    void ofADimensionWithoutMembersEveryListIsEmpty()
    {
        const Hierarchy empty;
        for (const DimensionKind kind : allDimensionKinds) {
            const SystemLists lists(kind, empty);
            QVERIFY(!lists.names().isEmpty());
            for (const QString &name : lists.names())
                QCOMPARE(members(lists, empty, name), Ids());
        }
    }
};

QTEST_APPLESS_MAIN(tst_SystemLists)
#include "tst_SystemLists.moc"
