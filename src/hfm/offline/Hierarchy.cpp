#include "hfm/offline/Hierarchy.h"

#include "runtime/RuntimeError.h"

#include <algorithm>
#include <unordered_set>

namespace hfm::offline {

namespace {

/// The members that a walk has met. Takes memory in proportion to the walk where that is short, so
/// that small parts of a large dimension are read fast.
class Seen
{
public:
    Seen(qint32 memberCount, qint64 expected) : mSmall(expected < memberCount / 64)
    {
        if (!mSmall)
            mFlags.resize(size_t(memberCount));
    }

    /// Whether the member was met for the first time.
    bool insert(MemberId member)
    {
        if (mSmall)
            return mMembers.insert(member).second;
        if (mFlags[size_t(member)])
            return false;
        mFlags[size_t(member)] = true;
        return true;
    }

private:
    bool mSmall;
    std::vector<bool> mFlags;
    std::unordered_set<MemberId> mMembers;
};

} // namespace

std::span<const MemberId> Hierarchy::children(MemberId member) const
{
    const size_t at = slot(member);
    return {mChildren.data() + mChildStarts[at], mChildStarts[at + 1] - mChildStarts[at]};
}

std::span<const MemberId> Hierarchy::parents(MemberId member) const
{
    const size_t at = size_t(member);
    return {mParents.data() + mParentStarts[at], mParentStarts[at + 1] - mParentStarts[at]};
}

QList<MemberId> Hierarchy::ancestors(MemberId member) const
{
    if (member == rootMember)
        return {};
    QList<MemberId> found = {member};
    std::unordered_set<MemberId> met;
    for (qsizetype next = 0; next < found.size(); ++next)
        for (const MemberId parent : parents(found[next]))
            if (parent != rootMember && met.insert(parent).second)
                found.append(parent);
    found.removeFirst();
    std::sort(found.begin(), found.end(),
              [this](MemberId left, MemberId right) { return rank(left) < rank(right); });
    return found;
}

/// Calls `enter(parent, member)` for each occurrence below `top` in tree order; where that answers
/// false, the walk leaves out what is below the member.
template <typename Enter>
void Hierarchy::walk(MemberId top, Enter enter) const
{
    struct Level
    {
        MemberId parent;
        std::span<const MemberId> ahead;
    };
    std::vector<Level> levels;
    levels.push_back({top, children(top)});
    while (!levels.empty()) {
        Level &level = levels.back();
        if (level.ahead.empty()) {
            levels.pop_back();
            continue;
        }
        const MemberId member = level.ahead.front();
        level.ahead = level.ahead.subspan(1);
        if (enter(level.parent, member) && hasChildren(member))
            levels.push_back({member, children(member)});
    }
}

Occurrences Hierarchy::occurrences() const
{
    const qint64 count = occurrencesBelow(rootMember);
    if (count > maximumEntries)
        throw RuntimeError(OutOfMemory);
    Occurrences found;
    found.parents.reserve(count);
    found.members.reserve(count);
    walk(rootMember, [&](MemberId parent, MemberId member) {
        found.parents.append(parent);
        found.members.append(member);
        return true;
    });
    return found;
}

template <typename Keep>
QList<MemberId> Hierarchy::below(MemberId top, Distinct distinct, Keep keep) const
{
    const qint64 count = occurrencesBelow(top);
    QList<MemberId> found;
    if (distinct == EachMemberOnce) {
        Seen seen(memberCount(), count);
        walk(top, [&](MemberId, MemberId member) {
            const bool first = seen.insert(member);
            if (first && keep(member))
                found.append(member);
            return first;
        });
        return found;
    }
    if (count > maximumEntries)
        throw RuntimeError(OutOfMemory);
    walk(top, [&](MemberId, MemberId member) {
        if (keep(member))
            found.append(member);
        return true;
    });
    return found;
}

QList<MemberId> Hierarchy::membersBelow(MemberId top, Distinct distinct) const
{
    return below(top, distinct, [](MemberId) { return true; });
}

QList<MemberId> Hierarchy::baseMembersBelow(MemberId top, Distinct distinct) const
{
    return below(top, distinct, [this](MemberId member) { return !hasChildren(member); });
}

} // namespace hfm::offline
