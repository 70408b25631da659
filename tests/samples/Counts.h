#pragma once

#include "extract/ExtractBuilder.h"
#include "hfm/Session.h"

#include <QMap>

/// A dimension's numbers as the counting script names them.
struct Counts
{
    qint64 members = 0;
    qint64 nodes = 0;
    qint64 distinct = 0;
    qint64 baseNodes = 0;
    qint64 bases = 0;
    qint64 parents = 0;
    qint64 depth = 0;
    qint64 rows = 0;

    bool operator==(const Counts &) const = default;
};

/// The numbers that the operations of an HFM client give, and the rows of the extract.
inline Counts countsOf(hfm::Dimension &dimension)
{
    const QList<hfm::MemberId> all = dimension.EnumAllMembers();
    const auto below = [&](auto distinct) {
        return dimension.EnumMembersBelow(hfm::rootMember, distinct).size();
    };
    Counts counts;
    counts.members = all.size();
    counts.nodes = below(hfm::EveryOccurrence);
    counts.distinct = below(hfm::EachMemberOnce);
    counts.baseNodes = dimension.EnumBaseMembers(hfm::rootMember, hfm::EveryOccurrence).size();
    counts.bases = dimension.EnumBaseMembers(hfm::rootMember, hfm::EachMemberOnce).size();
    for (const hfm::MemberId member : all)
        counts.parents += dimension.GetHasChildren(member) ? 1 : 0;
    for (const hfm::MemberId top : dimension.EnumChildMembers(hfm::allChildren, hfm::rootMember))
        counts.depth = std::max<qint64>(counts.depth, 1 + dimension.GetGenerationsBelow(top));
    counts.rows = buildExtract(dimension, 0, {}).rows.count(QLatin1StringView("\r\n"));
    return counts;
}

/// The dimension's accessors by the dimension's name.
inline const QMap<QString, std::shared_ptr<hfm::Dimension> (hfm::Metadata::*)()> &accessors()
{
    using hfm::Metadata;
    static const QMap<QString, std::shared_ptr<hfm::Dimension> (Metadata::*)()> all{
        {QStringLiteral("Account"), &Metadata::GetAccountDimension},
        {QStringLiteral("Entity"), &Metadata::GetEntityDimension},
        {QStringLiteral("Scenario"), &Metadata::GetScenarioDimension},
        {QStringLiteral("Year"), &Metadata::GetYearDimension},
        {QStringLiteral("Period"), &Metadata::GetPeriodDimension},
        {QStringLiteral("Custom1"), &Metadata::GetCustom1Dimension},
        {QStringLiteral("Custom2"), &Metadata::GetCustom2Dimension},
        {QStringLiteral("Custom3"), &Metadata::GetCustom3Dimension},
        {QStringLiteral("Custom4"), &Metadata::GetCustom4Dimension},
        {QStringLiteral("View"), &Metadata::GetViewDimension},
        {QStringLiteral("Value"), &Metadata::GetValueDimension},
        {QStringLiteral("ICP"), &Metadata::GetICPDimension},
    };
    return all;
}

/// The numbers in the script's order, for the message of a failed comparison.
inline QString textOf(const Counts &counts)
{
    return QStringLiteral("%1 %2 %3 %4 %5 %6 %7 %8")
        .arg(counts.members)
        .arg(counts.nodes)
        .arg(counts.distinct)
        .arg(counts.baseNodes)
        .arg(counts.bases)
        .arg(counts.parents)
        .arg(counts.depth)
        .arg(counts.rows);
}
