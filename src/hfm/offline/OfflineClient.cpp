#include "hfm/offline/OfflineClient.h"

#include "hfm/offline/OfflineSession.h"
#include "runtime/RuntimeError.h"

#include <QDir>

#include <optional>

namespace hfm::offline {

namespace {

/// The release whose files this client reads.
class OfflineVersion final : public VersionInformation
{
public:
    void SetVersionSelector(qint16) override {}
    QString GetVersion() override { return QStringLiteral("11.1.2"); }
};

class OfflineLogonUserInterface final : public LogonUserInterface
{
public:
    explicit OfflineLogonUserInterface(LogonDialog &dialog) : mDialog(dialog) {}

    LogonInfo GetLogonInfo() override
    {
        if (!mLogon)
            return {};
        return {mLogon->userName, QDir::toNativeSeparators(mLogon->clusterFolder), false};
    }

    bool logOn()
    {
        Logon logon = mLogon.value_or(Logon());
        if (!mDialog.ask(logon) || !QDir(logon.clusterFolder).exists())
            return false;
        mLogon = logon;
        return true;
    }
    bool isLoggedOn() const { return mLogon.has_value(); }
    QString clusterFolder() const { return mLogon ? mLogon->clusterFolder : QString(); }

private:
    LogonDialog &mDialog;
    std::optional<Logon> mLogon;
};

class OfflineClient final : public Client
{
public:
    explicit OfflineClient(OpenDialog &dialog) : mDialog(dialog) {}

    void Initialize(std::shared_ptr<LogonUserInterface> userInterface) override
    {
        mUserInterface = std::dynamic_pointer_cast<OfflineLogonUserInterface>(userInterface);
        if (!mUserInterface)
            throw RuntimeError(TypeMismatch);
    }

    bool Logon(bool silent) override
    {
        requireUserInterface();
        return silent ? mUserInterface->isLoggedOn() : mUserInterface->logOn();
    }

    bool OpenApplication(OpenedApplication &opened, QString &, QString &) override
    {
        requireUserInterface();
        if (!mUserInterface->isLoggedOn())
            return false;
        const QString folder = mUserInterface->clusterFolder();
        const auto application = mDialog.choose(folder);
        if (!application)
            return false;
        opened.applicationName = application->files.name;
        opened.session = std::make_shared<OfflineSession>(application, clusterName(folder));
        opened.auxiliarySession = opened.session;
        return true;
    }

private:
    void requireUserInterface() const
    {
        if (!mUserInterface)
            throw RuntimeError(ObjectVariableNotSet);
    }

    OpenDialog &mDialog;
    std::shared_ptr<OfflineLogonUserInterface> mUserInterface;
};

} // namespace

OfflineClientFactory::OfflineClientFactory(LogonDialog &logonDialog, OpenDialog &openDialog)
    : mLogonDialog(logonDialog), mOpenDialog(openDialog)
{
}

std::unique_ptr<VersionInformation> OfflineClientFactory::createVersionInformation()
{
    return std::make_unique<OfflineVersion>();
}

std::shared_ptr<LogonUserInterface> OfflineClientFactory::createLogonUserInterface()
{
    return std::make_shared<OfflineLogonUserInterface>(mLogonDialog);
}

std::shared_ptr<Client> OfflineClientFactory::createClient()
{
    return std::make_shared<OfflineClient>(mOpenDialog);
}

} // namespace hfm::offline
