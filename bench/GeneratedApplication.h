#pragma once

#include "generator/ApplicationGenerator.h"
#include "hfm/offline/OfflineSession.h"

#include <QFile>
#include <QTemporaryDir>

/// The offline client's session on an application of that request.
inline std::shared_ptr<hfm::Session> sessionOn(const generator::Request &request)
{
    const QTemporaryDir folder;
    hfm::offline::ApplicationFiles files;
    files.metadata = folder.filePath(QStringLiteral("bench.app"));
    QFile file(files.metadata);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(files.metadata));
    generator::generate(request, file);
    file.close();
    return std::make_shared<hfm::offline::OfflineSession>(
        hfm::offline::readApplication(files, 2012), QStringLiteral("Bench"));
}
