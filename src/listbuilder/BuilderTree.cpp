#include "listbuilder/BuilderTree.h"

#include "listbuilder/MemberRows.h"
#include "runtime/Counter16.h"

#include <QHash>

using namespace Qt::Literals::StringLiterals;

BuilderTree::BuilderTree(const hfm::Occurrences &listing, hfm::Dimension &dimension)
{
    const qint16 count = Counter16(listing.members.size()).value();
    mNodes.reserve(size_t(count));
    QHash<hfm::MemberId, qint32> latest; // the latest node of each member
    for (qint16 position = 0; position < count; ++position) {
        qint32 parent = none;
        if (listing.parents[position] != hfm::rootMember) {
            const auto found = latest.constFind(listing.parents[position]);
            if (found == latest.constEnd())
                continue;
            parent = *found;
        }
        const hfm::MemberId member = listing.members[position];
        const QString label = dimension.GetMemberLabel(member);
        add({.member = member,
             .position = position,
             .parent = parent,
             .text = MemberRows::ofMember(dimension, member, label),
             .labelSize = label.size()});
        latest.insert(member, this->count() - 1);
    }
}

void BuilderTree::add(Node node)
{
    auto &siblings = node.parent == none ? mTopLevel : mNodes[size_t(node.parent)].children;
    node.row = qint32(siblings.size());
    siblings.push_back(count());
    mNodes.push_back(std::move(node));
}

const std::vector<qint32> &BuilderTree::children(qint32 node) const
{
    return node == none ? mTopLevel : at(node).children;
}

QString BuilderTree::key(qint32 node) const
{
    return u"INDX"_s + QString::number(at(node).position) + u'C' + QString::number(at(node).member);
}

BuilderTree readBuilderTree(hfm::Dimension &dimension)
{
    const hfm::Occurrences listing = dimension.EnumHierarchy();
    dimension.EnumHierarchyAux();
    return BuilderTree(listing, dimension);
}
