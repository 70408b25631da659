#include "hfm/offline/Layout.h"

#include "hfm/offline/Syntax.h"

#include <optional>

namespace hfm::offline {

namespace {

constexpr qsizetype customsRead = 4;

/// Letters and digits in lower case: what the releases spell alike.
QByteArray normalized(QByteArrayView name)
{
    QByteArray kept;
    for (const char c : name) {
        const bool isPunctuation = QByteArrayView(" \t_-.()[]{}<>/").contains(c);
        if (!isPunctuation)
            kept.append(c);
    }
    return kept.toLower();
}

struct NamedColumn
{
    QByteArrayView name;
    Column column;
};

constexpr NamedColumn plainColumns[] = {
    {"label", Column::Label},
    {"securityclass", Column::SecurityClass},
    {"userdefined1", Column::UserDefined1},
    {"userdefined2", Column::UserDefined2},
    {"userdefined3", Column::UserDefined3},
    {"defcurrency", Column::DefCurrency},
    {"allowadjs", Column::AllowAdjs},
    {"allowadjfromchildren", Column::AllowAdjFromChildren},
    {"isicp", Column::IsICP},
    {"holdingcompany", Column::HoldingCompany},
    {"accounttype", Column::AccountType},
    {"iscalculated", Column::IsCalculated},
    {"isconsolidated", Column::IsConsolidated},
    {"numdecimalplaces", Column::NumDecimalPlaces},
    {"useslineitems", Column::UsesLineItems},
};

/// Tells the columns of an account that there is one of for each custom dimension.
class CustomColumns
{
public:
    explicit CustomColumns(const CustomNames &customNames) : mCustomNames(customNames) {}

    std::optional<Column> find(const QByteArray &name)
    {
        if (name != "icptopmember" && name.contains("top") && name.endsWith("member"))
            return one(Column::TopMember1, name, {"top", "member"}, mTopMembers);
        if (name.startsWith("enable") && name.contains("aggr"))
            return one(Column::EnableAggr1, name, {"enable", "aggr"}, mAggregations);
        return std::nullopt;
    }

private:
    /// A column whose name tells no dimension goes by how many of its kind stood before.
    std::optional<Column> one(Column first, QByteArray name,
                              std::initializer_list<QByteArrayView> words, qsizetype &before)
    {
        for (const QByteArrayView word : words)
            name.remove(name.lastIndexOf(word), word.size());
        const qsizetype named = mCustomNames.find(name);
        const qsizetype custom = named >= 0 ? named : before;
        ++before;
        if (custom >= customsRead)
            return std::nullopt;
        return ofCustom(first, custom);
    }

    const CustomNames &mCustomNames;
    qsizetype mTopMembers = 0;
    qsizetype mAggregations = 0;
};

std::optional<Column> plainColumn(const QByteArray &name)
{
    for (const NamedColumn &known : plainColumns) {
        if (known.name == name)
            return known.column;
    }
    return std::nullopt;
}

} // namespace

CustomNames::CustomNames(const QList<QByteArray> &names)
{
    for (qsizetype k = 0; k < names.size(); ++k) {
        if (const QByteArray name = normalized(names[k]); !mPositions.contains(name))
            mPositions.insert(name, k);
    }
}

qsizetype CustomNames::find(const QByteArray &rest) const
{
    if (rest.isEmpty())
        return -1;
    if (const auto found = mPositions.constFind(rest); found != mPositions.constEnd())
        return *found;
    if (rest.startsWith("custom")) {
        bool isNumber = false;
        const int number = rest.sliced(6).toInt(&isNumber);
        if (isNumber && number > 0)
            return number - 1;
    }
    return -1;
}

void Layout::append(std::initializer_list<Column> columns)
{
    for (const Column column : columns)
        append(column);
}

void Layout::appendAccount(qsizetype customs)
{
    append({Column::Label, Column::AccountType, Column::IsCalculated, Column::IsConsolidated,
            Column::IsICP});
    skip(1); // PlugAcct
    for (qsizetype k = 0; k < std::min(customs, customsRead); ++k)
        append(ofCustom(Column::TopMember1, k));
    skip(std::max<qsizetype>(0, customs - customsRead));
    append({Column::NumDecimalPlaces, Column::UsesLineItems});
    for (qsizetype k = 0; k < std::min(customs, customsRead); ++k)
        append(ofCustom(Column::EnableAggr1, k));
    skip(std::max<qsizetype>(0, customs - customsRead));
    append({Column::UserDefined1, Column::UserDefined2, Column::UserDefined3});
    skip(1); // XBRLTags
    append(Column::SecurityClass);
    skip(4); // ICPTopMember, EnableDataAudit, CalcAttribute, SubmissionGroup
}

Layout Layout::documented(DimensionKind kind, qsizetype customs)
{
    Layout layout;
    switch (kind) {
    case DimensionKind::Account:
        layout.appendAccount(customs);
        break;
    case DimensionKind::Entity:
        layout.append({Column::Label, Column::DefCurrency, Column::AllowAdjs, Column::IsICP,
                       Column::AllowAdjFromChildren, Column::SecurityClass, Column::UserDefined1,
                       Column::UserDefined2, Column::UserDefined3, Column::HoldingCompany});
        layout.skip(1); // SecurityAsPartner
        break;
    case DimensionKind::Scenario:
        layout.append(Column::Label);
        layout.skip(5); // DefaultFreq to ConsolidateYTD
        layout.append({Column::UserDefined1, Column::UserDefined2, Column::UserDefined3});
        layout.skip(1); // SupportsProcessManagement
        layout.append(Column::SecurityClass);
        layout.skip(5); // MaximumReviewLevel, UsesLineItems, EnableDataAudit and two more
        break;
    case DimensionKind::Custom1:
    case DimensionKind::Custom2:
    case DimensionKind::Custom3:
    case DimensionKind::Custom4:
        layout.append(Column::Label);
        layout.skip(3); // IsCalculated, SwitchSignForFlow, SwitchTypeForFlow
        layout.append({Column::UserDefined1, Column::UserDefined2, Column::UserDefined3,
                       Column::SecurityClass});
        layout.skip(1); // SubmissionGroup
        break;
    case DimensionKind::ICP:
        layout.append({Column::Label, Column::SecurityClass});
        layout.mHasDefaultParent = false;
        break;
    case DimensionKind::Value:
        layout.append(Column::Label);
        layout.mHasDefaultParent = false;
        break;
    case DimensionKind::Year:
    case DimensionKind::Period:
    case DimensionKind::View:
        layout.append(Column::Label);
        break;
    }
    return layout;
}

Layout Layout::named(const QList<QByteArrayView> &columns, const CustomNames &customNames)
{
    Layout layout;
    layout.mHasDefaultParent = false;
    CustomColumns customColumns(customNames);
    for (const QByteArrayView column : columns) {
        const QByteArray name = normalized(column);
        layout.mHasDefaultParent = name == "defaultparent";
        if (layout.mHasDefaultParent || name == "descriptions" || name == "description")
            break;
        std::optional<Column> known = plainColumn(name);
        if (!known)
            known = customColumns.find(name);
        if (known && layout.index(*known) < 0)
            layout.append(*known);
        else
            layout.skip(1);
    }
    return layout;
}

} // namespace hfm::offline
