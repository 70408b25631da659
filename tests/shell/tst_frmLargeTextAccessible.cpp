#include "shell/frmLargeTextAccessible.h"
#include "ShownLargeText.h"

#include <QScrollBar>

namespace {

const QString extract = QStringLiteral("\"A\",\"North 2\"\r\n\r\n\"e\u0301\",x");

/// What was announced of the text, its caret and its selection, in order.
QStringList announced;

void note(QAccessibleEvent *event)
{
    if (const auto *update = dynamic_cast<QAccessibleTextUpdateEvent *>(event))
        announced.append(QStringLiteral("text %1 for %2 at %3")
                             .arg(update->textInserted(), update->textRemoved())
                             .arg(update->changePosition()));
    else if (const auto *selection = dynamic_cast<QAccessibleTextSelectionEvent *>(event))
        announced.append(QStringLiteral("selection %1 to %2, caret %3")
                             .arg(selection->selectionStart())
                             .arg(selection->selectionEnd())
                             .arg(selection->cursorPosition()));
    else if (const auto *caret = dynamic_cast<QAccessibleTextCursorEvent *>(event))
        announced.append(QStringLiteral("caret %1").arg(caret->cursorPosition()));
}

/// A text box as an assistive tool sees it.
struct Asked : Shown
{
    explicit Asked(const QString &text)
        : Shown(text), interface(QAccessible::queryAccessibleInterface(&view)),
          asked(interface->textInterface())
    {
        QObject::connect(&view, &LargeTextView::textReplaced, &view,
                         [this](const QString &before) { announceText(view, before, note); });
        QObject::connect(&view, &LargeTextView::caretMoved, &view,
                         [this](const TextCaret &before) { announceCaret(view, before, note); });
    }

    using Ask = QString (QAccessibleTextInterface::*)(int, QAccessible::TextBoundaryType, int *,
                                                      int *) const;

    /// "start-end:text" of what it answers, with line ends as "|".
    QString answer(Ask ask, int offset, QAccessible::TextBoundaryType boundary) const
    {
        int start = -7;
        int end = -7;
        QString text = (asked->*ask)(offset, boundary, &start, &end);
        text.replace(QStringLiteral("\r\n"), QStringLiteral("|"));
        return QStringLiteral("%1-%2:%3").arg(start).arg(end).arg(text);
    }
    QString at(int offset, QAccessible::TextBoundaryType boundary) const
    {
        return answer(&QAccessibleTextInterface::textAtOffset, offset, boundary);
    }
    QString before(int offset, QAccessible::TextBoundaryType boundary) const
    {
        return answer(&QAccessibleTextInterface::textBeforeOffset, offset, boundary);
    }
    QString after(int offset, QAccessible::TextBoundaryType boundary) const
    {
        return answer(&QAccessibleTextInterface::textAfterOffset, offset, boundary);
    }

    QAccessibleInterface *interface;
    QAccessibleTextInterface *asked;
};

} // namespace

