#pragma once

#include "hfm/offline/Application.h"
#include "hfm/Session.h"

namespace hfm::offline {

/// An open application of a cluster. Each call makes a new object over the same application.
class OfflineSession final : public Session
{
public:
    OfflineSession(std::shared_ptr<const Application> application, QString clusterName);

    std::shared_ptr<SystemInformation> GetSystemInfo() override;
    std::shared_ptr<Metadata> GetMetadata() override;
    std::shared_ptr<Security> GetSecurity() override;

private:
    std::shared_ptr<const Application> mApplication;
    QString mClusterName;
};

} // namespace hfm::offline
