#pragma once

#include <QEvent>
#include <QWidget>

/// The mouse pointers that a window has shown, in order.
class CursorLog final : public QObject
{
public:
    explicit CursorLog(QWidget *window) : mWindow(window) { window->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        const Qt::CursorShape shape = mWindow->cursor().shape();
        if (event->type() == QEvent::CursorChange && (shapes.isEmpty() || shapes.last() != shape))
            shapes.append(shape);
        return false;
    }

    QList<Qt::CursorShape> shapes;

private:
    QWidget *mWindow;
};
