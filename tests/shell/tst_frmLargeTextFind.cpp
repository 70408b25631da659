#include "ShownLargeText.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolButton>

namespace {

/// A text box whose find bar is used.
struct Searched : Shown
{
    using Shown::Shown;

    void typeIntoFindBar(const QString &words)
    {
        key(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(find<QLineEdit>("txtFind"), words);
    }

    QString outcome() { return find<QLabel>("lblFindOutcome")->text(); }
};

} // namespace

class tst_frmLargeTextFind : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findGoesFromPlaceToPlace()
    {
        Searched shown(QStringLiteral("Sales, net sales\r\nCost of SALES"));
        shown.typeIntoFindBar(QStringLiteral("sales"));
        QVERIFY(shown.find<QWidget>("fraFind")->isVisible());
        shown.key(Qt::Key_Return);
        QCOMPARE(shown.selection(), (Range{0, 5}));
        shown.key(Qt::Key_F3);
        QCOMPARE(shown.selection(), (Range{11, 16}));
        QTest::mouseClick(shown.find<QToolButton>("cmdFindNext"), Qt::LeftButton);
        QCOMPARE(shown.selection(), (Range{26, 31}));
        QCOMPARE(shown.outcome(), QString());
        shown.key(Qt::Key_F3);
        QCOMPARE(shown.selection(), (Range{0, 5}));
        QCOMPARE(shown.outcome(), QStringLiteral("Continued from the beginning"));
        shown.key(Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(shown.selection(), (Range{26, 31}));
        QCOMPARE(shown.outcome(), QStringLiteral("Continued from the end"));
        shown.key(Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(shown.selection(), (Range{11, 16}));
        QTest::mouseClick(shown.find<QToolButton>("cmdFindPrevious"), Qt::LeftButton);
        QCOMPARE(shown.selection(), (Range{0, 5}));
    }

    void findCanHeedCase()
    {
        Searched shown(QStringLiteral("Sales, net sales\r\nCost of SALES"));
        shown.typeIntoFindBar(QStringLiteral("SALES"));
        shown.find<QCheckBox>("chkMatchCase")->setChecked(true);
        shown.key(Qt::Key_Return);
        QCOMPARE(shown.selection(), (Range{26, 31}));
    }

    void whatIsNotFoundIsSaidAndTheSelectionStays()
    {
        Searched shown(QStringLiteral("abc def"));
        shown.view.select(4, 7);
        shown.typeIntoFindBar(QStringLiteral("profit"));
        shown.key(Qt::Key_Return);
        QCOMPARE(shown.outcome(), QStringLiteral("Not found"));
        QCOMPARE(shown.selection(), (Range{4, 7}));
        QTest::keyClicks(shown.find<QLineEdit>("txtFind"), QStringLiteral("s"));
        QCOMPARE(shown.outcome(), QString());
    }

    void escapeClosesTheFindBarAndF3StillFinds()
    {
        Searched shown(QStringLiteral("ab ab ab"));
        const int height = shown.view.viewport()->height();
        shown.typeIntoFindBar(QStringLiteral("ab"));
        QVERIFY(shown.view.viewport()->height() < height);
        shown.key(Qt::Key_Escape);
        QVERIFY(!shown.find<QWidget>("fraFind")->isVisible());
        QCOMPARE(shown.view.viewport()->height(), height);
        QVERIFY(shown.view.hasFocus());
        shown.key(Qt::Key_F3);
        shown.key(Qt::Key_F3);
        QCOMPARE(shown.selection(), (Range{3, 5}));
        QVERIFY(!shown.find<QWidget>("fraFind")->isVisible());
        // With no find bar to close, Escape is the window's.
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(&shown.view, &event);
        QVERIFY(!event.isAccepted());
    }

    void findOffersTheSelectionAndF3WithoutWordsAsksForThem()
    {
        Searched shown(QStringLiteral("abc def\r\nghi"));
        shown.key(Qt::Key_F3);
        QVERIFY(shown.find<QLineEdit>("txtFind")->hasFocus());
        QTest::mouseClick(shown.find<QToolButton>("cmdFindClose"), Qt::LeftButton);
        shown.view.select(4, 7);
        shown.key(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(shown.find<QLineEdit>("txtFind")->text(), QStringLiteral("def"));
        shown.key(Qt::Key_Escape);
        shown.view.selectAll();
        shown.key(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(shown.find<QLineEdit>("txtFind")->text(), QStringLiteral("def"));
    }

    void keysInTheFindBarDoNotMoveTheText()
    {
        Searched shown(manyLines(1000));
        shown.typeIntoFindBar(QStringLiteral("x"));
        for (const int key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End})
            shown.key(key);
        QCOMPARE(shown.caret(), 0);
        QCOMPARE(shown.view.verticalScrollBar()->value(), 0);
    }

    void aFoundPlaceIsScrolledIntoSight()
    {
        Searched shown(manyLines(1000) + QString(500, QLatin1Char('w')) + QStringLiteral("needle"));
        shown.typeIntoFindBar(QStringLiteral("needle"));
        shown.key(Qt::Key_Return);
        QCOMPARE(shown.view.selectedText(), QStringLiteral("needle"));
        const QRect place = shown.view.characterRect(shown.selection().end - 1);
        QVERIFY(shown.view.viewport()->rect().contains(place));
    }
};

QTEST_MAIN(tst_frmLargeTextFind)
#include "tst_frmLargeTextFind.moc"
