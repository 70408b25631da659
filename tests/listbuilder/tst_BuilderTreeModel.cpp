#include "listbuilder/BuilderTreeModel.h"
#include "support/FakeHfm.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_BuilderTreeModel : public QObject
{
    Q_OBJECT

private:
    FakeHfm mHfm;
    std::unique_ptr<BuilderTreeModel> mModel;
    std::unique_ptr<QAbstractItemModelTester> mTester;

    void show(const QString &outline)
    {
        FakeDimension &account = mHfm.newApplication().account();
        account.setMembers(outline);
        mModel->show(readBuilderTree(account));
    }

    QModelIndex at(std::initializer_list<int> rows) const
    {
        QModelIndex index;
        for (const int row : rows)
            index = mModel->index(row, 0, index);
        return index;
    }

    void check(const QModelIndex &index, Qt::CheckState state)
    {
        QVERIFY(mModel->setData(index, state, Qt::CheckStateRole));
    }

    static Qt::CheckState stateOf(const QModelIndex &index)
    {
        return Qt::CheckState(index.data(Qt::CheckStateRole).toInt());
    }

private Q_SLOTS:
    void init()
    {
        mModel = std::make_unique<BuilderTreeModel>();
        mTester = std::make_unique<QAbstractItemModelTester>(
            mModel.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        show(u"A|Alpha\n  S|Shared\n    X\n  Y\nB\n  S"_s);
    }

    void cleanup()
    {
        mTester.reset();
        mModel.reset();
    }

    void nodesStandWhereTheTreeHasThem()
    {
        QCOMPARE(mModel->rowCount(), 2);
        QCOMPARE(mModel->columnCount(), 1);
        QCOMPARE(at({0}).data().toString(), u"A - Alpha"_s);
        QCOMPARE(at({0, 0}).data().toString(), u"S - Shared"_s);
        QCOMPARE(at({0, 1}).data().toString(), u"Y - "_s);
        QCOMPARE(at({1, 0, 0}).data().toString(), u"X - "_s);
        QCOMPARE(at({1, 0, 0}).parent(), at({1, 0}));
        QCOMPARE(at({1}).parent(), QModelIndex());
        QVERIFY(!mModel->index(2, 0).isValid());
        QVERIFY(!mModel->index(-1, 0).isValid());
        QVERIFY(!mModel->index(0, 1).isValid());
        QVERIFY(!mModel->index(1, 0, at({1})).isValid());
    }

    void keysAndTagsAreRoles()
    {
        QCOMPARE(at({1, 0}).data(BuilderTreeModel::KeyRole).toString(), u"INDX5C1"_s);
        QCOMPARE(at({1, 0}).data(BuilderTreeModel::TagRole).toString(), u"S"_s);
        QVERIFY(!at({0}).data(Qt::DecorationRole).isValid());
        QVERIFY(!mModel->data({}, Qt::DisplayRole).isValid());
    }

    void everyNodeHasACheckBoxThatStartsEmpty()
    {
        for (const QModelIndex &index : {at({0}), at({0, 0}), at({1, 0, 0})}) {
            QVERIFY(index.flags().testFlag(Qt::ItemIsUserCheckable));
            QVERIFY(index.flags().testFlag(Qt::ItemIsEnabled));
            QCOMPARE(stateOf(index), Qt::Unchecked);
        }
        QCOMPARE(mModel->checkedTags(), QStringList());
    }

    void aCheckMarkStaysWithItsNode()
    {
        QSignalSpy changed(mModel.get(), &QAbstractItemModel::dataChanged);
        check(at({0}), Qt::Checked);
        QCOMPARE(stateOf(at({0})), Qt::Checked);
        QCOMPARE(stateOf(at({0, 0})), Qt::Unchecked);
        QCOMPARE(stateOf(at({1})), Qt::Unchecked);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toModelIndex(), at({0}));
        check(at({0, 0}), Qt::Checked);
        check(at({0}), Qt::Unchecked);
        QCOMPARE(mModel->checkedTags(), QStringList{u"S"_s});
        QCOMPARE(stateOf(at({1, 0})), Qt::Unchecked);
    }

    void nothingButTheCheckMarkCanBeSet()
    {
        QVERIFY(!mModel->setData(at({0}), u"x"_s, Qt::EditRole));
        QVERIFY(!mModel->setData({}, Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(at({0}).data().toString(), u"A - Alpha"_s);
    }

    void checkedTagsComeInTheOrderInWhichNodesWereAdded()
    {
        check(at({1, 0}), Qt::Checked);
        check(at({1}), Qt::Checked);
        check(at({0, 0, 0}), Qt::Checked);
        QCOMPARE(mModel->checkedTags(), QStringList({u"X"_s, u"B"_s, u"S"_s}));
    }

    void aMemberCheckedInTwoPlacesIsThereTwice()
    {
        check(at({0, 0}), Qt::Checked);
        check(at({1, 0}), Qt::Checked);
        QCOMPARE(mModel->checkedTags(), QStringList({u"S"_s, u"S"_s}));
    }

    void checkAllAndUncheckAllSetEveryNodeThoseThatAreClosedToo()
    {
        QSignalSpy changed(mModel.get(), &QAbstractItemModel::layoutChanged);
        check(at({0, 1}), Qt::Checked);
        mModel->checkAll(true);
        QCOMPARE(mModel->checkedTags(),
                 QStringList({u"A"_s, u"S"_s, u"X"_s, u"Y"_s, u"B"_s, u"S"_s, u"X"_s}));
        mModel->checkAll(false);
        QCOMPARE(mModel->checkedTags(), QStringList());
        QCOMPARE(changed.size(), 2);
    }

    void readingTheCheckedTagsLeavesTheChecks()
    {
        mModel->checkAll(true);
        QCOMPARE(mModel->checkedTags(), mModel->checkedTags());
        QCOMPARE(stateOf(at({1, 0, 0})), Qt::Checked);
    }

    void anotherTreeStartsUnchecked()
    {
        mModel->checkAll(true);
        show(u"C\n  D"_s);
        QCOMPARE(mModel->checkedTags(), QStringList());
        QCOMPARE(at({0, 0}).data().toString(), u"D - "_s);
        show({});
        QCOMPARE(mModel->rowCount(), 0);
    }
};

QTEST_GUILESS_MAIN(tst_BuilderTreeModel)
#include "tst_BuilderTreeModel.moc"
