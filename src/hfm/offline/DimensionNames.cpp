#include "hfm/offline/DimensionNames.h"

#include "hfm/offline/Labels.h"

namespace hfm::offline {

std::optional<DimensionKind> dimensionNamed(QByteArrayView name,
                                            const QList<QByteArray> &customNames)
{
    for (qsizetype k = 0; k < customNames.size(); ++k) {
        if (sameLabel(customNames[k], name))
            return k < 4 ? std::optional(DimensionKind(int(DimensionKind::Custom1) + int(k)))
                         : std::nullopt;
    }
    for (const DimensionKind kind : allDimensionKinds) {
        if (dimensionName(kind).compare(QLatin1StringView(name), Qt::CaseInsensitive) == 0)
            return kind;
    }
    return std::nullopt;
}

} // namespace hfm::offline
