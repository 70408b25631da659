#include "appinfo/Statistics.h"

#include "appinfo/ArrayCounts.h"

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QLatin1StringView blankLine("\r\n\r\n");

qint32 maximumDepth(hfm::Dimension &dimension)
{
    const auto topLevel = dimension.EnumChildMembers(hfm::allChildren, hfm::rootMember);
    qint32 depth = 0;
    for (const hfm::MemberId member : topLevel)
        depth = std::max(depth, dimension.GetGenerationsBelow(member) + 1);
    return depth;
}

/// The numbers are those of members, base members and parents; parents are never fetched.
QString commonReport(hfm::Dimension &dimension)
{
    using namespace hfm;
    const qint32 all = qint32(dimension.EnumMembersBelow(rootMember, EveryOccurrence).size());
    const qint32 distinct = qint32(dimension.EnumMembersBelow(rootMember, EachMemberOnce).size());
    const qint32 base = qint32(dimension.EnumBaseMembers(rootMember, EveryOccurrence).size());
    const qint32 distinctBase =
        qint32(dimension.EnumBaseMembers(rootMember, EachMemberOnce).size());
    const qint32 parents = all - base;
    const qint32 distinctParents = distinct - distinctBase;

    const auto line = [](const QString &label, qint32 number) {
        return label + u"  "_s + QString::number(number);
    };
    const QStringList lines = {
        line(u"Total Members:"_s, all),
        line(u"Total Distinct Members:"_s, distinct),
        line(u"Total Base Members:"_s, base),
        line(u"Total Distinct Base Members:"_s, distinctBase),
        line(u"Total Parent Members:"_s, parents),
        line(u"Total Distinct Parent Members:"_s, distinctParents),
        line(u"Duplicate Base Members:"_s, base - distinctBase),
        line(u"Duplicate Parent Members:"_s, parents - distinctParents),
        line(u"Maximum Hierarchy Generation Depth:"_s, maximumDepth(dimension)),
    };
    return lines.join(blankLine);
}

QList<hfm::MemberId> listMembers(hfm::Dimension &dimension, const QString &list)
{
    return dimension.EnumMemberListMembers(dimension.GetMemberListId(list), hfm::rootMember);
}

QString systemAccounts(hfm::Dimension &dimension)
{
    return u"System Account Members: "_s +
           QString::number(countOfFilled(listMembers(dimension, u"[System]"_s)));
}

QString currencies(hfm::Dimension &dimension)
{
    return u"Currency Members: "_s +
           QString::number(countOfFilled(listMembers(dimension, u"[Currencies]"_s)));
}

QString consolMethods(hfm::Dimension &dimension)
{
    return u"ConsolMethod Members: "_s +
           QString::number(listMembers(dimension, u"[ConsolMethods]"_s).size());
}

double number(const Statistics::Threshold &threshold)
{
    bool isNumber = false;
    const double value = threshold.locale.toDouble(threshold.text.trimmed(), &isNumber);
    if (!isNumber || !std::isfinite(value))
        throw RuntimeError(TypeMismatch);
    return value;
}

QList<hfm::MemberId> findWideParents(hfm::Dimension &dimension,
                                     const Statistics::Threshold &threshold)
{
    QList<hfm::MemberId> wide;
    std::optional<double> limit;
    const QList<QString> labels = dimension.EnumAllMemberLabels();
    for (const QString &label : labels) {
        const hfm::MemberId member = dimension.GetMemberId(label);
        if (!dimension.GetHasChildren(member))
            continue;
        const qint32 children = dimension.GetChildCount(member);
        if (!limit)
            limit = number(threshold);
        if (*limit < children)
            wide.append(member);
    }
    return wide;
}

QString wideParents(hfm::Dimension &dimension, const Statistics::Threshold &threshold)
{
    QString text = u"Parents with more than "_s + threshold.text + u" Children: "_s;
    const QList<hfm::MemberId> wide = findWideParents(dimension, threshold);
    for (const hfm::MemberId member : wide)
        text += u"\r\n\t"_s + dimension.GetMemberLabel(member);
    return text;
}

} // namespace

Statistics::Section Statistics::sectionOfOption(int index)
{
    switch (index) {
    case 12:
        return Section::SystemAccounts;
    case 13:
        return Section::WideParents;
    case 14:
        return Section::CurrenciesAndConsolMethods;
    case 15:
        return Section::Currencies;
    default:
        return Section::None;
    }
}

QString Statistics::report(hfm::Dimension &dimension, Section section, const Threshold &threshold)
{
    const QString common = commonReport(dimension);
    switch (section) {
    case Section::None:
        break;
    case Section::SystemAccounts:
        return common + blankLine + systemAccounts(dimension);
    case Section::WideParents:
        return common + blankLine + wideParents(dimension, threshold);
    case Section::CurrenciesAndConsolMethods: {
        const QString withCurrencies = common + blankLine + currencies(dimension);
        return withCurrencies + blankLine + consolMethods(dimension);
    }
    case Section::Currencies:
        return common + blankLine + currencies(dimension);
    }
    return common;
}
