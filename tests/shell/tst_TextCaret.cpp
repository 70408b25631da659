#include "shell/TextCaret.h"

#include <QTest>

using TextBoundaries::Range;
using Anchor = TextCaret::Anchor;
using Step = TextCaret::Step;
using Unit = TextCaret::Unit;

class tst_TextCaret : public QObject
{
    Q_OBJECT

    //                                          0123456 7 8901234 5 678
    const TextLines mLines{QStringLiteral("ab, cde\r\nfg hij\r\nkl")};

    TextCaret caretAt(qsizetype position) const
    {
        TextCaret caret(&mLines);
        caret.moveTo(position, Anchor::Follows);
        return caret;
    }

    qsizetype stepped(qsizetype from, Step step) const
    {
        TextCaret caret = caretAt(from);
        caret.step(step, Anchor::Follows);
        return caret.hasSelection() ? -1 : caret.position();
    }

private Q_SLOTS:
    void itStandsAtTheBeginningWithNothingSelected()
    {
        const TextCaret caret(&mLines);
        QCOMPARE(caret.position(), 0);
        QCOMPARE(caret.line(), 0);
        QVERIFY(!caret.hasSelection());
        QCOMPARE(caret.selection(), (Range{0, 0}));
    }

    void steps()
    {
        QCOMPARE(stepped(0, Step::PreviousCharacter), 0);
        QCOMPARE(stepped(9, Step::PreviousCharacter), 7);
        QCOMPARE(stepped(7, Step::NextCharacter), 9);
        QCOMPARE(stepped(19, Step::NextCharacter), 19);
        QCOMPARE(stepped(0, Step::NextWord), 2);
        QCOMPARE(stepped(2, Step::NextWord), 4);
        QCOMPARE(stepped(6, Step::PreviousWord), 4);
        QCOMPARE(stepped(11, Step::LineStart), 9);
        QCOMPARE(stepped(11, Step::LineEnd), 15);
        QCOMPARE(stepped(18, Step::LineEnd), 19);
        QCOMPARE(stepped(11, Step::TextStart), 0);
        QCOMPARE(stepped(11, Step::TextEnd), 19);
    }

    void theEndOfALineIsBeforeItsLineEnd()
    {
        QCOMPARE(stepped(0, Step::LineEnd), 7);
        QCOMPARE(caretAt(7).line(), 0);
        QCOMPARE(caretAt(9).line(), 1);
    }

    void aStepCanLeaveTheAnchor()
    {
        TextCaret caret = caretAt(4);
        caret.step(Step::NextCharacter, Anchor::Stays);
        caret.step(Step::NextCharacter, Anchor::Stays);
        QCOMPARE(caret.selection(), (Range{4, 6}));
        caret.step(Step::LineStart, Anchor::Stays);
        QCOMPARE(caret.position(), 0);
        QCOMPARE(caret.anchor(), 4);
        QCOMPARE(caret.selection(), (Range{0, 4}));
    }

    void aStepByACharacterLeavesASelectionForItsNearerEnd()
    {
        for (const auto &[anchor, position] : {std::pair{4, 11}, std::pair{11, 4}}) {
            TextCaret caret(&mLines);
            caret.select(anchor, position);
            TextCaret other = caret;
            caret.step(Step::PreviousCharacter, Anchor::Follows);
            QCOMPARE(caret.position(), 4);
            other.step(Step::NextCharacter, Anchor::Follows);
            QCOMPARE(other.position(), 11);
            QVERIFY(!caret.hasSelection() && !other.hasSelection());
        }
    }

    void itNeverStandsWithinACharacter()
    {
        QCOMPARE(caretAt(8).position(), 7);
        QCOMPARE(caretAt(-5).position(), 0);
        QCOMPARE(caretAt(500).position(), 19);
    }

    void aSelectionHoldsWholeCharacters()
    {
        const TextLines lines(QStringLiteral("a\U0001F600e\u0301b"));
        TextCaret caret(&lines);
        caret.select(2, 4);
        QCOMPARE(caret.selection(), (Range{1, 5}));
        caret.select(4, 2);
        QCOMPARE(caret.anchor(), 5);
        QCOMPARE(caret.position(), 1);
        caret.select(3, 4);
        QCOMPARE(caret.selection(), (Range{3, 5}));
    }

    void aPressPutsTheCaretAndADragSelects()
    {
        TextCaret caret(&mLines);
        caret.beginDrag(5, Unit::Character);
        QVERIFY(!caret.hasSelection());
        QCOMPARE(caret.position(), 5);
        caret.dragTo(11);
        QCOMPARE(caret.selection(), (Range{5, 11}));
        caret.dragTo(1);
        QCOMPARE(caret.position(), 1);
        QCOMPARE(caret.anchor(), 5);
    }

    void aDoubleClickSelectsAWordAndADragMoreWords()
    {
        TextCaret caret(&mLines);
        caret.beginDrag(5, Unit::Word);
        QCOMPARE(caret.selection(), (Range{4, 7}));
        caret.dragTo(10);
        QCOMPARE(caret.selection(), (Range{4, 11}));
        QCOMPARE(caret.position(), 11);
        caret.dragTo(1);
        QCOMPARE(caret.selection(), (Range{0, 7}));
        QCOMPARE(caret.position(), 0);
        caret.dragTo(6);
        QCOMPARE(caret.selection(), (Range{4, 7}));
    }

    void behindALineADoubleClickSelectsItsLastWord()
    {
        TextCaret caret(&mLines);
        caret.beginDrag(7, Unit::Word);
        QCOMPARE(caret.selection(), (Range{4, 7}));
        caret.beginDrag(19, Unit::Word);
        QCOMPARE(caret.selection(), (Range{17, 19}));
    }

    void aDoubleClickOnAnEmptyLineSelectsNothing()
    {
        const TextLines lines(QStringLiteral("a\r\n\r\nb"));
        TextCaret caret(&lines);
        caret.beginDrag(3, Unit::Word);
        QVERIFY(!caret.hasSelection());
        QCOMPARE(caret.position(), 3);
    }

    void aTripleClickSelectsALineWithItsEndAndADragMoreLines()
    {
        TextCaret caret(&mLines);
        caret.beginDrag(11, Unit::Line);
        QCOMPARE(caret.selection(), (Range{9, 17}));
        caret.dragTo(1);
        QCOMPARE(caret.selection(), (Range{0, 17}));
        caret.dragTo(18);
        QCOMPARE(caret.selection(), (Range{9, 19}));
    }

    void anEmptyTextHoldsItInPlace()
    {
        const TextLines empty;
        TextCaret caret(&empty);
        for (const Step step :
             {Step::PreviousCharacter, Step::NextCharacter, Step::PreviousWord, Step::NextWord,
              Step::LineStart, Step::LineEnd, Step::TextStart, Step::TextEnd})
            caret.step(step, Anchor::Stays);
        for (const Unit unit : {Unit::Character, Unit::Word, Unit::Line}) {
            caret.beginDrag(0, unit);
            caret.dragTo(7);
        }
        QCOMPARE(caret.selection(), (Range{0, 0}));
    }
};

QTEST_APPLESS_MAIN(tst_TextCaret)
#include "tst_TextCaret.moc"
