#include "viewer/MemberAttributes.h"

#include "runtime/Required.h"

#include <algorithm>

using hfm::MemberId;
using namespace Qt::Literals::StringLiterals;

namespace {

QLatin1StringView accountTypeText(qint32 type)
{
    static constexpr QLatin1StringView texts[] = {
        "Income"_L1,     "Expense"_L1,          "Asset"_L1,        "Liability"_L1, "Balance"_L1,
        "Flow"_L1,       "Non-Financial"_L1,    "CurrencyRate"_L1, "System"_L1,    "Text"_L1,
        "GroupLabel"_L1, "BalanceRecurring"_L1, "Dynamic"_L1};
    return type >= 0 && type < qint32(std::size(texts)) ? texts[type] : "TYPEERROR"_L1;
}

QLatin1StringView intercompanyText(qint32 code)
{
    switch (code) {
    case -1:
        return "Yes"_L1;
    case 0:
        return "No"_L1;
    case 1:
        return "Restricted"_L1;
    default:
        return "**Error**"_L1;
    }
}

QLatin1StringView truth(bool value)
{
    return value ? "True"_L1 : "False"_L1;
}

bool isBlank(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c == u' '; });
}

QString textOrNone(const QString &text)
{
    return isBlank(text) ? u"[None]"_s : text;
}

/// The items in the making.
class Items
{
public:
    Items() { mText.reserve(320); }

    template <typename Value>
    Items &add(QLatin1StringView nameAndSign, const Value &value)
    {
        if (!mText.isEmpty())
            mText += ", "_L1;
        mText += nameAndSign;
        mText += value;
        return *this;
    }
    Items &addHierarchy(hfm::Dimension &dimension, MemberId member)
    {
        add("DefaultParent="_L1, dimension.GetDefaultParentLabel(member));
        const bool isBase = dimension.GetGenerationsBelow(member) == 0;
        const qint32 generation = dimension.GetDefaultParentGeneration(member);
        return add("HierRelationship="_L1,
                   (isBase ? u"Base[DefParGen:"_s : u"Parent[DefParGen:"_s) +
                       QString::number(generation) + u']');
    }
    const QString &text() const { return mText; }

private:
    QString mText;
};

} // namespace

QString MemberAttributes::GetMemberAttributes(MemberId member)
{
    const QString &name = mGlobal.gDimensionName;
    if (name == "ACCOUNT"_L1)
        return GetAccountAttributes(member);
    if (name == "ENTITY"_L1)
        return GetEntityAttributes(member);
    if (name == "CUSTOM1"_L1 || name == "CUSTOM2"_L1 || name == "CUSTOM3"_L1 ||
        name == "CUSTOM4"_L1)
        return GetCustomAttributes(member);
    return {};
}

QString MemberAttributes::GetAccountAttributes(MemberId account)
{
    const auto dimension = metadata().GetAccountDimension();
    const auto view = required(dimension).accountAttributes();
    Items items;
    items.add("Type="_L1, accountTypeText(view->GetAccountType(account)));
    items.add("IsICP="_L1, intercompanyText(view->GetAccountIsICP(account)));
    items.add("TopC1="_L1, topMemberLabel(1, view->GetAccountTopCustom1(account)));
    items.add("TopC2="_L1, topMemberLabel(2, view->GetAccountTopCustom2(account)));
    items.add("TopC3="_L1, topMemberLabel(3, view->GetAccountTopCustom3(account)));
    items.add("TopC4="_L1, topMemberLabel(4, view->GetAccountTopCustom4(account)));
    items.add({}, securityItem(view->GetAccountSecurityClassId(account)));
    items.add("UD1="_L1, view->GetAccountUserDefined1(account));
    // Read, but never printed: an account's second text is always shown as empty. Kept.
    view->GetAccountUserDefined2(account);
    items.add("UD2="_L1, ""_L1);
    items.add("UD3="_L1, view->GetAccountUserDefined3(account));
    if (mExpanded) {
        items.addHierarchy(*dimension, account);
        items.add("DecPlaces="_L1, QString::number(view->GetAccountDecimalPlaces(account)));
        items.add("IsCalc="_L1, truth(view->GetAccountIsCalculated(account)));
        items.add("IsCons="_L1, truth(view->GetAccountIsConsolidated(account)));
        items.add("IsLID="_L1, truth(view->GetAccountIsLID(account)));
        items.add("C1AggEnabled="_L1, truth(view->GetAccountCustom1AggEnabled(account)));
        items.add("C2AggEnabled="_L1, truth(view->GetAccountCustom2AggEnabled(account)));
        items.add("C3AggEnabled="_L1, truth(view->GetAccountCustom3AggEnabled(account)));
        items.add("C4AggEnabled="_L1, truth(view->GetAccountCustom4AggEnabled(account)));
    }
    mGlobal.gDimension = metadata().GetAccountDimension();
    return items.text();
}

