#include "appinfo/CellSpool.h"
#include "support/Errors.h"
#include "support/FileFaults.h"

#include <QDir>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <random>

using namespace Qt::StringLiterals;

class tst_CellSpool : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> mFolder;
    std::unique_ptr<CellSpool> mSpool;

    using Row = QMap<qint32, QByteArray>; ///< texts by column

    Row row(qint32 row)
    {
        Row cells;
        mSpool->visitRow(row, [&](qint32 column, const char *text) {
            QVERIFY2(!cells.contains(column), "a column came twice");
            cells.insert(column, text);
        });
        return cells;
    }

private Q_SLOTS:
    void init()
    {
        mFolder = std::make_unique<QTemporaryDir>();
        mSpool = std::make_unique<CellSpool>(mFolder->filePath(u"cells"_s), u"/the/workbook"_s);
    }
    void cleanup() { mSpool.reset(); }

    void noCellNoRow()
    {
        mSpool->endWriting();
        QCOMPARE(mSpool->rowCount(), 0);
    }

    void rowsInBetweenAreEmpty()
    {
        QVERIFY(mSpool->setCell(3, 2, u"x"));
        mSpool->endWriting();
        QCOMPARE(mSpool->rowCount(), 3);
        QCOMPARE(row(1), Row());
        QCOMPARE(row(2), Row());
        QCOMPARE(row(3), Row({{2, "x"}}));
    }

    void aHeaderThatIsWrittenLateAndPieceByPieceIsInItsRow()
    {
        mSpool->setCell(1, 1, u"Level 1");
        mSpool->setCell(2, 1, u"A");
        mSpool->setCell(1, 4, u"Type");
        mSpool->setCell(2, 4, u"Type=x");
        mSpool->setCell(1, 5, u"UD1");
        mSpool->setCell(2, 5, u"UD1=y");
        mSpool->setCell(3, 1, u"B");
        mSpool->endWriting();
        QCOMPARE(row(1), Row({{1, "Level 1"}, {4, "Type"}, {5, "UD1"}}));
        QCOMPARE(row(2), Row({{1, "A"}, {4, "Type=x"}, {5, "UD1=y"}}));
        QCOMPARE(row(3), Row({{1, "B"}}));
    }

    void theLastTextOfACellCounts()
    {
        mSpool->setCell(1, 1, u"first");
        mSpool->setCell(1, 1, u"second");
        mSpool->setCell(1, 2, u"third");
        mSpool->setCell(2, 1, u"x");
        mSpool->setCell(1, 2, u"fourth");
        mSpool->endWriting();
        QCOMPARE(row(1), Row({{1, "second"}, {2, "fourth"}}));
    }

    void anEmptyTextEmptiesItsCell()
    {
        mSpool->setCell(1, 1, u"label");
        mSpool->setCell(1, 1, u"");
        mSpool->setCell(1, 2, u"");
        mSpool->endWriting();
        QCOMPARE(row(1), Row());
    }

    void aCutTextIsTold()
    {
        QVERIFY(mSpool->setCell(1, 1, QString(32'767, u'a')));
        QVERIFY(!mSpool->setCell(1, 2, QString(32'768, u'a')));
        mSpool->endWriting();
        QCOMPARE(row(1)[2].size(), 32'767);
    }

    void cellsInAnyOrderAreThoseOfATable()
    {
        QMap<std::pair<qint32, qint32>, QString> table;
        std::mt19937 random(1);
        const auto below = [&](qint32 bound) {
            return std::uniform_int_distribution<qint32>(1, bound)(random);
        };
        for (int i = 0; i < 60'000; ++i) {
            const qint32 line = below(500);
            const qint32 column = below(20) * below(40) * below(20);
            const QString text(below(12) == 1 ? 0 : below(60), QChar(u'a' + below(25)));
            table[{line, column}] = text;
            mSpool->setCell(line, column, text);
        }
        mSpool->endWriting();
        QCOMPARE(mSpool->rowCount(), 500);
        for (qint32 line = 1; line <= 500; ++line) {
            Row expected;
            for (auto cell = table.lowerBound({line, 0});
                 cell != table.end() && cell.key().first == line; ++cell)
                if (!cell.value().isEmpty())
                    expected.insert(cell.key().second, cell.value().toUtf8());
            QCOMPARE(row(line), expected);
        }
    }

    void aRowOfManyLongTextsIsWhole()
    {
        for (qint32 column = 1; column <= 100; ++column)
            mSpool->setCell(1, column, QString(30'000, QChar(u'a' + column % 26)));
        mSpool->endWriting();
        const Row cells = row(1);
        QCOMPARE(cells.size(), 100);
        for (qint32 column = 1; column <= 100; ++column)
            QCOMPARE(cells[column], QByteArray(30'000, char('a' + column % 26)));
    }

    void theLastCellOfAWorksheetIsTaken()
    {
        QVERIFY(mSpool->setCell(1'048'576, 16'384, u"end"));
        mSpool->endWriting();
        QCOMPARE(row(1'048'576), Row({{16'384, "end"}}));
    }

    void aCellThatNoWorksheetHasIsAnErrorThatSaysSo_data()
    {
        QTest::addColumn<qint32>("line");
        QTest::addColumn<qint32>("column");
        QTest::newRow("too many rows") << 1'048'577 << 1;
        QTest::newRow("too many columns") << 1 << 16'385;
        QTest::newRow("row 0") << 0 << 1;
        QTest::newRow("column 0") << 1 << 0;
    }
    void aCellThatNoWorksheetHasIsAnErrorThatSaysSo()
    {
        QFETCH(qint32, line);
        QFETCH(qint32, column);
        const auto error = errorOf([&] { mSpool->setCell(line, column, u"x"); });
        QVERIFY(error);
        QCOMPARE(error->number(), 1004);
        QCOMPARE(error->description(),
                 u"A worksheet has 1,048,576 rows and 16,384 columns, so there is no cell in row "
                 "%1, column %2. The workbook is not written: /the/workbook"_s.arg(line)
                     .arg(column));
    }

    void aFullDiskIsTold()
    {
        const FullDisk disk(200'000);
        const auto error = errorOf([&] {
            for (qint32 line = 1; line <= 100'000; ++line)
                mSpool->setCell(line, 1, u"some text");
            mSpool->endWriting();
        });
        QVERIFY(error);
        QCOMPARE(error->number(), qint32(DiskFull));
        QCOMPARE(error->description(), u"Disk full: /the/workbook"_s);
    }

    void aProcessThatDiesLeavesNoFile()
    {
        QVERIFY(
            QDir(mFolder->path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
        QVERIFY(mSpool->setCell(1, 1, u"x"));
        mSpool->endWriting();
        QCOMPARE(row(1), Row({{1, "x"}}));
    }

    void aFileOfItsNameIsKept()
    {
        QFile other(mFolder->filePath(u"other"_s));
        QVERIFY(other.open(QIODevice::WriteOnly));
        QVERIFY(errorOf([&] { CellSpool(other.fileName(), u"/the/workbook"_s); }));
        QVERIFY(other.exists());
    }
};

QTEST_APPLESS_MAIN(tst_CellSpool)
#include "tst_CellSpool.moc"
