#include "contract/HierarchyContract.h"

#include "contract/Reading.h"

#include <QTest>

#include <algorithm>

using hfm::MemberId;
using namespace Qt::Literals::StringLiterals;

namespace {

qint32 longestWayDown(hfm::Dimension &dimension, MemberId member)
{
    qint32 longest = 0;
    for (const MemberId child : dimension.EnumChildMembers(hfm::allChildren, member))
        longest = std::max(longest, 1 + longestWayDown(dimension, child));
    return longest;
}

QList<MemberId> parentsOf(hfm::Dimension &dimension, MemberId member)
{
    QList<MemberId> parents;
    for (const MemberId candidate : rootAndMembers(dimension))
        if (dimension.EnumChildMembers(hfm::allChildren, candidate).contains(member))
            parents.append(candidate);
    return parents;
}

QStringList childLabels(hfm::Dimension &dimension, const QString &parent)
{
    return labelsOf(dimension,
                    dimension.EnumChildMembers(hfm::allChildren, dimension.GetMemberId(parent)));
}

} // namespace

void HierarchyContract::theHierarchyIsThatOfTheChildrenInTreeOrder_data()
{
    addDimensionRows();
}

void HierarchyContract::theHierarchyIsThatOfTheChildrenInTreeOrder()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    const hfm::Occurrences expected = occurrencesBelow(*dimension, hfm::rootMember);
    const hfm::Occurrences found = dimension->EnumHierarchy();
    QCOMPARE(found.parents, expected.parents);
    QCOMPARE(found.members, expected.members);
}

void HierarchyContract::aParentsEntryStandsBeforeItsChildrens_data()
{
    addDimensionRows();
}

void HierarchyContract::aParentsEntryStandsBeforeItsChildrens()
{
    QFETCH(QString, name);
    const hfm::Occurrences found = dimensionOf(*mClient.openSession(), name)->EnumHierarchy();
    QCOMPARE(found.parents.size(), found.members.size());
    for (qsizetype i = 0; i < found.parents.size(); ++i)
        QVERIFY(found.parents[i] == hfm::rootMember ||
                found.members.first(i).contains(found.parents[i]));
}

void HierarchyContract::countsAgreeWithTheChildren_data()
{
    addDimensionRows();
}

void HierarchyContract::countsAgreeWithTheChildren()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    for (const MemberId member : rootAndMembers(*dimension)) {
        const auto children = dimension->EnumChildMembers(hfm::allChildren, member);
        QCOMPARE(once(children), children);
        QCOMPARE(dimension->GetChildCount(member), qint32(children.size()));
        QCOMPARE(dimension->GetHasChildren(member), !children.isEmpty());
        QCOMPARE(dimension->GetGenerationsBelow(member), longestWayDown(*dimension, member));
    }
}

void HierarchyContract::membersBelowAreThoseOfTheHierarchyWithoutTheTop_data()
{
    addDimensionRows();
}

void HierarchyContract::membersBelowAreThoseOfTheHierarchyWithoutTheTop()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    for (const MemberId top : rootAndMembers(*dimension)) {
        const QList<MemberId> below = occurrencesBelow(*dimension, top).members;
        QList<MemberId> base = below;
        base.removeIf([&](MemberId member) { return dimension->GetHasChildren(member); });
        QCOMPARE(dimension->EnumMembersBelow(top, hfm::EveryOccurrence), below);
        QCOMPARE(dimension->EnumMembersBelow(top, hfm::EachMemberOnce), once(below));
        QCOMPARE(dimension->EnumBaseMembers(top, hfm::EveryOccurrence), base);
        QCOMPARE(dimension->EnumBaseMembers(top, hfm::EachMemberOnce), once(base));
        QVERIFY(!below.contains(top));
    }
}

void HierarchyContract::defaultParentsAreParents_data()
{
    addDimensionRows();
}

void HierarchyContract::defaultParentsAreParents()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    for (const MemberId member : dimension->EnumAllMembers()) {
        const QList<MemberId> parents = parentsOf(*dimension, member);
        const QString label = dimension->GetDefaultParentLabel(member);
        const qint32 generation = dimension->GetDefaultParentGeneration(member);
        if (label.isEmpty()) {
            QVERIFY(parents.isEmpty() || parents.contains(hfm::rootMember));
            QCOMPARE(generation, 0);
            continue;
        }
        const MemberId parent = dimension->GetMemberId(label);
        QVERIFY(parents.contains(parent));
        QCOMPARE(generation, dimension->GetDefaultParentGeneration(parent) + 1);
    }
    QVERIFY(failsAsUnknown([&] { dimension->GetDefaultParentLabel(hfm::rootMember); }));
    QVERIFY(failsAsUnknown([&] { dimension->GetDefaultParentGeneration(hfm::rootMember); }));
}

