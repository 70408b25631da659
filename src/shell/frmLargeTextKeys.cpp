// The keys that move the caret of a long text.

#include "shell/frmLargeText.h"
#include "shell/frmLargeTextFind.h"

#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <array>

namespace {

using Anchor = TextCaret::Anchor;
using Step = TextCaret::Step;

struct StepKey
{
    QKeySequence::StandardKey moves;
    QKeySequence::StandardKey selects;
    Step step;
};

constexpr std::array stepKeys = {
    StepKey{QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar,
            Step::PreviousCharacter},
    StepKey{QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar, Step::NextCharacter},
    StepKey{QKeySequence::MoveToPreviousWord, QKeySequence::SelectPreviousWord, Step::PreviousWord},
    StepKey{QKeySequence::MoveToNextWord, QKeySequence::SelectNextWord, Step::NextWord},
    StepKey{QKeySequence::MoveToStartOfLine, QKeySequence::SelectStartOfLine, Step::LineStart},
    StepKey{QKeySequence::MoveToEndOfLine, QKeySequence::SelectEndOfLine, Step::LineEnd},
    StepKey{QKeySequence::MoveToStartOfDocument, QKeySequence::SelectStartOfDocument,
            Step::TextStart},
    StepKey{QKeySequence::MoveToEndOfDocument, QKeySequence::SelectEndOfDocument, Step::TextEnd},
};

/// Keys point to sides of the screen; in a line that reads from the right they swap their steps.
Step mirrored(Step step)
{
    switch (step) {
    case Step::PreviousCharacter:
        return Step::NextCharacter;
    case Step::NextCharacter:
        return Step::PreviousCharacter;
    case Step::PreviousWord:
        return Step::NextWord;
    case Step::NextWord:
        return Step::PreviousWord;
    default:
        return step;
    }
}

} // namespace

void LargeTextView::keyPressEvent(QKeyEvent *event)
{
    mTrap.run([this, event] { event->setAccepted(handleKey(*event)); });
}

bool LargeTextView::handleKey(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_Escape && mFindBar->isVisible()) {
        hideFind();
        return true;
    }
    if (!stepByKey(event) && !moveLinesByKey(event))
        return false;
    if (event.modifiers().testFlag(Qt::ShiftModifier))
        offerSelection();
    return true;
}

bool LargeTextView::stepByKey(const QKeyEvent &event)
{
    for (const StepKey &key : stepKeys) {
        const bool selects = event.matches(key.selects);
        if (!selects && !event.matches(key.moves))
            continue;
        TextCaret caret = mCaret;
        caret.step(mLayout.isRightToLeft(caret.line()) ? mirrored(key.step) : key.step,
                   selects ? Anchor::Stays : Anchor::Follows);
        setCaretAndReveal(caret);
        return true;
    }
    return false;
}

bool LargeTextView::moveLinesByKey(const QKeyEvent &event)
{
    const auto anchor =
        event.modifiers().testFlag(Qt::ShiftModifier) ? Anchor::Stays : Anchor::Follows;
    if (event.matches(QKeySequence::MoveToPreviousLine) ||
        event.matches(QKeySequence::SelectPreviousLine))
        moveByLines(-1, anchor);
    else if (event.matches(QKeySequence::MoveToNextLine) ||
             event.matches(QKeySequence::SelectNextLine))
        moveByLines(1, anchor);
    else if (event.matches(QKeySequence::MoveToPreviousPage) ||
             event.matches(QKeySequence::SelectPreviousPage))
        moveByPage(-1, anchor);
    else if (event.matches(QKeySequence::MoveToNextPage) ||
             event.matches(QKeySequence::SelectNextPage))
        moveByPage(1, anchor);
    else
        return false;
    return true;
}

void LargeTextView::moveByLines(qsizetype lines, TextCaret::Anchor anchor)
{
    const qreal column = mColumn.value_or(mLayout.xOf(mCaret.line(), mCaret.position()));
    const qsizetype line = std::clamp<qsizetype>(mCaret.line() + lines, 0, mLines.count() - 1);
    TextCaret caret = mCaret;
    caret.moveTo(mLayout.positionAt(line, column), anchor);
    setCaretAndReveal(caret);
    mColumn = column;
}

void LargeTextView::moveByPage(int direction, TextCaret::Anchor anchor)
{
    // A line of the page left behind stays in sight.
    const int lines = direction * std::max(shownRows() - 1, 1);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + lines);
    moveByLines(lines, anchor);
}
