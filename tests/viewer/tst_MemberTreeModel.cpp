#include "support/FakeHfm.h"
#include "viewer/MemberTreeModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

using Tree = std::shared_ptr<const MemberTree>;

Tree treeOf(FakeDimension &dimension)
{
    MemberPaths paths;
    paths.read(dimension);
    auto tree = std::make_shared<MemberTree>();
    tree->build(paths, [&](hfm::MemberId member) {
        return dimension.GetMemberLabel(member) + u" - "_s +
               dimension.GetMemberDescription(member, 0);
    });
    return tree;
}

Tree treeOf(const QString &outline)
{
    FakeHfm hfm;
    hfm.application().account().setMembers(outline);
    return treeOf(hfm.application().account());
}

/// `count` members, each the child of the one `count / divisor` places before it, or so.
Tree treeOfSize(int count, int divisor)
{
    FakeHfm hfm;
    FakeMembers members;
    for (int i = 0; i < count; ++i)
        members.add(i < divisor ? hfm::rootMember : i / divisor - 1, QString::number(i));
    hfm.application().account().members() = std::move(members);
    return treeOf(hfm.application().account());
}

/// Walks everything the model shows and asks about each index and its neighbours.
int checkedNodes(const MemberTreeModel &model)
{
    int seen = 0;
    std::vector<QModelIndex> open = {QModelIndex()};
    while (!open.empty()) {
        const QModelIndex parent = open.back();
        open.pop_back();
        const int rows = model.rowCount(parent);
        bool ok = !model.index(-1, 0, parent).isValid() &&
                  !model.index(rows, 0, parent).isValid() && !model.index(0, 1, parent).isValid() &&
                  !model.index(0, -1, parent).isValid() &&
                  model.hasChildren(parent) == (rows > 0) && model.columnCount(parent) == 1;
        for (int row = 0; row < rows; ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            const bool isLeaf = model.rowCount(index) == 0;
            ok = ok && index.isValid() && index.row() == row && model.parent(index) == parent &&
                 model.indexOf(model.node(index)) == index &&
                 model.flags(index).testFlag(Qt::ItemNeverHasChildren) == isLeaf;
            ++seen;
            open.push_back(index);
        }
        if (!ok)
            return -1;
    }
    return seen;
}

} // namespace

