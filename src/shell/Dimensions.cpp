#include "shell/Dimensions.h"

#include "runtime/Required.h"

namespace Dimensions {

namespace {

struct Accessor
{
    QLatin1StringView name;
    std::shared_ptr<hfm::Dimension> (hfm::Metadata::*get)();
};

constexpr Accessor accessors[] = {
    {QLatin1StringView("ACCOUNT"), &hfm::Metadata::GetAccountDimension},
    {QLatin1StringView("ENTITY"), &hfm::Metadata::GetEntityDimension},
    {QLatin1StringView("SCENARIO"), &hfm::Metadata::GetScenarioDimension},
    {QLatin1StringView("YEAR"), &hfm::Metadata::GetYearDimension},
    {QLatin1StringView("PERIOD"), &hfm::Metadata::GetPeriodDimension},
    {QLatin1StringView("VIEW"), &hfm::Metadata::GetViewDimension},
    {QLatin1StringView("VALUE"), &hfm::Metadata::GetValueDimension},
    {QLatin1StringView("ICP"), &hfm::Metadata::GetICPDimension},
    {QLatin1StringView("CUSTOM1"), &hfm::Metadata::GetCustom1Dimension},
    {QLatin1StringView("CUSTOM2"), &hfm::Metadata::GetCustom2Dimension},
    {QLatin1StringView("CUSTOM3"), &hfm::Metadata::GetCustom3Dimension},
    {QLatin1StringView("CUSTOM4"), &hfm::Metadata::GetCustom4Dimension},
};

} // namespace

QStringList names()
{
    return {QStringLiteral("Account"), QStringLiteral("Entity"),  QStringLiteral("Scenario"),
            QStringLiteral("Year"),    QStringLiteral("Period"),  QStringLiteral("Custom1"),
            QStringLiteral("Custom2"), QStringLiteral("Custom3"), QStringLiteral("Custom4"),
            QStringLiteral("View"),    QStringLiteral("Value"),   QStringLiteral("ICP")};
}

Choice choose(modGlobal &state, const QString &text)
{
    if (text.isEmpty())
        return Choice::Nothing;
    const QString name = text.toUpper();
    for (const Accessor &accessor : accessors) {
        if (name != accessor.name)
            continue;
        state.gDimension = (required(state.gMetadata).*accessor.get)();
        state.gDimensionName = name;
        return Choice::Set;
    }
    return Choice::Unknown;
}

QString unableToSet(const QString &text)
{
    return QStringLiteral("Unable to set dimension to '") + text + QStringLiteral("'.");
}

Tools enabledTools(bool flag, const QString &dimensionName)
{
    const bool isEntity = dimensionName == QLatin1StringView("ENTITIES") ||
                          dimensionName == QLatin1StringView("ENTITY");
    return {flag, flag, flag && !isEntity};
}

bool opensMemberListBuilder(const QString &dimensionName)
{
    return dimensionName.toUpper() != QLatin1StringView("ENTITY");
}

} // namespace Dimensions
