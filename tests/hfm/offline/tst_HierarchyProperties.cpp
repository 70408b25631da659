#include "hfm/offline/Hierarchy.h"

#include <QTest>

#include <rapidcheck.h>

#include <algorithm>
#include <functional>
#include <set>

using namespace hfm;
using namespace hfm::offline;

namespace {

using Ids = std::vector<MemberId>;

/// Some members, and edges without a cycle between them: every parent stands before its children
/// in `rank`. Members may have several parents, or none, and an edge may stand twice.
struct Shape
{
    qint32 members;
    std::vector<Edge> edges;
};

rc::Gen<Shape> shapes()
{
    return rc::gen::exec([] {
        const qint32 members = *rc::gen::inRange(0, 12);
        Ids rank(static_cast<size_t>(members));
        for (MemberId id = 0; id < members; ++id)
            rank[size_t(id)] = id;
        for (size_t i = rank.size(); i > 1; --i)
            std::swap(rank[i - 1], rank[*rc::gen::inRange<size_t>(0, i)]);
        std::vector<Edge> edges;
        const int count = members ? *rc::gen::inRange(0, 30) : 0;
        for (int i = 0; i < count; ++i) {
            const int child = *rc::gen::inRange(0, members);
            const int parent = *rc::gen::inRange(-1, child);
            edges.push_back({parent < 0 ? rootMember : rank[size_t(parent)], rank[size_t(child)]});
        }
        return Shape{members, edges};
    });
}

/// The same questions answered straight from the list of edges, by recursion.
class Reference
{
public:
    explicit Reference(const Shape &shape) : mShape(shape) {}

    Ids children(MemberId parent) const
    {
        Ids found;
        for (const Edge &edge : mShape.edges)
            if (edge.parent == parent && !contains(found, edge.child))
                found.push_back(edge.child);
        return found;
    }
    int generationsBelow(MemberId member) const
    {
        int deepest = 0;
        for (const MemberId child : children(member))
            deepest = std::max(deepest, 1 + generationsBelow(child));
        return deepest;
    }
    void occurrences(MemberId parent, Ids &parents, Ids &members) const
    {
        for (const MemberId child : children(parent)) {
            parents.push_back(parent);
            members.push_back(child);
            occurrences(child, parents, members);
        }
    }
    Ids below(MemberId top) const
    {
        Ids parents;
        Ids members;
        occurrences(top, parents, members);
        return members;
    }
    Ids baseBelow(MemberId top) const
    {
        Ids found = below(top);
        std::erase_if(found, [this](MemberId member) { return !children(member).empty(); });
        return found;
    }
    std::set<MemberId> above(MemberId member) const
    {
        std::set<MemberId> found;
        for (MemberId other = 0; other < mShape.members; ++other)
            if (contains(below(other), member))
                found.insert(other);
        return found;
    }
    std::set<MemberId> parents(MemberId member) const
    {
        std::set<MemberId> found;
        for (const Edge &edge : mShape.edges)
            if (edge.child == member)
                found.insert(edge.parent);
        return found;
    }

