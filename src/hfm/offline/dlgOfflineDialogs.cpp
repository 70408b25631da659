#include "hfm/offline/dlgOfflineDialogs.h"

#include "hfm/offline/dlgOfflineLogon.h"
#include "hfm/offline/dlgOfflineOpen.h"

#include <QApplication>

namespace hfm::offline {

OfflineDialogs::OfflineDialogs(const QString &sampleCluster, const Clock &clock, ErrorTrap &trap)
    : mHistory(sampleCluster), mClock(clock), mTrap(trap)
{
}

bool OfflineDialogs::ask(Logon &logon)
{
    dlgOfflineLogon dialog(mHistory.folders(), loginName(), mTrap, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    logon = dialog.logon();
    mHistory.use(logon.clusterFolder);
    return true;
}

std::shared_ptr<const Application> OfflineDialogs::choose(const QString &clusterFolder)
{
    dlgOfflineOpen dialog(clusterFolder, mClock, mTrap, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted)
        return nullptr;
    return dialog.application();
}

} // namespace hfm::offline
