#include "hfm/offline/HsDimension.h"

#include "hfm/offline/script/ArrayData.h"
#include "hfm/offline/script/Coercions.h"

#include <algorithm>
#include <numeric>

// Lists of members, and where a member stands. The attributes are in HsAttributes.cpp.

namespace hfm::offline {

using script::Arguments;
using script::RunState;
using script::Value;

QString HsDimension::name() const
{
    return QStringLiteral("HS.") + dimensionName(mKind);
}

Value HsDimension::invoke(qint32 number, Arguments arguments, RunState &run)
{
    const auto member = HsMember(number);
    switch (member) {
    case HsMember::List:
        requireArguments(arguments, 0, 2, member);
        return list(arguments, run);
    case HsMember::IsBase:
    case HsMember::IsChild:
    case HsMember::IsDescendant:
        requireArguments(arguments, 2, 2, member);
        return relation(member, arguments, run);
    case HsMember::NumBase:
    case HsMember::NumChild:
    case HsMember::NumDescendant:
        requireArguments(arguments, 1, 1, member);
        return count(member, mList.member(mKind, arguments[0], run), run);
    default:
        requireArguments(arguments, 1, 1, member);
        return attribute(member, mList.member(mKind, arguments[0], run));
    }
}

/// List(parent, list): the labels of a system list, narrowed by the parent, or of a user-defined
/// one. Both empty give all members, a parent alone what is below it.
Value HsDimension::list(Arguments arguments, RunState &run)
{
    const QString name =
        arguments.size() > 1 ? script::textOf(arguments[1], run).view().toString() : QString();
    const bool hasParent = !arguments.empty() && ListRun::isGiven(arguments[0], run);
    const MemberId top = hasParent ? mList.member(mKind, arguments[0], run) : rootMember;
    if (name.isEmpty() && !hasParent) {
        QList<MemberId> all(mDimension.labels.count());
        std::iota(all.begin(), all.end(), 0);
        return labels(all, run);
    }
    if (name.isEmpty()) {
        chargeWalk(top, run);
        return labels(mDimension.hierarchy.membersBelow(top, EachMemberOnce), run);
    }
    if (const auto system = mDimension.lists.find(name)) {
        chargeWalk(top, run);
        const auto members = mDimension.lists.members(*system, mDimension.hierarchy, top);
        run.bounds.step(top == rootMember ? 0 : members.size() / 8); // what is above is dear
        return labels(members, run);
    }
    if (const QList<MemberId> *members = mList.userList(mKind, name))
        return labels(*members, run);
    throw hsFault(QStringLiteral("%1 is not a member list of %2.")
                      .arg(quoted(name.toUtf8()), dimensionName(mKind)));
}

Value HsDimension::labels(const QList<MemberId> &members, RunState &run) const
{
    run.bounds.work(members.size());
    auto *data = script::ArrayData::ofSize(members.size(), run.memory());
    for (qsizetype i = 0; i < members.size(); ++i)
        data->elements[size_t(i)] = ListRun::label(mKind, members[i]);
    return Value::array(data);
}

/// The steps for going over what is below a member, and over flags for all members.
void HsDimension::chargeWalk(MemberId top, RunState &run) const
{
    const qint64 all = mDimension.labels.count();
    run.bounds.work(std::min(mDimension.hierarchy.occurrencesBelow(top), 2 * all) + all / 8);
}

Value HsDimension::relation(HsMember member, Arguments arguments, RunState &run)
{
    const bool hasParent = ListRun::isGiven(arguments[0], run);
    const MemberId parent = hasParent ? mList.member(mKind, arguments[0], run) : rootMember;
    const MemberId of = mList.member(mKind, arguments[1], run);
    const Hierarchy &hierarchy = mDimension.hierarchy;
    if (member == HsMember::IsChild) {
        const auto parents = hierarchy.parents(of);
        run.bounds.work(qint64(parents.size()));
        return Value::boolean(std::find(parents.begin(), parents.end(), parent) != parents.end());
    }
    const bool fits = member == HsMember::IsDescendant || !hierarchy.hasChildren(of);
    return Value::boolean(fits && isBelow(of, parent, run));
}

bool HsDimension::isBelow(MemberId member, MemberId top, RunState &run) const
{
    const Hierarchy &hierarchy = mDimension.hierarchy;
    if (top == rootMember)
        return hierarchy.hasNode(member);
    if (!hierarchy.hasChildren(top))
        return false;
    const auto parents = hierarchy.parents(member);
    if (std::find(parents.begin(), parents.end(), top) != parents.end())
        return true;
    const QList<MemberId> above = hierarchy.ancestors(member);
    run.bounds.step(above.size() / 4);
    return above.contains(top);
}

Value HsDimension::count(HsMember member, MemberId of, RunState &run) const
{
    const Hierarchy &hierarchy = mDimension.hierarchy;
    if (member == HsMember::NumChild)
        return Value::integer(hierarchy.childCount(of));
    chargeWalk(of, run);
    const auto found = member == HsMember::NumBase ? hierarchy.baseMembersBelow(of, EachMemberOnce)
                                                   : hierarchy.membersBelow(of, EachMemberOnce);
    return Value::whole(found.size());
}

} // namespace hfm::offline