    static bool contains(const Ids &ids, MemberId id)
    {
        return std::find(ids.begin(), ids.end(), id) != ids.end();
    }
    static Ids once(const Ids &ids)
    {
        Ids found;
        for (const MemberId id : ids)
            if (!contains(found, id))
                found.push_back(id);
        return found;
    }

private:
    const Shape &mShape;
};

template <typename List>
Ids ids(const List &list)
{
    return Ids(list.begin(), list.end());
}

template <typename List>
std::set<MemberId> asSet(const List &list)
{
    return std::set<MemberId>(list.begin(), list.end());
}

/// Whether the members of `list` that have a node stand in it in tree order, before the others.
bool inTreeOrder(const Ids &list, const Ids &treeOrder)
{
    const auto place = [&](MemberId id) {
        return id == rootMember
                   ? -1
                   : std::find(treeOrder.begin(), treeOrder.end(), id) - treeOrder.begin();
    };
    return std::is_sorted(list.begin(), list.end(), [&](MemberId left, MemberId right) {
        return place(left) < place(right);
    });
}

void compareBelow(const Hierarchy &tree, const Reference &reference, MemberId top)
{
    const Ids below = reference.below(top);
    const Ids base = reference.baseBelow(top);
    RC_ASSERT(ids(tree.children(top)) == reference.children(top));
    RC_ASSERT(tree.generationsBelow(top) == reference.generationsBelow(top));
    RC_ASSERT(tree.occurrencesBelow(top) == qint64(below.size()));
    RC_ASSERT(ids(tree.membersBelow(top, EveryOccurrence)) == below);
    RC_ASSERT(ids(tree.membersBelow(top, EachMemberOnce)) == Reference::once(below));
    RC_ASSERT(ids(tree.baseMembersBelow(top, EveryOccurrence)) == base);
    RC_ASSERT(ids(tree.baseMembersBelow(top, EachMemberOnce)) == Reference::once(base));
}

void compare(const Shape &shape)
{
    HierarchyFaults faults;
    const Hierarchy tree(shape.members, shape.edges, faults);
    const Reference reference(shape);
    RC_ASSERT(faults.cycle.empty());

    Ids parents;
    Ids members;
    reference.occurrences(rootMember, parents, members);
    const Occurrences found = tree.occurrences();
    RC_ASSERT(ids(found.parents) == parents);
    RC_ASSERT(ids(found.members) == members);
    const Ids order = ids(tree.treeOrder());

    for (MemberId member = rootMember; member < shape.members; ++member)
        compareBelow(tree, reference, member);
    for (MemberId member = 0; member < shape.members; ++member) {
        RC_ASSERT(tree.hasNode(member) == Reference::contains(members, member));
        RC_ASSERT(asSet(tree.parents(member)) == reference.parents(member));
        RC_ASSERT(tree.parents(member).size() == reference.parents(member).size());
        RC_ASSERT(inTreeOrder(ids(tree.parents(member)), order));
        RC_ASSERT(asSet(tree.ancestors(member)) == reference.above(member));
        RC_ASSERT(inTreeOrder(ids(tree.ancestors(member)), order));
    }
}

/// Whether each member of `cycle` is a parent of the next, and the last of the first.
bool isCycle(const Ids &cycle, const std::vector<Edge> &edges)
{
    for (size_t i = 0; i < cycle.size(); ++i) {
        const MemberId child = cycle[(i + 1) % cycle.size()];
        if (std::none_of(edges.begin(), edges.end(), [&](const Edge &edge) {
                return edge.parent == cycle[i] && edge.child == child;
            }))
            return false;
    }
    return !cycle.empty();
}

} // namespace

class tst_HierarchyProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyHierarchyAnswersAsTheListOfItsEdges()
    {
        QVERIFY(rc::check([] { compare(*shapes()); }));
    }

    void anyEdgeFromBelowUpwardsIsACycle()
    {
        QVERIFY(rc::check([] {
            Shape shape = *shapes();
            const Reference reference(shape);
            RC_PRE(shape.members > 0);
            const MemberId child = *rc::gen::inRange(0, shape.members);
            Ids below = reference.below(child);
            below.push_back(child);
            const MemberId parent = below[*rc::gen::inRange<size_t>(0, below.size())];
            const size_t place = *rc::gen::inRange<size_t>(0, shape.edges.size() + 1);
            shape.edges.insert(shape.edges.begin() + qint64(place), {parent, child});

            HierarchyFaults faults;
            const Hierarchy tree(shape.members, shape.edges, faults);
            RC_ASSERT(isCycle(faults.cycle, shape.edges));
            RC_ASSERT(!isCycle(faults.cycle,
                               {shape.edges.begin(), shape.edges.begin() + faults.cycleEdge}));
            RC_ASSERT(isCycle(faults.cycle,
                              {shape.edges.begin(), shape.edges.begin() + faults.cycleEdge + 1}));
        }));
    }
};

QTEST_APPLESS_MAIN(tst_HierarchyProperties)
#include "tst_HierarchyProperties.moc"
