#include "shell/TextCaret.h"

#include <algorithm>

using TextBoundaries::Range;

Range TextCaret::selection() const
{
    return {std::min(mPosition, mAnchor), std::max(mPosition, mAnchor)};
}

void TextCaret::select(qsizetype anchor, qsizetype position)
{
    const QStringView text = mLines->text();
    mAnchor = anchor > position ? TextBoundaries::characterEnd(text, anchor)
                                : TextBoundaries::characterStart(text, anchor);
    mPosition = position > anchor ? TextBoundaries::characterEnd(text, position)
                                  : TextBoundaries::characterStart(text, position);
}

void TextCaret::moveTo(qsizetype position, Anchor anchor)
{
    select(anchor == Anchor::Stays ? mAnchor : position, position);
}

void TextCaret::step(Step step, Anchor anchor)
{
    const bool leavesSelection = hasSelection() && anchor == Anchor::Follows;
    if (leavesSelection && step == Step::PreviousCharacter)
        moveTo(selection().start, anchor);
    else if (leavesSelection && step == Step::NextCharacter)
        moveTo(selection().end, anchor);
    else
        moveTo(target(step), anchor);
}

qsizetype TextCaret::target(Step step) const
{
    const QStringView text = mLines->text();
    switch (step) {
    case Step::PreviousCharacter:
        return TextBoundaries::previousCharacter(text, mPosition);
    case Step::NextCharacter:
        return TextBoundaries::nextCharacter(text, mPosition);
    case Step::PreviousWord:
        return TextBoundaries::previousWord(text, mPosition);
    case Step::NextWord:
        return TextBoundaries::nextWord(text, mPosition);
    case Step::LineStart:
        return mLines->start(line());
    case Step::LineEnd:
        return mLines->end(line());
    case Step::TextStart:
        return 0;
    case Step::TextEnd:
        return mLines->length();
    }
    return mPosition;
}

Range TextCaret::unitAt(qsizetype position, Unit unit) const
{
    const qsizetype line = mLines->lineOf(position);
    switch (unit) {
    case Unit::Word:
        // Behind a line's last character one points at the word that ends there.
        if (position == mLines->end(line) && position > mLines->start(line))
            position = TextBoundaries::previousCharacter(mLines->text(), position);
        if (position == mLines->end(line))
            return {position, position};
        return TextBoundaries::wordAt(mLines->text(), position);
    case Unit::Line:
        return {mLines->start(line),
                line + 1 < mLines->count() ? mLines->start(line + 1) : mLines->length()};
    case Unit::Character:
        break;
    }
    return {position, position};
}

void TextCaret::beginDrag(qsizetype position, Unit unit)
{
    mDragUnit = unit;
    mDragOrigin = unitAt(position, unit);
    select(mDragOrigin.start, mDragOrigin.end);
}

void TextCaret::dragTo(qsizetype position)
{
    const Range there = unitAt(position, mDragUnit);
    if (there.start < mDragOrigin.start)
        select(mDragOrigin.end, there.start);
    else
        select(mDragOrigin.start, std::max(mDragOrigin.end, there.end));
}
