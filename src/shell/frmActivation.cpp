#include "shell/frmActivation.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>

frmActivation::frmActivation(QWidget *window, ErrorTrap &trap, std::function<void()> activated)
    : QObject(window), mWindow(window), mTrap(trap), mActivated(std::move(activated))
{
    qApp->installEventFilter(this);
}

bool frmActivation::eventFilter(QObject *watched, QEvent *event)
{
    const bool activates = event->type() == QEvent::WindowActivate;
    if (activates || event->type() == QEvent::WindowDeactivate) {
        auto *widget = qobject_cast<QWidget *>(watched);
        if (widget && widget->isWindow())
            activates ? windowActivated(widget) : windowDeactivated(widget);
    }
    return QObject::eventFilter(watched, event);
}

void frmActivation::windowActivated(QWidget *active)
{
    // A menu or a combo box's list is a part of the window that it belongs to.
    if (active->windowType() == Qt::Popup || active->windowType() == Qt::ToolTip)
        return;
    ActivationRule::Window kind = ActivationRule::Window::Other;
    if (active == mWindow)
        kind = ActivationRule::Window::Main;
    else if (qobject_cast<QMessageBox *>(active))
        kind = ActivationRule::Window::MessageBox;
    // What an activation does may show a message, which Qt cannot do while it changes windows.
    if (mRule.becomesActive(kind))
        QMetaObject::invokeMethod(
            this, [this] { mTrap.run(mActivated); }, Qt::QueuedConnection);
}

void frmActivation::windowDeactivated(const QWidget *inactive)
{
    if (!QApplication::activeWindow())
        mRule.noneIsActive(!inactive->isVisible());
}
