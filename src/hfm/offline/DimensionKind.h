#pragma once

#include <QLatin1StringView>

#include <array>

namespace hfm::offline {

/// The twelve dimensions, in the order of Metadata's accessors.
enum class DimensionKind {
    Scenario,
    Year,
    Period,
    View,
    Entity,
    Value,
    Account,
    ICP,
    Custom1,
    Custom2,
    Custom3,
    Custom4,
};

inline constexpr std::array allDimensionKinds = {
    DimensionKind::Scenario, DimensionKind::Year,    DimensionKind::Period,  DimensionKind::View,
    DimensionKind::Entity,   DimensionKind::Value,   DimensionKind::Account, DimensionKind::ICP,
    DimensionKind::Custom1,  DimensionKind::Custom2, DimensionKind::Custom3, DimensionKind::Custom4,
};

/// The name as HFM spells it, for example "Account".
inline QLatin1StringView dimensionName(DimensionKind kind)
{
    static constexpr std::array names = {"Scenario", "Year",    "Period",  "View",
                                         "Entity",   "Value",   "Account", "ICP",
                                         "Custom1",  "Custom2", "Custom3", "Custom4"};
    return QLatin1StringView(names[size_t(kind)]);
}

inline bool isCustom(DimensionKind kind)
{
    return kind >= DimensionKind::Custom1;
}

} // namespace hfm::offline
