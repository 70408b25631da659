#include "hfm/offline/ApplicationDraft.h"

namespace hfm::offline {

ApplicationDraft::ApplicationDraft(Warnings &sink) : warnings(sink), topMembers(4, Names(*arena))
{
    dimensions.reserve(allDimensionKinds.size());
    for (const DimensionKind kind : allDimensionKinds)
        dimensions.emplace_back(kind, *arena);
}

} // namespace hfm::offline
