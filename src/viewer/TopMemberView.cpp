#include "viewer/TopMemberView.h"

#include "viewer/NodeText.h"

#include <algorithm>

QString TopMemberView::name(QStringView nodeText)
{
    return NodeText::labelOf(nodeText).toString();
}

// The walk keeps its own stack: hierarchies can be deeper than the thread's.
TopMemberView::Below TopMemberView::below(const MemberTree &tree, qint32 node)
{
    Below found;
    std::vector<qint32> parents = {node};
    while (!parents.empty()) {
        const qint32 parent = parents.back();
        parents.pop_back();
        for (qint32 row = 0; row < tree.childCount(parent); ++row) {
            const qint32 child = tree.child(parent, row);
            ++found.count;
            found.generations = std::max(found.generations, tree.level(child) - tree.level(node));
            if (tree.childCount(child) > 0)
                parents.push_back(child);
        }
    }
    return found;
}
