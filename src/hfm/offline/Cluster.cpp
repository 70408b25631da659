#include "hfm/offline/Cluster.h"

#include <QDir>
#include <QFileInfo>

#include <map>

namespace hfm::offline {

namespace {

void addFile(ApplicationFiles &files, const QFileInfo &file)
{
    const QString extension = file.suffix().toLower();
    const QString path = file.filePath();
    const auto set = [&](QString &where) {
        if (where.isEmpty())
            where = path;
    };
    if (extension == QLatin1StringView("app") && (files.metadata.isEmpty() || files.isXml)) {
        files.otherMetadata = files.metadata;
        files.metadata = path;
        files.isXml = false;
    } else if (extension == QLatin1StringView("xml") && files.metadata.isEmpty()) {
        files.metadata = path;
        files.isXml = true;
    } else if (extension == QLatin1StringView("xml") && !files.isXml) {
        set(files.otherMetadata);
    } else if (extension == QLatin1StringView("profile")) {
        set(files.profile);
    } else if (extension == QLatin1StringView("sec")) {
        set(files.security);
    } else if (extension == QLatin1StringView("lst")) {
        set(files.memberLists);
    }
}

/// The sets of files directly in a folder, by base name.
QList<ApplicationFiles> setsIn(const QDir &folder)
{
    std::map<QString, ApplicationFiles> sets;
    const QFileInfoList entries = folder.entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &file : entries) {
        ApplicationFiles &files = sets[file.completeBaseName()];
        files.name = file.completeBaseName();
        addFile(files, file);
    }
    QList<ApplicationFiles> found;
    for (const auto &[name, files] : sets) {
        if (!files.metadata.isEmpty())
            found.append(files);
    }
    return found;
}

} // namespace

QList<ApplicationFiles> findApplications(const QString &clusterFolder)
{
    const QDir cluster(clusterFolder);
    if (clusterFolder.isEmpty() || !cluster.exists())
        return {};
    QList<ApplicationFiles> found = setsIn(cluster);
    const QFileInfoList folders =
        cluster.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo &folder : folders) {
        const QList<ApplicationFiles> sets = setsIn(QDir(folder.filePath()));
        if (sets.size() == 1)
            found.append(sets.first());
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const ApplicationFiles &left, const ApplicationFiles &right) {
                         return QString::compare(left.name, right.name, Qt::CaseInsensitive) < 0;
                     });
    return found;
}

QString clusterName(const QString &clusterFolder)
{
    const QDir folder(QDir(clusterFolder).absolutePath());
    return folder.isRoot() ? folder.path() : folder.dirName();
}

} // namespace hfm::offline
