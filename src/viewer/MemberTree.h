#pragma once

#include "viewer/MemberPaths.h"
#include "viewer/TextStore.h"

#include <QList>
#include <QString>

#include <functional>
#include <vector>

/// The nodes of a member tree, one for each occurrence of a member, numbered from 0 in the order in
/// which they were added. Built once, then read by any number of views.
///
/// A node takes 52 bytes besides its text; keys and tags are made when they are asked for. Every
/// question but key, tag and text is answered in constant time.
class MemberTree
{
public:
    static constexpr qint32 none = MemberPaths::none;

    /// Gives the node text of a member, by its ID. May fail.
    using TextOf = std::function<QString(hfm::MemberId)>;

    /// Builds the tree of the entries, calling `textOf` once for each in their order. A root node
    /// for each entry that ParentFinder attaches to nothing; every other node is the last child of
    /// its parent so far. The tree must be empty.
    /// Fails as `textOf` and MemberPaths::memberId do; the nodes before the failing one stay, and
    /// the failing one as the last, with neither text, label, key nor tag.
    void build(const MemberPaths &paths, const TextOf &textOf);
    /// Builds a list: a root node without key and tag for each member whose text is not empty, in
    /// the order of `members`. The tree must be empty. Fails as `textOf` does; the nodes before the
    /// failing one stay.
    void buildList(const QList<hfm::MemberId> &members, const TextOf &textOf);

    qint32 count() const { return qint32(mNodes.size()); }
    /// The deepest level; 1 for an empty tree.
    qint32 maxLevel() const { return mMaxLevel; }

    /// The children of `node`, of the invisible root where it is none.
    qint32 childCount(qint32 node) const;
    /// `row` from 0 to childCount(parent) - 1.
    qint32 child(qint32 parent, qint32 row) const;
    /// none for a root node.
    qint32 parent(qint32 node) const { return at(node).parent; }
    /// The position among its siblings, from 0.
    qint32 row(qint32 node) const { return at(node).row; }
    /// 1 for a root node, one more than its parent's for any other.
    qint32 level(qint32 node) const { return at(node).level; }

    QString text(qint32 node) const;
    /// The label of the member that the node stands for. In a list, the text before " - ".
    QString label(qint32 node) const;
    /// "KEY" and the node's number; empty in a list.
    QString key(qint32 node) const;
    /// The path entry (MemberPaths); empty in a list.
    QString tag(qint32 node) const;

private:
    struct Node
    {
        const uchar *place;   ///< of the text, and the label with which it begins
        hfm::MemberId member; ///< as in the path entry
        qint32 pathParent;    ///< the occurrence that the path entry names as the parent
        qint32 parent;
        qint32 row;
        qint32 level;
        qint32 firstChild; ///< in mChildren
        qint32 childCount;
        qint32 labelSize;
        qint32 textSize;
        bool isWide;
        bool hasText;
        bool textBehindLabel; ///< the text does not begin with the label and stands behind it
    };

    const Node &at(qint32 node) const { return mNodes[size_t(node)]; }
    void reserve(qsizetype count);
    void add(hfm::MemberId member, qint32 pathParent, qint32 parent);
    void setText(QString text, qint32 labelSize, bool isBehindLabel);
    static StoredText stored(const Node &node);
    void linkChildren() noexcept;

    std::vector<Node> mNodes;
    std::vector<qint32> mChildren; ///< the root nodes, then each node's children, side by side
    TextStore mTexts;
    qint32 mRootCount = 0;
    qint32 mMaxLevel = 1;
    bool mIsList = false;
};
