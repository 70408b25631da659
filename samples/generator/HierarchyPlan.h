#pragma once

#include "generator/ApplicationGenerator.h"

#include <span>
#include <vector>

namespace generator {

class Random;

/// Who stands below whom. Members are numbered from 0, each after its default parent.
class HierarchyPlan
{
public:
    static constexpr qint32 root = -1;

    /// Throws std::invalid_argument for numbers of members and edges that do not go together.
    explicit HierarchyPlan(const Request &request);

    qint32 memberCount() const { return qint32(mDefaultParents.size()); }
    qint32 defaultParent(qint32 member) const { return mDefaultParents[member]; }
    bool isParent(qint32 member) const { return mFirstChild[member] != mFirstChild[member + 1]; }
    /// In sibling order.
    std::span<const qint32> children(qint32 parent) const;
    /// Every member once, each before its children, in tree order along default parents.
    std::vector<qint32> treeOrder() const;
    Summary summary() const;

private:
    void plantTree(const Request &request, Random &random);
    void share(const Request &request, Random &random);
    void gatherChildren();

    struct Edge
    {
        qint32 parent;
        qint32 child;
    };

    std::vector<qint32> mDefaultParents;
    std::vector<Edge> mFurtherEdges;
    std::vector<qint32>
        mFirstChild; // where a member's children begin in mChildren; one more at the end
    std::vector<qint32> mChildren;
};

} // namespace generator
