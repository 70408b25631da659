#include "support/FakeLists.h"

using hfm::MemberId;
using namespace Qt::Literals::StringLiterals;

namespace {

bool standsBelow(const FakeMembers &all, MemberId member, MemberId top, bool directly)
{
    return (directly ? all.childrenOf(top) : all.below(top, true, false)).contains(member);
}

QList<MemberId> above(const FakeMembers &all, MemberId member, bool directly)
{
    QList<MemberId> found = all.below(hfm::rootMember, true, false);
    found.removeIf([&](MemberId top) { return !standsBelow(all, member, top, directly); });
    return found;
}

} // namespace

FakeLists::FakeLists()
    : mSystemLists({{u"[Hierarchy]"_s, -1, Rule::Below, {}},
                    {u"[Descendants]"_s, -2, Rule::Below, {}},
                    {u"[Ancestors]"_s, -3, Rule::Above, {}},
                    {u"[Base]"_s, -4, Rule::Base, {}},
                    {u"[Children]"_s, -5, Rule::Children, {}},
                    {u"[Parents]"_s, -6, Rule::Parents, {}}})
{
}

void FakeLists::clear()
{
    mSystemLists.clear();
    mUserLists.clear();
}

void FakeLists::addSystemList(const QString &name, const QList<MemberId> &members)
{
    mSystemLists.append({name, -1 - hfm::ListId(mSystemLists.size()), Rule::Given, members});
}

void FakeLists::addUserList(const QString &name, const QList<MemberId> &members)
{
    mUserLists.append({name, 1 + hfm::ListId(mUserLists.size()), Rule::Given, members});
}

QStringList FakeLists::names() const
{
    QStringList names;
    for (const List &list : mSystemLists + mUserLists)
        names.append(list.name);
    return names;
}

std::optional<hfm::ListId> FakeLists::find(const QString &name) const
{
    for (const List &list : mSystemLists + mUserLists)
        if (list.name.compare(name, Qt::CaseInsensitive) == 0)
            return list.id;
    return std::nullopt;
}

std::optional<QList<MemberId>> FakeLists::members(hfm::ListId id, const FakeMembers &all,
                                                  MemberId top) const
{
    for (const List &list : mUserLists)
        if (list.id == id)
            return list.members;
    for (const List &list : mSystemLists)
        if (list.id == id)
            return read(list, all, all.contains(top) ? top : hfm::rootMember);
    return std::nullopt;
}

QList<MemberId> FakeLists::read(const List &list, const FakeMembers &all, MemberId top)
{
    switch (list.rule) {
    case Rule::Below:
        return all.below(top, true, false);
    case Rule::Above:
        return above(all, top, false);
    case Rule::Base:
        return all.below(top, true, true);
    case Rule::Children:
        return all.childrenOf(top);
    case Rule::Parents:
        return above(all, top, true);
    case Rule::Given:
        break;
    }
    if (top == hfm::rootMember)
        return list.members;
    QList<MemberId> narrowed = all.below(top, true, false);
    narrowed.removeIf([&](MemberId member) { return !list.members.contains(member); });
    return narrowed;
}
