#include "hfm/offline/SecurityFile.h"

#include "hfm/offline/LineReader.h"
#include "hfm/offline/ReadingError.h"
#include "hfm/offline/SecurityDelimiter.h"

#include <QHashFunctions>

namespace hfm::offline {

namespace {

enum class SectionKind { Skipped, Identities, Classes, RoleAccess, ClassAccess };

SectionKind sectionNamed(QByteArrayView name)
{
    if (sameWord(name, "USERS_AND_GROUPS"))
        return SectionKind::Identities;
    if (sameWord(name, "SECURITY_CLASSES"))
        return SectionKind::Classes;
    if (sameWord(name, "ROLE_ACCESS"))
        return SectionKind::RoleAccess;
    if (sameWord(name, "SECURITY_CLASS_ACCESS"))
        return SectionKind::ClassAccess;
    return SectionKind::Skipped;
}

/// Calls `take` with each record of a section that is not skipped.
template <typename Take>
void readRecords(LineReader &reader, Take take)
{
    SectionKind section = SectionKind::Skipped;
    while (reader.next()) {
        const QByteArrayView line = reader.line();
        if (const auto header = sectionHeader(line)) {
            section = sectionNamed(header->name);
            if (sameWord(header->name, "FILE_FORMAT") && sameWord(header->argument, "ADS"))
                throw ReadingError(reader.fileName(), reader.number(),
                                   QStringLiteral("This is a flat file of another product "
                                                  "(!FILE_FORMAT=ADS), not of Financial "
                                                  "Management."));
        } else if (section != SectionKind::Skipped && !line.startsWith('\'') &&
                   !trimmed(line).isEmpty()) {
            take(section, line);
        }
    }
}

/// What must be known of the file before its records can be read.
struct SecuritySurvey
{
    Encoding encoding;
    qsizetype markLength;
    char delimiter;
    qint64 classAccess; ///< how many records of it there are
};

SecuritySurvey surveySecurity(QIODevice &device, const QString &fileName)
{
    constexpr qint64 startLength = 4096;
    const EncodingOfStart found = encodingOfStart(device.peek(startLength));
    device.skip(found.markLength);
    LineReader reader(device, fileName, found.certain ? found.encoding : Encoding::Utf8);
    Utf8Check utf8;
    if (!found.certain)
        reader.observe([&utf8](QByteArrayView piece) { utf8.feed(piece); });

    SecurityDelimiter delimiter;
    bool hasRecords = false;
    qint64 classAccess = 0;
    readRecords(reader, [&](SectionKind section, QByteArrayView record) {
        hasRecords = true;
        if (section == SectionKind::ClassAccess) {
            ++classAccess;
            delimiter.lookAtClassAccess(record);
        } else if (section == SectionKind::RoleAccess) {
            delimiter.lookAtRoleAccess(record);
        }
    });
    if (!hasRecords)
        throw ReadingError(fileName, 0,
                           QStringLiteral("The file holds no users, classes, roles or access; it "
                                          "is left out."));
    const bool isUtf8 = !found.certain && utf8.isValid();
    return {isUtf8 ? Encoding::Utf8 : found.encoding, found.markLength, delimiter.result(),
            classAccess};
}

/// Finds again, without folding their case, the thousands of identities that a file's many records
/// go through.
class RecentIdentities
{
public:
    explicit RecentIdentities(Names &names) : mNames(names), mRecent(size_t(1) << 14, -1) {}

    qint32 mention(QByteArrayView name, Place place)
    {
        const size_t hash = qHashBits(name.data(), size_t(name.size()));
        qint32 &recent = mRecent[hash % mRecent.size()];
        if (recent < 0 || mNames.at(recent) != name)
            recent = mNames.mention(name, place);
        return recent;
    }

private:
    Names &mNames;
    std::vector<qint32> mRecent;
};

/// Takes the records of a security file into the draft of its security.
class SecurityRecords
{
public:
    SecurityRecords(SecurityDraft &security, Warnings &warnings, char delimiter)
        : mSecurity(security), mWarnings(warnings), mIdentities(security.namedIdentities),
          mDelimiter(delimiter)
    {
    }

