#include "hfm/offline/AppFile.h"
#include "hfm/offline/Application.h"
#include "hfm/offline/ReadingError.h"
#include "hfm/offline/SecurityFile.h"
#include "hfm/offline/XmlFile.h"

#include <QFile>
#include <QFileInfo>

#include <map>
#include <new>

namespace hfm::offline {

namespace {

void openFile(QFile &file)
{
    if (file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return;
    const QFileInfo info(file);
    const qint32 number = !info.exists()       ? FileNotFound
                          : !info.isReadable() ? PermissionDenied
                                               : PathFileAccessError;
    throw ReadingError(info.fileName(), 0,
                       QStringLiteral("The file cannot be opened: %1").arg(file.errorString()),
                       number);
}

/// The reading of a file broke off inside a record, so that the draft may hold half of it.
struct BrokenOff
{
    SourceFile file;
    QString reason;
};
/// The files that broke off and are left out, and why.
using LeftOut = std::map<SourceFile, QString>;

/// Reads a file that the application can do without. Fails with BrokenOff alone.
void readOptional(const QString &path, SourceFile source, const LeftOut &leftOut,
                  ApplicationDraft &draft, void (*read)(QIODevice &, ApplicationDraft &))
{
    if (path.isEmpty())
        return;
    draft.warnings.setFileName(source, QFileInfo(path).fileName());
    if (const auto found = leftOut.find(source); found != leftOut.end()) {
        draft.warnings.add(Place(source, 0), [&] { return found->second; });
        return;
    }
    try {
        QFile file(path);
        openFile(file);
        read(file, draft);
    } catch (const ReadingError &error) {
        draft.warnings.add(Place(source, error.line()), [&] { return error.reason(); });
    } catch (const RuntimeError &error) {
        throw BrokenOff{source, error.description()};
    } catch (const std::bad_alloc &) {
        throw BrokenOff{source, RuntimeError::usualDescription(OutOfMemory)};
    }
}

void readMemberListFile(QIODevice &device, ApplicationDraft &draft)
{
    constexpr qint64 largest = qint64(64) << 20; // scripts have some hundred kilobytes
    const QString name = draft.warnings.fileName(SourceFile::MemberLists);
    const qint64 size = device.size();
    if (size > largest)
        throw ReadingError(
            name, 0,
            QStringLiteral("The file is larger than %1 bytes; it is left out.").arg(largest));
    const QByteArray content = device.read(size);
    if (content.size() < size)
        throw ReadingError(name, 0,
                           QStringLiteral("The file cannot be read: %1").arg(device.errorString()));
    draft.memberListFile = {content, 1};
}

/// Of metadata in both formats that in APP format is read.
void warnOfOtherMetadata(const ApplicationFiles &files, ApplicationDraft &draft)
{
    if (files.otherMetadata.isEmpty())
        return;
    draft.warnings.add(Place(SourceFile::Metadata, 0), [&] {
        return QStringLiteral("%1 stands beside this file; it is not read.")
            .arg(QFileInfo(files.otherMetadata).fileName());
    });
}

std::shared_ptr<const Application> readFiles(const ApplicationFiles &files, const QDateTime &now,
                                             const LeftOut &leftOut)
{
    Warnings warnings;
    warnings.setFileName(SourceFile::Metadata, QFileInfo(files.metadata).fileName());
    ApplicationDraft draft(warnings);
    QFile metadata(files.metadata);
    openFile(metadata);
    if (files.isXml)
        readXmlMetadataFile(metadata, draft);
    else
        readMetadataFile(metadata, draft);
    warnOfOtherMetadata(files, draft);
    const auto readOne = [&](const QString &path, SourceFile source, auto read) {
        readOptional(path, source, leftOut, draft, read);
    };
    readOne(files.profile, SourceFile::Profile, readProfileFile);
    readOne(files.security, SourceFile::Security, readSecurityFile);
    readOne(files.memberLists, SourceFile::MemberLists, readMemberListFile);
    return finishApplication(draft, files, now);
}

/// Reads the files again without each that breaks off, of which there are three at most.
std::shared_ptr<const Application> readWhatCanBeRead(const ApplicationFiles &files,
                                                     const QDateTime &now)
{
    LeftOut leftOut;
    while (true) {
        try {
            return readFiles(files, now, leftOut);
        } catch (const BrokenOff &broken) {
            leftOut.emplace(broken.file, broken.reason);
        }
    }
}

} // namespace

std::shared_ptr<const Application> readApplication(const ApplicationFiles &files,
                                                   const QDateTime &now)
{
    const QString name = QFileInfo(files.metadata).fileName();
    try {
        return readWhatCanBeRead(files, now);
    } catch (const ReadingError &) {
        throw;
    } catch (const RuntimeError &error) {
        throw ReadingError(name, 0, error.description(), error.number());
    } catch (const std::bad_alloc &) {
        throw ReadingError(name, 0, RuntimeError::usualDescription(OutOfMemory), OutOfMemory);
    }
}

std::shared_ptr<const Application> readApplication(const ApplicationFiles &files, int currentYear)
{
    return readApplication(files, QDate(currentYear, 1, 1).startOfDay());
}

} // namespace hfm::offline
