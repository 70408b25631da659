#pragma once

#include "extract/ExtractRules.h"
#include "shell/modGlobal.h"
#include "shell/Services.h"

#include <QMainWindow>

class LargeTextView;
class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// The extract window: shows the current dimension as parent-child text and saves it. It reads the
/// shared state as it is made, and deletes itself when it is closed.
class frmExtract final : public QMainWindow
{
    Q_OBJECT

public:
    /// Fails with RuntimeError ObjectVariableNotSet where no dimension is chosen, and as the
    /// dimension's GetDimensionName does.
    frmExtract(Services &services, modGlobal &global, QWidget *parent = nullptr);

    /// Builds the extract as the comma option has it and shows it. Fails as buildExtract() does.
    void DoExtract();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void makeControls();
    void makeMenu();
    void arrangeControls();
    void connectControls();

    void runExtract();
    void delimiterClicked(const QAbstractButton &option);
    void applyDelimiter(const QAbstractButton &option);
    void headerRowClicked();
    void saveExtract();
    void build(const ExtractIndicators &indicators);
    ExtractRules::Choices choices() const;

    Services &mServices;
    modGlobal &mGlobal;
    bool mIsRunning = false;

    QLabel *mApplicationPanel;
    QLabel *mDimension;
    QPushButton *mExtract;
    QButtonGroup *mUseIndicators;
    QLineEdit *mParentIndicator;
    QLineEdit *mBaseIndicator;
    QButtonGroup *mDelimeters;
    LargeTextView *mText;
    QCheckBox *mShowHeaderRow;
    QPushButton *mSave;
};
