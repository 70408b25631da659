#include "viewer/MemberAttributes.h"

#include "runtime/Required.h"

#include <QVarLengthArray>

#include <algorithm>

using hfm::MemberId;
using namespace Qt::Literals::StringLiterals;

namespace {

QStringView accountTypeText(qint32 type)
{
    static constexpr QStringView texts[] = {
        u"Income",     u"Expense",          u"Asset",        u"Liability", u"Balance",
        u"Flow",       u"Non-Financial",    u"CurrencyRate", u"System",    u"Text",
        u"GroupLabel", u"BalanceRecurring", u"Dynamic"};
    return type >= 0 && type < qint32(std::size(texts)) ? texts[type] : u"TYPEERROR";
}

QStringView intercompanyText(qint32 code)
{
    switch (code) {
    case -1:
        return u"Yes";
    case 0:
        return u"No";
    case 1:
        return u"Restricted";
    default:
        return u"**Error**";
    }
}

QStringView truth(bool value)
{
    return value ? u"True" : u"False";
}

bool isBlank(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c == u' '; });
}

QString textOrNone(const QString &text)
{
    return isBlank(text) ? u"[None]"_s : text;
}

QString nameOrDefault(const QString &className)
{
    return isBlank(className) ? u"[Default]"_s : className;
}

/// The items in the making.
class Items
{
public:
    Items &add(QStringView nameAndSign, QStringView value)
    {
        if (!mText.isEmpty())
            append(u", ");
        append(nameAndSign);
        append(value);
        return *this;
    }
    Items &addHierarchy(hfm::Dimension &dimension, MemberId member)
    {
        add(u"DefaultParent=", dimension.GetDefaultParentLabel(member));
        const bool isBase = dimension.GetGenerationsBelow(member) == 0;
        add(u"HierRelationship=", isBase ? u"Base[DefParGen:" : u"Parent[DefParGen:");
        append(QString::number(dimension.GetDefaultParentGeneration(member)));
        append(u"]");
        return *this;
    }
    QString text() const { return QString(mText.constData(), mText.size()); }

private:
    void append(QStringView text) { mText.append(text.data(), text.size()); }

    QVarLengthArray<QChar, 512> mText; // quicker to append to than a QString
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
    items.add(u"Type=", accountTypeText(view->GetAccountType(account)));
    items.add(u"IsICP=", intercompanyText(view->GetAccountIsICP(account)));
    items.add(u"TopC1=", topMemberLabel(1, view->GetAccountTopCustom1(account)));
    items.add(u"TopC2=", topMemberLabel(2, view->GetAccountTopCustom2(account)));
    items.add(u"TopC3=", topMemberLabel(3, view->GetAccountTopCustom3(account)));
    items.add(u"TopC4=", topMemberLabel(4, view->GetAccountTopCustom4(account)));
    items.add(u"Security=", nameOrDefault(className(view->GetAccountSecurityClassId(account))));
    items.add(u"UD1=", view->GetAccountUserDefined1(account));
    // Read, but never printed: an account's second text is always shown as empty. Kept.
    view->GetAccountUserDefined2(account);
    items.add(u"UD2=", {});
    items.add(u"UD3=", view->GetAccountUserDefined3(account));
    if (mExpanded) {
        items.addHierarchy(*dimension, account);
        items.add(u"DecPlaces=", QString::number(view->GetAccountDecimalPlaces(account)));
        items.add(u"IsCalc=", truth(view->GetAccountIsCalculated(account)));
        items.add(u"IsCons=", truth(view->GetAccountIsConsolidated(account)));
        items.add(u"IsLID=", truth(view->GetAccountIsLID(account)));
        items.add(u"C1AggEnabled=", truth(view->GetAccountCustom1AggEnabled(account)));
        items.add(u"C2AggEnabled=", truth(view->GetAccountCustom2AggEnabled(account)));
        items.add(u"C3AggEnabled=", truth(view->GetAccountCustom3AggEnabled(account)));
        items.add(u"C4AggEnabled=", truth(view->GetAccountCustom4AggEnabled(account)));
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
    items.add(u"Currency=", currency);
    items.add(u"Adjs=", truth(view->GetEntityAllowAdjs(entity)));
    items.add(u"ChildAdjs=", truth(view->GetEntityAllowChildAdjs(entity)));
    // A class whose name is blank is shown without "Security=", unlike anywhere else. Kept.
    if (isBlank(securityClass))
        items.add(u"[Default]", {});
    else
        items.add(u"Security=", securityClass);
    items.add(u"ICP=", truth(view->GetEntityIsICP(entity)));
    items.add(u"UD1=", textOrNone(view->GetEntityUserDefined1(entity)));
    items.add(u"UD2=", textOrNone(view->GetEntityUserDefined2(entity)));
    items.add(u"UD3=", textOrNone(view->GetEntityUserDefined3(entity)));
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
    items.add(u"UD1=", view->GetCustomUserDefined1(member));
    items.add(u"UD2=", view->GetCustomUserDefined2(member));
    items.add(u"UD3=", view->GetCustomUserDefined3(member));
    items.add(u"Security=", nameOrDefault(className(view->GetCustomSecurityClassId(member))));
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
