#include "viewer/MemberTree.h"

#include "viewer/ParentFinder.h"

#include <QScopeGuard>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

void MemberTree::build(const MemberPaths &paths, const TextOf &textOf)
{
    reserve(paths.count());
    const auto linked = qScopeGuard([this] { linkChildren(); });
    ParentFinder parents(paths);
    for (qint32 position = 0; position < paths.count(); ++position) {
        const MemberPaths::Occurrence &occurrence = paths.at(position);
        add(occurrence.member, occurrence.parent, parents.parentOf(position));
        QString text = textOf(paths.memberId(position));
        const bool isBehindLabel = !occurrence.label.isPrefixOf(text);
        if (isBehindLabel)
            text.prepend(occurrence.label.toString());
        setText(std::move(text), occurrence.label.size, isBehindLabel);
    }
}

void MemberTree::buildList(const QList<hfm::MemberId> &members, const TextOf &textOf)
{
    mIsList = true;
    reserve(members.size());
    const auto linked = qScopeGuard([this] { linkChildren(); });
    for (const hfm::MemberId member : members) {
        QString text = textOf(member);
        if (text.isEmpty())
            continue;
        const auto labelSize = qint32(std::max(text.indexOf(" - "_L1), qsizetype(0)));
        add(member, none, none);
        setText(std::move(text), labelSize, false);
    }
}

/// All the room that linkChildren() needs is taken beforehand, since it may follow a failure.
void MemberTree::reserve(qsizetype count)
{
    mNodes.reserve(size_t(count));
    mChildren.resize(size_t(count));
}

/// A node without a text, which it keeps to be where making the text fails.
void MemberTree::add(hfm::MemberId member, qint32 pathParent, qint32 parent)
{
    Node node{};
    node.member = member;
    node.pathParent = pathParent;
    node.parent = parent;
    if (node.parent == none) {
        node.level = 1;
        node.row = mRootCount;
    } else {
        node.level = at(node.parent).level + 1;
        node.row = at(node.parent).childCount;
    }
    mNodes.push_back(node);
    ++(node.parent == none ? mRootCount : mNodes[size_t(node.parent)].childCount);
    mMaxLevel = std::max(mMaxLevel, node.level);
}

/// Of the node added last. `text` stands behind its label where it does not begin with it.
void MemberTree::setText(QString text, qint32 labelSize, bool isBehindLabel)
{
    const StoredText stored = mTexts.append(std::move(text));
    Node &node = mNodes.back();
    node.place = stored.place;
    node.isWide = stored.isWide;
    node.labelSize = labelSize;
    node.textSize = isBehindLabel ? stored.size - labelSize : stored.size;
    node.textBehindLabel = isBehindLabel;
    node.hasText = true;
}

void MemberTree::linkChildren() noexcept
{
    qint32 free = mRootCount;
    for (Node &node : mNodes) {
        node.firstChild = free;
        free += node.childCount;
    }
    for (qint32 node = 0; node < count(); ++node) {
        const qint32 parent = at(node).parent;
        const qint32 first = parent == none ? 0 : at(parent).firstChild;
        mChildren[size_t(first + at(node).row)] = node;
    }
}

qint32 MemberTree::childCount(qint32 node) const
{
    return node == none ? mRootCount : at(node).childCount;
}

qint32 MemberTree::child(qint32 parent, qint32 row) const
{
    return mChildren[size_t((parent == none ? 0 : at(parent).firstChild) + row)];
}

QString MemberTree::text(qint32 node) const
{
    const Node &found = at(node);
    const qint32 position = found.textBehindLabel ? found.labelSize : 0;
    return stored(found).mid(position, found.textSize).toString();
}

QString MemberTree::label(qint32 node) const
{
    return stored(at(node)).mid(0, at(node).labelSize).toString();
}

StoredText MemberTree::stored(const Node &node)
{
    return {node.place, node.textSize + (node.textBehindLabel ? node.labelSize : 0), node.isWide};
}

QString MemberTree::key(qint32 node) const
{
    return mIsList || !at(node).hasText ? QString() : u"KEY"_s + QString::number(node);
}

QString MemberTree::tag(qint32 node) const
{
    const Node &found = at(node);
    if (mIsList || !found.hasText)
        return {};
    if (found.pathParent == none)
        return memberPathEntry(hfm::rootMember, rootPathLabel, found.member, label(node));
    return memberPathEntry(at(found.pathParent).member, label(found.pathParent), found.member,
                           label(node));
}
