#include "hfm/offline/Hierarchy.h"

#include "runtime/RuntimeError.h"

#include <QTest>

using namespace hfm;
using namespace hfm::offline;

namespace {

using Ids = QList<MemberId>;

Ids list(std::span<const MemberId> ids)
{
    return Ids(ids.begin(), ids.end());
}

Hierarchy make(qint32 members, const std::vector<Edge> &edges)
{
    HierarchyFaults faults;
    return Hierarchy(members, edges, faults);
}

/// 0 GROUP (1 EAST (3, 4), 2 WEST (4, 5)), 6 LEGAL (1 EAST); 7 has no node.
Hierarchy sharedParent()
{
    return make(8, {{-1, 0}, {0, 1}, {1, 3}, {0, 2}, {1, 4}, {2, 4}, {-1, 6}, {2, 5}, {6, 1}});
}

/// A chain of `members` members, each the only child of the one before.
Hierarchy chain(qint32 members)
{
    std::vector<Edge> edges;
    for (MemberId id = 0; id < members; ++id)
        edges.push_back({id - 1, id});
    return make(members, edges);
}

/// `levels` pairs of members, both of each pair below both of the pair above: 2^levels
/// occurrences in the last.
Hierarchy lattice(qint32 levels)
{
    std::vector<Edge> edges = {{-1, 0}, {-1, 1}};
    for (MemberId above = 0; above < 2 * (levels - 1); above += 2)
        for (const MemberId parent : {above, above + 1})
            for (const MemberId child : {above + 2, above + 3})
                edges.push_back({parent, child});
    return make(2 * levels, edges);
}

template <typename Call>
qint32 errorOf(Call call)
{
    try {
        call();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}

} // namespace

class tst_Hierarchy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutMembersEverythingIsEmpty()
    {
        const Hierarchy empty;
        QCOMPARE(empty.memberCount(), 0);
        QCOMPARE(list(empty.children(rootMember)), Ids());
        QCOMPARE(empty.generationsBelow(rootMember), 0);
        QCOMPARE(empty.treeOrder(), Ids());
        QCOMPARE(empty.occurrences().members, Ids());
        QCOMPARE(make(0, {}).treeOrder(), Ids());
    }

    void edgesInFileOrderAreSiblingsInOrder()
    {
        const Hierarchy tree = sharedParent();
        QCOMPARE(list(tree.children(rootMember)), Ids({0, 6}));
        QCOMPARE(list(tree.children(0)), Ids({1, 2}));
        QCOMPARE(list(tree.children(1)), Ids({3, 4}));
        QCOMPARE(list(tree.children(2)), Ids({4, 5}));
        QCOMPARE(tree.childCount(2), 2);
        QVERIFY(tree.hasChildren(6));
        QVERIFY(!tree.hasChildren(3));
    }

    void occurrencesRepeatWhatIsBelowASharedParent()
    {
        const Occurrences found = sharedParent().occurrences();
        QCOMPARE(found.members, Ids({0, 1, 3, 4, 2, 4, 5, 6, 1, 3, 4}));
        QCOMPARE(found.parents, Ids({-1, 0, 1, 1, 0, 2, 2, -1, 6, 1, 1}));
    }

    void membersBelowLeaveOutTheTopMember()
    {
        const Hierarchy tree = sharedParent();
        QCOMPARE(tree.membersBelow(0, EveryOccurrence), Ids({1, 3, 4, 2, 4, 5}));
        QCOMPARE(tree.membersBelow(0, EachMemberOnce), Ids({1, 3, 4, 2, 5}));
        QCOMPARE(tree.membersBelow(5, EveryOccurrence), Ids());
    }

    void baseMembersAreTheChildlessOnes()
    {
        const Hierarchy tree = sharedParent();
        QCOMPARE(tree.baseMembersBelow(rootMember, EveryOccurrence), Ids({3, 4, 4, 5, 3, 4}));
        QCOMPARE(tree.baseMembersBelow(rootMember, EachMemberOnce), Ids({3, 4, 5}));
        QCOMPARE(tree.baseMembersBelow(2, EachMemberOnce), Ids({4, 5}));
        QCOMPARE(tree.baseMembersBelow(4, EachMemberOnce), Ids());
    }

    void aMemberWithoutANodeHasNoPlaceInTheTreeOrder()
    {
        const Hierarchy tree = sharedParent();
        QCOMPARE(tree.treeOrder(), Ids({0, 1, 3, 4, 2, 5, 6}));
        QVERIFY(!tree.hasNode(7));
        QVERIFY(tree.hasNode(6));
        QCOMPARE(list(tree.parents(7)), Ids());
    }

    void aMemberWithoutANodeKeepsWhatIsBelowIt()
    {
        const Hierarchy tree = make(3, {{-1, 2}, {1, 0}, {1, 2}});
        QCOMPARE(tree.treeOrder(), Ids({2}));
        QVERIFY(!tree.hasNode(0));
        QCOMPARE(tree.membersBelow(1, EveryOccurrence), Ids({0, 2}));
        QCOMPARE(tree.generationsBelow(1), 1);
        QCOMPARE(list(tree.parents(2)), Ids({-1, 1}));
        QCOMPARE(tree.ancestors(2), Ids({1}));
    }

