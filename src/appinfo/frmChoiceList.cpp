#include "appinfo/frmChoiceList.h"

#include <QGuiApplication>
#include <QMouseEvent>

#include <utility>

void frmChoiceList::mousePressEvent(QMouseEvent *event)
{
    beginChoice(*event);
    QListView::mousePressEvent(event);
}

void frmChoiceList::mouseDoubleClickEvent(QMouseEvent *event)
{
    beginChoice(*event);
    QListView::mouseDoubleClickEvent(event);
}

void frmChoiceList::beginChoice(const QMouseEvent &event)
{
    mIsPressed = true;
    mIsChoosing |= indexAt(event.position().toPoint()).isValid();
}

void frmChoiceList::mouseReleaseEvent(QMouseEvent *event)
{
    QListView::mouseReleaseEvent(event);
    if (event->buttons() != Qt::NoButton)
        return;
    mIsPressed = false;
    if (std::exchange(mIsChoosing, false))
        tell();
}

void frmChoiceList::selectionChanged(const QItemSelection &selected, const QItemSelection &gone)
{
    QListView::selectionChanged(selected, gone);
    // A release that went to another window leaves no button down.
    if (mIsPressed && QGuiApplication::mouseButtons() != Qt::NoButton)
        mIsChoosing = true;
    else
        tell();
}

QItemSelectionModel::SelectionFlags frmChoiceList::selectionCommand(const QModelIndex &entry,
                                                                    const QEvent *event) const
{
    // The Control key, and a click beside the entries, would take a choice back and leave its
    // answer standing.
    const auto command = QListView::selectionCommand(entry, event);
    const bool selects = entry.isValid() && command & QItemSelectionModel::Select;
    return selects ? command : QItemSelectionModel::NoUpdate;
}

void frmChoiceList::tell()
{
    const QModelIndexList selected = selectedIndexes();
    if (!selected.isEmpty())
        Q_EMIT chosen(selected.first().data().toString());
}
