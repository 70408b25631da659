#pragma once

#include <QComboBox>
#include <QEvent>

/// Keeps the mouse wheel from choosing an entry of a combo box over which the pointer happens to
/// be. Only a box that has the keyboard's focus takes the wheel; any other leaves it to what it
/// stands in. Belongs to the box.
class frmComboWheel final : public QObject
{
public:
    explicit frmComboWheel(QComboBox *list) : QObject(list), mList(list)
    {
        list->setFocusPolicy(Qt::StrongFocus); // the wheel does not bring the focus either
        list->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        const bool isStray = event->type() == QEvent::Wheel && !mList->hasFocus();
        if (isStray)
            event->ignore();
        return isStray;
    }

private:
    QComboBox *mList;
};
