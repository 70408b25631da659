#include "listbuilder/NewListModel.h"
#include "support/Errors.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_NewListModel : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<NewListModel> mList;
    std::unique_ptr<QAbstractItemModelTester> mTester;

    QString entries() const { return mList->entries().join(u' '); }

private Q_SLOTS:
    void init()
    {
        mList = std::make_unique<NewListModel>();
        mTester = std::make_unique<QAbstractItemModelTester>(
            mList.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        mList->append({u"A"_s, u"B"_s, u"C"_s});
    }

    void cleanup()
    {
        mTester.reset();
        mList.reset();
    }

    void rowsAreBareLabels()
    {
        QCOMPARE(mList->rowCount(), 3);
        QCOMPARE(mList->index(1).data().toString(), u"B"_s);
        QVERIFY(!mList->index(1).data(Qt::CheckStateRole).isValid());
        QVERIFY(!mList->index(1).flags().testFlag(Qt::ItemIsEditable));
    }

    void insertedEntriesGoToTheEndThoseThatAreThereAlreadyToo()
    {
        mList->append({u"B"_s, u""_s, u"B"_s});
        QCOMPARE(mList->entries(), QStringList({u"A"_s, u"B"_s, u"C"_s, u"B"_s, u""_s, u"B"_s}));
        mList->append({});
        QCOMPARE(mList->rowCount(), 6);
    }

    void aRowIsRemoved()
    {
        mList->remove(1);
        QCOMPARE(entries(), u"A C"_s);
    }

    void withNoRowSelectedNoneIsRemoved()
    {
        mList->remove(-1);
        QCOMPARE(entries(), u"A B C"_s);
    }

    void clearRemovesEveryRow()
    {
        mList->clear();
        QCOMPARE(mList->rowCount(), 0);
        mList->clear();
        QCOMPARE(mList->rowCount(), 0);
    }

    void aRowMovesUpByOne()
    {
        QCOMPARE(mList->moveUp(2), 1);
        QCOMPARE(entries(), u"A C B"_s);
        QCOMPARE(mList->moveUp(1), 0);
        QCOMPARE(entries(), u"C A B"_s);
    }

    void aRowMovesDownByOne()
    {
        QCOMPARE(mList->moveDown(0), 1);
        QCOMPARE(entries(), u"B A C"_s);
        QCOMPARE(mList->moveDown(1), 2);
        QCOMPARE(entries(), u"B C A"_s);
    }

    void theFirstRowDoesNotMoveUpNorTheLastDown()
    {
        QCOMPARE(mList->moveUp(0), 0);
        QCOMPARE(mList->moveDown(2), 2);
        QCOMPARE(entries(), u"A B C"_s);
    }

    void theOnlyRowDoesNotMove()
    {
        mList->remove(0);
        mList->remove(0);
        QCOMPARE(mList->moveUp(0), 0);
        QCOMPARE(mList->moveDown(0), 0);
        QCOMPARE(entries(), u"C"_s);
    }

    void withNoRowSelectedNeitherMoves()
    {
        QCOMPARE(mList->moveUp(-1), -1);
        QCOMPARE(mList->moveDown(-1), -1);
        QCOMPARE(entries(), u"A B C"_s);
        mList->clear();
        QCOMPARE(mList->moveUp(-1), -1);
        QCOMPARE(mList->moveDown(-1), -1);
    }

    void aMoveTellsOfTheTwoRowsThatChanged()
    {
        QSignalSpy changed(mList.get(), &NewListModel::dataChanged);
        mList->moveUp(2);
        mList->moveDown(0);
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed[0][0].toModelIndex().row(), 1);
        QCOMPARE(changed[0][1].toModelIndex().row(), 2);
        QCOMPARE(changed[1][0].toModelIndex().row(), 0);
        QCOMPARE(changed[1][1].toModelIndex().row(), 1);
    }

    void aMoveThatMovesNothingTellsOfNoChange()
    {
        QSignalSpy changed(mList.get(), &NewListModel::dataChanged);
        mList->moveUp(0);
        mList->moveDown(2);
        QCOMPARE(changed.size(), 0);
    }

    void movingInAListOfMoreThan32767RowsOverflows()
    {
        mList->append(QStringList(32'764, u"x"_s));
        QCOMPARE(mList->moveDown(32'765), 32'766);
        mList->append({u"one more"_s});
        for (const auto move : {&NewListModel::moveUp, &NewListModel::moveDown}) {
            const auto error = errorOf([&] { (mList.get()->*move)(1); });
            QVERIFY(error);
            QCOMPARE(error->number(), Overflow);
        }
    }
};

QTEST_GUILESS_MAIN(tst_NewListModel)
#include "tst_NewListModel.moc"
