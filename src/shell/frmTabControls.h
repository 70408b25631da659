#pragma once

#include "runtime/ErrorTrap.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>

class LargeTextView;

/// The kinds of controls that the tools' windows and tabs are made of. `name` becomes the control's
/// object name; captions stand as they are given, "&" marking the mnemonic. A control without a
/// parent gets it with the layout that it is put into.
namespace TabControls {

QLabel *makeLabel(QWidget *parent, const char *name, const QString &text);
/// A label in bold type, empty so far.
QLabel *makeHeading(QWidget *parent, const char *name);
/// Names the bar sbStatusBar and adds its only panel, sbStatusBar_1. A long text is cut off: it
/// must not widen the window.
QLabel *makeStatusPanel(QStatusBar *bar);

/// A box to choose an entry from, with none chosen. It opens at once however many entries it holds,
/// and takes the mouse wheel only while it has the focus.
QComboBox *makeList(QLabel *label, const char *name);
/// Such a box whose text can be typed too. Typing inserts nothing, completes nothing and chooses
/// nothing but with Enter, which the box leaves to its line edit's `returnPressed`.
QComboBox *makeTypedList(QLabel *label, const char *name);

/// Chooses the entry whose text stands in a typed list, in whatever letter case. False where it is
/// no entry's; then nothing is chosen.
bool chooseTyped(QComboBox *list);

/// Replaces the entries and chooses the one at `current`, or none where that is -1; no choice of
/// the user's.
void setEntries(QComboBox *list, const QStringList &entries, int current);

/// A list of texts over a QStringListModel of its own. It opens at once however many rows it holds.
QListView *makeListBox(QWidget *parent, const char *name, const QString &accessibleName);
/// Makes `list` such a list.
void setUpListBox(QListView *list, const char *name, const QString &accessibleName);
void setLines(QAbstractItemView *list, const QStringList &lines);
QStringList lines(const QAbstractItemView *list);

/// Option buttons `name`_first, `name`_first+1, ...: one for each caption, none of them chosen.
QList<QRadioButton *> makeOptions(QWidget *parent, const char *name, int first,
                                  const QStringList &captions);
/// Such buttons from `name`_0 on, whose IDs in the group are their numbers. `owner` owns the group.
QButtonGroup *makeOptionGroup(QObject *owner, const char *name, const QStringList &captions);

QPushButton *makeButton(QWidget *parent, const char *name, const QString &caption);
QCheckBox *makeCheckBox(QWidget *parent, const char *name, const QString &caption);

/// A read-only box for a report of any length.
LargeTextView *makeReport(ErrorTrap &trap, QWidget *parent, const char *name,
                          const QString &accessibleName);

} // namespace TabControls
