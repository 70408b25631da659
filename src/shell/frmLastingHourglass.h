#pragma once

#include <QGuiApplication>
#include <QWidget>

/// The hourglass as the mouse pointer: over everything the program shows until the end of its
/// scope, and the window's own until done(). An action that fails before leaves the window's set.
class frmLastingHourglass
{
public:
    explicit frmLastingHourglass(QWidget *window) : mWindow(window)
    {
        mWindow->setCursor(Qt::WaitCursor);
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    ~frmLastingHourglass() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(frmLastingHourglass)
    void done() { mWindow->unsetCursor(); }

private:
    QWidget *mWindow;
};
