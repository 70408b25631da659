#include "hfm/offline/AppFile.h"

#include "hfm/offline/HierarchySection.h"
#include "hfm/offline/LineReader.h"
#include "hfm/offline/ListSections.h"
#include "hfm/offline/MemberSection.h"
#include "hfm/offline/ReadingError.h"
#include "hfm/offline/Survey.h"
#include "hfm/offline/Syntax.h"

#include <algorithm>
#include <map>

namespace hfm::offline {

namespace {

enum class SectionKind {
    Members,
    Hierarchies,
    Currencies,
    Methods,
    Settings,
    Languages,
};

struct KnownSection
{
    QByteArrayView name;
    SectionKind kind;
    bool ofDimension; ///< whether the header's argument is a dimension
};

constexpr KnownSection knownSections[] = {
    {"MEMBERS", SectionKind::Members, true},
    {"HIERARCHIES", SectionKind::Hierarchies, true},
    {"CURRENCIES", SectionKind::Currencies, false},
    {"CONSOLIDATION_METHODS", SectionKind::Methods, false},
    {"APPLICATION_SETTINGS", SectionKind::Settings, false},
    {"LANGUAGES", SectionKind::Languages, false},
};

/// Whether a comment names columns and is no remark. Those of members and lists have a Label, which
/// another writer than HFM may put elsewhere than first, those of a hierarchy a Parent and a Child.
bool namesColumns(const QList<QByteArrayView> &names)
{
    const auto has = [&](QByteArrayView column) {
        return std::any_of(names.begin(), names.end(),
                           [&](QByteArrayView name) { return sameWord(name, column); });
    };
    return sameWord(names.first(), "Label") || (has("Parent") && has("Child")) ||
           (has("Label") && (has("DefaultParent") || has("Descriptions")));
}

bool isOfProfile(DimensionKind kind)
{
    return kind == DimensionKind::Year || kind == DimensionKind::Period ||
           kind == DimensionKind::View;
}

/// Reads one file after its survey: hands each line to the section that it is in.
class AppFile
{
public:
    AppFile(QIODevice &device, SourceFile source, const Survey &survey, ApplicationDraft &draft)
        : mReader(device, draft.warnings.fileName(source), survey.encoding), mSource(source),
          mSurvey(survey), mDelimiter(survey.delimiter), mDraft(draft)
    {
    }

    void read()
    {
        while (mReader.next()) {
            const QByteArrayView line = mReader.line();
            if (const auto header = sectionHeader(line))
                enter(*header);
            else if (mSection && !trimmed(line).isEmpty())
                readLine(line);
        }
        finishSection();
    }

private:
    void enter(const SectionHeader &header)
    {
        finishSection();
        mColumnsMayFollow = true;
        mRecordsNameParents = false;
        mSection = section(header);
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
        const Place place(mSource, mReader.number());
        if (mReader.lineIsCut())
            warnOfCut(line, place);
        mSection->readRecord(line, place);
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

    /// A member's record that the file's end cuts off before its DefaultParent field.
    void warnOfCut(QByteArrayView line, Place place)
    {
        if (!mRecordsNameParents || line.toByteArray().toLower().contains("defaultparent="))
            return;
        mDraft.warnings.add(place, [&] {
            return QStringLiteral("The file ends within the record of %1; it seems to be cut off.")
                .arg(quoted(trimmed(line).first(std::min<qsizetype>(80, trimmed(line).size()))));
        });
    }

    /// The section that a header begins or continues; null for one that is skipped. A section that
    /// stands twice is one section.
    Section *section(const SectionHeader &header)
    {
        for (const KnownSection &known : knownSections) {
            if (!sameWord(header.name, known.name))
                continue;
            if (!stands(known.kind))
                return nullptr;
            const auto dimension = known.ofDimension ? dimensionNamed(header.argument)
                                                     : std::optional(DimensionKind::Scenario);
            if (!dimension)
                return nullptr;
            auto &section = mSections[{known.kind, *dimension}];
            if (!section) {
                section = newSection(known.kind, *dimension);
                makeRoom(known.kind, *dimension, header);
            }
            mRecordsNameParents = known.kind == SectionKind::Members &&
                                  *dimension != DimensionKind::Value &&
                                  *dimension != DimensionKind::ICP;
            return section.get();
        }
        return nullptr;
    }

    /// Whether a section is read from a file of this kind.
    bool stands(SectionKind kind) const
    {
        switch (mSource) {
        case SourceFile::Metadata:
            return true;
        case SourceFile::Profile:
            return kind == SectionKind::Languages || kind == SectionKind::Members ||
                   kind == SectionKind::Hierarchies;
        case SourceFile::Security:
        case SourceFile::MemberLists:
            break;
        }
        return false;
    }

    void makeRoom(SectionKind kind, DimensionKind dimension, const SectionHeader &header)
    {
        const auto found = mSurvey.records.find(sectionKey(header.name, header.argument));
        if (found == mSurvey.records.end())
            return;
        if (kind == SectionKind::Members)
            mDraft.dimension(dimension).reserveMembers(size_t(found->second));
        else if (kind == SectionKind::Hierarchies)
            mDraft.dimension(dimension).reserveEdges(size_t(found->second));
    }

    std::unique_ptr<Section> newSection(SectionKind kind, DimensionKind dimension)
    {
        switch (kind) {
        case SectionKind::Members:
            return std::make_unique<MemberSection>(mDraft, dimension, mDelimiter);
        case SectionKind::Hierarchies:
            return std::make_unique<HierarchySection>(mDraft, dimension, mDelimiter);
        case SectionKind::Currencies:
            return std::make_unique<CurrencySection>(mDraft, mDelimiter);
        case SectionKind::Methods:
            return std::make_unique<MethodSection>(mDraft, mDelimiter);
        case SectionKind::Settings:
            return std::make_unique<SettingsSection>(mDraft);
        case SectionKind::Languages:
            break;
        }
        return std::make_unique<NameSection>(mDraft.listedLanguages, mDelimiter);
    }

    /// A custom dimension goes by its own name before the name that this program has for it.
    std::optional<DimensionKind> dimensionNamed(QByteArrayView name) const
    {
        for (qsizetype k = 0; k < mDraft.customNames.size(); ++k) {
            if (sameLabel(mDraft.customNames[k], name))
                return k < 4 && mSource == SourceFile::Metadata
                           ? std::optional(DimensionKind(int(DimensionKind::Custom1) + int(k)))
                           : std::nullopt;
        }
        for (const DimensionKind kind : allDimensionKinds) {
            if (dimensionName(kind).compare(QLatin1StringView(name), Qt::CaseInsensitive) == 0)
                return mSource == SourceFile::Metadata || isOfProfile(kind) ? std::optional(kind)
                                                                            : std::nullopt;
        }
        return std::nullopt;
    }

    LineReader mReader;
    SourceFile mSource;
    const Survey &mSurvey;
    char mDelimiter;
    ApplicationDraft &mDraft;
    std::map<std::pair<SectionKind, DimensionKind>, std::unique_ptr<Section>> mSections;
    Section *mSection = nullptr; ///< null while a section is skipped
    bool mColumnsMayFollow = false;
    bool mRecordsNameParents = false; ///< whether the records have a DefaultParent field
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
