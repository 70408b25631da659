#pragma once

#include <QGuiApplication>
#include <QWidget>

/// The hourglass as frmHourglass has it, but that the window itself keeps it unless done() is
/// reached: a failing action leaves it set.
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
