#include "generator/MemberRecords.h"

#include "generator/ChunkWriter.h"

namespace generator {

namespace {

constexpr qint32 customCount = 4; // without !CUSTOM_ORDER there are Custom1 to Custom4

QByteArrayList accountColumns()
{
    QByteArrayList columns{"Label",          "AccountType", "IsCalculated",
                           "IsConsolidated", "IsICP",       "PlugAcct"};
    for (qint32 custom = 1; custom <= customCount; ++custom)
        columns << "Custom" + QByteArray::number(custom) + "TopMember";
    columns << "NumDecimalPlaces"
            << "UsesLineItems";
    for (qint32 custom = 1; custom <= customCount; ++custom)
        columns << "EnableCustom" + QByteArray::number(custom) + "Aggr";
    return columns << "UserDefined1"
                   << "UserDefined2"
                   << "UserDefined3"
                   << "XBRLTags"
                   << "SecurityClass"
                   << "ICPTopMember"
                   << "EnableDataAudit"
                   << "CalcAttribute"
                   << "SubmissionGroup";
}

const QByteArrayList entityColumns{"Label",          "DefCurrency",          "AllowAdjs",
                                   "IsICP",          "AllowAdjFromChildren", "SecurityClass",
                                   "UserDefined1",   "UserDefined2",         "UserDefined3",
                                   "HoldingCompany", "SecurityAsPartner"};
const QByteArrayList scenarioColumns{"Label",          "DefaultFreq",
                                     "DefaultView",    "ZeroViewForNonadj",
                                     "ZeroViewForAdj", "ConsolidateYTD",
                                     "UserDefined1",   "UserDefined2",
                                     "UserDefined3",   "SupportsProcessManagement",
                                     "SecurityClass",  "MaximumReviewLevel",
                                     "UsesLineItems",  "EnableDataAudit"};
const QByteArrayList customColumns{
    "Label",        "IsCalculated", "SwitchSignForFlow", "SwitchTypeForFlow", "UserDefined1",
    "UserDefined2", "UserDefined3", "SecurityClass",     "SubmissionGroup"};

QByteArray securityClass(qint32 member)
{
    const qint32 number = 1 + member % 12;
    return (number < 10 ? "SC_0" : "SC_") + QByteArray::number(number);
}

} // namespace

const QByteArrayList &currencyLabels()
{
    static const QByteArrayList labels{"EUR", "USD", "GBP", "CHF", "SEK", "PLN", "JPY", "CAD"};
    return labels;
}

MemberRecords::MemberRecords(const Request &request)
{
    if (request.dimension == QLatin1StringView("Account"))
        mKind = Kind::Account;
    else if (request.dimension == QLatin1StringView("Entity"))
        mKind = Kind::Entity;
    else if (request.dimension == QLatin1StringView("Scenario"))
        mKind = Kind::Scenario;
    else
        mKind = Kind::Custom;
    mPrefix = mKind == Kind::Account    ? 'A'
              : mKind == Kind::Entity   ? 'E'
              : mKind == Kind::Scenario ? 'S'
                                        : 'C';
}

QByteArrayList MemberRecords::columns() const
{
    switch (mKind) {
    case Kind::Account:
        return accountColumns();
    case Kind::Entity:
        return entityColumns;
    case Kind::Scenario:
        return scenarioColumns;
    case Kind::Custom:
        break;
    }
    return customColumns;
}

QByteArray MemberRecords::label(qint32 member) const
{
    return mPrefix + QByteArray::number(member + 1);
}

void MemberRecords::write(qint32 member, bool isParent, ChunkWriter &out) const
{
    out << label(member);
    switch (mKind) {
    case Kind::Account:
        return writeAccount(member, isParent, out);
    case Kind::Entity:
        return writeEntity(member, isParent, out);
    case Kind::Scenario:
        out.field("MTHLY").field("YTD").field("YTD").field("YTD").field("Y");
        out.field("").field("").field("").field("N").field(securityClass(member));
        out.field("10").field("N").field("N");
        return;
    case Kind::Custom:
        out.field(isParent ? "Y" : "N").field("N").field("N");
        out.field("").field("").field("").field(securityClass(member)).field("1");
        return;
    }
}

void MemberRecords::writeAccount(qint32 member, bool isParent, ChunkWriter &out) const
{
    static const QByteArrayList types{"REVENUE",   "EXPENSE", "ASSET",
                                      "LIABILITY", "FLOW",    "BALANCE"};
    out.field(member == 0 ? QByteArray("GROUPLABEL") : types[member % types.size()]);
    out.field(isParent ? "Y" : "N").field("Y").field("N").field("");
    for (qint32 custom = 0; custom < customCount; ++custom)
        out.field("[None]");
    out.field("0").field("N");
    for (qint32 custom = 0; custom < customCount; ++custom)
        out.field("N");
    out.field("").field("").field("").field("").field(securityClass(member));
    out.field("").field("N").field("").field("1");
}

void MemberRecords::writeEntity(qint32 member, bool isParent, ChunkWriter &out) const
{
    const QByteArrayList &currencies = currencyLabels();
    out.field(currencies[member % currencies.size()]);
    out.field("Y").field(isParent ? "N" : "Y").field(isParent ? "Y" : "N");
    out.field(securityClass(member)).field(member % 3 == 0 ? "LEGAL" : "").field("");
    out.field("").field("").field("");
}

} // namespace generator
