#include "shell/frmToolWindow.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace {

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
