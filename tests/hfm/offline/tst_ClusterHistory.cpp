#include "hfm/offline/ClusterHistory.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace hfm::offline;

class tst_ClusterHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Tessaly"));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, mSettings.path());
    }

    void init() { QSettings().clear(); }

    void theSampleClusterIsOfferedFirst()
    {
        ClusterHistory history(QStringLiteral("/samples/Alderbrook"));
        history.use(QStringLiteral("/data/north"));
        history.use(QStringLiteral("/data/south"));
        QCOMPARE(history.folders(),
                 QStringList({QStringLiteral("/samples/Alderbrook"), QStringLiteral("/data/south"),
                              QStringLiteral("/data/north")}));
    }

    void withoutSamplesOnlyUsedFoldersAreOffered()
    {
        ClusterHistory history({});
        QCOMPARE(history.folders(), QStringList());
        history.use(QStringLiteral("/data/north"));
        QCOMPARE(history.folders(), QStringList(QStringLiteral("/data/north")));
    }

    void aFolderUsedAgainMovesToTheFront()
    {
        ClusterHistory history({});
        history.use(QStringLiteral("/data/north"));
        history.use(QStringLiteral("/data/south"));
        history.use(QStringLiteral("/data/other/../north/"));
        QCOMPARE(history.folders(),
                 QStringList({QStringLiteral("/data/north"), QStringLiteral("/data/south")}));
    }

    void theSampleClusterKeepsItsPlaceWhenItIsUsed()
    {
        ClusterHistory history(QStringLiteral("/samples/Alderbrook"));
        history.use(QStringLiteral("/samples/Alderbrook"));
        QCOMPARE(history.folders(), QStringList(QStringLiteral("/samples/Alderbrook")));
        QCOMPARE(ClusterHistory({}).folders(), QStringList());
    }

    void anotherRunRemembersTheFolders()
    {
        ClusterHistory(QString()).use(QStringLiteral("/data/north"));
        QCOMPARE(ClusterHistory(QString()).folders(), QStringList(QStringLiteral("/data/north")));
    }

    void onlyTheLastFoldersAreRemembered()
    {
        ClusterHistory history({});
        for (int i = 0; i < ClusterHistory::remembered + 3; ++i)
            history.use(QStringLiteral("/data/%1").arg(i));
        QCOMPARE(history.folders().size(), ClusterHistory::remembered);
        QCOMPARE(history.folders().first(), QStringLiteral("/data/12"));
        QCOMPARE(history.folders().last(), QStringLiteral("/data/3"));
    }

    void samplesBesideTheProgramAreFound()
    {
        QTemporaryDir root;
        const QDir program(root.filePath(QStringLiteral("program")));
        QVERIFY(program.mkpath(QStringLiteral(".")));
        QCOMPARE(findSampleCluster(program.path()), QString());

        QVERIFY(program.mkpath(QStringLiteral("../share/tessaly/samples/Alderbrook")));
        QCOMPARE(findSampleCluster(program.path()),
                 root.filePath(QStringLiteral("share/tessaly/samples/Alderbrook")));

        QVERIFY(program.mkpath(QStringLiteral("samples/Alderbrook")));
        QCOMPARE(findSampleCluster(program.path()),
                 program.filePath(QStringLiteral("samples/Alderbrook")));
    }

    void theLoginNameIsTheSystemsUser()
    {
        qputenv("USER", "analyst");
        QCOMPARE(loginName(), QStringLiteral("analyst"));
        qunsetenv("USER");
        qputenv("LOGNAME", "controller");
        QCOMPARE(loginName(), QStringLiteral("controller"));
        qunsetenv("LOGNAME");
        qunsetenv("USERNAME");
        // Without any of them it is the owner of what this process writes.
        QCOMPARE(loginName(), QFileInfo(mSettings.path()).owner());
    }

private:
    QTemporaryDir mSettings;
};

QTEST_GUILESS_MAIN(tst_ClusterHistory)
#include "tst_ClusterHistory.moc"
