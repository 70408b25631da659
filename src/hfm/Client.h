#pragma once

#include "hfm/Session.h"

namespace hfm {

/// Tells the version of the installed client.
class VersionInformation
{
public:
    virtual ~VersionInformation() = default;
    /// Called once, with 0, before GetVersion.
    virtual void SetVersionSelector(qint16 selector) = 0;
    /// The client's version, dot-separated, for example "4.1.0".
    virtual QString GetVersion() = 0;
};

/// The client's own logon dialog, and what it knows of the user afterwards.
class LogonUserInterface
{
public:
    virtual ~LogonUserInterface() = default;
    /// Empty before a successful logon.
    virtual LogonInfo GetLogonInfo() = 0;
};

/// What Client::OpenApplication fills in when it succeeds.
struct OpenedApplication
{
    QString applicationName;
    std::shared_ptr<Session> session;
    std::shared_ptr<Session> auxiliarySession; ///< Handed out by HFM; Tessaly never uses it.
};

/// Logs a user on and opens an application, through the client's own dialogs.
class Client
{
public:
    virtual ~Client() = default;
    /// Binds the client to the user interface that its logon uses.
    virtual void Initialize(std::shared_ptr<LogonUserInterface> userInterface) = 0;
    /// Shows the logon dialog. True when a user has logged on.
    virtual bool Logon(bool silent) = 0;
    /// Lets the user choose a cluster and an application. True, with `opened` filled, on success;
    /// otherwise `opened` is as it was. `cluster` and `application` are passed empty.
    virtual bool OpenApplication(OpenedApplication &opened, QString &cluster,
                                 QString &application) = 0;
};

/// Makes a client's first objects. Each fails with RuntimeError CannotCreateObject where the
/// client is not installed.
class ClientFactory
{
public:
    virtual ~ClientFactory() = default;
    virtual std::unique_ptr<VersionInformation> createVersionInformation() = 0;
    virtual std::shared_ptr<LogonUserInterface> createLogonUserInterface() = 0;
    virtual std::shared_ptr<Client> createClient() = 0;
};

} // namespace hfm
