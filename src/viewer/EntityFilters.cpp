#include "viewer/EntityFilters.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

bool differs(const QString &filter, const QString &text)
{
    return !filter.isEmpty() && filter.toUpper() != text.toUpper();
}

} // namespace

bool EntityFilter::passes(const QString &currencyLabel, const QString &className) const
{
    return !differs(currency, currencyLabel) && !differs(securityClass, className);
}

QStringList EntityFilterLists::securityClasses(hfm::Security &security)
{
    return QStringList{u"ALL SECURITY CLASSES"_s} + security.EnumSecurityClasses().names;
}

QStringList EntityFilterLists::currencies(hfm::Dimension &value)
{
    QStringList entries = {u"ALL CURRENCIES"_s};
    for (const QString &label : value.EnumAllMemberLabels())
        if (isCurrency(label))
            entries.append(label);
    return entries;
}

bool EntityFilterLists::isCurrency(const QString &label)
{
    return !label.startsWith(u'<') && !label.startsWith(u'[') &&
           label.right(4).toUpper() != "ADJS"_L1 && label.right(5).toUpper() != "TOTAL"_L1;
}
