#pragma once

#include "TreeText.h"

#include "hfm/offline/AppFile.h"
#include "hfm/offline/Application.h"
#include "hfm/offline/OfflineSession.h"
#include "hfm/offline/ReadingError.h"
#include "hfm/offline/SecurityFile.h"

#include <QBuffer>

#include <optional>

/// Reads applications from texts instead of files.
struct Texts
{
    QByteArray metadata;
    QByteArray profile = {};
    QByteArray security = {};
    QByteArray memberLists = {};
};

inline constexpr int testYear = 2012;

inline std::shared_ptr<const hfm::offline::Application> readTexts(Texts texts)
{
    using namespace hfm::offline;
    Warnings warnings;
    warnings.setFileName(SourceFile::Metadata, QStringLiteral("Test.app"));
    warnings.setFileName(SourceFile::Profile, QStringLiteral("Test.profile"));
    warnings.setFileName(SourceFile::Security, QStringLiteral("Test.sec"));
    ApplicationDraft draft(warnings);
    const auto readOne = [&](QByteArray &text, void (*read)(QIODevice &, ApplicationDraft &)) {
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        read(buffer, draft);
    };
    readOne(texts.metadata, readMetadataFile);
    if (!texts.profile.isNull())
        readOne(texts.profile, readProfileFile);
    if (!texts.security.isNull())
        readOne(texts.security, readSecurityFile);
    ApplicationFiles files;
    files.name = QStringLiteral("Test");
    if (!texts.memberLists.isNull()) {
        files.memberLists = QStringLiteral("Test.lst");
        draft.memberListFile = {texts.memberLists, 1};
    }
    return finishApplication(draft, files, testYear);
}

inline std::shared_ptr<const hfm::offline::Application> readText(const QByteArray &metadata)
{
    return readTexts({metadata});
}

/// A session on the application that the text tells.
inline std::shared_ptr<hfm::Session> sessionOn(const QByteArray &metadata)
{
    return std::make_shared<hfm::offline::OfflineSession>(readText(metadata),
                                                          QStringLiteral("Cluster"));
}

/// Why the text is refused; nothing where it is read.
inline std::optional<hfm::offline::ReadingError> refusalOf(const QByteArray &metadata)
{
    try {
        readText(metadata);
    } catch (const hfm::offline::ReadingError &error) {
        return error;
    }
    return std::nullopt;
}

/// The warnings as "FILE:LINE: TEXT".
inline QList<QString> warningsOf(const hfm::offline::Application &application)
{
    QList<QString> lines;
    const QList<hfm::offline::Warning> warnings = application.warnings.list();
    for (const hfm::offline::Warning &warning : warnings)
        lines.append(QStringLiteral("%1:%2: %3")
                         .arg(warning.file, QString::number(warning.line), warning.text));
    return lines;
}
