#include "hfm/offline/StoredDimension.h"

#include "hfm/offline/ApplicationDraft.h"
#include "hfm/offline/ReadingError.h"

#include <algorithm>

namespace hfm::offline {

namespace {

/// Finishes one dimension's draft.
class Finisher
{
public:
    Finisher(ApplicationDraft &draft, DimensionKind kind)
        : mDraft(draft), mDimension(draft.dimension(kind))
    {
    }

    StoredDimension finish(GivenLists lists)
    {
        mDimension.resolveDefaultParents(*mDraft.arena);
        HierarchyFaults faults;
        Hierarchy hierarchy(mDimension.count(), mDimension.edges(), faults);
        if (!faults.cycle.empty())
            refuseCycle(faults);
        for (const qsizetype edge : faults.repeatedEdges)
            warnOfRepetition(edge);
        LargeVector<MemberId> defaultParents = chooseDefaultParents(hierarchy);
        mDimension.dropPlacesAndEdges();

        fill(mDimension.entities, DimensionKind::Entity);
        fill(mDimension.accounts, DimensionKind::Account);
        if (isCustom(mDimension.kind()) || mDimension.kind() == DimensionKind::Scenario)
            fill(mDimension.customs, mDimension.kind());
        LargeVector<qint32> generations = generationsAlong(defaultParents);
        SystemLists systemLists(mDimension.kind(), hierarchy, std::move(lists));
        return {mDimension.kind(),
                mDimension.takeLabels(),
                std::move(hierarchy),
                std::move(systemLists),
                mDimension.takeDescriptions(),
                std::move(defaultParents),
                std::move(generations),
                std::move(mDimension.entities),
                std::move(mDimension.accounts),
                std::move(mDimension.customs),
                sortedHoldings()};
    }

private:
    QString name(MemberId id) const { return quoted(mDimension.labels().at(id)); }

    [[noreturn]] void refuseCycle(const HierarchyFaults &faults) const
    {
        constexpr size_t mostShown = 20;
        QString labels;
        for (size_t i = 0; i < std::min(faults.cycle.size(), mostShown); ++i)
            labels += name(faults.cycle[i]) + QStringLiteral(" > ");
        if (faults.cycle.size() > mostShown)
            labels += QStringLiteral("... > ");
        const Place place = mDimension.edgePlace(faults.cycleEdge);
        throw ReadingError(
            mDraft.warnings.fileName(place.file()), place.line(),
            QStringLiteral("The hierarchy of %1 runs in a circle: %2%3.")
                .arg(dimensionName(mDimension.kind()), labels, name(faults.cycle.front())));
    }

    void warnOfRepetition(qsizetype index)
    {
        mDraft.warnings.add(mDimension.edgePlace(index), [&] {
            const Edge edge = mDimension.edges()[size_t(index)];
            if (edge.parent == rootMember)
                return QStringLiteral("%1 stands at the top level already; the line is left out.")
                    .arg(name(edge.child));
            return QStringLiteral("%1 stands under %2 already; the line is left out.")
                .arg(name(edge.child), name(edge.parent));
        });
    }

    LargeVector<MemberId> chooseDefaultParents(const Hierarchy &hierarchy)
    {
        const auto count = size_t(mDimension.count());
        LargeVector<MemberId> chosen = mDimension.takeDefaultParents();
        LargeVector<MemberId> firstParents(count, noDefaultParent);
        std::vector<bool> confirmed(count);
        for (const Edge &edge : mDimension.edges()) {
            const auto child = size_t(edge.child);
            if (firstParents[child] == noDefaultParent)
                firstParents[child] = edge.parent;
            if (chosen[child] == edge.parent)
                confirmed[child] = true;
        }
        for (size_t i = 0; i < count; ++i) {
            const bool hasNode = hierarchy.hasNode(MemberId(i));
            warnOfOrigin(MemberId(i), hasNode);
            if (hasNode && !confirmed[i] && chosen[i] != noDefaultParent)
                warnOfDefaultParent(MemberId(i), firstParents[i]);
            if (!hasNode)
                chosen[i] = rootMember;
            else if (!confirmed[i])
                chosen[i] = firstParents[i];
        }
        return chosen;
    }

    void warnOfOrigin(MemberId id, bool hasNode)
    {
        const Origin origin = mDimension.origin(id);
        const Place place = mDimension.place(id);
        if (origin == Origin::Hierarchy)
            mDraft.warnings.add(place, [&] {
                return QStringLiteral("%1 stands in the hierarchy of %2 and has no record.")
                    .arg(name(id), dimensionName(mDimension.kind()));
            });
        const bool isOfFiles = origin == Origin::Record || origin == Origin::Hierarchy;
        if (isOfFiles && !hasNode)
            mDraft.warnings.add(place, [&] {
                return QStringLiteral("%1 has no place in the hierarchy of %2.")
                    .arg(name(id), dimensionName(mDimension.kind()));
            });
    }

    void warnOfDefaultParent(MemberId id, MemberId chosen)
    {
        mDraft.warnings.add(mDimension.place(id), [&] {
            return QStringLiteral("The default parent of %1 is none of its parents; %2 is taken.")
                .arg(name(id),
                     chosen == rootMember ? QStringLiteral("the top level") : name(chosen));
        });
    }

    std::vector<EntityHolding> sortedHoldings()
    {
        std::vector<EntityHolding> holdings = std::move(mDimension.holdings);
        std::sort(holdings.begin(), holdings.end(),
                  [](const EntityHolding &left, const EntityHolding &right) {
                      return left.entity < right.entity;
                  });
        return holdings;
    }

    /// Climbs from each member to the first one whose generation is known, and comes back down.
    /// Default parents are parents, so that there is no circle in them.
    static LargeVector<qint32> generationsAlong(const LargeVector<MemberId> &parents)
    {
        LargeVector<qint32> generations(parents.size(), 0);
        std::vector<MemberId> way;
        for (size_t i = 0; i < parents.size(); ++i) {
            MemberId at = MemberId(i);
            for (; at != rootMember && generations[size_t(at)] == 0; at = parents[size_t(at)])
                way.push_back(at);
            qint32 generation = at == rootMember ? 0 : generations[size_t(at)];
            for (; !way.empty(); way.pop_back())
                generations[size_t(way.back())] = ++generation;
        }
        return generations;
    }

    template <typename Record>
    void fill(LargeVector<Record> &records, DimensionKind kind) const
    {
        if (mDimension.kind() != kind)
            return;
        records.resize(size_t(mDimension.count()));
    }

    ApplicationDraft &mDraft;
    DimensionDraft &mDimension;
};

} // namespace

StoredDimension storeDimension(ApplicationDraft &draft, DimensionKind kind, GivenLists lists)
{
    return Finisher(draft, kind).finish(std::move(lists));
}

} // namespace hfm::offline
