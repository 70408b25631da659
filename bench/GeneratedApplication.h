#pragma once

#include "generator/ApplicationGenerator.h"
#include "hfm/offline/OfflineSession.h"

#include <QFile>
#include <QTemporaryDir>

/// The offline client's session on an application in HFM's APP format, which `write` puts into the
/// file that it is given.
template <typename Write>
std::shared_ptr<hfm::Session> sessionOnWritten(Write write)
{
    const QTemporaryDir folder;
    hfm::offline::ApplicationFiles files;
    files.metadata = folder.filePath(QStringLiteral("bench.app"));
    QFile file(files.metadata);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(files.metadata));
    write(file);
    file.close();
    return std::make_shared<hfm::offline::OfflineSession>(
        hfm::offline::readApplication(files, 2012), QStringLiteral("Bench"));
}

/// The same on an application of that request.
inline std::shared_ptr<hfm::Session> sessionOn(const generator::Request &request)
{
    return sessionOnWritten([&](QFile &file) { generator::generate(request, file); });
}
