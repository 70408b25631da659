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
        Node node{};
        node.member = occurrence.member;
        node.pathParent = occurrence.parent;
        node.parent = parents.parentOf(position);
        append(node, occurrence.label, textOf(paths.memberId(position)));
    }
}

void MemberTree::buildList(const QList<hfm::MemberId> &members, const TextOf &textOf)
{
    mIsList = true;
    reserve(members.size());
    const auto linked = qScopeGuard([this] { linkChildren(); });
    for (const hfm::MemberId member : members) {
        const QString text = textOf(member);
        if (text.isEmpty())
            continue;
        Node node{};
        node.member = member;
        node.pathParent = node.parent = none;
        const qsizetype labelSize = text.indexOf(" - "_L1);
        append(node, QStringView(text).first(std::max(labelSize, qsizetype(0))), text);
    }
}

/// All the room that linkChildren() needs is taken beforehand, since it may follow a failure.
void MemberTree::reserve(qsizetype count)
{
    mNodes.reserve(size_t(count));
    mChildren.resize(size_t(count));
}

void MemberTree::append(Node node, QStringView label, QStringView text)
{
    node.textBehindLabel = !text.startsWith(label);
    node.label = node.textBehindLabel ? mTexts.append(label, text) : mTexts.append(text);
    node.labelSize = qint32(label.size());
    node.textSize = qint32(text.size());
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

QStringView MemberTree::textView(qint32 node) const
{
    const Node &found = at(node);
    return {found.textBehindLabel ? found.label + found.labelSize : found.label, found.textSize};
}

QStringView MemberTree::label(qint32 node) const
{
    return {at(node).label, at(node).labelSize};
}

QString MemberTree::key(qint32 node) const
{
    return mIsList ? QString() : u"KEY"_s + QString::number(node);
}

QString MemberTree::tag(qint32 node) const
{
    if (mIsList)
        return {};
    const Node &found = at(node);
    const QString ownLabel = label(node).toString();
    if (found.pathParent == none)
        return memberPathEntry(hfm::rootMember, rootPathLabel(), found.member, ownLabel);
    return memberPathEntry(at(found.pathParent).member, label(found.pathParent).toString(),
                           found.member, ownLabel);
}