class tst_frmLargeTextAccessible : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsAReadOnlyTextOfSeveralLines()
    {
        Asked box(extract);
        QVERIFY(box.asked);
        QCOMPARE(box.interface->role(), QAccessible::EditableText);
        const QAccessible::State state = box.interface->state();
        QVERIFY(state.readOnly);
        QVERIFY(state.multiLine);
        QVERIFY(state.selectableText);
        QVERIFY(state.focusable);
        QVERIFY(state.focused);
        QVERIFY(!state.editable);
        QVERIFY(!box.interface->editableTextInterface());
    }

    void itsNameIsTheWindowsAndItsValueTheText()
    {
        Asked box(extract);
        box.view.setAccessibleName(QStringLiteral("Extract"));
        QCOMPARE(box.interface->text(QAccessible::Name), QStringLiteral("Extract"));
        QCOMPARE(box.interface->text(QAccessible::Value), extract);
    }

    void partsOfTheTextAreReadAsTheyStand()
    {
        Asked box(extract);
        QCOMPARE(box.asked->characterCount(), int(extract.size()));
        QCOMPARE(box.asked->text(0, int(extract.size())), extract);
        QCOMPARE(box.asked->text(11, 15), QStringLiteral("2\"\r\n"));
        QCOMPARE(box.asked->text(5, 2), QString());
        QCOMPARE(box.asked->text(-5, 1), QStringLiteral("\""));
        QCOMPARE(box.asked->text(20, 5000), extract.sliced(20));
    }

    void charactersAroundAnOffset()
    {
        const auto boundary = QAccessible::CharBoundary;
        Asked box(QStringLiteral("ae\u0301\r\n"));
        QCOMPARE(box.at(0, boundary), QStringLiteral("0-1:a"));
        QCOMPARE(box.at(1, boundary), QStringLiteral("1-3:e\u0301"));
        QCOMPARE(box.at(2, boundary), QStringLiteral("1-3:e\u0301"));
        QCOMPARE(box.at(3, boundary), QStringLiteral("3-5:|"));
        QCOMPARE(box.at(5, boundary), QStringLiteral("5-5:"));
        QCOMPARE(box.before(3, boundary), QStringLiteral("1-3:e\u0301"));
        QCOMPARE(box.before(0, boundary), QStringLiteral("-1--1:"));
        QCOMPARE(box.after(0, boundary), QStringLiteral("1-3:e\u0301"));
        QCOMPARE(box.after(3, boundary), QStringLiteral("-1--1:"));
    }

    void wordsAroundAnOffset()
    {
        const auto boundary = QAccessible::WordBoundary;
        Asked box(extract);
        QCOMPARE(box.at(7, boundary), QStringLiteral("5-10:North"));
        QCOMPARE(box.at(10, boundary), QStringLiteral("10-11: "));
        QCOMPARE(box.before(7, boundary), QStringLiteral("2-5:\",\""));
        QCOMPARE(box.before(11, boundary), QStringLiteral("5-10:North"));
        QCOMPARE(box.after(7, boundary), QStringLiteral("11-12:2"));
        QCOMPARE(box.after(12, boundary), QStringLiteral("13-15:|"));
        QCOMPARE(box.before(0, boundary), QStringLiteral("-1--1:"));
    }

    void linesAroundAnOffsetComeWithoutLineEnds()
    {
        Asked box(extract);
        for (const auto boundary : {QAccessible::LineBoundary, QAccessible::ParagraphBoundary,
                                    QAccessible::SentenceBoundary}) {
            QCOMPARE(box.at(7, boundary), QStringLiteral("0-13:\"A\",\"North 2\""));
            QCOMPARE(box.at(14, boundary), QStringLiteral("0-13:\"A\",\"North 2\""));
            QCOMPARE(box.at(15, boundary), QStringLiteral("15-15:"));
            QCOMPARE(box.after(7, boundary), QStringLiteral("15-15:"));
            QCOMPARE(box.after(15, boundary), QStringLiteral("17-23:\"e\u0301\",x"));
            QCOMPARE(box.after(20, boundary), QStringLiteral("-1--1:"));
            QCOMPARE(box.before(20, boundary), QStringLiteral("15-15:"));
            QCOMPARE(box.before(7, boundary), QStringLiteral("-1--1:"));
        }
    }

    void withoutABoundaryItIsTheWholeText()
    {
        Asked box(QStringLiteral("ab"));
        QCOMPARE(box.at(1, QAccessible::NoBoundary), QStringLiteral("0-2:ab"));
    }

    void anOffsetOutsideTheTextHasNoText()
    {
        Asked box(QStringLiteral("ab"));
        for (const auto boundary : {QAccessible::CharBoundary, QAccessible::WordBoundary,
                                    QAccessible::LineBoundary, QAccessible::NoBoundary}) {
            for (const int offset : {-1, 3}) {
                QCOMPARE(box.at(offset, boundary), QStringLiteral("-1--1:"));
                QCOMPARE(box.before(offset, boundary), QStringLiteral("-1--1:"));
                QCOMPARE(box.after(offset, boundary), QStringLiteral("-1--1:"));
            }
        }
    }

    void anEmptyTextAnswersToo()
    {
        Asked box{QString()};
        QCOMPARE(box.asked->characterCount(), 0);
        QCOMPARE(box.at(0, QAccessible::LineBoundary), QStringLiteral("0-0:"));
        QCOMPARE(box.at(0, QAccessible::WordBoundary), QStringLiteral("0-0:"));
        QCOMPARE(box.asked->cursorPosition(), 0);
        QCOMPARE(box.asked->selectionCount(), 0);
    }

    void caretAndSelectionAreReadAndSet()
    {
        Asked box(extract);
        box.asked->setCursorPosition(5);
        QCOMPARE(box.asked->cursorPosition(), 5);
        QCOMPARE(box.asked->selectionCount(), 0);

        box.asked->setSelection(0, 5, 10);
        QCOMPARE(box.view.selectedText(), QStringLiteral("North"));
        QCOMPARE(box.asked->selectionCount(), 1);
        int start = -7;
        int end = -7;
        box.asked->selection(0, &start, &end);
        QCOMPARE(start, 5);
        QCOMPARE(end, 10);
        QCOMPARE(box.asked->cursorPosition(), 10);

        box.asked->selection(1, &start, &end);
        QCOMPARE(start, 0);
        QCOMPARE(end, 0);
        box.asked->setSelection(1, 0, 2);
        box.asked->removeSelection(1);
        QCOMPARE(box.view.selectedText(), QStringLiteral("North"));

        box.asked->removeSelection(0);
        QCOMPARE(box.asked->selectionCount(), 0);
        QCOMPARE(box.asked->cursorPosition(), 10);
        box.asked->addSelection(17, 19);
        QCOMPARE(box.view.selectedText(), QStringLiteral("\"e\u0301"));
        box.asked->setSelection(0, -10, 10'000);
        QCOMPARE(box.view.selectedText(), extract);
    }

    void aCharacterIsWhereItsRectangleSays()
    {
        Asked box(QStringLiteral("ab\r\ncde\tf"));
        const QPoint corner = box.view.viewport()->mapToGlobal(QPoint(0, 0));
        for (const int offset : {0, 1, 4, 5, 6, 7, 8}) {
            const QRect rect = box.asked->characterRect(offset);
            QCOMPARE(rect, box.view.characterRect(offset).translated(corner));
            QCOMPARE(box.asked->offsetAtPoint(rect.center()), offset);
        }
        QVERIFY(box.asked->characterRect(4).top() > box.asked->characterRect(0).top());
        QCOMPARE(box.asked->characterRect(-1), QRect());
        QCOMPARE(box.asked->characterRect(100), QRect());
    }

    void whereThereIsNoCharacterThereIsNoOffset()
    {
        Asked box(QStringLiteral("ab"));
        QCOMPARE(box.asked->offsetAtPoint(box.view.mapToGlobal(QPoint(-50, 10))), -1);
        QCOMPARE(box.asked->offsetAtPoint(box.view.mapToGlobal(QPoint(300, 200))), -1);
    }

    void aPartOfTheTextIsScrolledIntoSight()
    {
        Asked box(manyLines(1000) + QString(500, QLatin1Char('w')) + QStringLiteral("end"));
        const int end = box.asked->characterCount();
        box.asked->scrollToSubstring(end - 3, end);
        const QRect shown = box.view.viewport()->rect();
        for (const int offset : {end - 3, end - 1})
            QVERIFY(shown.contains(box.view.characterRect(offset)));
        box.asked->scrollToSubstring(-1, end);
        QVERIFY(shown.contains(box.view.characterRect(end - 1)));
        box.asked->scrollToSubstring(0, 5);
        QCOMPARE(box.view.verticalScrollBar()->value(), 0);
        QCOMPARE(box.view.horizontalScrollBar()->value(), 0);
        QCOMPARE(box.view.caret().position(), 0);
    }

    void oneFontIsUsedThroughout()
    {
        Asked box(extract);
        int start = -7;
        int end = -7;
        const QString attributes = box.asked->attributes(3, &start, &end);
        QVERIFY(attributes.contains(QFontInfo(box.view.font()).family()));
        QCOMPARE(start, 0);
        QCOMPARE(end, int(extract.size()));
        QCOMPARE(box.asked->attributes(-1, &start, &end), QString());
        QCOMPARE(start, -1);
    }

    void movesOfTheCaretAreAnnounced()
    {
        Asked box(extract);
        announced.clear();
        box.key(Qt::Key_Right);
        box.key(Qt::Key_Right, Qt::ShiftModifier);
        box.key(Qt::Key_Left);
        box.key(Qt::Key_Home);
        box.key(Qt::Key_Left);
        QCOMPARE(
            announced,
            (QStringList{QStringLiteral("caret 1"), QStringLiteral("caret 2"),
                         QStringLiteral("selection 1 to 2, caret 2"), QStringLiteral("caret 1"),
                         QStringLiteral("selection 1 to 1, caret 1"), QStringLiteral("caret 0")}));
    }

    void aNewTextIsAnnounced()
    {
        Asked box(QStringLiteral("old"));
        box.key(Qt::Key_Right);
        announced.clear();
        box.view.setText(QStringLiteral("new"));
        QCOMPARE(announced,
                 (QStringList{QStringLiteral("text new for old at 0"), QStringLiteral("caret 0")}));
    }

    void ofALongTextTheBeginningIsAnnounced()
    {
        Asked box(QStringLiteral("old"));
        const QString text = manyLines(10'000);
        announced.clear();
        box.view.setText(text);
        QCOMPARE(announced,
                 QStringList{QStringLiteral("text %1 for old at 0").arg(text.first(65'536))});
    }

    void aMillionLinesAreAskedWithoutWaiting()
    {
        Asked box(manyLines(1'200'000));
        QCOMPARE(box.at(9 * 600'000 + 2, QAccessible::LineBoundary),
                 QStringLiteral("5400000-5400007:\"a\",\"b\""));
        QCOMPARE(box.at(9 * 600'000 + 1, QAccessible::WordBoundary),
                 QStringLiteral("5400001-5400002:a"));
        QCOMPARE(box.asked->characterCount(), 9 * 1'200'000);
    }
};

QTEST_MAIN(tst_frmLargeTextAccessible)
#include "tst_frmLargeTextAccessible.moc"
