#include "hfm/offline/AppFile.h"
#include "hfm/offline/Application.h"
#include "hfm/offline/ReadingError.h"
#include "hfm/offline/SecurityFile.h"
#include "hfm/offline/XmlFile.h"

#include <QFile>
#include <QFileInfo>

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

/// Reads a file that the application can do without.
void readOptional(const QString &path, SourceFile source, ApplicationDraft &draft,
                  void (*read)(QIODevice &, ApplicationDraft &))
{
    if (path.isEmpty())
        return;
    QFile file(path);
    draft.warnings.setFileName(source, QFileInfo(path).fileName());
    try {
        openFile(file);
        read(file, draft);
    } catch (const ReadingError &error) {
        draft.warnings.add(Place(source, error.line()), [&] { return error.reason(); });
    } catch (const RuntimeError &error) {
        draft.warnings.add(Place(source, 0), [&] { return error.description(); });
    } catch (const std::bad_alloc &) {
        draft.warnings.add(Place(source, 0),
                           [] { return RuntimeError::usualDescription(OutOfMemory); });
    }
}

void readMemberListFile(QIODevice &device, ApplicationDraft &draft)
{
    const QByteArray content = device.readAll();
    if (content.size() < device.size())
        throw ReadingError(draft.warnings.fileName(SourceFile::MemberLists), 0,
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

std::shared_ptr<const Application> readFiles(const ApplicationFiles &files, int currentYear)
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
    readOptional(files.profile, SourceFile::Profile, draft, readProfileFile);
    readOptional(files.security, SourceFile::Security, draft, readSecurityFile);
    readOptional(files.memberLists, SourceFile::MemberLists, draft, readMemberListFile);
    return finishApplication(draft, files, currentYear);
}

} // namespace

std::shared_ptr<const Application> readApplication(const ApplicationFiles &files, int currentYear)
{
    const QString name = QFileInfo(files.metadata).fileName();
    try {
        return readFiles(files, currentYear);
    } catch (const ReadingError &) {
        throw;
    } catch (const RuntimeError &error) {
        throw ReadingError(name, 0, error.description(), error.number());
    } catch (const std::bad_alloc &) {
        throw ReadingError(name, 0, RuntimeError::usualDescription(OutOfMemory), OutOfMemory);
    }
}

} // namespace hfm::offline
