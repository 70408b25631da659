#include "hfm/offline/OfflineClient.h"
#include "Reading.h"

#include <QDir>
#include <QTest>

#include <sys/stat.h>

using namespace hfm::offline;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray entities = "!MEMBERS=Entity\nA;;;;;;;;;;;DefaultParent=#root\n";

QStringList names(const QList<ApplicationFiles> &applications)
{
    QStringList found;
    for (const ApplicationFiles &files : applications)
        found.append(files.name);
    return found;
}

class ConfirmingLogon final : public LogonDialog
{
public:
    explicit ConfirmingLogon(QString folder) : mFolder(std::move(folder)) {}
    bool ask(Logon &logon) override
    {
        logon = {mFolder, u"Controller"_s};
        return true;
    }

private:
    QString mFolder;
};

class FirstApplication final : public OpenDialog
{
public:
    std::shared_ptr<const Application> choose(const QString &clusterFolder) override
    {
        return readApplication(findApplications(clusterFolder).first(), yearOfReading);
    }
};

} // namespace

/// Where an application's files are.
class tst_Clusters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFilesOfOneBaseNameAreOneApplication()
    {
        const ClusterFolder cluster;
        for (const QString &extension : {u"app"_s, u"sec"_s, u"lst"_s, u"profile"_s})
            cluster.write(u"Comma."_s + extension, entities);
        cluster.write(u"Zenith.app"_s, entities);
        const auto found = cluster.applications();
        QCOMPARE(names(found), QStringList({u"Comma"_s, u"Zenith"_s}));
        QCOMPARE(found[0].metadata, cluster.path(u"Comma.app"_s));
        QCOMPARE(found[0].security, cluster.path(u"Comma.sec"_s));
        QCOMPARE(found[0].memberLists, cluster.path(u"Comma.lst"_s));
        QCOMPARE(found[0].profile, cluster.path(u"Comma.profile"_s));
        QVERIFY(!found[0].isXml);
        QCOMPARE(found[1].security, QString());
        QCOMPARE(found[1].memberLists, QString());
        QCOMPARE(found[1].profile, QString());
    }

    void extensionsAreMatchedInAnyLetterCase()
    {
        const ClusterFolder cluster;
        cluster.write(u"Comma.APP"_s, entities);
        cluster.write(u"Comma.Sec"_s, "!SECURITY_CLASSES\nX\n");
        cluster.write(u"Comma.lST"_s, "");
        cluster.write(u"Comma.ProFile"_s, "!LANGUAGES\nItalian\n");
        const auto found = cluster.applications();
        QCOMPARE(names(found), QStringList{u"Comma"_s});
        QCOMPARE(found[0].security, cluster.path(u"Comma.Sec"_s));
        QCOMPARE(found[0].memberLists, cluster.path(u"Comma.lST"_s));
        QCOMPARE(readFiles(found[0]).metadata()->GetLanguages(), QStringList{u"Italian"_s});
    }

    void aSubFolderThatHoldsOneSetIsAnApplication()
    {
        const ClusterFolder cluster;
        QVERIFY(QDir(cluster.path()).mkpath(u"any name/deeper"_s));
        cluster.write(u"any name/Comma.app"_s, entities);
        cluster.write(u"any name/Comma.sec"_s, "");
        cluster.write(u"any name/notes.sec"_s, "");
        cluster.write(u"any name/deeper/Deep.app"_s, entities);
        const auto found = cluster.applications();
        QCOMPARE(names(found), QStringList{u"Comma"_s});
        QCOMPARE(found[0].security, cluster.path(u"any name/Comma.sec"_s));
    }

    void aSubFolderThatHoldsTwoSetsIsNone()
    {
        const ClusterFolder cluster;
        QVERIFY(QDir(cluster.path()).mkpath(u"two"_s));
        cluster.write(u"two/Comma.app"_s, entities);
        cluster.write(u"two/Zenith.xml"_s, "<x/>");
        QCOMPARE(names(cluster.applications()), QStringList());
    }

    void theMetadataIsRequiredAndOneOfTwoFiles()
    {
        const ClusterFolder cluster;
        cluster.write(u"OnlyLists.lst"_s, "");
        cluster.write(u"OnlySecurity.sec"_s, "");
        cluster.write(u"OnlyProfile.profile"_s, "");
        cluster.write(u"Other.txt"_s, entities);
        cluster.write(u"noextension"_s, entities);
        cluster.write(u"Xml.XML"_s, "<x/>");
        const auto found = cluster.applications();
        QCOMPARE(names(found), QStringList{u"Xml"_s});
        QVERIFY(found[0].isXml);
        QCOMPARE(found[0].metadata, cluster.path(u"Xml.XML"_s));
    }

    void whereBothStandSideBySideAppIsRead_data()
    {
        QTest::addColumn<QString>("app");
        QTest::addColumn<QString>("xml");
        QTest::newRow("app.xml") << u"Comma.app"_s << u"Comma.xml"_s;
        QTest::newRow("APP.xml") << u"Comma.APP"_s << u"Comma.xml"_s;
        QTest::newRow("app.XML") << u"Comma.app"_s << u"Comma.XML"_s;
    }

    void whereBothStandSideBySideAppIsRead()
    {
        QFETCH(QString, app);
        QFETCH(QString, xml);
        const ClusterFolder cluster;
        cluster.write(app, entities);
        cluster.write(xml, "<broken");
        const auto found = cluster.applications();
        QCOMPARE(names(found), QStringList{u"Comma"_s});
        QCOMPARE(found[0].metadata, cluster.path(app));
        QVERIFY(!found[0].isXml);
        QCOMPARE(readFiles(found[0]).entity()->EnumAllMemberLabels(), QStringList{u"A"_s});
    }

    void theApplicationsNameIsTheBaseNameWithItsDots()
    {
        const ClusterFolder cluster;
        cluster.write(u"Comma v1.2 (été).app"_s, entities);
        const auto found = cluster.applications();
        QCOMPARE(names(found), QStringList{u"Comma v1.2 (été)"_s});
        QCOMPARE(readFiles(found[0]).session()->GetSystemInfo()->GetApplicationName(),
                 u"Comma v1.2 (été)"_s);
    }

    void theClustersNameIsThatOfItsFolderWithoutThePath_data()
    {
        QTest::addColumn<QString>("written");
        QTest::newRow("plain") << u"/Group Cluster"_s;
        QTest::newRow("with a slash") << u"/Group Cluster/"_s;
        QTest::newRow("with dots") << u"/Group Cluster/../Group Cluster/."_s;
    }

    void theClustersNameIsThatOfItsFolderWithoutThePath()
    {
        QFETCH(QString, written);
        const ClusterFolder parent;
        QVERIFY(QDir(parent.path()).mkpath(u"Group Cluster"_s));
        parent.write(u"Group Cluster/Comma.app"_s, entities);
        ConfirmingLogon logon(parent.path() + written);
        FirstApplication open;
        OfflineClientFactory factory(logon, open);
        const auto client = factory.createClient();
        client->Initialize(factory.createLogonUserInterface());
        QVERIFY(client->Logon(false));
        hfm::OpenedApplication opened;
        QString cluster;
        QString application;
        QVERIFY(client->OpenApplication(opened, cluster, application));
        QCOMPARE(opened.session->GetSystemInfo()->GetClusterName(), u"Group Cluster"_s);
        QCOMPARE(opened.applicationName, u"Comma"_s);
    }

    void theClusterThatIsTheRootOfAllFoldersIsNamedByIt() { QCOMPARE(clusterName(u"/"_s), u"/"_s); }

    void applicationsAndFoldersMayBeLinks()
    {
        const ClusterFolder elsewhere;
        elsewhere.write(u"Far.app"_s, entities);
        QVERIFY(QDir(elsewhere.path()).mkpath(u"folder"_s));
        elsewhere.write(u"folder/Zenith.app"_s, entities);
        elsewhere.write(u"folder/Zenith.sec"_s, "!SECURITY_CLASSES\nX\n");

        const ClusterFolder cluster;
        QVERIFY(QFile::link(elsewhere.path(u"Far.app"_s), cluster.path(u"Comma.app"_s)));
        QVERIFY(QFile::link(elsewhere.path(u"folder"_s), cluster.path(u"linked"_s)));
        QVERIFY(QFile::link(elsewhere.path(u"gone.app"_s), cluster.path(u"Gone.app"_s)));
        const auto found = cluster.applications();
        QCOMPARE(names(found), QStringList({u"Comma"_s, u"Zenith"_s}));
        QCOMPARE(found[1].security, cluster.path(u"linked/Zenith.sec"_s));
        for (const ApplicationFiles &files : found)
            QCOMPARE(readFiles(files).entity()->EnumAllMemberLabels(), QStringList{u"A"_s});
    }

    void aFolderThatIsNotThereHasNoApplications()
    {
        const ClusterFolder cluster;
        QVERIFY(findApplications(cluster.path(u"gone"_s)).isEmpty());
        QVERIFY(findApplications(QString()).isEmpty());
    }

    void foldersAndPipesNamedLikeMetadataAreNone()
    {
        const ClusterFolder cluster;
        QVERIFY(QDir(cluster.path()).mkpath(u"X.app"_s));
        QCOMPARE(mkfifo(QFile::encodeName(cluster.path(u"Pipe.app"_s)).constData(), 0600), 0);
        QVERIFY(cluster.applications().isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_Clusters)
#include "tst_Clusters.moc"
