#pragma once

#include "hfm/offline/OfflineSession.h"
#include "runtime/RuntimeError.h"

#include <QDir>
#include <QTest>

/// The sample cluster, opened by the offline client.
namespace SampleCluster {

inline constexpr int year = 2025; // what an application without a profile takes as today's

inline QString folder()
{
    return QDir(QStringLiteral(TESSALY_SAMPLES)).filePath(QStringLiteral("Alderbrook"));
}

inline QList<QString> names()
{
    QList<QString> found;
    for (const hfm::offline::ApplicationFiles &files : hfm::offline::findApplications(folder()))
        found.append(files.name);
    return found;
}

/// One of the cluster's applications.
inline std::shared_ptr<const hfm::offline::Application> read(const QString &name)
{
    for (const hfm::offline::ApplicationFiles &files : hfm::offline::findApplications(folder())) {
        if (files.name == name)
            return hfm::offline::readApplication(files, year);
    }
    throw RuntimeError(FileNotFound);
}

inline std::shared_ptr<hfm::Metadata> metadata(const QString &name)
{
    return hfm::offline::OfflineSession(read(name), QStringLiteral("Alderbrook")).GetMetadata();
}

/// The warnings as the client shows them.
inline QList<QString> warnings(const hfm::offline::Application &application)
{
    QList<QString> lines;
    for (const hfm::offline::Warning &warning : application.warnings.list())
        lines.append(QStringLiteral("%1:%2: %3")
                         .arg(warning.file, QString::number(warning.line), warning.text));
    return lines;
}

} // namespace SampleCluster
