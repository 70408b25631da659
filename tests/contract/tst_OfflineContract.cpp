#include "contract/Contract.h"
#include "contract/ContractFiles.h"
#include "hfm/offline/ApplicationChoices.h"
#include "hfm/offline/OfflineClient.h"
#include "hfm/offline/OfflineSession.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;
using namespace hfm::offline;

namespace {

constexpr QLatin1StringView cluster("Cluster");

/// A user who logs on to the folder and opens its only application, or gives up where told so.
class User final : public LogonDialog, public OpenDialog
{
public:
    explicit User(const QString &clusterFolder) : mClusterFolder(clusterFolder) {}

    bool acceptsLogon = true;
    bool acceptsOpening = true;

    bool ask(Logon &logon) override
    {
        if (acceptsLogon)
            logon = {mClusterFolder, u"jane"_s};
        return acceptsLogon;
    }
    std::shared_ptr<const Application> choose(const QString &clusterFolder) override
    {
        return acceptsOpening ? ApplicationChoices(clusterFolder, mClock).read(0).application
                              : nullptr;
    }

private:
    QString mClusterFolder;
    SystemClock mClock;
};

class OfflineUnderTest final : public ClientUnderTest
{
public:
    OfflineUnderTest(const QString &metadataName, const char *metadata)
        : mUser(mFolder.filePath(cluster)), mFactory(mUser, mUser)
    {
        QDir(mFolder.path()).mkdir(cluster);
        write(metadataName, metadata);
        write(u"Contract.profile"_s, ContractFiles::profile);
        write(u"Contract.sec"_s, ContractFiles::security);
        write(u"Contract.lst"_s, ContractFiles::memberLists);
        mApplication = mUser.choose(mFolder.filePath(cluster));
        if (!mApplication)
            qFatal("the application cannot be read");
    }

    hfm::ClientFactory &factory() override { return mFactory; }
    void answerNextLogon(bool accept) override { mUser.acceptsLogon = accept; }
    void answerNextOpening(bool accept) override { mUser.acceptsOpening = accept; }
    QString applicationName() const override { return u"Contract"_s; }
    QString clusterName() const override { return cluster; }
    QString userName() const override { return u"jane"_s; }
    std::shared_ptr<hfm::Session> openSession() override
    {
        return std::make_shared<OfflineSession>(mApplication, clusterName());
    }

private:
    void write(const QString &name, const char *text)
    {
        QFile file(mFolder.filePath(cluster + u'/' + name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) < 0)
            qFatal("the application cannot be written");
    }

    QTemporaryDir mFolder;
    User mUser;
    OfflineClientFactory mFactory;
    std::shared_ptr<const Application> mApplication;
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    OfflineUnderTest app(u"Contract.app"_s, ContractFiles::metadata);
    OfflineUnderTest xml(u"Contract.xml"_s, ContractFiles::xmlMetadata);
    return checkContract(app, argc, argv) + checkContract(xml, argc, argv);
}
