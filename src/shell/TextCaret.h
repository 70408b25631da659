#pragma once

#include "shell/TextBoundaries.h"
#include "shell/TextLines.h"

/// The caret of a text box and the selection between it and its anchor: where the keys and the
/// pointer move it. Only moves that need to know places on the screen are not here. Every position
/// it is given is brought into the text and out of the inside of a character: a selection holds
/// whole characters, all that it touches.
class TextCaret
{
public:
    enum class Step {
        PreviousCharacter,
        NextCharacter,
        PreviousWord,
        NextWord,
        LineStart,
        LineEnd,
        TextStart,
        TextEnd
    };
    /// What becomes of the selection as the caret moves: it ends, or reaches to the new place.
    enum class Anchor { Follows, Stays };
    /// What a click, a double click and a triple click select, and by what a drag extends it.
    enum class Unit { Character, Word, Line };

    /// Stands at the beginning; `lines` outlives it.
    explicit TextCaret(const TextLines *lines) : mLines(lines) {}

    qsizetype position() const { return mPosition; }
    qsizetype anchor() const { return mAnchor; }
    qsizetype line() const { return mLines->lineOf(mPosition); }
    bool hasSelection() const { return mPosition != mAnchor; }
    /// From the first selected character to behind the last.
    TextBoundaries::Range selection() const;

    void select(qsizetype anchor, qsizetype position);
    void moveTo(qsizetype position, Anchor anchor);
    /// Steps by characters without Anchor::Stays leave a selection for its nearer end.
    void step(Step step, Anchor anchor);

    /// A press of the pointer: selects the unit around `position`, which is the caret's place for
    /// Unit::Character and that of the character pointed at for the others.
    void beginDrag(qsizetype position, Unit unit);
    /// A move of the pressed pointer: selects from the unit pressed on to the one pointed at.
    void dragTo(qsizetype position);
    /// The unit of the last press.
    Unit dragUnit() const { return mDragUnit; }

    friend bool operator==(const TextCaret &a, const TextCaret &b)
    {
        return a.mPosition == b.mPosition && a.mAnchor == b.mAnchor;
    }

private:
    qsizetype target(Step step) const;
    TextBoundaries::Range unitAt(qsizetype position, Unit unit) const;

    const TextLines *mLines;
    qsizetype mPosition = 0;
    qsizetype mAnchor = 0;
    Unit mDragUnit = Unit::Character;
    TextBoundaries::Range mDragOrigin;
};
