#pragma once

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

/// Turns the mouse wheel one notch, downwards, over a widget, as the platform tells of it: what
/// the wheel gives the focus to gets it, and who lets the wheel pass leaves it to its parent.
/// Returns whether anyone took it.
inline bool turnWheel(QWidget *over)
{
    constexpr int notch = 120;
    const QPointF place = over->rect().center();
    QWheelEvent event(place, over->mapToGlobal(place), QPoint(), QPoint(0, -notch), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(over, &event);
    return event.isAccepted();
}
