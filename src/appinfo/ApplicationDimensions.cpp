#include "appinfo/ApplicationDimensions.h"

namespace ApplicationDimensions {

namespace {

struct Accessor
{
    QLatin1StringView word;
    std::shared_ptr<hfm::Dimension> (hfm::Metadata::*get)();
};

constexpr std::array<Accessor, count> accessors = {{
    {QLatin1StringView("Account"), &hfm::Metadata::GetAccountDimension},
    {QLatin1StringView("Entity"), &hfm::Metadata::GetEntityDimension},
    {QLatin1StringView("Custom1"), &hfm::Metadata::GetCustom1Dimension},
    {QLatin1StringView("Custom2"), &hfm::Metadata::GetCustom2Dimension},
    {QLatin1StringView("Custom3"), &hfm::Metadata::GetCustom3Dimension},
    {QLatin1StringView("Custom4"), &hfm::Metadata::GetCustom4Dimension},
    {QLatin1StringView("Scenario"), &hfm::Metadata::GetScenarioDimension},
    {QLatin1StringView("Year"), &hfm::Metadata::GetYearDimension},
    {QLatin1StringView("Period"), &hfm::Metadata::GetPeriodDimension},
    {QLatin1StringView("Value"), &hfm::Metadata::GetValueDimension},
    {QLatin1StringView("ICP"), &hfm::Metadata::GetICPDimension},
    {QLatin1StringView("View"), &hfm::Metadata::GetViewDimension},
}};

const Accessor &accessor(ApplicationDimension dimension)
{
    return accessors[size_t(dimension)];
}

std::optional<ApplicationDimension> analysed(int position)
{
    if (position < 0 || position >= analysedCount)
        return std::nullopt;
    return ApplicationDimension(position);
}

} // namespace

QString word(ApplicationDimension dimension)
{
    return accessor(dimension).word;
}

std::shared_ptr<hfm::Dimension> get(hfm::Metadata &metadata, ApplicationDimension dimension)
{
    return (metadata.*accessor(dimension).get)();
}

std::optional<ApplicationDimension> ofSharedMembersOption(int index)
{
    return analysed(index);
}

std::optional<ApplicationDimension> ofCompareOption(int index)
{
    constexpr int last = 2 * analysedCount - 1;
    return analysed(index < analysedCount ? index : last - index);
}

std::optional<ApplicationDimension> ofStatisticsOption(int index)
{
    return analysed(index - 2 * analysedCount);
}

} // namespace ApplicationDimensions
