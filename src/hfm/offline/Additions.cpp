#include "hfm/offline/Additions.h"

#include "hfm/offline/CalendarMembers.h"
#include "hfm/offline/SystemMembers.h"

namespace hfm::offline {

namespace {

constexpr DimensionKind custom(int k)
{
    return DimensionKind(int(DimensionKind::Custom1) + k);
}

/// The application's currencies: the listed ones, then those that only the settings or entities
/// name.
ListedNames allCurrencies(ApplicationDraft &draft)
{
    ListedNames all = std::move(draft.currencies);
    const auto add = [&](const Names &named, qint32 i) {
        if (sameLabel(named.at(i), noneLabel))
            return;
        if (all.names.find(named.at(i)) < 0)
            draft.warnings.add(named.place(i), [&] {
                return QStringLiteral("The currency %1 is not among the application's currencies.")
                    .arg(quoted(named.at(i)));
            });
        all.names.mention(named.ref(i), named.place(i));
        all.descriptions.resize(size_t(all.names.count()));
    };
    for (qint32 i = 0; i < draft.defaultCurrency.count(); ++i)
        add(draft.defaultCurrency, i);
    for (qint32 i = 0; i < draft.entityCurrencies.count(); ++i)
        add(draft.entityCurrencies, i);
    return all;
}

/// Finds the entity currencies in the Value dimension, where each of them is by now.
std::vector<MemberId> currencyMembers(const ApplicationDraft &draft)
{
    const Labels &values = draft.dimensions[size_t(DimensionKind::Value)].labels();
    std::vector<MemberId> members;
    for (qint32 i = 0; i < draft.entityCurrencies.count(); ++i)
        members.push_back(values.find(draft.entityCurrencies.at(i)));
    return members;
}

/// Finds the top members that accounts name in a custom dimension; those that it lacks join it.
std::vector<MemberId> topMembersOf(int k, ApplicationDraft &draft)
{
    DimensionDraft &dimension = draft.dimension(custom(k));
    const Names &named = draft.topMembers[size_t(k)];
    std::vector<MemberId> members;
    for (qint32 i = 0; i < named.count(); ++i) {
        if (dimension.labels().find(named.at(i)) < 0)
            draft.warnings.add(named.place(i), [&] {
                return QStringLiteral("The top member %1 is no member of %2.")
                    .arg(quoted(named.at(i)), dimensionName(custom(k)));
            });
        members.push_back(dimension.findOrAdd(named.ref(i), Origin::Account, named.place(i)));
    }
    return members;
}

} // namespace

Additions addSystemMembers(ApplicationDraft &draft, int currentYear)
{
    const ListedNames currencies = allCurrencies(draft);
    Additions additions;
    const auto listsOf = [&](DimensionKind kind) -> GivenLists & {
        return additions.lists[size_t(kind)];
    };
    listsOf(DimensionKind::Value) = addValues(draft, currencies);
    listsOf(DimensionKind::ICP) = addIntercompany(draft, additions.partners);
    listsOf(DimensionKind::Account) = addSystemAccounts(draft);
    listsOf(DimensionKind::Entity) = adjustmentEntities(draft.dimension(DimensionKind::Entity));
    for (int k = 0; k < 4; ++k)
        listsOf(custom(k)) = addToCustom(draft, custom(k), currencies);
    addCalendar(draft, currentYear);

    additions.entityCurrencies = currencyMembers(draft);
    for (int k = 0; k < 4; ++k)
        additions.topMembers[size_t(k)] = topMembersOf(k, draft);
    return additions;
}

} // namespace hfm::offline