    void generationsBelowAreThoseOfTheLongestWay()
    {
        // 0 (1, 2 (3 (1)))
        const Hierarchy tree = make(4, {{-1, 0}, {0, 1}, {0, 2}, {2, 3}, {3, 1}});
        QCOMPARE(tree.generationsBelow(0), 3);
        QCOMPARE(tree.generationsBelow(2), 2);
        QCOMPARE(tree.generationsBelow(1), 0);
        QCOMPARE(tree.generationsBelow(rootMember), 4);
    }

    void parentsAndAncestorsAreInTreeOrder()
    {
        // The edges name LEGAL's part first; the tree has GROUP first.
        const Hierarchy tree = make(5, {{4, 2}, {1, 2}, {-1, 0}, {-1, 4}, {0, 1}, {-1, 2}, {2, 3}});
        QCOMPARE(list(tree.parents(2)), Ids({-1, 1, 4}));
        QCOMPARE(tree.ancestors(3), Ids({0, 1, 2, 4}));
        QCOMPARE(tree.ancestors(0), Ids());
        QCOMPARE(tree.ancestors(rootMember), Ids());
    }

    void theSameParentAndChildTwiceAreOneNode()
    {
        HierarchyFaults faults;
        const Hierarchy tree(
            3, std::vector<Edge>({{-1, 0}, {0, 1}, {-1, 0}, {0, 2}, {0, 1}, {0, 1}}), faults);
        QCOMPARE(list(tree.children(rootMember)), Ids({0}));
        QCOMPARE(list(tree.children(0)), Ids({1, 2}));
        QCOMPARE(faults.repeatedEdges, std::vector<qsizetype>({2, 4, 5}));
        QVERIFY(faults.cycle.empty());
        QCOMPARE(faults.cycleEdge, -1);
    }

    void aCycleIsFoundWithItsMembersAndTheEdgeThatClosesIt()
    {
        HierarchyFaults faults;
        const Hierarchy tree(
            5, std::vector<Edge>({{-1, 0}, {0, 1}, {3, 1}, {1, 2}, {2, 3}, {3, 4}, {1, 2}}),
            faults);
        QCOMPARE(faults.cycle, std::vector<MemberId>({1, 2, 3}));
        QCOMPARE(faults.cycleEdge, 4);
        QCOMPARE(tree.memberCount(), 5);
        QCOMPARE(tree.treeOrder(), Ids());
        QCOMPARE(list(tree.parents(1)), Ids());
    }

    void aCycleThatNothingLeadsToIsFound()
    {
        HierarchyFaults faults;
        Hierarchy(4, std::vector<Edge>({{-1, 0}, {2, 1}, {1, 2}}), faults);
        QCOMPARE(faults.cycle, std::vector<MemberId>({1, 2}));
        QCOMPARE(faults.cycleEdge, 2);
    }

    void aMemberBelowItselfIsACycle()
    {
        HierarchyFaults faults;
        Hierarchy(1, std::vector<Edge>({{-1, 0}, {0, 0}}), faults);
        QCOMPARE(faults.cycle, std::vector<MemberId>({0}));
        QCOMPARE(faults.cycleEdge, 1);
    }

    void aChainOfAMillionMembersIsWalked()
    {
        const qint32 members = 1000000;
        const Hierarchy tree = chain(members);
        QCOMPARE(tree.generationsBelow(rootMember), members);
        QCOMPARE(tree.occurrences().members.size(), members);
        QCOMPARE(tree.membersBelow(0, EachMemberOnce).size(), members - 1);
        QCOMPARE(tree.baseMembersBelow(0, EveryOccurrence), Ids({members - 1}));
        QCOMPARE(tree.ancestors(members - 1).size(), members - 1);
        QCOMPARE(tree.ancestors(members - 1).first(), 0);
    }

    void aCycleOfAMillionMembersIsFound()
    {
        const qint32 members = 1000000;
        std::vector<Edge> edges;
        for (MemberId id = 0; id < members; ++id)
            edges.push_back({id, (id + 1) % members});
        HierarchyFaults faults;
        Hierarchy(members, edges, faults);
        QCOMPARE(faults.cycle.size(), size_t(members));
        QCOMPARE(faults.cycle.front(), 0);
        QCOMPARE(faults.cycleEdge, members - 1);
    }

    void moreOccurrencesThanMemoryHasRoomForFailBeforeTheyAreMade()
    {
        const Hierarchy tree = lattice(200);
        QCOMPARE(tree.occurrencesBelow(rootMember), Hierarchy::maximumEntries + 1);
        QCOMPARE(errorOf([&] { tree.occurrences(); }), OutOfMemory);
        QCOMPARE(errorOf([&] { tree.membersBelow(0, EveryOccurrence); }), OutOfMemory);
        QCOMPARE(errorOf([&] { tree.baseMembersBelow(rootMember, EveryOccurrence); }), OutOfMemory);
    }

    void theSameMembersOnceEachAreNotTooMany()
    {
        const Hierarchy tree = lattice(200);
        QCOMPARE(tree.treeOrder().size(), 400);
        QCOMPARE(tree.treeOrder().first(3), Ids({0, 2, 4}));
        QCOMPARE(tree.baseMembersBelow(0, EachMemberOnce), Ids({398, 399}));
        QCOMPARE(tree.occurrencesBelow(398), 0);
        QCOMPARE(tree.occurrencesBelow(396), 2);
        QCOMPARE(tree.occurrencesBelow(394), 6);
    }
};

QTEST_APPLESS_MAIN(tst_Hierarchy)
#include "tst_Hierarchy.moc"
