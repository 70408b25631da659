#include "hfm/offline/SectionChoice.h"

#include "hfm/offline/DimensionNames.h"
#include "hfm/offline/HierarchySection.h"
#include "hfm/offline/ListSections.h"
#include "hfm/offline/MemberSection.h"

namespace hfm::offline {

namespace {

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

bool isOfProfile(DimensionKind kind)
{
    return kind == DimensionKind::Year || kind == DimensionKind::Period ||
           kind == DimensionKind::View;
}

} // namespace

Section *SectionChoice::choose(const SectionHeader &header)
{
    for (const KnownSection &known : knownSections) {
        if (!sameWord(header.name, known.name))
            continue;
        if (!stands(known.kind))
            return nullptr;
        const auto dimension = known.ofDimension ? dimensionOf(header.argument)
                                                 : std::optional(DimensionKind::Scenario);
        if (!dimension)
            return nullptr;
        auto &section = mSections[{known.kind, *dimension}];
        if (!section) {
            section = newSection(known.kind, *dimension);
            makeRoom(known.kind, *dimension, header);
        }
        return section.get();
    }
    return nullptr;
}

/// Whether a section is read from a file of this kind.
bool SectionChoice::stands(SectionKind kind) const
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

void SectionChoice::makeRoom(SectionKind kind, DimensionKind dimension, const SectionHeader &header)
{
    const auto found = mSurvey.records.find(sectionKey(header.name, header.argument));
    if (found == mSurvey.records.end())
        return;
    // What a file promises beyond a few million is believed when it is met.
    const size_t records = std::min(size_t(found->second), size_t(1) << 22);
    if (kind == SectionKind::Members)
        mDraft.dimension(dimension).reserveMembers(records);
    else if (kind == SectionKind::Hierarchies)
        mDraft.dimension(dimension).reserveEdges(records);
}

std::unique_ptr<Section> SectionChoice::newSection(SectionKind kind, DimensionKind dimension)
{
    switch (kind) {
    case SectionKind::Members:
        return std::make_unique<MemberSection>(mDraft, dimension, mSurvey.delimiter);
    case SectionKind::Hierarchies:
        return std::make_unique<HierarchySection>(mDraft, dimension, mSurvey.delimiter);
    case SectionKind::Currencies:
        return std::make_unique<CurrencySection>(mDraft, mSurvey.delimiter);
    case SectionKind::Methods:
        return std::make_unique<MethodSection>(mDraft, mSurvey.delimiter);
    case SectionKind::Settings:
        return std::make_unique<SettingsSection>(mDraft);
    case SectionKind::Languages:
        break;
    }
    return std::make_unique<NameSection>(mDraft.listedLanguages, mSurvey.delimiter);
}

std::optional<DimensionKind> SectionChoice::dimensionOf(QByteArrayView argument) const
{
    const auto dimension = dimensionNamed(argument, mDraft.customNames);
    const bool isRead = dimension && (mSource == SourceFile::Metadata || isOfProfile(*dimension));
    return isRead ? dimension : std::nullopt;
}

} // namespace hfm::offline
