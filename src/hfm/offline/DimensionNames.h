#pragma once

#include "hfm/offline/DimensionKind.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <optional>

namespace hfm::offline {

/// The dimension of that name, in any letter case; nothing where there is none. `customNames` are
/// the custom dimensions' own names, in order. They go before the names that this program has for
/// these dimensions; those from the fifth on name no dimension of this program's.
std::optional<DimensionKind> dimensionNamed(QByteArrayView name,
                                            const QList<QByteArray> &customNames);

} // namespace hfm::offline
