#include "extract/FileModel.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_FileModel : public QObject
{
    Q_OBJECT

private:
    FileModel mModel;

private Q_SLOTS:
    void init() { mModel.setNames({u"a.txt"_s, u"two\nlines.txt"_s}); }

    void eachFileIsARowShownOnOneLine()
    {
        QCOMPARE(mModel.rowCount(), 2);
        QCOMPARE(mModel.index(0).data().toString(), u"a.txt"_s);
        QCOMPARE(mModel.index(1).data().toString(), u"two␊lines.txt"_s);
    }

    void aNameIsTheFileSystems()
    {
        QCOMPARE(mModel.name(mModel.index(1)), u"two\nlines.txt"_s);
        QCOMPARE(mModel.name({}), QString());
    }

    void newNamesReplaceTheOldOnes()
    {
        mModel.setNames({u"b.txt"_s});
        QCOMPARE(mModel.rowCount(), 1);
        QCOMPARE(mModel.name(mModel.index(0)), u"b.txt"_s);
        mModel.setNames({});
        QCOMPARE(mModel.rowCount(), 0);
    }

    void itIsAModelWithNothingPastTheEnd()
    {
        const QAbstractItemModelTester tester(
            &mModel, QAbstractItemModelTester::FailureReportingMode::QtTest);
        mModel.setNames({u"a"_s, u"b"_s, u"c"_s});
        QVERIFY(mModel.index(2).isValid());
        QVERIFY(!mModel.index(3).isValid());
        QVERIFY(!mModel.index(-1).isValid());
        QVERIFY(!mModel.index(0, 1).isValid());
        QCOMPARE(mModel.rowCount(mModel.index(0)), 0);
    }
};

QTEST_GUILESS_MAIN(tst_FileModel)
#include "tst_FileModel.moc"
