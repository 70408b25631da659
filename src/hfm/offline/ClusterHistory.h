#pragma once

#include <QString>
#include <QStringList>

namespace hfm::offline {

/// The cluster folders that a user may want to log on to: the sample cluster, then those used
/// before, the last one first. They are kept in the user's settings.
class ClusterHistory
{
public:
    /// How many used folders are remembered.
    static constexpr qsizetype remembered = 10;

    /// `sampleCluster` is empty where there are no samples.
    explicit ClusterHistory(QString sampleCluster);

    /// Full paths, each once.
    QStringList folders() const;
    /// Notes that a folder was logged on to. The sample cluster keeps its place.
    void use(const QString &folder);

private:
    QString mSampleCluster;
};

/// The folder of the sample cluster that belongs to the program in `programFolder`: beside the
/// program, or where an installation puts it. Empty where there is none.
QString findSampleCluster(const QString &programFolder);

/// The name the user is logged on to this computer with; empty where the system does not tell.
QString loginName();

} // namespace hfm::offline