QString MemberAttributes::GetEntityAttributes(MemberId entity)
{
    const auto dimension = metadata().GetEntityDimension();
    const auto view = required(dimension).entityAttributes();
    const auto value = metadata().GetValueDimension();
    const QString currency = required(value).GetMemberLabel(view->GetEntityCurrencyId(entity));
    const QString securityClass = className(view->GetEntitySecurityClassId(entity));
    Items items;
    items.add("Currency="_L1, currency);
    items.add("Adjs="_L1, truth(view->GetEntityAllowAdjs(entity)));
    items.add("ChildAdjs="_L1, truth(view->GetEntityAllowChildAdjs(entity)));
    // A class whose name is blank is shown without "Security=", unlike anywhere else. Kept.
    if (isBlank(securityClass))
        items.add("[Default]"_L1, ""_L1);
    else
        items.add("Security="_L1, securityClass);
    items.add("ICP="_L1, truth(view->GetEntityIsICP(entity)));
    items.add("UD1="_L1, textOrNone(view->GetEntityUserDefined1(entity)));
    items.add("UD2="_L1, textOrNone(view->GetEntityUserDefined2(entity)));
    items.add("UD3="_L1, textOrNone(view->GetEntityUserDefined3(entity)));
    if (mExpanded)
        items.addHierarchy(*dimension, entity);
    if (mFilter.on && !mFilter.passes(currency, securityClass))
        return {};
    return items.text();
}

QString MemberAttributes::GetCustomAttributes(MemberId member)
{
    const auto dimension = customDimension(mGlobal.gDimensionName.last(1).toInt());
    const auto view = required(dimension).customAttributes();
    Items items;
    items.add("UD1="_L1, view->GetCustomUserDefined1(member));
    items.add("UD2="_L1, view->GetCustomUserDefined2(member));
    items.add("UD3="_L1, view->GetCustomUserDefined3(member));
    items.add({}, securityItem(view->GetCustomSecurityClassId(member)));
    return items.text();
}

hfm::Metadata &MemberAttributes::metadata() const
{
    return required(mGlobal.gMetadata);
}

std::shared_ptr<hfm::Dimension> MemberAttributes::customDimension(int number) const
{
    switch (number) {
    case 1:
        return metadata().GetCustom1Dimension();
    case 2:
        return metadata().GetCustom2Dimension();
    case 3:
        return metadata().GetCustom3Dimension();
    default:
        return metadata().GetCustom4Dimension();
    }
}

QString MemberAttributes::topMemberLabel(int number, MemberId topMember)
{
    mGlobal.gDimension = customDimension(number);
    return required(mGlobal.gDimension).GetMemberLabel(topMember);
}

QString MemberAttributes::className(hfm::ClassId securityClass)
{
    if (securityClass == hfm::noClass)
        return u"[Default]"_s;
    mGlobal.gSecurity = required(mGlobal.gSession).GetSecurity();
    return required(mGlobal.gSecurity).GetSecurityClassName(securityClass);
}

QString MemberAttributes::securityItem(hfm::ClassId securityClass)
{
    const QString name = className(securityClass);
    return u"Security="_s + (isBlank(name) ? u"[Default]"_s : name);
}
