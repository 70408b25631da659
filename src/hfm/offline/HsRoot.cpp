#include "hfm/offline/HsRoot.h"

#include "hfm/offline/script/Coercions.h"

#include <algorithm>

namespace hfm::offline {

using script::Arguments;
using script::RunState;
using script::Value;

Value HsRoot::invoke(qint32 number, Arguments arguments, RunState &run)
{
    const auto member = HsMember(number);
    switch (member) {
    case HsMember::Dimension:
        return run.text(dimensionName(mList.dimension()).toString());
    case HsMember::MemberListID:
        return mList.isForNames() ? Value() : Value::integer(mList.listId());
    case HsMember::MemberListEntity:
    case HsMember::MemberListPeriod:
    case HsMember::MemberListScenario:
    case HsMember::MemberListYear:
        return Value(script::Text()); // no point of view is chosen here
    case HsMember::SetMemberLists:
        requireRunFor(true, member);
        requireArguments(arguments, 1, 1, member);
        mList.setNames(arguments[0], run);
        return {};
    case HsMember::AddMemberToList:
        requireRunFor(false, member);
        requireArguments(arguments, 1, 1, member);
        addMember(arguments, run);
        return {};
    case HsMember::AddEntityToList:
        requireRunFor(false, member);
        requireArguments(arguments, 2, 2, member);
        addEntity(arguments, run);
        return {};
    case HsMember::Account:
        return dimension(DimensionKind::Account, member, arguments);
    case HsMember::Entity:
    case HsMember::Parent:
        return dimension(DimensionKind::Entity, member, arguments);
    case HsMember::ICP:
        return dimension(DimensionKind::ICP, member, arguments);
    case HsMember::Scenario:
        return dimension(DimensionKind::Scenario, member, arguments);
    case HsMember::Custom1:
    case HsMember::Custom2:
    case HsMember::Custom3:
    case HsMember::Custom4:
        return dimension(
            DimensionKind(int(DimensionKind::Custom1) + number - int(HsMember::Custom1)), member,
            arguments);
    case HsMember::Custom:
        requireArguments(arguments, 1, 1, member);
        return customNamed(arguments, run);
    case HsMember::AppSettings:
        requireArguments(arguments, 0, 0, member);
        return Value::object(mList.settingsObject());
    default:
        failUnknownMember(*this, member);
    }
}

Value HsRoot::dimension(DimensionKind kind, HsMember member, Arguments arguments)
{
    requireArguments(arguments, 0, 0, member);
    return Value::object(mList.dimensionObject(kind));
}

/// A custom dimension by its own name, or by the name that this program has for it.
Value HsRoot::customNamed(Arguments arguments, RunState &run)
{
    const QString name = script::textOf(arguments[0], run).view().toString();
    const QList<QString> &names = mList.application().customNames;
    for (int k = 0; k < 4; ++k) {
        const auto kind = DimensionKind(int(DimensionKind::Custom1) + k);
        if (name.compare(names.value(k), Qt::CaseInsensitive) == 0 ||
            name.compare(dimensionName(kind), Qt::CaseInsensitive) == 0)
            return Value::object(mList.dimensionObject(kind));
    }
    throw hsFault(QStringLiteral("%1 is no custom dimension.").arg(quoted(name.toUtf8())));
}

void HsRoot::requireRunFor(bool names, HsMember member) const
{
    if (mList.isForNames() != names)
        throw hsFault(QStringLiteral("HS.%1 can be used in %2 only.")
                          .arg(hsMemberName(member), names ? QStringLiteral("EnumMemberLists")
                                                           : QStringLiteral("EnumMembersInList")));
}

void HsRoot::addMember(Arguments arguments, RunState &run)
{
    const MemberId member = mList.findMember(mList.dimension(), arguments[0], run);
    if (member >= 0)
        return mList.add(member, run);
    mList.warn(QStringLiteral("%1 is not a member of %2; it is left out.")
                   .arg(quoted(script::textOf(arguments[0], run).view().toUtf8()),
                        dimensionName(mList.dimension())),
               run);
}

/// Adds an entity that stands under that parent; without a parent any entity.
void HsRoot::addEntity(Arguments arguments, RunState &run)
{
    if (mList.dimension() != DimensionKind::Entity)
        throw hsFault(QStringLiteral("HS.AddEntityToList can be used for lists of Entity only."));
    const MemberId entity = mList.findMember(DimensionKind::Entity, arguments[1], run);
    bool isThere = entity >= 0;
    if (isThere && ListRun::isGiven(arguments[0], run)) {
        const MemberId parent = mList.findMember(DimensionKind::Entity, arguments[0], run);
        const auto parents = mList.stored(DimensionKind::Entity).hierarchy.parents(entity);
        run.bounds.work(qint64(parents.size()));
        isThere = parent >= 0 && std::find(parents.begin(), parents.end(), parent) != parents.end();
    }
    if (isThere)
        return mList.add(entity, run);
    mList.warn(QStringLiteral("There is no entity %1 under %2; it is left out.")
                   .arg(quoted(script::textOf(arguments[1], run).view().toUtf8()),
                        quoted(script::textOf(arguments[0], run).view().toUtf8())),
               run);
}

Value HsSettings::invoke(qint32 number, Arguments arguments, RunState &run)
{
    const auto member = HsMember(number);
    if (member != HsMember::Currency && member != HsMember::DefCurrency)
        failUnknownMember(*this, member);
    requireArguments(arguments, 0, 0, member);
    return run.text(mList.application().defaultCurrency);
}

} // namespace hfm::offline
