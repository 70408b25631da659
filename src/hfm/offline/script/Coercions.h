#pragma once

#include "hfm/offline/script/Host.h"

/// What a value is taken for where another kind is needed. All fail with WrongType where it cannot
/// be taken so, with InvalidNull for Null and with UnknownMember for an object, which has no value
/// of its own.
namespace hfm::offline::script {

/// A value as text: Empty is the empty text, truth "True" or "False".
Text textOf(const Value &value, RunState &run);
/// Empty is 0, True -1; a text counts as the number that it is.
double doubleOf(const Value &value, RunState &run);
/// A whole number of 32 bits: halves are rounded to the even neighbour. Fails with NumberOverflow.
qint32 longOf(const Value &value, RunState &run);
/// Whether it is True or a number other than 0; a text counts as the number or truth that it is.
bool truthOf(const Value &value, RunState &run);
/// Days since 30 December 1899.
double daysOf(const Value &value, RunState &run);

/// Rounds halves to the even neighbour and fails with NumberOverflow outside of the bounds.
qint64 rounded(double number, qint64 least, qint64 most);
/// A number, or a failure with NumberOverflow where it is infinite.
Value finite(double number);

/// The characters of a value that is taken for text. Valid as long as the value and this.
class TextOf
{
public:
    TextOf(const Value &value, RunState &run)
    {
        if (value.kind() == Kind::Text) {
            mView = value.textView();
        } else {
            mText = textOf(value, run);
            mView = mText.view();
        }
    }
    QStringView view() const { return mView; }
    qsizetype size() const { return mView.size(); }

private:
    Text mText;
    QStringView mView;
};

} // namespace hfm::offline::script
