#pragma once

#include <QAbstractItemView>
#include <QMouseEvent>

/// Lets a view be double-clicked with the left mouse button alone. Its doubleClicked() comes for
/// every button otherwise. Belongs to the view.
class frmLeftDoubleClick final : public QObject
{
public:
    explicit frmLeftDoubleClick(QAbstractItemView *view) : QObject(view)
    {
        view->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        return event->type() == QEvent::MouseButtonDblClick &&
               static_cast<const QMouseEvent *>(event)->button() != Qt::LeftButton;
    }
};
