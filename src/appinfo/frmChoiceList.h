#pragma once

#include <QListView>

/// A list of texts of which one at a time is chosen. An entry stays selected until another one is.
class frmChoiceList final : public QListView
{
    Q_OBJECT

public:
    using QListView::QListView;

Q_SIGNALS:
    /// The user has chosen an entry, the one that was selected already included: by a key that
    /// selects it, or by a press of a mouse button, which chooses what is selected at its release.
    void chosen(const QString &entry);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &gone) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &entry,
                                                         const QEvent *event) const override;

private:
    void beginChoice(const QMouseEvent &event);
    void tell();

    bool mIsPressed = false;
    bool mIsChoosing = false; ///< while pressed: the release will be a choice
};
