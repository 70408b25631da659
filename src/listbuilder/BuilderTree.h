#pragma once

#include "hfm/Dimension.h"

#include <QString>

#include <vector>

/// The hierarchy to pick members from: a node for each occurrence of a member, numbered from 0 in
/// the order in which they were added, which is the order of HFM's listing. Nothing in it changes
/// once it is made.
class BuilderTree
{
public:
    static constexpr qint32 none = -1;

    /// A tree without nodes.
    BuilderTree() = default;
    /// The tree of a listing. An entry below rootMember is a top-level node; any other goes, as the
    /// last child so far, below the latest node of its parent. An entry whose parent has no node
    /// yet has no place and is left out.
    /// Fails as the dimension's GetMemberLabel and GetMemberDescription do, and with RuntimeError
    /// Overflow at more than 32,767 entries.
    BuilderTree(const hfm::Occurrences &listing, hfm::Dimension &dimension);

    qint32 count() const { return qint32(mNodes.size()); }
    /// The children of `node`, the top-level nodes where it is none.
    const std::vector<qint32> &children(qint32 node) const;
    /// none for a top-level node.
    qint32 parent(qint32 node) const { return at(node).parent; }
    /// The position among its siblings, from 0.
    qint32 row(qint32 node) const { return at(node).row; }

    /// The row text of the member.
    const QString &text(qint32 node) const { return at(node).text; }
    /// "INDX", the position in the listing from 0, "C", the member's ID.
    QString key(qint32 node) const;
    /// The member's label.
    QString tag(qint32 node) const { return at(node).text.first(at(node).labelSize); }

private:
    struct Node
    {
        hfm::MemberId member;
        qint32 position; ///< in the listing
        qint32 parent;
        qint32 row = 0;
        QString text; ///< begins with the label
        qsizetype labelSize;
        std::vector<qint32> children = {};
    };

    const Node &at(qint32 node) const { return mNodes[size_t(node)]; }
    void add(Node node);

    std::vector<Node> mNodes;
    std::vector<qint32> mTopLevel;
};

/// The tree of a dimension's whole hierarchy. Fails as its operations and BuilderTree do.
BuilderTree readBuilderTree(hfm::Dimension &dimension);
