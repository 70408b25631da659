#pragma once

#include "hfm/offline/Application.h"
#include "runtime/Clock.h"

namespace hfm::offline {

/// What is shown of an application before it is opened.
struct ApplicationPreview
{
    std::shared_ptr<const Application> application; ///< null where it cannot be read
    /// What summaryOf() tells of it; why it cannot be read where it cannot.
    QString summary;
    /// "FILE, line LINE: TEXT", in the order of files and lines. Those that were not kept are
    /// counted in one line more.
    QList<QString> warnings;
};

/// The applications of a cluster, to choose from.
class ApplicationChoices
{
public:
    /// Looks at the cluster's folder now. `clock` tells the current year.
    ApplicationChoices(const QString &clusterFolder, const Clock &clock);

    /// The applications' names, sorted.
    QList<QString> names() const;
    /// Reads the application at that position of names() and makes all of its member lists, so that
    /// whatever is wrong with its files is told in the answer.
    ApplicationPreview read(qsizetype position) const;

private:
    QList<ApplicationFiles> mApplications;
    const Clock &mClock;
};

} // namespace hfm::offline
