#pragma once

#include "hfm/offline/ClusterHistory.h"
#include "hfm/offline/Dialogs.h"
#include "runtime/Clock.h"
#include "runtime/ErrorTrap.h"

namespace hfm::offline {

/// The client's two dialogs, shown over the window that is active.
class OfflineDialogs final : public LogonDialog, public OpenDialog
{
public:
    /// `sampleCluster` is empty where there are no samples.
    OfflineDialogs(const QString &sampleCluster, const Clock &clock, ErrorTrap &trap);

    bool ask(Logon &logon) override;
    std::shared_ptr<const Application> choose(const QString &clusterFolder) override;

private:
    ClusterHistory mHistory;
    const Clock &mClock;
    ErrorTrap &mTrap;
};

} // namespace hfm::offline
