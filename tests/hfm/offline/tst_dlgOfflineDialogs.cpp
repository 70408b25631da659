#include "hfm/offline/dlgOfflineDialogs.h"
#include "support/FakeServices.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace hfm::offline;
using namespace Qt::Literals::StringLiterals;

/// The two dialogs as the client shows them: modal, and the clusters remembered.
class tst_dlgOfflineDialogs : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir mSettings;
    QTemporaryDir mCluster;
    FakeServices mServices;

    /// Clicks a button of the next dialog that is shown.
    void clickInDialog(const QString &button, const QString &cluster = {})
    {
        QTimer::singleShot(0, this, [button, cluster] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (!cluster.isEmpty())
                dialog->findChild<QComboBox *>(u"cboCluster"_s)->setEditText(cluster);
            QTest::mouseClick(dialog->findChild<QPushButton *>(button), Qt::LeftButton);
        });
    }

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(u"Tessaly"_s);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, mSettings.path());
        qputenv("USER", "analyst");
        QFile file(mCluster.filePath(u"Comma.app"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("!HIERARCHIES=Entity\n;A\n");
    }

    void init() { QSettings().clear(); }

    void okRemembersTheClusterForTheNextLogon()
    {
        OfflineDialogs dialogs(u"/samples/Alderbrook"_s, mServices.clock, mServices.trap);
        Logon logon;
        clickInDialog(u"cmdLogonOk"_s, mCluster.path());
        QVERIFY(dialogs.ask(logon));
        QCOMPARE(logon.clusterFolder, mCluster.path());
        QCOMPARE(logon.userName, u"analyst"_s);
        QCOMPARE(ClusterHistory(QString()).folders(), QStringList{mCluster.path()});

        QStringList offered;
        QTimer::singleShot(0, this, [&offered] {
            QWidget *dialog = QApplication::activeModalWidget();
            const auto *clusters = dialog->findChild<QComboBox *>(u"cboCluster"_s);
            for (int i = 0; i < clusters->count(); ++i)
                offered.append(clusters->itemText(i));
            QTest::mouseClick(dialog->findChild<QPushButton *>(u"cmdLogonCancel"_s),
                              Qt::LeftButton);
        });
        QVERIFY(!dialogs.ask(logon));
        QCOMPARE(offered, QStringList({u"/samples/Alderbrook"_s, mCluster.path()}));
    }

    void cancelRemembersNothingAndLeavesTheLogonAsItWas()
    {
        OfflineDialogs dialogs({}, mServices.clock, mServices.trap);
        Logon logon = {u"/before"_s, u"controller"_s};
        clickInDialog(u"cmdLogonCancel"_s, mCluster.path());
        QVERIFY(!dialogs.ask(logon));
        QCOMPARE(logon.clusterFolder, u"/before"_s);
        QCOMPARE(logon.userName, u"controller"_s);
        QCOMPARE(ClusterHistory(QString()).folders(), QStringList());
    }

    void choosingGivesTheApplicationOrNone()
    {
        OfflineDialogs dialogs({}, mServices.clock, mServices.trap);
        clickInDialog(u"cmdOpenOk"_s);
        const auto application = dialogs.choose(mCluster.path());
        QVERIFY(application);
        QCOMPARE(application->files.name, u"Comma"_s);
        clickInDialog(u"cmdOpenCancel"_s);
        QVERIFY(!dialogs.choose(mCluster.path()));
    }
};

QTEST_MAIN(tst_dlgOfflineDialogs)
#include "tst_dlgOfflineDialogs.moc"
