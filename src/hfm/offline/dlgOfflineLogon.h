#pragma once

#include "hfm/offline/Dialogs.h"
#include "runtime/ErrorTrap.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace hfm::offline {

/// Asks for the folder of a cluster and a user's name. A folder that is none keeps the dialog open
/// and is said in it.
class dlgOfflineLogon final : public QDialog
{
    Q_OBJECT

public:
    /// Offers `clusters`, the first of them chosen, and `userName`.
    dlgOfflineLogon(const QStringList &clusters, const QString &userName, ErrorTrap &trap,
                    QWidget *parent = nullptr);

    /// What the user entered, without blanks around it.
    Logon logon() const;

private:
    void makeControls(const QStringList &clusters, const QString &userName);
    void arrangeControls();
    void browse();
    void confirm();
    void inputChanged();

    QComboBox *mCluster;
    QPushButton *mBrowse;
    QLineEdit *mUserName;
    QLabel *mProblem;
    QPushButton *mOk;
    QPushButton *mCancel;
};

} // namespace hfm::offline
