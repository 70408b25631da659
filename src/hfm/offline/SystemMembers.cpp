#include "hfm/offline/SystemMembers.h"

#include <algorithm>
#include <array>

namespace hfm::offline {

namespace {

struct ValueMember
{
    QByteArrayView label;
    int parent; ///< position in the table; -1 for the top level
    std::optional<SystemList> list;
};

constexpr ValueMember valueMembers[] = {
    {"[None]", -1, std::nullopt},
    {"[Contribution Total]", -1, SystemList::Totals},
    {"[Contribution]", 1, std::nullopt},
    {"[Proportion]", 2, std::nullopt},
    {"[Parent Total]", 3, SystemList::Totals},
    {"[Parent]", 4, std::nullopt},
    {"<Parent Curr Total>", 5, SystemList::Totals},
    {"<Parent Currency>", 6, std::nullopt},
    {"<Entity Curr Total>", 7, SystemList::Totals},
    {"<Entity Currency>", 8, SystemList::Inputs},
    {"<Entity Curr Adjs>", 8, SystemList::Adjustments},
    {"<Parent Curr Adjs>", 6, SystemList::Adjustments},
    {"[Parent Adjs]", 4, SystemList::Adjustments},
    {"[Elimination]", 2, std::nullopt},
    {"[Contribution Adjs]", 1, SystemList::Adjustments},
};

/// Without their brackets, under which files may hold them as well.
constexpr QByteArrayView systemAccounts[] = {
    "Active",
    "PCON",
    "POWN",
    "DOWN",
    "PCTRL",
    "Method",
    "Consol1",
    "Consol2",
    "Consol3",
    "SharesOwned",
    "VotingOwned",
    "SharesOutstanding",
    "VotingOutstanding",
    "Shares%Owned",
    "Voting%Owned",
};

constexpr qint8 balance = 4;
constexpr qint8 balanceRecurring = 11;

/// The three members of one currency.
void addCurrency(MemberAdder &adder, TextRef currency, QByteArrayView label, TextRef descriptions,
                 GivenLists &lists)
{
    const QByteArray name = label.toByteArray();
    const MemberId total = adder.add(QByteArrayView(name + " Total"), rootMember);
    const MemberId itself = adder.add(currency, total, descriptions);
    const MemberId adjustments = adder.add(QByteArrayView(name + " Adjs"), total);
    lists[SystemList::Totals].append(total);
    lists[SystemList::DefaultCurrencies].append(itself);
    lists[SystemList::Inputs].append(itself);
    lists[SystemList::Adjustments].append(adjustments);
}

/// For each member of a dimension the label of the same name, or -1.
LargeVector<qint32> labelsOfMembers(const Labels &labels, const DimensionDraft &dimension)
{
    LargeVector<qint32> found(size_t(dimension.count()), -1);
    for (qint32 i = 0; i < labels.count(); ++i) {
        const MemberId member = dimension.labels().find(labels.at(i));
        if (member >= 0)
            found[size_t(member)] = i;
    }
    return found;
}

/// The file's account of that name, with or without the brackets, or the one that is added.
MemberId systemAccount(QByteArrayView name, DimensionDraft &accounts, MemberAdder &adder)
{
    const QByteArray bracketed = '[' + name.toByteArray() + ']';
    for (const QByteArrayView label : {QByteArrayView(bracketed), name}) {
        const MemberId id = accounts.labels().find(label);
        if (id >= 0)
            return id;
    }
    const MemberId id = adder.add(QByteArrayView(bracketed), rootMember);
    recordOf(accounts.accounts, id).type = name == "Active" ? balanceRecurring : balance;
    return id;
}

} // namespace

GivenLists addValues(ApplicationDraft &draft, const ListedNames &currencies)
{
    GivenLists lists;
    MemberAdder adder(draft, DimensionKind::Value);
    std::array<MemberId, std::size(valueMembers)> ids = {};
    for (size_t i = 0; i < ids.size(); ++i) {
        const ValueMember &value = valueMembers[i];
        const MemberId parent = value.parent < 0 ? rootMember : ids[size_t(value.parent)];
        ids[i] = adder.add(value.label, parent);
        if (value.list)
            lists[*value.list].append(ids[i]);
    }
    for (qint32 i = 0; i < currencies.names.count(); ++i)
        addCurrency(adder, currencies.names.ref(i), currencies.names.at(i),
                    currencies.descriptions[size_t(i)], lists);
    return lists;
}

GivenLists addIntercompany(ApplicationDraft &draft, SharedMembers &partners)
{
    DimensionDraft &icp = draft.dimension(DimensionKind::ICP);
    MemberAdder adder(draft, DimensionKind::ICP);
    const MemberId top = adder.add(QByteArrayView("[ICP Top]"), rootMember);
    const MemberId none = adder.add(QByteArrayView("[ICP None]"), top);
    const MemberId parent = adder.add(QByteArrayView("[ICP Entities]"), top);
    const DimensionDraft &all = draft.dimension(DimensionKind::Entity);
    const auto isPartner = [](const EntityRecord &entity) { return entity.isICP; };
    const auto count = std::count_if(all.entities.begin(), all.entities.end(), isPartner);
    icp.reserveShared(size_t(count));
    icp.reserveEdges(size_t(count));
    partners.others.reserve(size_t(count));

    const LargeVector<MemberId> standing = labelsOfMembers(icp.labels(), all);
    partners.first = icp.count();
    for (MemberId id = 0; id < MemberId(all.entities.size()); ++id) {
        if (!all.entities[size_t(id)].isICP)
            continue;
        if (standing[size_t(id)] >= 0) {
            adder.put(standing[size_t(id)], parent, all.descriptions(id));
            continue;
        }
        const MemberId partner = icp.addShared(all.labels().ref(id));
        icp.setDescriptions(partner, all.descriptions(id));
        icp.addEdge({parent, partner}, {});
        partners.others.push_back(id);
    }
    return {{SystemList::System, {top, none, parent}}};
}

GivenLists addSystemAccounts(ApplicationDraft &draft)
{
    DimensionDraft &accounts = draft.dimension(DimensionKind::Account);
    MemberAdder adder(draft, DimensionKind::Account);
    QList<MemberId> ids;
    for (const QByteArrayView name : systemAccounts)
        ids.append(systemAccount(name, accounts, adder));
    return {{SystemList::System, ids}};
}

GivenLists addToCustom(ApplicationDraft &draft, DimensionKind custom, const ListedNames &currencies)
{
    GivenLists lists;
    MemberAdder adder(draft, custom);
    const auto addAll = [&](const ListedNames &listed, SystemList list) {
        for (qint32 i = 0; i < listed.names.count(); ++i)
            lists[list].append(
                adder.add(listed.names.ref(i), rootMember, listed.descriptions[size_t(i)], false));
    };
    adder.add(noneLabel, rootMember, false);
    if (custom == DimensionKind::Custom1 || custom == DimensionKind::Custom2)
        addAll(currencies, SystemList::Currencies);
    if (custom == DimensionKind::Custom1)
        addAll(draft.methods, SystemList::ConsolMethods);
    return lists;
}

GivenLists adjustmentEntities(const DimensionDraft &entities)
{
    GivenLists lists;
    for (size_t i = 0; i < entities.entities.size(); ++i) {
        if (entities.entities[i].allowAdjs)
            lists[SystemList::AdjustmentEntities].append(MemberId(i));
        if (entities.entities[i].allowAdjFromChildren)
            lists[SystemList::ParentAdjustmentEntities].append(MemberId(i));
    }
    return lists;
}

} // namespace hfm::offline
