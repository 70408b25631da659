#pragma once

#include "runtime/ErrorTrap.h"
#include "shell/ActivationRule.h"

#include <QPointer>
#include <QWidget>

#include <functional>

/// Watches which of the program's windows is the active one, and runs `activated` through the trap
/// each time that `window` is activated as ActivationRule says.
class frmActivation final : public QObject
{
    Q_OBJECT

public:
    frmActivation(QWidget *window, ErrorTrap &trap, std::function<void()> activated);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void windowActivated(QWidget *active);

    QWidget *mWindow;
    QPointer<QWidget> mActive; ///< the window that was made the active one last
    ErrorTrap &mTrap;
    std::function<void()> mActivated;
    ActivationRule mRule;
};
