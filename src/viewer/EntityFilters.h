#pragma once

#include "hfm/Dimension.h"
#include "hfm/Security.h"

#include <QString>
#include <QStringList>

/// The filters on the entities of one currency and of one security class.
struct EntityFilter
{
    bool on = false;
    QString currency;      ///< as chosen or typed; empty filters nothing
    QString securityClass; ///< as chosen or typed; empty filters nothing

    /// Whether an entity is listed. Texts compare in any letter case, and nothing but the empty
    /// text stands for all: "ALL CURRENCIES" is compared like any other. `className` is "[Default]"
    /// for an entity without a class.
    bool passes(const QString &currencyLabel, const QString &className) const;
};

/// What the filters' lists offer.
namespace EntityFilterLists {

/// "ALL SECURITY CLASSES", then every class. Fails as EnumSecurityClasses does.
QStringList securityClasses(hfm::Security &security);

/// "ALL CURRENCIES", then the Value dimension's members that are currencies. Fails as
/// EnumAllMemberLabels does.
QStringList currencies(hfm::Dimension &value);

/// Whether a member of the Value dimension is taken for a currency: its label begins with neither
/// '<' nor '[' and ends in neither "Adjs" nor "Total", in any letter case.
bool isCurrency(const QString &label);

} // namespace EntityFilterLists
