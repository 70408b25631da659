#pragma once

#include "hfm/offline/Cluster.h"
#include "hfm/offline/OfflineSession.h"
#include "hfm/offline/ReadingError.h"
#include "hfm/offline/TreeText.h"

#include <QFile>
#include <QTemporaryDir>

#include <optional>

/// The current year of all applications that these tests read.
inline constexpr int yearOfReading = 2012;

/// What came of reading an application: the application, or why it was refused.
struct Reading
{
    std::shared_ptr<const hfm::offline::Application> application;
    std::optional<hfm::offline::ReadingError> refusal;

    /// Ends the test where the application was refused.
    std::shared_ptr<hfm::Session> session() const
    {
        if (refusal)
            qFatal("%s", qPrintable(refusal->description()));
        return std::make_shared<hfm::offline::OfflineSession>(application,
                                                              QStringLiteral("Cluster"));
    }
    std::shared_ptr<hfm::Metadata> metadata() const { return session()->GetMetadata(); }
    std::shared_ptr<hfm::Dimension> entity() const { return metadata()->GetEntityDimension(); }
    std::shared_ptr<hfm::Dimension> account() const { return metadata()->GetAccountDimension(); }
    std::shared_ptr<hfm::Dimension> custom1() const { return metadata()->GetCustom1Dimension(); }
    std::shared_ptr<hfm::Dimension> custom2() const { return metadata()->GetCustom2Dimension(); }
    std::shared_ptr<hfm::Dimension> value() const { return metadata()->GetValueDimension(); }

    /// Each as "LINE: TEXT", with the file before it where that is not the metadata file.
    QStringList warnings() const
    {
        static_cast<void>(session());
        QStringList lines;
        const auto list = application->warnings.list();
        for (const hfm::offline::Warning &warning : list)
            lines.append(warning.file.endsWith(QLatin1StringView(".app")) ||
                                 warning.file.endsWith(QLatin1StringView(".xml"))
                             ? QStringLiteral("%1: %2").arg(warning.line).arg(warning.text)
                             : hfm::offline::withPlace(warning.file, warning.line, warning.text));
        return lines;
    }

    /// Whether the one warning is of that line of the metadata file and quotes these labels.
    bool warnsOnlyOf(int line, const QStringList &labels) const
    {
        const QStringList found = warnings();
        return found.size() == 1 && warnsOf(line, labels);
    }
    /// Whether a warning is of that line of the metadata file and quotes all of these labels.
    bool warnsOf(int line, const QStringList &labels) const
    {
        const QStringList found = warnings();
        return std::any_of(found.begin(), found.end(), [&](const QString &warning) {
            const bool quotesAll =
                std::all_of(labels.begin(), labels.end(), [&](const QString &label) {
                    return warning.contains(QStringLiteral("'%1'").arg(label));
                });
            return warning.startsWith(QStringLiteral("%1: ").arg(line)) && quotesAll;
        });
    }
};

inline Reading readFiles(const hfm::offline::ApplicationFiles &files)
{
    try {
        return {hfm::offline::readApplication(files, yearOfReading), std::nullopt};
    } catch (const hfm::offline::ReadingError &error) {
        return {nullptr, error};
    }
}

/// A folder of files that goes when the test does.
class ClusterFolder
{
public:
    QString path(const QString &name = {}) const { return mFolder.filePath(name); }
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("%s cannot be written", qPrintable(name));
    }
    QList<hfm::offline::ApplicationFiles> applications() const
    {
        return hfm::offline::findApplications(path());
    }

private:
    QTemporaryDir mFolder;
};

/// The contents of an application's files; a null text is a file that is not there.
struct FileTexts
{
    QByteArray metadata;
    QByteArray profile = {};
    QByteArray security = {};
};

/// Reads the application "Test" that has these files, its metadata in the file of that name.
inline Reading readTexts(const FileTexts &texts, const QString &metadataName)
{
    const ClusterFolder cluster;
    cluster.write(metadataName, texts.metadata);
    if (!texts.profile.isNull())
        cluster.write(QStringLiteral("Test.profile"), texts.profile);
    if (!texts.security.isNull())
        cluster.write(QStringLiteral("Test.sec"), texts.security);
    return readFiles(cluster.applications().first());
}

inline Reading readTexts(const FileTexts &texts)
{
    return readTexts(texts, QStringLiteral("Test.app"));
}

inline Reading readXmlTexts(const FileTexts &texts)
{
    return readTexts(texts, QStringLiteral("Test.xml"));
}

inline Reading readText(const QByteArray &metadata)
{
    return readTexts({metadata});
}

inline Reading readXml(const QByteArray &metadata)
{
    return readXmlTexts({metadata});
}