    void read(SectionKind section, QByteArrayView record, Place place)
    {
        mPlace = place;
        switch (section) {
        case SectionKind::Identities:
            return list(mSecurity.listedIdentities, record);
        case SectionKind::Classes:
            return list(mSecurity.listedClasses, record);
        case SectionKind::RoleAccess:
            return readRoleAccess(record);
        case SectionKind::ClassAccess:
            return readClassAccess(record);
        case SectionKind::Skipped:
            break;
        }
    }

private:
    template <typename Text>
    void warn(Text text)
    {
        mWarnings.add(mPlace, text);
    }

    /// A delimiter at the line's end makes no part of the name.
    void list(Names &names, QByteArrayView line)
    {
        QByteArrayView name = trimmed(line);
        while (name.endsWith(mDelimiter))
            name = trimmed(name.chopped(1));
        const qint32 before = names.count();
        if (names.mention(name, mPlace) < before)
            warn([&] {
                return name.isEmpty() ? QStringLiteral("The line holds no name; it is left out.")
                                      : QStringLiteral("%1 is listed already.").arg(quoted(name));
            });
    }

    void readRoleAccess(QByteArrayView record)
    {
        mFields.split(record, mDelimiter);
        checkFields(2);
        const qint32 role = mSecurity.roles.mention(mFields.at(0), mPlace);
        const qint32 identity = mIdentities.mention(mFields.at(1), mPlace);
        if (role >= 0 && identity >= 0)
            mSecurity.roleAccess.add({role, identity, 1}, mPlace);
        else
            warn([] {
                return QStringLiteral("The record lacks a role or a user; it is left out.");
            });
    }

    void readClassAccess(QByteArrayView record)
    {
        mFields.split(record, mDelimiter);
        checkFields(4);
        const qint32 securityClass = mSecurity.namedClasses.mention(mFields.at(0), mPlace);
        const qint32 identity = mIdentities.mention(mFields.at(1), mPlace);
        if (securityClass < 0 || identity < 0) {
            warn([] {
                return QStringLiteral("The record lacks a class or a user; it is left out.");
            });
            return;
        }
        const QByteArrayView access = mFields.at(2);
        const qint8 code = accessCode(access);
        if (access.isEmpty() || code == unknownAccess)
            warn([&] { return QStringLiteral("%1 is no access.").arg(quoted(access)); });
        mSecurity.classAccess.add({securityClass, identity, code}, mPlace);
    }

    void checkFields(qsizetype known)
    {
        qsizetype count = mFields.count();
        while (count > known && mFields.at(count - 1).isEmpty())
            --count;
        if (count > known)
            warn([&] {
                return QStringLiteral("The line has %1 fields where %2 are known; the last ones "
                                      "are left out.")
                    .arg(QString::number(count), QString::number(known));
            });
    }

    SecurityDraft &mSecurity;
    Warnings &mWarnings;
    RecentIdentities mIdentities;
    char mDelimiter;
    Fields mFields;
    Place mPlace;
};

} // namespace

void readSecurityFile(QIODevice &device, ApplicationDraft &draft)
{
    const QString fileName = draft.warnings.fileName(SourceFile::Security);
    const SecuritySurvey survey = surveySecurity(device, fileName);
    if (!device.seek(survey.markLength))
        throw ReadingError(fileName, 0,
                           QStringLiteral("The file cannot be read: %1").arg(device.errorString()));
    SecurityDraft security(*draft.arena);
    security.classAccess.reserve(survey.classAccess);
    SecurityRecords records(security, draft.warnings, survey.delimiter);
    LineReader reader(device, fileName, survey.encoding);
    readRecords(reader, [&](SectionKind section, QByteArrayView record) {
        records.read(section, record, Place(SourceFile::Security, reader.number()));
    });
    draft.security = std::move(security);
}

} // namespace hfm::offline
