#include "hfm/offline/dlgOfflineLogon.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace hfm::offline {

dlgOfflineLogon::dlgOfflineLogon(const QStringList &clusters, const QString &userName,
                                 ErrorTrap &trap, QWidget *parent)
    : QDialog(parent), mCluster(new QComboBox(this)), mBrowse(new QPushButton(this)),
      mUserName(new QLineEdit(this)), mProblem(new QLabel(this)), mOk(new QPushButton(this)),
      mCancel(new QPushButton(this))
{
    setObjectName(QStringLiteral("dlgOfflineLogon"));
    setWindowTitle(tr("Logon"));
    makeControls(clusters, userName);
    arrangeControls();
    trap.connect(mBrowse, &QPushButton::clicked, this, [this] { browse(); });
    trap.connect(mOk, &QPushButton::clicked, this, [this] { confirm(); });
    trap.connect(mCancel, &QPushButton::clicked, this, [this] { reject(); });
    trap.connect(mCluster, &QComboBox::editTextChanged, this, [this] { inputChanged(); });
    trap.connect(mUserName, &QLineEdit::textChanged, this, [this] { inputChanged(); });
    inputChanged();
}

void dlgOfflineLogon::makeControls(const QStringList &clusters, const QString &userName)
{
    mCluster->setObjectName(QStringLiteral("cboCluster"));
    mCluster->setAccessibleName(tr("Cluster folder"));
    mCluster->setEditable(true);
    mCluster->setInsertPolicy(QComboBox::NoInsert);
    // Completed, the folder above one that was used before could not be typed.
    mCluster->setCompleter(nullptr);
    mCluster->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    mCluster->setMinimumContentsLength(50);
    for (const QString &folder : clusters)
        mCluster->addItem(QDir::toNativeSeparators(folder));

    mBrowse->setObjectName(QStringLiteral("cmdBrowseCluster"));
    mBrowse->setText(tr("&Browse..."));
    mBrowse->setAccessibleName(tr("Browse for a cluster folder"));
    mUserName->setObjectName(QStringLiteral("txtUserName"));
    mUserName->setAccessibleName(tr("User name"));
    mUserName->setText(userName);
    mProblem->setObjectName(QStringLiteral("lblLogonProblem"));
    mProblem->setTextFormat(Qt::PlainText);
    mProblem->setWordWrap(true);
    mProblem->hide();
    mOk->setObjectName(QStringLiteral("cmdLogonOk"));
    mOk->setText(tr("OK"));
    mOk->setDefault(true);
    mCancel->setObjectName(QStringLiteral("cmdLogonCancel"));
    mCancel->setText(tr("Cancel"));
}

void dlgOfflineLogon::arrangeControls()
{
    auto *explanation = new QLabel(tr("A cluster is a folder that holds the files of applications, "
                                      "as Financial Management extracts them."),
                                   this);
    explanation->setObjectName(QStringLiteral("lblLogonExplanation"));
    explanation->setWordWrap(true);

    auto *clusterRow = new QHBoxLayout;
    clusterRow->addWidget(mCluster, 1);
    clusterRow->addWidget(mBrowse);
    auto *form = new QFormLayout;
    auto *clusterLabel = new QLabel(tr("C&luster:"), this);
    clusterLabel->setBuddy(mCluster);
    form->addRow(clusterLabel, clusterRow);
    form->addRow(tr("&User name:"), mUserName);

    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(mOk, QDialogButtonBox::AcceptRole);
    buttons->addButton(mCancel, QDialogButtonBox::RejectRole);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(explanation);
    layout->addLayout(form);
    layout->addWidget(mProblem);
    layout->addStretch();
    layout->addWidget(buttons);
    mCluster->setFocus();
}

Logon dlgOfflineLogon::logon() const
{
    return {QDir::fromNativeSeparators(mCluster->currentText().trimmed()),
            mUserName->text().trimmed()};
}

void dlgOfflineLogon::browse()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Choose a Cluster Folder"),
                                                             logon().clusterFolder);
    if (!folder.isEmpty())
        mCluster->setEditText(QDir::toNativeSeparators(folder));
}

void dlgOfflineLogon::confirm()
{
    const QString folder = logon().clusterFolder;
    if (QFileInfo(folder).isDir()) {
        accept();
        return;
    }
    mProblem->setText(tr("There is no folder '%1'.").arg(QDir::toNativeSeparators(folder)));
    mProblem->show();
    mCluster->setFocus();
}

void dlgOfflineLogon::inputChanged()
{
    const Logon entered = logon();
    mOk->setEnabled(!entered.clusterFolder.isEmpty() && !entered.userName.isEmpty());
    mProblem->hide();
}

} // namespace hfm::offline
