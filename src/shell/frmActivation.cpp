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
    if (event->type() == QEvent::WindowActivate) {
        auto *widget = qobject_cast<QWidget *>(watched);
        if (widget && widget->isWindow())
            mTrap.run([this, widget] { windowActivated(widget); });
    } else if (event->type() == QEvent::WindowDeactivate && !QApplication::activeWindow()) {
        mRule.noneIsActive();
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
    const bool previousIsGone = !mActive || !mActive->isVisible();
    mActive = active;
    // What an activation does may show a message, which Qt cannot do while it changes windows.
    if (mRule.becomesActive(kind, previousIsGone))
        QMetaObject::invokeMethod(
            this, [this] { mTrap.run(mActivated); }, Qt::QueuedConnection);
}
