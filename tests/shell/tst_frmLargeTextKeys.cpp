#include "ShownLargeText.h"

#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>

class tst_frmLargeTextKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrowsStepByCharactersAndWithControlByWords()
    {
        Shown shown(QStringLiteral("ab e\u0301\U0001F600, cd\r\nef"));
        QList<qsizetype> stops;
        for (int i = 0; i < 5; ++i) {
            shown.key(Qt::Key_Right);
            stops.append(shown.caret());
        }
        QCOMPARE(stops, (QList<qsizetype>{1, 2, 3, 5, 7}));
        shown.key(Qt::Key_Left);
        QCOMPARE(shown.caret(), 5);
        shown.key(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(shown.caret(), 9);
        shown.key(Qt::Key_Left, Qt::ControlModifier);
        shown.key(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(shown.caret(), 3);
    }

    void aLineEndIsOneStep()
    {
        Shown shown(QStringLiteral("a\r\nb"));
        shown.view.select(1, 1);
        shown.key(Qt::Key_Right);
        QCOMPARE(shown.caret(), 3);
        shown.key(Qt::Key_Left);
        QCOMPARE(shown.caret(), 1);
    }

    void homeAndEndGoToTheEndsOfTheLineAndOfTheText()
    {
        Shown shown(QStringLiteral("abc\r\ndef\r\nghi"));
        shown.view.select(6, 6);
        shown.key(Qt::Key_Home);
        QCOMPARE(shown.caret(), 5);
        shown.key(Qt::Key_End);
        QCOMPARE(shown.caret(), 8);
        shown.key(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(shown.caret(), 0);
        shown.key(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(shown.caret(), 13);
    }

    void shiftSelectsWithEveryMove()
    {
        const auto select = [](int key, bool byWords = false) {
            Shown shown(QStringLiteral("ef cd\r\nef gh\r\nef kl"));
            shown.view.select(10, 10);
            shown.key(key, byWords ? Qt::ShiftModifier | Qt::ControlModifier : Qt::ShiftModifier);
            return shown.view.selectedText();
        };
        QCOMPARE(select(Qt::Key_Left), QStringLiteral(" "));
        QCOMPARE(select(Qt::Key_Right), QStringLiteral("g"));
        QCOMPARE(select(Qt::Key_Left, true), QStringLiteral("ef "));
        QCOMPARE(select(Qt::Key_Right, true), QStringLiteral("gh"));
        QCOMPARE(select(Qt::Key_Home), QStringLiteral("ef "));
        QCOMPARE(select(Qt::Key_End), QStringLiteral("gh"));
        QCOMPARE(select(Qt::Key_Home, true), QStringLiteral("ef cd\r\nef "));
        QCOMPARE(select(Qt::Key_End, true), QStringLiteral("gh\r\nef kl"));
        QCOMPARE(select(Qt::Key_PageUp), QStringLiteral("cd\r\nef "));
        QCOMPARE(select(Qt::Key_PageDown), QStringLiteral("gh\r\nef "));
    }

    void upAndDownKeepTheColumnAcrossShortLines()
    {
        Shown shown(QStringLiteral("xxxxxx\r\nx\r\n\r\nxxxxxx"));
        shown.view.select(4, 4);
        shown.key(Qt::Key_Down);
        QCOMPARE(shown.caret(), 9);
        shown.key(Qt::Key_Down);
        QCOMPARE(shown.caret(), 11);
        shown.key(Qt::Key_Down);
        QCOMPARE(shown.caret(), 17);
        shown.key(Qt::Key_Down);
        QCOMPARE(shown.caret(), 17);
        shown.key(Qt::Key_Up, Qt::ShiftModifier);
        shown.key(Qt::Key_Up, Qt::ShiftModifier);
        shown.key(Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(shown.selection(), (Range{4, 17}));
        // A step sideways sets a new column.
        shown.key(Qt::Key_Home);
        shown.key(Qt::Key_Down);
        QCOMPARE(shown.caret(), 8);
    }

    void aPageMovesCaretAndTextTogether()
    {
        Shown shown(manyLines(1000));
        QScrollBar *const bar = shown.view.verticalScrollBar();
        const int page = bar->pageStep();
        shown.key(Qt::Key_PageDown);
        QCOMPARE(bar->value(), page - 1);
        QCOMPARE(shown.view.caret().line(), page - 1);
        shown.key(Qt::Key_PageDown, Qt::ShiftModifier);
        QCOMPARE(bar->value(), 2 * (page - 1));
        QCOMPARE(shown.selection(), (Range{9 * (page - 1), 9 * 2 * (page - 1)}));
        for (int i = 0; i < 5; ++i)
            shown.key(Qt::Key_PageUp);
        QCOMPARE(bar->value(), 0);
        QCOMPARE(shown.caret(), 0);
        for (int i = 0; i < 1000; ++i)
            shown.key(Qt::Key_PageDown);
        QCOMPARE(bar->value(), bar->maximum());
        QCOMPARE(shown.view.caret().line(), 1000);
    }

    void inALineFromTheRightTheArrowsSwap()
    {
        Shown shown(QStringLiteral("\u05d0\u05d1\u05d2"));
        shown.key(Qt::Key_Left);
        shown.key(Qt::Key_Left);
        QCOMPARE(shown.caret(), 2);
        shown.key(Qt::Key_Right);
        QCOMPARE(shown.caret(), 1);
        QVERIFY(shown.view.characterRect(0).left() > shown.view.characterRect(1).left());
    }

    void theCaretIsScrolledIntoSight()
    {
        Shown shown(QString(3000, QLatin1Char('w')) + QStringLiteral("\r\n") + manyLines(1000));
        const auto isInSight = [&] {
            return shown.view.viewport()->rect().contains(
                shown.view.characterRect(shown.caret()).center());
        };
        shown.key(Qt::Key_End);
        QVERIFY(shown.view.horizontalScrollBar()->value() > 0);
        QVERIFY(isInSight());
        shown.key(Qt::Key_Home);
        QCOMPARE(shown.view.horizontalScrollBar()->value(), 0);
        shown.key(Qt::Key_End, Qt::ControlModifier);
        QVERIFY(isInSight());
        for (int i = 0; i < 60; ++i)
            shown.key(Qt::Key_Up);
        QVERIFY(isInSight());
    }

    void copiedTextIsExactlyWhatWasSelected()
    {
        const QString text = QStringLiteral("a\r\nb\nc\rd\u2028e\tf \r\n");
        Shown shown(text);
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
        shown.key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
        shown.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(shown.view.selectedText(), text);
        shown.key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), text);
        shown.view.select(0, 4);
        shown.view.copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("a\r\nb"));
    }

    void whatWasCopiedStaysWhenTheTextIsReplaced()
    {
        Shown shown(QStringLiteral("one\r\ntwo"));
        shown.view.selectAll();
        shown.view.copy();
        shown.view.clear();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("one\r\ntwo"));
    }

    void anEmptyTextTakesEveryKey()
    {
        Shown shown{QString()};
        for (const int key :
             {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End,
              Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_A, Qt::Key_C}) {
            for (const Qt::KeyboardModifiers modifiers :
                 {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier),
                  Qt::KeyboardModifiers(Qt::ControlModifier)})
                shown.key(key, modifiers);
        }
        QCOMPARE(shown.caret(), 0);
        QCOMPARE(shown.services.program.endCodes, QList<int>());
    }

    void tabLeavesTheTextBox()
    {
        QWidget window;
        FakeServices services;
        LargeTextView view(services.trap, &window);
        QLineEdit next(&window);
        window.show();
        window.activateWindow();
        view.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&view, Qt::Key_Tab);
        QVERIFY(next.hasFocus());
    }

    void typingChangesNothingAndIsLeftToTheWindow()
    {
        Shown shown(QStringLiteral("abc"));
        QVERIFY(!shown.view.testAttribute(Qt::WA_InputMethodEnabled));
        QKeyEvent event(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
        QApplication::sendEvent(&shown.view, &event);
        QVERIFY(!event.isAccepted());
        shown.key(Qt::Key_Delete);
        shown.key(Qt::Key_Return);
        QCOMPARE(shown.view.text(), QStringLiteral("abc"));
    }

    void whileTheProgramIsEndingNoKeyDoesAnything()
    {
        Shown shown(QStringLiteral("abc"));
        shown.services.program.end(1);
        shown.key(Qt::Key_Right);
        shown.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(shown.selection(), (Range{0, 0}));
    }
};

QTEST_MAIN(tst_frmLargeTextKeys)
#include "tst_frmLargeTextKeys.moc"
