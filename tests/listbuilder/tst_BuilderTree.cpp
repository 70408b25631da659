#include "listbuilder/BuilderTree.h"
#include "support/Errors.h"
#include "support/FakeHfm.h"

#include <QTest>

#include <random>

using namespace Qt::StringLiterals;

namespace {

/// The listing of "parent child" pairs, a parent of -1 marking a top-level member.
hfm::Occurrences listingOf(std::initializer_list<std::pair<hfm::MemberId, hfm::MemberId>> entries)
{
    hfm::Occurrences listing;
    for (const auto &[parent, member] : entries) {
        listing.parents.append(parent);
        listing.members.append(member);
    }
    return listing;
}

/// A tree as text: each node's key on a line, indented by two blanks a level.
QString printedKeys(const BuilderTree &tree)
{
    QString text;
    std::vector<std::pair<qint32, int>> open;
    const auto openChildren = [&](qint32 node, int level) {
        const std::vector<qint32> &children = tree.children(node);
        for (auto child = children.rbegin(); child != children.rend(); ++child)
            open.emplace_back(*child, level);
    };
    openChildren(BuilderTree::none, 0);
    while (!open.empty()) {
        const auto [node, level] = open.back();
        open.pop_back();
        text += QString(2 * level, u' ') + tree.key(node) + u'\n';
        openChildren(node, level + 1);
    }
    return text;
}

/// The node, searched from the latest back to the first, whose key is that of its own position and
/// `parent`.
qint32 searchedParent(const BuilderTree &tree, qint32 before, hfm::MemberId parent)
{
    for (qint32 j = before; j >= 1; --j) {
        if (tree.key(j - 1) == u"INDX%1C%2"_s.arg(j - 1).arg(parent))
            return j - 1;
    }
    return BuilderTree::none;
}

} // namespace

class tst_BuilderTree : public QObject
{
    Q_OBJECT

private:
    FakeHfm mHfm;

    FakeDimension &dimension(const QString &outline)
    {
        FakeDimension &fresh = mHfm.newApplication().account();
        fresh.setMembers(outline);
        mHfm.calls().clear();
        return fresh;
    }

    /// Ten members, 0 to 9, labelled A to J.
    FakeDimension &letters() { return dimension(u"A\nB\nC\nD\nE\nF\nG\nH\nI\nJ"_s); }

private Q_SLOTS:
    void nodesHaveTextKeyAndTag()
    {
        const BuilderTree tree = readBuilderTree(dimension(u"A|Alpha|Erste\n  B-C|Beta"_s));
        QCOMPARE(tree.count(), 2);
        QCOMPARE(tree.text(0), u"A - Alpha"_s);
        QCOMPARE(tree.tag(0), u"A"_s);
        QCOMPARE(tree.key(0), u"INDX0C0"_s);
        QCOMPARE(tree.text(1), u"B-C - Beta"_s);
        QCOMPARE(tree.tag(1), u"B-C"_s);
        QCOMPARE(tree.key(1), u"INDX1C1"_s);
        QCOMPARE(tree.parent(1), 0);
        QCOMPARE(tree.row(1), 0);
    }

    void aMemberUnderTwoParentsHasTwoNodesWithDifferentKeys()
    {
        const BuilderTree tree = readBuilderTree(dimension(u"A\n  S\nB\n  S"_s));
        QCOMPARE(printedKeys(tree), u"INDX0C0\n  INDX1C1\nINDX2C2\n  INDX3C1\n"_s);
        QCOMPARE(tree.tag(1), tree.tag(3));
    }

    void childrenGoUnderTheNearestPrecedingOccurrenceOfTheirParent()
    {
        const BuilderTree tree = readBuilderTree(dimension(u"A\n  S\n    X\nB\n  S\n    X"_s));
        QCOMPARE(printedKeys(tree), u"INDX0C0\n  INDX1C1\n    INDX2C2\n"
                                    "INDX3C3\n  INDX4C1\n    INDX5C2\n"_s);
    }

    void childrenThatAreListedOnceGoUnderTheLatestOccurrence()
    {
        const BuilderTree tree(listingOf({{-1, 0}, {0, 1}, {-1, 2}, {2, 1}, {1, 3}}), letters());
        QCOMPARE(printedKeys(tree), u"INDX0C0\n  INDX1C1\nINDX2C2\n  INDX3C1\n    INDX4C3\n"_s);
    }

    void aTopLevelEntryIsATopLevelNodeWhereverItIsListed()
    {
        const BuilderTree tree(listingOf({{-1, 0}, {0, 1}, {-1, 1}, {1, 2}}), letters());
        QCOMPARE(printedKeys(tree), u"INDX0C0\n  INDX1C1\nINDX2C1\n  INDX3C2\n"_s);
    }

