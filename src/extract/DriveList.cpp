#include "extract/DriveList.h"

#include <QDir>
#include <QStorageInfo>

namespace DriveList {

QStringList drives()
{
    QStringList volumes;
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        if (!QFileInfo(volume.rootPath()).isFile()) // containers mount single files too
            volumes.append(volume.rootPath());
    }
    volumes.sort();
    QStringList all = QStringList{QDir::rootPath(), QDir::homePath()} + volumes;
    all.removeDuplicates();
    return all;
}

bool isOnDrive(const QString &folder, const QString &drive)
{
    return folder == drive ||
           folder.startsWith(drive.endsWith(u'/') ? drive : drive + QLatin1Char('/'));
}

QString driveOf(const QString &folder, const QStringList &drives)
{
    QString found = drives.value(0);
    for (const QString &drive : drives) {
        if (isOnDrive(folder, drive) && drive.size() > found.size())
            found = drive;
    }
    return found;
}

} // namespace DriveList
