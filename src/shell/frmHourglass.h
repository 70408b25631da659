#pragma once

#include <QWidget>

/// The hourglass as a window's mouse pointer, until the end of its scope.
class frmHourglass
{
public:
    explicit frmHourglass(QWidget *window) : mWindow(window) { window->setCursor(Qt::WaitCursor); }
    ~frmHourglass() { mWindow->unsetCursor(); }
    Q_DISABLE_COPY_MOVE(frmHourglass)

private:
    QWidget *mWindow;
};
