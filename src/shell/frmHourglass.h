#pragma once

#include "shell/frmLastingHourglass.h"

/// The hourglass as the mouse pointer until the end of its scope: the window's own, and over
/// everything the program shows, text boxes with pointers of their own included. A message box
/// that is asked meanwhile has the arrow.
class frmHourglass
{
public:
    explicit frmHourglass(QWidget *window) : mHourglass(window) {}
    ~frmHourglass() { mHourglass.done(); }
    Q_DISABLE_COPY_MOVE(frmHourglass)

private:
    frmLastingHourglass mHourglass;
};
