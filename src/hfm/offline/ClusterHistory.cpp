#include "hfm/offline/ClusterHistory.h"

#include <QDir>
#include <QSettings>

#include <utility>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

namespace hfm::offline {

namespace {

QString settingsKey()
{
    return QStringLiteral("offline/clusters");
}

QString fullPath(const QString &folder)
{
    return QDir::cleanPath(QDir(folder).absolutePath());
}

} // namespace

ClusterHistory::ClusterHistory(QString sampleCluster)
    : mSampleCluster(sampleCluster.isEmpty() ? std::move(sampleCluster) : fullPath(sampleCluster))
{
}

QStringList ClusterHistory::folders() const
{
    QStringList folders = QSettings().value(settingsKey()).toStringList();
    folders.removeAll(mSampleCluster);
    if (!mSampleCluster.isEmpty())
        folders.prepend(mSampleCluster);
    return folders;
}

void ClusterHistory::use(const QString &folder)
{
    const QString path = fullPath(folder);
    if (path == mSampleCluster)
        return;
    QSettings settings;
    QStringList folders = settings.value(settingsKey()).toStringList();
    folders.removeAll(path);
    folders.prepend(path);
    settings.setValue(settingsKey(), QStringList(folders.mid(0, remembered)));
}

QString findSampleCluster(const QString &programFolder)
{
    for (const char *place : {"samples/Alderbrook", "../share/tessaly/samples/Alderbrook"}) {
        const QDir folder(QDir(programFolder).filePath(QString::fromLatin1(place)));
        if (folder.exists())
            return QDir::cleanPath(folder.absolutePath());
    }
    return {};
}

QString loginName()
{
    for (const char *variable : {"USER", "LOGNAME", "USERNAME"}) {
        if (const QString name = qEnvironmentVariable(variable); !name.isEmpty())
            return name;
    }
#ifdef Q_OS_UNIX
    if (const passwd *user = getpwuid(geteuid()))
        return QString::fromLocal8Bit(user->pw_name);
#endif
    return {};
}

} // namespace hfm::offline
