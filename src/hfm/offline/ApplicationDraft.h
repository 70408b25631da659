#pragma once

#include "hfm/offline/DimensionDraft.h"
#include "hfm/offline/Names.h"
#include "hfm/offline/SecurityDraft.h"
#include "hfm/offline/Warnings.h"

#include <memory>
#include <optional>

namespace hfm::offline {

/// Currencies or consolidation methods as the files list them.
struct ListedNames
{
    explicit ListedNames(TextArena &arena) : names(arena) {}

    Names names;
    std::vector<TextRef> descriptions; ///< by name: what stands for its Descriptions
};

/// An application while its files are read.
struct ApplicationDraft
{
    explicit ApplicationDraft(Warnings &sink);

    DimensionDraft &dimension(DimensionKind kind) { return dimensions[size_t(kind)]; }

    std::unique_ptr<TextArena> arena = std::make_unique<TextArena>();
    TextPool pool{*arena};
    Warnings &warnings;

    std::vector<DimensionDraft> dimensions; ///< by DimensionKind
    /// The custom dimensions' own names, in order.
    QList<QByteArray> customNames = {"Custom1", "Custom2", "Custom3", "Custom4"};

    ListedNames currencies{*arena};
    ListedNames methods{*arena};
    Names entityCurrencies{*arena};
    Names defaultCurrency{*arena};         ///< of the application settings; one or none
    Names securityClasses{*arena};         ///< those that members have
    std::vector<Names> topMembers;         ///< by custom dimension: those that accounts name
    Names languages{*arena};               ///< those that descriptions are in
    Names listedLanguages{*arena};         ///< those of the profile
    std::optional<SecurityDraft> security; ///< nothing without a security file
    MemberListFile memberListFile;
};

} // namespace hfm::offline
