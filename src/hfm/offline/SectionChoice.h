#pragma once

#include "hfm/offline/ApplicationDraft.h"
#include "hfm/offline/Section.h"
#include "hfm/offline/Survey.h"
#include "hfm/offline/Syntax.h"

#include <map>

namespace hfm::offline {

enum class SectionKind {
    Members,
    Hierarchies,
    Currencies,
    Methods,
    Settings,
    Languages,
};

/// Finds what takes the lines of a file's sections.
class SectionChoice
{
public:
    /// `survey` is that of the file; it must live as long as this.
    SectionChoice(ApplicationDraft &draft, SourceFile source, const Survey &survey)
        : mDraft(draft), mSource(source), mSurvey(survey)
    {
    }

    /// The section that a header begins or continues; null for one that is skipped. A section that
    /// stands twice is one section.
    Section *choose(const SectionHeader &header);

private:
    bool stands(SectionKind kind) const;
    void makeRoom(SectionKind kind, DimensionKind dimension, const SectionHeader &header);
    std::unique_ptr<Section> newSection(SectionKind kind, DimensionKind dimension);
    std::optional<DimensionKind> dimensionOf(QByteArrayView argument) const;

    ApplicationDraft &mDraft;
    SourceFile mSource;
    const Survey &mSurvey;
    std::map<std::pair<SectionKind, DimensionKind>, std::unique_ptr<Section>> mSections;
};

} // namespace hfm::offline