    void siblingsComeInTheOrderOfTheListingWhateverIsListedBetweenThem()
    {
        const BuilderTree tree(listingOf({{-1, 0}, {-1, 1}, {0, 2}, {1, 3}, {0, 4}}), letters());
        QCOMPARE(printedKeys(tree), u"INDX0C0\n  INDX2C2\n  INDX4C4\nINDX1C1\n  INDX3C3\n"_s);
        QCOMPARE(tree.row(4), 1);
    }

    void anEntryWhoseParentHasNoEarlierNodeIsLeftOutAndTheNextOneGoesOn()
    {
        const BuilderTree tree(listingOf({{-1, 0}, {5, 1}, {0, 2}, {2, 3}}), letters());
        QCOMPARE(printedKeys(tree), u"INDX0C0\n  INDX2C2\n    INDX3C3\n"_s);
        QCOMPARE(tree.count(), 3);
    }

    void whatIsBelowALeftOutEntryIsLeftOutTooUntilTheMemberHasANode()
    {
        const BuilderTree tree(listingOf({{5, 1}, {1, 2}, {-1, 1}, {1, 2}}), letters());
        QCOMPARE(printedKeys(tree), u"INDX2C1\n  INDX3C2\n"_s);
    }

    void aParentThatIsListedLaterIsNoEarlierNode()
    {
        const BuilderTree tree(listingOf({{1, 0}, {-1, 1}}), letters());
        QCOMPARE(printedKeys(tree), u"INDX1C1\n"_s);
    }

    void aMemberIsNotItsOwnParentUnlessItHasANodeAlready()
    {
        const BuilderTree tree(listingOf({{0, 0}, {-1, 1}, {1, 1}}), letters());
        QCOMPARE(printedKeys(tree), u"INDX1C1\n  INDX2C1\n"_s);
    }

    void parentsAreThoseThatASearchByKeyFinds()
    {
        std::mt19937 random(20120314);
        for (int round = 0; round < 200; ++round) {
            hfm::Occurrences listing;
            QList<hfm::MemberId> listed = {hfm::rootMember};
            for (int position = 0; position < 30; ++position) {
                listing.parents.append(listed[qsizetype(random() % size_t(listed.size()))]);
                listing.members.append(hfm::MemberId(random() % 10));
                listed.append(listing.members.last());
            }
            const BuilderTree tree(listing, letters());
            QCOMPARE(tree.count(), 30);
            for (qint32 node = 0; node < tree.count(); ++node) {
                const hfm::MemberId parent = listing.parents[node];
                QCOMPARE(tree.parent(node), parent == hfm::rootMember
                                                ? BuilderTree::none
                                                : searchedParent(tree, node, parent));
            }
        }
    }

    void aChainAsLongAsThereCanBeIsRead()
    {
        FakeDimension &account = dimension({});
        hfm::MemberId parent = hfm::rootMember;
        for (int i = 0; i < 32'767; ++i)
            parent = account.members().add(parent, QString::number(i));
        const BuilderTree tree = readBuilderTree(account);
        QCOMPARE(tree.count(), 32'767);
        QCOMPARE(tree.parent(32'766), 32'765);
    }

    void moreThan32767EntriesOverflow()
    {
        hfm::Occurrences listing;
        listing.parents.fill(hfm::rootMember, 32'768);
        listing.members.fill(0, 32'768);
        FakeDimension &account = letters();
        const auto error = errorOf([&] { BuilderTree(listing, account); });
        QVERIFY(error);
        QCOMPARE(error->number(), Overflow);
    }

    void aDimensionWithoutMembersHasNoNodes()
    {
        const BuilderTree tree = readBuilderTree(dimension({}));
        QCOMPARE(tree.count(), 0);
        QVERIFY(tree.children(BuilderTree::none).empty());
    }

    void theClientIsAskedForTheHierarchyTwiceThenForEachNodesTexts()
    {
        readBuilderTree(dimension(u"A\n  B"_s));
        QCOMPARE(mHfm.calls().made(),
                 QStringList({u"EnumHierarchy"_s, u"EnumHierarchyAux"_s, u"GetMemberLabel"_s,
                              u"GetMemberDescription"_s, u"GetMemberLabel"_s,
                              u"GetMemberDescription"_s}));
    }

    void aFailureOfTheClientIsTheTreesFailure()
    {
        for (const QLatin1StringView operation : {"EnumHierarchy"_L1, "EnumHierarchyAux"_L1,
                                                  "GetMemberLabel"_L1, "GetMemberDescription"_L1}) {
            FakeDimension &account = dimension(u"A"_s);
            mHfm.calls().fail(operation, RuntimeError(1234));
            const auto error = errorOf([&] { readBuilderTree(account); });
            QVERIFY(error);
            QCOMPARE(error->number(), 1234);
        }
    }
};

QTEST_APPLESS_MAIN(tst_BuilderTree)
#include "tst_BuilderTree.moc"
