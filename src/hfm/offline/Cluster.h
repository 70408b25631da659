#pragma once

#include <QList>
#include <QString>

namespace hfm::offline {

/// The files of one application; full paths, empty for a file that is not there.
struct ApplicationFiles
{
    QString name;          ///< the files' base name
    QString metadata;      ///< .app, or .xml where there is no .app
    bool isXml = false;    ///< which of the two it is
    QString otherMetadata; ///< .xml where there is an .app as well; it is not read
    QString profile;       ///< .profile
    QString security;      ///< .sec
    QString memberLists;   ///< .lst
};

/// The applications of a cluster: sets of files of one base name that stand in its folder, and in
/// sub-folders that hold one such set. A set has a metadata file at least. Extensions are matched
/// in any letter case. Sorted by name; empty where the folder cannot be read.
QList<ApplicationFiles> findApplications(const QString &clusterFolder);

/// The cluster's name: that of its folder, without the path.
QString clusterName(const QString &clusterFolder);

} // namespace hfm::offline
