#pragma once

#include "shell/frmLargeText.h"

#include <QAccessible>

/// What assistive tools know of a LargeTextView: a read-only text box of several lines whose text
/// can be selected, with the whole text interface. Its name is the accessible name that the window
/// gives it.
///
/// Offsets are the text's units from 0. The interface counts in `int`, so of a text of more than
/// 2,147,483,647 units that is the last offset it gives: what lies behind is read through the
/// value, not through the interface. Sentences and paragraphs are lines, given without line ends.

/// Lets a text box be asked for its interface, and announces its changes from now on.
void makeAccessible(LargeTextView &view);

/// Where announcements go: QAccessible::updateAccessibility, which hands them to the platform.
using Announce = void (*)(QAccessibleEvent *);

/// Announces that the text has changed from `before` to the one shown. Of a long text only the
/// first 65,536 units are announced: an announcement is a message to another program, and messages
/// of hundreds of megabytes are refused. Whoever listens asks for what it wants to read.
void announceText(LargeTextView &view, const QString &before, Announce announce);

/// Announces where caret and selection are now, each if that is not where it was.
void announceCaret(LargeTextView &view, const TextCaret &before, Announce announce);
