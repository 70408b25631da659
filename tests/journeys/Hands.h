#pragma once

#include <QWidget>

/// What a person does to a window's controls, which are found by their names. A control that is
/// not there or cannot be used ends the program with a message: the journey is lost.
namespace Hands {

/// A click in the middle of the control, queued so that a modal window it opens keeps nobody
/// waiting.
void click(QWidget &window, const char *control);
/// Replaces the text of a text box or of an editable combo box.
void type(QWidget &window, const char *control, const QString &text);
/// Presses and releases a key in the control, which gets the focus.
void key(QWidget &window, const char *control, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
/// Chooses the entry of that text in a combo box, a list or a tree, as a click on it does. What is
/// closed above a tree's entry is opened.
void choose(QWidget &window, const char *control, const QString &entry);
/// Brings the tab of that caption to the front, as a click on it does.
void tab(QWidget &window, const char *control, const QString &caption);
/// Triggers a menu entry, queued like click().
void menu(QWidget &window, const char *action);

/// What a control shows: a label's, button's or box's text, or the `text` property.
QString text(QWidget &window, const char *control);
bool isEnabled(QWidget &window, const char *control);

} // namespace Hands
