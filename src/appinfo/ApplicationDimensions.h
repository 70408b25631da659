#pragma once

#include "hfm/Session.h"

#include <array>
#include <optional>

/// The twelve dimensions in the order in which the application information shows them. The first
/// six have hierarchies worth an analysis.
enum class ApplicationDimension {
    Account,
    Entity,
    Custom1,
    Custom2,
    Custom3,
    Custom4,
    Scenario,
    Year,
    Period,
    Value,
    ICP,
    View,
};

namespace ApplicationDimensions {

inline constexpr int count = 12;
inline constexpr int analysedCount = 6;

/// The dimension's word, such as "Account" or "ICP".
QString word(ApplicationDimension dimension);

/// Fails as the metadata's accessor fails.
std::shared_ptr<hfm::Dimension> get(hfm::Metadata &metadata, ApplicationDimension dimension);

// Which dimension an option button stands for, by the button's index in its control array. Nothing
// for an index that no button has.

/// Shared members: 0 to 5.
std::optional<ApplicationDimension> ofSharedMembersOption(int index);
/// Duplicates: 0 to 5; base member compare: 6 to 11, in the reverse order.
std::optional<ApplicationDimension> ofCompareOption(int index);
/// Statistics: 12 to 17.
std::optional<ApplicationDimension> ofStatisticsOption(int index);

} // namespace ApplicationDimensions