class tst_MemberTreeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutATreeThereIsNothing()
    {
        MemberTreeModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(!model.hasChildren());
        QVERIFY(!model.index(0, 0).isValid());
        QCOMPARE(checkedNodes(model), 0);
    }

    void itIsAProperModelAtEverySize_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("divisor");
        QTest::newRow("nothing") << 0 << 3;
        QTest::newRow("one") << 1 << 3;
        QTest::newRow("two") << 2 << 1;
        QTest::newRow("ten") << 10 << 3;
        QTest::newRow("flat") << 1000 << 1000;
        QTest::newRow("chain") << 1000 << 1;
        QTest::newRow("thousand") << 1000 << 7;
        QTest::newRow("hundred thousand") << 100'000 << 10;
    }
    void itIsAProperModelAtEverySize()
    {
        QFETCH(int, count);
        QFETCH(int, divisor);
        const Tree tree = treeOfSize(count, divisor);
        MemberTreeModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.show(tree);
        QCOMPARE(checkedNodes(model), count);
        if (count == 0)
            return;
        model.show(tree, count / 2);
        QCOMPARE(model.rowCount(), 1);
        QVERIFY(checkedNodes(model) > 0);
        model.show(tree, count - 1);
        QCOMPARE(checkedNodes(model), 1);
        model.show(nullptr);
        QCOMPARE(checkedNodes(model), 0);
    }

    void aChainDeeperThanAnyStackIsAProperModel()
    {
        FakeHfm hfm;
        FakeMembers chain;
        for (int i = 0; i < 200'000; ++i)
            chain.add(i - 1, QString::number(i));
        hfm.application().account().members() = std::move(chain);
        MemberTreeModel model;
        model.show(treeOf(hfm.application().account()));
        QCOMPARE(checkedNodes(model), 200'000);
    }

    void aNodeShowsItsText()
    {
        MemberTreeModel model;
        model.show(treeOf(u"A|one\n  B|two"_s));
        const QModelIndex a = model.index(0, 0);
        const QModelIndex b = model.index(0, 0, a);
        QCOMPARE(a.data().toString(), u"A - one"_s);
        QCOMPARE(b.data().toString(), u"B - two"_s);
        QCOMPARE(b.data(MemberTreeModel::KeyRole).toString(), u"KEY1"_s);
        QCOMPARE(b.data(MemberTreeModel::TagRole).toString(), u"0_A#1_B"_s);
        QCOMPARE(b.data(MemberTreeModel::LevelRole).toInt(), 2);
        QVERIFY(!model.data(QModelIndex(), Qt::DisplayRole).isValid());
        QVERIFY(!b.data(Qt::DecorationRole).isValid());
    }

    void aNodeIsSpokenWithLabelLevelAndPosition()
    {
        MemberTreeModel model;
        model.show(treeOf(u"A|one\n  B|two\n  100%2 C|three"_s));
        const QModelIndex c = model.index(1, 0, model.index(0, 0));
        QCOMPARE(c.data(Qt::AccessibleTextRole).toString(), u"100%2 C, level 2, 2 of 2"_s);
        QCOMPARE(c.data(Qt::AccessibleDescriptionRole).toString(), u"100%2 C - three"_s);
        model.show(model.tree(), 2);
        QCOMPARE(model.index(0, 0).data(Qt::AccessibleTextRole).toString(),
                 u"100%2 C, level 1, 1 of 1"_s);
    }

    void aLabelIsNoMarkupInATooltip()
    {
        MemberTreeModel model;
        model.show(treeOf(u"<b>A|x & y"_s));
        QVERIFY(model.index(0, 0)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .contains(u"&lt;b&gt;A - x &amp; y"_s));
    }

    void aTopMemberIsTheOnlyRootWithKeysAndTagsOfTheWhole()
    {
        MemberTreeModel model;
        model.show(treeOf(u"T\n  A\n    X\n  B\n    Y\n      Z"_s), 3);
        QCOMPARE(model.rowCount(), 1);
        const QModelIndex b = model.index(0, 0);
        QCOMPARE(b.data().toString(), u"B - "_s);
        QVERIFY(!b.parent().isValid());
        const QModelIndex y = model.index(0, 0, b);
        QCOMPARE(y.data(MemberTreeModel::KeyRole).toString(), u"KEY4"_s);
        QCOMPARE(y.data(MemberTreeModel::TagRole).toString(), u"3_B#4_Y"_s);
        QCOMPARE(y.data(MemberTreeModel::LevelRole).toInt(), 2);
        QCOMPARE(y.parent(), b);
    }

    void aNewTreeResetsTheModel()
    {
        MemberTreeModel model;
        const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
        model.show(treeOf(u"A"_s));
        const QPersistentModelIndex old = model.index(0, 0);
        model.show(treeOf(u"B"_s));
        QCOMPARE(reset.size(), 2);
        QVERIFY(!old.isValid());
    }

    void textsAreJoinedInTheOrderOfTheTree()
    {
        MemberTreeModel model;
        model.show(treeOf(u"A\n  B\nC"_s));
        const QModelIndex a = model.index(0, 0);
        const QModelIndex b = model.index(0, 0, a);
        const QModelIndex c = model.index(1, 0);
        QCOMPARE(model.joinedTexts({c, a, b}), u"A - \nB - \nC - "_s);
        QCOMPARE(model.joinedTexts({b}), u"B - "_s);
        QCOMPARE(model.joinedTexts({}), QString());
    }
};

QTEST_GUILESS_MAIN(tst_MemberTreeModel)
#include "tst_MemberTreeModel.moc"
