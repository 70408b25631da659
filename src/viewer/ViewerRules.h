#pragma once

#include "runtime/Prompts.h"

#include <QString>

/// The viewer window's texts and small decisions.
namespace ViewerRules {

/// "Application: " and the name.
QString applicationPanel(const QString &applicationName);
/// The name in upper case and " Dimension".
QString dimensionCaption(const QString &dimensionName);

/// Whether a dimension can be viewed; the name is modGlobal's gDimensionName.
bool isSupported(const QString &dimensionName);
/// Says that it cannot; its wording is kept.
Prompt unsupportedDimension(const QString &dimensionName);
/// Whether the entity filters belong to a dimension of that name, in any letter case.
bool hasEntityFilters(const QString &dimensionName);

/// "1235 Total Members - 7 levels"
QString totals(qint32 members, qint32 levels);
/// "12 Total Members from Top Member of Sales - 3 levels"
QString topMemberTotals(qint32 members, const QString &topMember, qint32 levels);

} // namespace ViewerRules
