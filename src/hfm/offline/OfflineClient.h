#pragma once

#include "hfm/Client.h"
#include "hfm/offline/Dialogs.h"

namespace hfm::offline {

/// The client that works on the files of applications. The dialogs must outlive what it makes.
class OfflineClientFactory final : public ClientFactory
{
public:
    OfflineClientFactory(LogonDialog &logonDialog, OpenDialog &openDialog);

    std::unique_ptr<VersionInformation> createVersionInformation() override;
    std::shared_ptr<LogonUserInterface> createLogonUserInterface() override;
    std::shared_ptr<Client> createClient() override;

private:
    LogonDialog &mLogonDialog;
    OpenDialog &mOpenDialog;
};

} // namespace hfm::offline
