#pragma once

#include "shell/Services.h"
#include "shell/SplashWait.h"

#include <QFrame>

/// The window that greets the user: the program's name, version and disclaimer.
class frmSplash final : public QFrame
{
    Q_OBJECT

public:
    explicit frmSplash(Services &services);

    /// Shows the splash over everything and returns when it has closed: after five seconds, at a
    /// click, or as the program ends.
    void showModal();
    /// Lets the splash close at once, as a click does.
    void endWait();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void makeControls();
    bool isWaiting() const;

    Services &mServices;
    SplashWait mWait;
};
