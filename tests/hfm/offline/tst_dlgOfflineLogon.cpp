#include "hfm/offline/dlgOfflineLogon.h"
#include "support/FakeServices.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace hfm::offline;

class tst_dlgOfflineLogon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mDialog = std::make_unique<dlgOfflineLogon>(
            QStringList({mCluster.path(), QStringLiteral("/data/gone")}), QStringLiteral("analyst"),
            mServices.trap);
        mDialog->show();
        mCombo = mDialog->findChild<QComboBox *>(QStringLiteral("cboCluster"));
        mUser = mDialog->findChild<QLineEdit *>(QStringLiteral("txtUserName"));
        mOk = mDialog->findChild<QPushButton *>(QStringLiteral("cmdLogonOk"));
        mCancel = mDialog->findChild<QPushButton *>(QStringLiteral("cmdLogonCancel"));
        mProblem = mDialog->findChild<QLabel *>(QStringLiteral("lblLogonProblem"));
        QVERIFY(mCombo && mUser && mOk && mCancel && mProblem);
        QVERIFY(mDialog->findChild<QPushButton *>(QStringLiteral("cmdBrowseCluster")));
    }

    void theFirstClusterAndTheLoginNameAreOffered()
    {
        QCOMPARE(mCombo->currentText(), mCluster.path());
        QCOMPARE(mCombo->count(), 2);
        QVERIFY(mCombo->isEditable());
        QCOMPARE(mUser->text(), QStringLiteral("analyst"));
        QVERIFY(mOk->isEnabled());
        QVERIFY(mProblem->isHidden());
    }

    void enterLogsOn()
    {
        QTest::keyClick(mUser, Qt::Key_Return);
        QCOMPARE(mDialog->result(), int(QDialog::Accepted));
        QCOMPARE(mDialog->logon().clusterFolder, mCluster.path());
        QCOMPARE(mDialog->logon().userName, QStringLiteral("analyst"));
    }

    void blanksAroundTheEntriesAreDropped()
    {
        mCombo->setEditText(QStringLiteral("  %1 ").arg(mCluster.path()));
        mUser->setText(QStringLiteral(" controller "));
        QCOMPARE(mDialog->logon().clusterFolder, mCluster.path());
        QCOMPARE(mDialog->logon().userName, QStringLiteral("controller"));
    }

    void whatIsTypedIsNotCompletedToAFolderUsedBefore()
    {
        QTest::keyClick(mCombo->lineEdit(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(mCombo->lineEdit(), QStringLiteral("/data"));
        QCOMPARE(mDialog->logon().clusterFolder, QStringLiteral("/data"));
    }

    void aFolderThatIsNoneKeepsTheDialogOpenAndIsSaid()
    {
        mCombo->setCurrentIndex(1);
        QTest::mouseClick(mOk, Qt::LeftButton);
        QVERIFY(mDialog->isVisible());
        QVERIFY(mProblem->isVisible());
        QCOMPARE(mProblem->text(), QStringLiteral("There is no folder '/data/gone'."));

        QTest::keyClick(mCombo->lineEdit(), Qt::Key_Backspace);
        QVERIFY(mProblem->isHidden());
    }

    void withoutAClusterOrAUserOkIsOff()
    {
        mUser->setText(QStringLiteral("  "));
        QVERIFY(!mOk->isEnabled());
        mUser->setText(QStringLiteral("a"));
        QVERIFY(mOk->isEnabled());
        mCombo->clearEditText();
        QVERIFY(!mOk->isEnabled());
    }

    void theFolderThatIsBrowsedForIsEntered()
    {
        QVERIFY(QDir(mCluster.path()).mkpath(QStringLiteral("north")));
        const QString north = mCluster.filePath(QStringLiteral("north"));
        browseAndPress(Qt::Key_Return, north);
        QCOMPARE(mDialog->logon().clusterFolder, north);
        QVERIFY(mDialog->isVisible());
    }

    void withoutAFolderBrowsedForTheEntryStays()
    {
        browseAndPress(Qt::Key_Escape, mCluster.path());
        QCOMPARE(mDialog->logon().clusterFolder, mCluster.path());
        mCombo->setEditText(QStringLiteral("/data/gone"));
        browseAndPress(Qt::Key_Escape, mCluster.path());
        QCOMPARE(mDialog->logon().clusterFolder, QStringLiteral("/data/gone"));
    }

    void cancelAndEscapeGiveUp()
    {
        QTest::mouseClick(mCancel, Qt::LeftButton);
        QCOMPARE(mDialog->result(), int(QDialog::Rejected));
        QVERIFY(!mDialog->isVisible());
        mDialog->show();
        QTest::keyClick(mUser, Qt::Key_Escape);
        QVERIFY(!mDialog->isVisible());
    }

private:
    /// Clicks "Browse..." and, in the dialog that this opens, enters a folder and presses a key.
    void browseAndPress(Qt::Key key, const QString &folder)
    {
        QTimer::singleShot(0, this, [key, folder] {
            QWidget *browser = QApplication::activeModalWidget();
            auto *name = browser->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            name->setText(folder);
            QTest::keyClick(name, key);
        });
        QTest::mouseClick(mDialog->findChild<QPushButton *>(QStringLiteral("cmdBrowseCluster")),
                          Qt::LeftButton);
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }

    QTemporaryDir mCluster;
    FakeServices mServices;
    std::unique_ptr<dlgOfflineLogon> mDialog;
    QComboBox *mCombo = nullptr;
    QLineEdit *mUser = nullptr;
    QPushButton *mOk = nullptr;
    QPushButton *mCancel = nullptr;
    QLabel *mProblem = nullptr;
};

QTEST_MAIN(tst_dlgOfflineLogon)
#include "tst_dlgOfflineLogon.moc"
