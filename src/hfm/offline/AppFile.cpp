#include "hfm/offline/AppFile.h"

#include "hfm/offline/LineReader.h"
#include "hfm/offline/ReadingError.h"
#include "hfm/offline/SectionChoice.h"
#include "hfm/offline/Syntax.h"

#include <algorithm>

namespace hfm::offline {

namespace {

/// Whether a comment names columns and is no remark. Those of members and lists have a Label, which
/// another writer than HFM may put elsewhere than first, those of a hierarchy a Parent and a Child.
bool namesColumns(const QList<QByteArrayView> &names)
{
    const auto find = [&](QByteArrayView column) {
        return std::find_if(names.begin(), names.end(),
                            [&](QByteArrayView name) { return sameWord(name, column); });
    };
    const auto label = find("Label");
    const auto last = std::min(find("DefaultParent"), find("Descriptions"));
    return label == names.begin() || (label < last && last != names.end()) ||
           (find("Parent") != names.end() && find("Child") != names.end());
}

/// Reads one file after its survey: hands each line to the section that it is in.
class AppFile
{
public:
    AppFile(QIODevice &device, SourceFile source, const Survey &survey, ApplicationDraft &draft)
        : mReader(device, draft.warnings.fileName(source), survey.encoding), mSource(source),
          mDelimiter(survey.delimiter), mDraft(draft), mSections(draft, source, survey)
    {
    }

    void read()
    {
        mReader.beforeLinesEnd([this] { finishSection(); });
        while (mReader.next()) {
            const QByteArrayView line = mReader.line();
            if (const auto header = sectionHeader(line))
                enter(*header);
            else if (mSection && !trimmed(line).isEmpty())
                readLine(line);
        }
        finishSection();
        warnOfEnd();
    }

private:
    void enter(const SectionHeader &header)
    {
        finishSection();
        mColumnsMayFollow = true;
        mLacksRecords = true;
        mHeader = Place(mSource, mReader.number());
        mSection = mSections.choose(header);
    }

    void finishSection()
    {
        if (mSection)
            mSection->finish();
    }

    void readLine(QByteArrayView line)
    {
        if (line.startsWith('\'')) {
            readComment(line.sliced(1));
            return;
        }
        mColumnsMayFollow = false;
        mLacksRecords = false;
        mSection->readRecord(line, Place(mSource, mReader.number()));
    }

    /// The comment that names the columns stands before the section's records.
    void readComment(QByteArrayView text)
    {
        if (!mColumnsMayFollow)
            return;
        const QList<QByteArrayView> columns = splitNames(text, mDelimiter);
        if (!namesColumns(columns))
            return;
        mSection->readColumns(columns);
        mColumnsMayFollow = false;
    }

    /// Nothing tells that a file was cut off at the end of a record. Inside a line or before a
    /// section's first record it shows.
    void warnOfEnd()
    {
        if (mReader.lineIsCut())
            mDraft.warnings.add(Place(mSource, mReader.number()), [] {
                return QStringLiteral("The last line has no end; the file may be cut off.");
            });
        else if (mSection && mLacksRecords)
            mDraft.warnings.add(mHeader, [] {
                return QStringLiteral("The file ends with a section that has no records; it may "
                                      "be cut off.");
            });
    }

    LineReader mReader;
    SourceFile mSource;
    char mDelimiter;
    ApplicationDraft &mDraft;
    SectionChoice mSections;
    Section *mSection = nullptr; ///< null while a section is skipped
    bool mColumnsMayFollow = false;
    Place mHeader; ///< of the section
    bool mLacksRecords = false;
};

void readSurveyed(QIODevice &device, SourceFile source, const Survey &survey,
                  ApplicationDraft &draft)
{
    if (!device.seek(survey.markLength))
        throw ReadingError(draft.warnings.fileName(source), 0,
                           QStringLiteral("The file cannot be read: %1").arg(device.errorString()));
    AppFile(device, source, survey, draft).read();
}

} // namespace

void readMetadataFile(QIODevice &device, ApplicationDraft &draft)
{
    const QString name = draft.warnings.fileName(SourceFile::Metadata);
    const Survey survey = surveyFile(device, name);
    if (survey.lines == 0)
        throw ReadingError(name, 0, QStringLiteral("The file is empty."));
    if (!survey.hasMetadata)
        throw ReadingError(name, survey.lines,
                           QStringLiteral("The file ends without a section !MEMBERS= or "
                                          "!HIERARCHIES=; it is no metadata file in APP format, or "
                                          "it was cut off."));
    if (survey.customOrder)
        draft.customNames = *survey.customOrder;
    readSurveyed(device, SourceFile::Metadata, survey, draft);
}

void readProfileFile(QIODevice &device, ApplicationDraft &draft)
{
    const Survey survey = surveyFile(device, draft.warnings.fileName(SourceFile::Profile));
    readSurveyed(device, SourceFile::Profile, survey, draft);
}

} // namespace hfm::offline
