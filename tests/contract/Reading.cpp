#include "contract/Reading.h"

#include <QTest>

#include <array>

using hfm::MemberId;

namespace {

struct Accessor
{
    const char *name;
    std::shared_ptr<hfm::Dimension> (hfm::Metadata::*get)();
};

constexpr std::array<Accessor, 12> accessors = {{
    {"Scenario", &hfm::Metadata::GetScenarioDimension},
    {"Year", &hfm::Metadata::GetYearDimension},
    {"Period", &hfm::Metadata::GetPeriodDimension},
    {"View", &hfm::Metadata::GetViewDimension},
    {"Entity", &hfm::Metadata::GetEntityDimension},
    {"Value", &hfm::Metadata::GetValueDimension},
    {"Account", &hfm::Metadata::GetAccountDimension},
    {"ICP", &hfm::Metadata::GetICPDimension},
    {"Custom1", &hfm::Metadata::GetCustom1Dimension},
    {"Custom2", &hfm::Metadata::GetCustom2Dimension},
    {"Custom3", &hfm::Metadata::GetCustom3Dimension},
    {"Custom4", &hfm::Metadata::GetCustom4Dimension},
}};

void addBelow(hfm::Dimension &dimension, MemberId parent, hfm::Occurrences &found)
{
    for (const MemberId child : dimension.EnumChildMembers(hfm::allChildren, parent)) {
        found.parents.append(parent);
        found.members.append(child);
        addBelow(dimension, child, found);
    }
}

} // namespace

std::shared_ptr<hfm::Dimension> dimensionOf(hfm::Session &session, const QString &name)
{
    for (const Accessor &accessor : accessors)
        if (name == QLatin1StringView(accessor.name))
            return (*session.GetMetadata().*accessor.get)();
    qFatal("no dimension of that name");
}

void addDimensionRows()
{
    QTest::addColumn<QString>("name");
    for (const Accessor &accessor : accessors)
        QTest::newRow(accessor.name) << QString::fromLatin1(accessor.name);
}

hfm::Occurrences occurrencesBelow(hfm::Dimension &dimension, MemberId top)
{
    hfm::Occurrences found;
    addBelow(dimension, top, found);
    return found;
}

QList<MemberId> once(const QList<MemberId> &ids)
{
    QList<MemberId> found;
    for (const MemberId id : ids)
        if (!found.contains(id))
            found.append(id);
    return found;
}

QStringList labelsOf(hfm::Dimension &dimension, const QList<MemberId> &ids)
{
    QStringList labels;
    for (const MemberId id : ids)
        labels.append(dimension.GetMemberLabel(id));
    return labels;
}

QList<MemberId> rootAndMembers(hfm::Dimension &dimension)
{
    return QList<MemberId>{hfm::rootMember} + dimension.EnumAllMembers();
}
