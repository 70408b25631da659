#include "viewer/ViewerRules.h"

#include <QStringBuilder>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

QString ViewerRules::applicationPanel(const QString &applicationName)
{
    return "Application: "_L1 % applicationName;
}

QString ViewerRules::dimensionCaption(const QString &dimensionName)
{
    return dimensionName.toUpper() % " Dimension"_L1;
}

bool ViewerRules::isSupported(const QString &dimensionName)
{
    static const QStringList supported = {u"ENTITY"_s,  u"ACCOUNT"_s, u"CUSTOM1"_s,
                                          u"CUSTOM2"_s, u"CUSTOM3"_s, u"CUSTOM4"_s};
    return supported.contains(dimensionName);
}

Prompt ViewerRules::unsupportedDimension(const QString &dimensionName)
{
    return {u"Unsupported Dimension"_s,
            "The "_L1 % dimensionName % " dimension is not yet support for metadata viewing."_L1,
            Prompt::Icon::Exclamation, Prompt::Buttons::OkCancel};
}

bool ViewerRules::hasEntityFilters(const QString &dimensionName)
{
    return dimensionName.toUpper() == "ENTITY"_L1;
}

QString ViewerRules::totals(qint32 members, qint32 levels)
{
    return QString::number(members) % " Total Members - "_L1 % QString::number(levels) %
           " levels"_L1;
}

QString ViewerRules::topMemberTotals(qint32 members, const QString &topMember, qint32 levels)
{
    return QString::number(members) % " Total Members from Top Member of "_L1 % topMember %
           " - "_L1 % QString::number(levels) % " levels"_L1;
}
