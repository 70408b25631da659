#pragma once

#include "hfm/offline/ApplicationChoices.h"
#include "runtime/ErrorTrap.h"

#include <QAbstractSlider>
#include <QDialog>
#include <QKeySequence>

class QLabel;
class QListView;
class QPushButton;
class QScrollArea;
class QStringListModel;

namespace hfm::offline {

/// Lets the user choose one of a cluster's applications. Selecting one reads it and shows what it
/// holds and what was wrong in its files; one that cannot be read shows why and cannot be opened.
class dlgOfflineOpen final : public QDialog
{
    Q_OBJECT

public:
    dlgOfflineOpen(const QString &clusterFolder, const Clock &clock, ErrorTrap &trap,
                   QWidget *parent = nullptr);

    /// The application that is selected; null where none is, or where it cannot be read.
    std::shared_ptr<const Application> application() const { return mApplication; }

private:
    void makeControls(const QString &clusterFolder);
    void arrangeControls();
    void connectControls(ErrorTrap &trap);
    void scrollSummaryBy(ErrorTrap &trap, QKeySequence::StandardKey key,
                         QAbstractSlider::SliderAction action);
    void addMenuOfWarnings(ErrorTrap &trap);
    void showSelected();
    void tell(const ApplicationPreview &preview);
    void confirm();

    ApplicationChoices mChoices;
    std::shared_ptr<const Application> mApplication;
    QStringListModel *mNames;
    QStringListModel *mWarningLines;
    QListView *mApplications;
    QLabel *mSummary;
    QScrollArea *mSummaryArea = nullptr;
    QListView *mWarnings;
    QPushButton *mOk;
    QPushButton *mCancel;
};

} // namespace hfm::offline
