#include "generator/HierarchyPlan.h"

#include "generator/Random.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_set>

namespace generator {

namespace {

void check(const Request &request)
{
    if (request.members < 1)
        throw std::invalid_argument("An application has at least one member.");
    if (request.fanOut < 1 || request.fanOut > 1'000'000)
        throw std::invalid_argument("A parent has 1 to 1,000,000 children on average.");
    if (request.edges != 0 && request.edges < request.members)
        throw std::invalid_argument("There are fewer edges than members.");
    const qint32 further = request.edges == 0 ? 0 : request.edges - request.members;
    if (further > 0 && request.shape != Shape::Tree)
        throw std::invalid_argument("Only a tree can have more edges than members.");
    if (request.sharedParents < 0 || request.sharedParents > further)
        throw std::invalid_argument("There are more shared parents than edges to share.");
}

qint32 childCount(qint32 fanOut, Random &random)
{
    const qint32 ordinary = 1 + random.below(2 * fanOut - 1);
    return random.below(50) == 0 ? 10 * ordinary : ordinary;
}

quint64 edgeKey(qint32 parent, qint32 child)
{
    return quint64(quint32(parent)) << 32 | quint32(child);
}

} // namespace

HierarchyPlan::HierarchyPlan(const Request &request)
{
    check(request);
    Random random(request.seed);
    mDefaultParents.assign(request.members, root);
    switch (request.shape) {
    case Shape::Tree:
        plantTree(request, random);
        break;
    case Shape::Chain:
        for (qint32 member = 1; member < request.members; ++member)
            mDefaultParents[member] = member - 1;
        break;
    case Shape::Wide:
        std::fill(mDefaultParents.begin() + 1, mDefaultParents.end(), 0);
        break;
    case Shape::Flat:
        break;
    }
    gatherChildren();
    if (request.edges > request.members) {
        share(request, random);
        gatherChildren();
    }
}

void HierarchyPlan::plantTree(const Request &request, Random &random)
{
    std::vector<qint32> generations(request.members, 1);
    qint32 next = 1;
    for (qint32 parent = 0; next < request.members; ++parent) {
        const bool isLastHope = parent == next - 1;
        if (generations[parent] > 2 && !isLastHope && random.below(2) == 0)
            continue;
        const qint32 end = qint32(
            std::min<qint64>(request.members, qint64(next) + childCount(request.fanOut, random)));
        for (; next < end; ++next) {
            mDefaultParents[next] = parent;
            generations[next] = generations[parent] + 1;
        }
    }
}

// No cycle can arise: an edge to a parent leads from a lower number to a higher one, as those to
// default children do, and a base member leads nowhere.
void HierarchyPlan::share(const Request &request, Random &random)
{
    std::vector<qint32> parents;
    std::vector<qint32> bases;
    for (qint32 member = 0; member < memberCount(); ++member)
        (isParent(member) ? parents : bases).push_back(member);
    const qint32 further = request.edges - request.members;
    const qint64 parentChoices = qint64(parents.size()) * (qint64(parents.size()) - 1) / 2;
    const qint64 baseChoices = qint64(bases.size()) * qint64(parents.size());
    if (request.sharedParents > parentChoices / 4 ||
        further - request.sharedParents > (baseChoices - qint64(bases.size())) / 2)
        throw std::invalid_argument("There are too many edges for so few members.");

    std::unordered_set<quint64> taken;
    mFurtherEdges.reserve(further);
    while (qint32(mFurtherEdges.size()) < further) {
        const bool sharesParent = qint32(mFurtherEdges.size()) < request.sharedParents;
        const auto &candidates = sharesParent ? parents : bases;
        const qint32 child = candidates[random.below(qint32(candidates.size()))];
        const qint32 parent = parents[random.below(qint32(parents.size()))];
        if (mDefaultParents[child] == parent || (sharesParent && parent >= child))
            continue;
        if (taken.insert(edgeKey(parent, child)).second)
            mFurtherEdges.push_back({parent, child});
    }
}

void HierarchyPlan::gatherChildren()
{
    const qint32 count = memberCount();
    std::vector<qint32> sizes(count, 0);
    for (const qint32 parent : mDefaultParents) {
        if (parent != root)
            ++sizes[parent];
    }
    for (const Edge &edge : mFurtherEdges)
        ++sizes[edge.parent];
    mFirstChild.assign(count + 1, 0);
    for (qint32 member = 0; member < count; ++member)
        mFirstChild[member + 1] = mFirstChild[member] + sizes[member];
    mChildren.resize(mFirstChild.back());
    std::vector<qint32> places(mFirstChild.begin(), mFirstChild.end() - 1);
    for (qint32 member = 0; member < count; ++member) {
        if (mDefaultParents[member] != root)
            mChildren[places[mDefaultParents[member]]++] = member;
    }
    for (const Edge &edge : mFurtherEdges)
        mChildren[places[edge.parent]++] = edge.child;
}

std::span<const qint32> HierarchyPlan::children(qint32 parent) const
{
    return std::span(mChildren).subspan(mFirstChild[parent],
                                        mFirstChild[parent + 1] - mFirstChild[parent]);
}

std::vector<qint32> HierarchyPlan::treeOrder() const
{
    std::vector<qint32> order;
    order.reserve(memberCount());
    std::vector<qint32> waiting;
    for (qint32 member = memberCount() - 1; member >= 0; --member) {
        if (mDefaultParents[member] == root)
            waiting.push_back(member);
    }
    while (!waiting.empty()) {
        const qint32 member = waiting.back();
        waiting.pop_back();
        order.push_back(member);
        const auto below = children(member);
        for (auto child = below.rbegin(); child != below.rend(); ++child) {
            if (mDefaultParents[*child] == member)
                waiting.push_back(*child);
        }
    }
    return order;
}

Summary HierarchyPlan::summary() const
{
    const qint32 count = memberCount();
    std::vector<qint64> occurrences(count, 0);
    std::vector<qint32> generations(count, 0);
    Summary result;
    result.members = count;
    result.edges = count + qint32(mFurtherEdges.size());
    for (qint32 member = 0; member < count; ++member) {
        if (mDefaultParents[member] == root) {
            ++occurrences[member];
            generations[member] = std::max(generations[member], 1);
        }
        for (const qint32 child : children(member)) {
            occurrences[child] += occurrences[member];
            generations[child] = std::max(generations[child], generations[member] + 1);
        }
        result.baseMembers += isParent(member) ? 0 : 1;
    }
    for (qint32 member = 0; member < count; ++member) {
        result.occurrences += occurrences[member];
        result.generations = std::max(result.generations, generations[member]);
    }
    return result;
}

} // namespace generator