void HierarchyContract::childrenComeInHierarchyOrder()
{
    const auto entity = dimensionOf(*mClient.openSession(), u"Entity"_s);
    QCOMPARE(labelsOf(*entity, entity->EnumChildMembers(-1, -1)),
             QStringList({u"[None]"_s, u"GROUP"_s, u"LEGAL"_s}));
    QCOMPARE(childLabels(*entity, u"GROUP"_s), QStringList({u"EAST"_s, u"WEST"_s}));
    QCOMPARE(childLabels(*entity, u"WEST"_s), QStringList({u"E2"_s, u"E3"_s}));
    QCOMPARE(childLabels(*entity, u"E3"_s), QStringList());
}

void HierarchyContract::aSharedMemberStandsUnderEachOfItsParents()
{
    const auto entity = dimensionOf(*mClient.openSession(), u"Entity"_s);
    const hfm::Occurrences found = entity->EnumHierarchy();
    QCOMPARE(labelsOf(*entity, found.members),
             QStringList({u"[None]"_s, u"GROUP"_s, u"EAST"_s, u"E1"_s, u"E2"_s, u"WEST"_s, u"E2"_s,
                          u"E3"_s, u"LEGAL"_s, u"EAST"_s, u"E1"_s, u"E2"_s}));
    QCOMPARE(labelsOf(*entity, found.parents),
             QStringList({QString(), QString(), u"GROUP"_s, u"EAST"_s, u"EAST"_s, u"GROUP"_s,
                          u"WEST"_s, u"WEST"_s, QString(), u"LEGAL"_s, u"EAST"_s, u"EAST"_s}));
}

void HierarchyContract::aSharedMemberCountsOnceWhenAskedForDistinct()
{
    const auto entity = dimensionOf(*mClient.openSession(), u"Entity"_s);
    const MemberId group = entity->GetMemberId(u"GROUP"_s);
    QCOMPARE(labelsOf(*entity, entity->EnumBaseMembers(group, hfm::EveryOccurrence)),
             QStringList({u"E1"_s, u"E2"_s, u"E2"_s, u"E3"_s}));
    QCOMPARE(labelsOf(*entity, entity->EnumBaseMembers(group, hfm::EachMemberOnce)),
             QStringList({u"E1"_s, u"E2"_s, u"E3"_s}));
    QCOMPARE(entity->EnumMembersBelow(hfm::rootMember, hfm::EveryOccurrence).size(), 12);
    QCOMPARE(entity->EnumMembersBelow(hfm::rootMember, hfm::EachMemberOnce).size(), 8);
}

void HierarchyContract::theSecondReadingOfTheHierarchyIsWellFormed()
{
    const auto entity = dimensionOf(*mClient.openSession(), u"Entity"_s);
    entity->EnumHierarchy();
    const hfm::Occurrences second = entity->EnumHierarchyAux();
    QCOMPARE(second.parents.size(), second.members.size());
}

void HierarchyContract::generationsBelowAreThoseOfTheLongestWay()
{
    const auto entity = dimensionOf(*mClient.openSession(), u"Entity"_s);
    QCOMPARE(entity->GetGenerationsBelow(entity->GetMemberId(u"E1"_s)), 0);
    QCOMPARE(entity->GetGenerationsBelow(entity->GetMemberId(u"GROUP"_s)), 2);
    QCOMPARE(entity->GetGenerationsBelow(entity->GetMemberId(u"SPARE"_s)), 0);
}

void HierarchyContract::aDefaultParentNeedNotBeTheFirst()
{
    const auto entity = dimensionOf(*mClient.openSession(), u"Entity"_s);
    const MemberId unit = entity->GetMemberId(u"E2"_s);
    QCOMPARE(entity->GetDefaultParentLabel(unit), u"WEST"_s);
    QCOMPARE(entity->GetDefaultParentGeneration(unit), 2);
    const MemberId east = entity->GetMemberId(u"EAST"_s);
    QCOMPARE(entity->GetDefaultParentLabel(east), u"LEGAL"_s);
    QCOMPARE(entity->GetDefaultParentGeneration(east), 1);
    QCOMPARE(entity->GetDefaultParentGeneration(entity->GetMemberId(u"GROUP"_s)), 0);
}

void HierarchyContract::aMemberWithoutANodeHasTheRootForADefaultParent()
{
    const auto entity = dimensionOf(*mClient.openSession(), u"Entity"_s);
    const MemberId spare = entity->GetMemberId(u"SPARE"_s);
    QVERIFY(!entity->EnumHierarchy().members.contains(spare));
    QCOMPARE(entity->GetDefaultParentLabel(spare), QString());
    QCOMPARE(entity->GetDefaultParentGeneration(spare), 0);
}
