#include "ShownLargeText.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QWheelEvent>

class tst_frmLargeTextPointer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickPutsTheCaretAndWithShiftExtends()
    {
        Shown shown(QStringLiteral("abcdef\r\nghijkl"));
        QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, Qt::NoModifier, shown.placeOf(3));
        QCOMPARE(shown.caret(), 3);
        QVERIFY(!shown.view.caret().hasSelection());
        QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, Qt::ShiftModifier,
                          shown.placeOf(10));
        QCOMPARE(shown.selection(), (Range{3, 10}));
        QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, Qt::ShiftModifier,
                          shown.placeOf(1));
        QCOMPARE(shown.selection(), (Range{1, 3}));
    }

    void aClickBesideOrBelowTheTextGoesToTheNearestEnd()
    {
        Shown shown(QStringLiteral("abc\r\ndef"));
        const QRect rect = shown.view.characterRect(0);
        QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(350, rect.center().y()));
        QCOMPARE(shown.caret(), 3);
        QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(350, 250));
        QCOMPARE(shown.caret(), 8);
        QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
        QCOMPARE(shown.caret(), 0);
    }

    void aClickNeverPartsACharacter()
    {
        const QString text = QStringLiteral("e\u0301\U0001F600a\u0308\u0301x");
        Shown shown(text);
        const int y = shown.view.characterRect(0).center().y();
        QSet<qsizetype> places;
        for (int x = 0; x < 120; ++x) {
            shown.send(QEvent::MouseButtonPress, QPoint(x, y), 1000);
            shown.send(QEvent::MouseButtonRelease, QPoint(x, y), 1001);
            places.insert(shown.caret());
        }
        QCOMPARE(places, (QSet<qsizetype>{0, 2, 4, 7, 8}));
    }

    void aDragSelectsEitherWay()
    {
        Shown shown(QStringLiteral("abcdef\r\nghijkl"));
        shown.drag(2, 11);
        QCOMPARE(shown.view.selectedText(), QStringLiteral("cdef\r\nghi"));
        QCOMPARE(shown.caret(), 11);
        shown.drag(11, 2);
        QCOMPARE(shown.view.selectedText(), QStringLiteral("cdef\r\nghi"));
        QCOMPARE(shown.caret(), 2);
        // A move of the released pointer selects nothing more.
        shown.send(QEvent::MouseMove, shown.placeOf(5), 2000);
        QCOMPARE(shown.caret(), 2);
    }

    void aDoubleClickSelectsAWordAndAThirdClickTheLine()
    {
        Shown shown(QStringLiteral("ab cdef gh\r\nij"));
        const QPoint place = shown.placeOf(6);
        shown.send(QEvent::MouseButtonPress, place, 1000);
        shown.send(QEvent::MouseButtonRelease, place, 1010);
        shown.send(QEvent::MouseButtonDblClick, place, 1020);
        QCOMPARE(shown.view.selectedText(), QStringLiteral("cdef"));
        shown.send(QEvent::MouseMove, shown.placeOf(9), 1030);
        QCOMPARE(shown.view.selectedText(), QStringLiteral("cdef gh"));
        shown.send(QEvent::MouseButtonRelease, place, 1040);
        shown.send(QEvent::MouseButtonPress, place, 1050);
        QCOMPARE(shown.view.selectedText(), QStringLiteral("ab cdef gh\r\n"));
        shown.send(QEvent::MouseMove, shown.placeOf(13), 1060);
        QCOMPARE(shown.view.selectedText(), shown.view.text());
    }

    void aClickLongAfterADoubleClickIsAFirstOne()
    {
        Shown shown(QStringLiteral("ab cdef gh"));
        const QPoint place = shown.placeOf(6);
        shown.send(QEvent::MouseButtonDblClick, place, 1000);
        shown.send(QEvent::MouseButtonRelease, place, 1010);
        shown.send(QEvent::MouseButtonPress, place,
                   1000 + quint64(QApplication::doubleClickInterval()));
        QVERIFY(!shown.view.caret().hasSelection());
    }

    void aDragBeyondTheEdgeScrolls()
    {
        Shown shown(manyLines(1000));
        const QPoint below(20, shown.view.viewport()->height() + 200);
        shown.send(QEvent::MouseButtonPress, shown.placeOf(0), 1000);
        shown.send(QEvent::MouseMove, below, 1001);
        QTRY_VERIFY(shown.view.verticalScrollBar()->value() > 20);
        QVERIFY(shown.selection().end > 9 * 20);
        shown.send(QEvent::MouseButtonRelease, below, 1002);
        QCOMPARE(shown.selection().start, 0);
    }

    void theWheelScrolls()
    {
        Shown shown(manyLines(1000));
        const QPointF place(50, 50);
        QWheelEvent event(place, shown.view.viewport()->mapToGlobal(place), QPoint(),
                          QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(shown.view.viewport(), &event);
        QCOMPARE(shown.view.verticalScrollBar()->value(), QApplication::wheelScrollLines());
    }

    void theMenuCopiesSelectsAllAndFinds()
    {
        Shown shown(QStringLiteral("abc"));
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
        QApplication::sendEvent(shown.view.viewport(), &event);
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QStringList names;
        for (const QAction *action : menu->actions())
            names.append(action->text());
        QCOMPARE(names.first(3),
                 (QStringList{QStringLiteral("&Copy"), QStringLiteral("Select &All"),
                              QStringLiteral("&Find...")}));
        QAction *const copy = shown.find<QAction>("mnuCopy");
        QVERIFY(!copy->isEnabled());
        QTest::keyClick(menu, Qt::Key_A);
        QCOMPARE(shown.view.selectedText(), QStringLiteral("abc"));
        QVERIFY(copy->isEnabled());
        copy->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("abc"));
    }
};

QTEST_MAIN(tst_frmLargeTextPointer)
#include "tst_frmLargeTextPointer.moc"
