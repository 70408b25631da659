#include "hfm/offline/OfflineClient.h"
#include "hfm/offline/OfflineSession.h"
#include "ReadText.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace hfm::offline;
using namespace Qt::Literals::StringLiterals;

namespace {

/// A user who logs on to a folder and opens whatever there is.
class User final : public LogonDialog, public OpenDialog
{
public:
    QString folder;
    QStringList foldersAskedFor; ///< of the openings, in order

    bool ask(Logon &logon) override
    {
        logon = {folder, u"controller"_s};
        return true;
    }
    std::shared_ptr<const Application> choose(const QString &clusterFolder) override
    {
        foldersAskedFor.append(clusterFolder);
        return readText("!HIERARCHIES=Entity\n;A\n");
    }
};

} // namespace

/// The client's first objects, as far as they say more than any client must.
class tst_OfflineClient : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> mFolder;
    User mUser;
    OfflineClientFactory mFactory{mUser, mUser};
    std::shared_ptr<hfm::LogonUserInterface> mUserInterface;
    std::shared_ptr<hfm::Client> mClient;

    bool open(hfm::OpenedApplication &opened)
    {
        QString cluster;
        QString application;
        return mClient->OpenApplication(opened, cluster, application);
    }

private Q_SLOTS:
    void init()
    {
        mFolder = std::make_unique<QTemporaryDir>();
        mUser = {};
        mUser.folder = mFolder->path();
        mUserInterface = mFactory.createLogonUserInterface();
        mClient = mFactory.createClient();
        mClient->Initialize(mUserInterface);
    }

    void theVersionIsThatOfTheReleaseWhoseFilesAreRead()
    {
        const auto version = mFactory.createVersionInformation();
        version->SetVersionSelector(0);
        QCOMPARE(version->GetVersion(), u"11.1.2"_s);
    }

    void aSilentLogonIsTrueOnlyAfterALogon()
    {
        QVERIFY(!mClient->Logon(true));
        QVERIFY(mClient->Logon(false));
        QVERIFY(mClient->Logon(true));
    }

    void theLogonsDetailIsTheClustersFolder()
    {
        QVERIFY(mClient->Logon(false));
        QCOMPARE(mUserInterface->GetLogonInfo().userName, u"controller"_s);
        QCOMPARE(mUserInterface->GetLogonInfo().detail, QDir::toNativeSeparators(mFolder->path()));
    }

    void aLogonToAFolderThatVanishedIsAnsweredFalseAndTheOneBeforeHolds()
    {
        mUser.folder = mFolder->filePath(u"gone"_s);
        QVERIFY(!mClient->Logon(false));
        QVERIFY(!mClient->Logon(true));
        QCOMPARE(mUserInterface->GetLogonInfo().userName, QString());

        mUser.folder = mFolder->path();
        QVERIFY(mClient->Logon(false));
        mUser.folder = mFolder->filePath(u"gone"_s);
        QVERIFY(!mClient->Logon(false));
        QCOMPARE(mUserInterface->GetLogonInfo().detail, QDir::toNativeSeparators(mFolder->path()));
    }

    void withoutALogonNothingIsOpenedAndNobodyIsAsked()
    {
        hfm::OpenedApplication opened;
        QVERIFY(!open(opened));
        QVERIFY(!opened.session);
        QCOMPARE(mUser.foldersAskedFor, QStringList());

        QVERIFY(mClient->Logon(false));
        QVERIFY(open(opened));
        QVERIFY(opened.session);
        QCOMPARE(mUser.foldersAskedFor, QStringList{mFolder->path()});
    }
};

QTEST_GUILESS_MAIN(tst_OfflineClient)
#include "tst_OfflineClient.moc"
