#pragma once

#include "shell/frmLargeText.h"
#include "support/FakeServices.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

using TextBoundaries::Range;

namespace TextBoundaries {
inline char *toString(const Range &range)
{
    return QTest::toString(QStringLiteral("%1 to %2").arg(range.start).arg(range.end));
}
} // namespace TextBoundaries

/// A text box on the screen that has the focus.
struct Shown
{
    explicit Shown(const QString &text)
    {
        view.resize(400, 300);
        view.setText(text);
        view.show();
        view.activateWindow();
        view.setFocus();
        // A window that does not become active has no focus, and its first key fails the test.
        (void)QTest::qWaitForWindowActive(&view);
    }

    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }

    /// A place on the left half of a character.
    QPoint placeOf(qsizetype position)
    {
        const QRect rect = view.characterRect(position);
        return {rect.left() + rect.width() / 4, rect.center().y()};
    }

    void send(QEvent::Type type, QPoint place, quint64 timestamp,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QMouseEvent event(type, place, view.viewport()->mapToGlobal(place), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          modifiers);
        event.setTimestamp(timestamp);
        QApplication::sendEvent(view.viewport(), &event);
    }

    void drag(qsizetype from, qsizetype to)
    {
        send(QEvent::MouseButtonPress, placeOf(from), 1000);
        send(QEvent::MouseMove, placeOf(to), 1001);
        send(QEvent::MouseButtonRelease, placeOf(to), 1002);
    }

    template <typename Widget>
    Widget *find(const char *name)
    {
        return view.findChild<Widget *>(QString::fromLatin1(name));
    }

    qsizetype caret() const { return view.caret().position(); }
    Range selection() const { return view.caret().selection(); }

    FakeServices services;
    LargeTextView view{services.trap};
};

inline QString manyLines(int count)
{
    return QStringLiteral("\"a\",\"b\"\r\n").repeated(count);
}
