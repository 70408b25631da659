#pragma once

#include <QGuiApplication>
#include <QWidget>

/// The hourglass, over the whole program until the end of its scope. The window itself keeps it
/// unless done() is reached: a failing action leaves it set.
class frmViewerHourglass
{
public:
    explicit frmViewerHourglass(QWidget *window) : mWindow(window)
    {
        mWindow->setCursor(Qt::WaitCursor);
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    ~frmViewerHourglass() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(frmViewerHourglass)
    void done() { mWindow->unsetCursor(); }

private:
    QWidget *mWindow;
};
