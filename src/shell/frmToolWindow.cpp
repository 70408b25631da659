#include "shell/frmToolWindow.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace {

/// On X11 only a dialog is kept above its owner; nothing else about the window is a dialog's.
void becomeOwnable(QWidget *tool)
{
    tool->setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                         Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
}

QWindow *nativeWindow(QWidget *window)
{
    window->winId(); // makes the native window where there is none yet
    return window->windowHandle();
}

} // namespace

void ToolWindow::showOwned(QWidget *tool, QWidget *owner)
{
    if (tool->isVisible()) {
        tool->setWindowState(tool->windowState() & ~Qt::WindowMinimized);
        tool->raise();
    } else {
        becomeOwnable(tool);
        nativeWindow(tool)->setTransientParent(nativeWindow(owner));
        tool->show();
    }
    tool->activateWindow();
}

void ToolWindow::release(QWidget *owner)
{
    // Qt does not count a window with a transient parent when it looks for the last one.
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *window : windows)
        if (window->transientParent() && window->transientParent() == owner->windowHandle())
            window->setTransientParent(nullptr);
}
