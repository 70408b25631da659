#include "contract/MemberListContract.h"

#include "contract/Reading.h"

#include <QTest>

#include <algorithm>

using hfm::MemberId;
using namespace Qt::Literals::StringLiterals;

namespace {

bool isSystemList(const QString &name)
{
    return name.startsWith(u'[');
}

QList<MemberId> membersOf(hfm::Dimension &dimension, const QString &list,
                          MemberId top = hfm::rootMember)
{
    return dimension.EnumMemberListMembers(dimension.GetMemberListId(list), top);
}

QStringList entities(hfm::Dimension &entity, const QString &list, const QString &top)
{
    return labelsOf(entity, membersOf(entity, list, entity.GetMemberId(top)));
}

} // namespace

void MemberListContract::systemListsComeFirst_data()
{
    addDimensionRows();
}

void MemberListContract::systemListsComeFirst()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    const QStringList names = dimension->EnumMemberListNames();
    QVERIFY(names.contains(u"[Hierarchy]"_s));
    QVERIFY(std::is_partitioned(names.begin(), names.end(), isSystemList));
}

void MemberListContract::everyListIsFoundByItsNameInAnyLetterCase_data()
{
    addDimensionRows();
}

void MemberListContract::everyListIsFoundByItsNameInAnyLetterCase()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    QList<hfm::ListId> ids;
    for (const QString &list : dimension->EnumMemberListNames()) {
        const hfm::ListId id = dimension->GetMemberListId(list);
        QVERIFY(!ids.contains(id));
        QCOMPARE(dimension->GetMemberListId(list.toUpper()), id);
        QCOMPARE(dimension->GetMemberListId(list.toLower()), id);
        ids.append(id);
    }
}

void MemberListContract::unknownListsFail_data()
{
    addDimensionRows();
}

void MemberListContract::unknownListsFail()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    QVERIFY(failsAsUnknown([&] { dimension->GetMemberListId(u"[No such list]"_s); }));
    QVERIFY(failsAsUnknown([&] { dimension->GetMemberListId(u"Hierarchy"_s); }));
    QVERIFY(failsAsUnknown([&] { dimension->GetMemberListId(QString()); }));
    for (const hfm::ListId id : {0, 1000, -1000})
        QVERIFY(failsAsUnknown([&] { dimension->EnumMemberListMembers(id, hfm::rootMember); }));
}

void MemberListContract::theHierarchyListHoldsTheDimensionInTreeOrder_data()
{
    addDimensionRows();
}

void MemberListContract::theHierarchyListHoldsTheDimensionInTreeOrder()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    QCOMPARE(membersOf(*dimension, u"[Hierarchy]"_s), once(dimension->EnumHierarchy().members));
}

void MemberListContract::systemListsHoldAMemberOnce_data()
{
    addDimensionRows();
}

void MemberListContract::systemListsHoldAMemberOnce()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    for (const QString &list : dimension->EnumMemberListNames().filter(u"["_s))
        for (const MemberId top : rootAndMembers(*dimension)) {
            const QList<MemberId> members = membersOf(*dimension, list, top);
            QCOMPARE(once(members), members);
        }
}

void MemberListContract::aTopMemberThatIsNoneNarrowsNothing_data()
{
    addDimensionRows();
}

void MemberListContract::aTopMemberThatIsNoneNarrowsNothing()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    for (const QString &list : dimension->EnumMemberListNames().filter(u"["_s)) {
        const hfm::ListId id = dimension->GetMemberListId(list);
        const QList<MemberId> whole = dimension->EnumMemberListMembers(id, hfm::rootMember);
        QCOMPARE(dimension->EnumMemberListMembers(id, id), whole);
        QCOMPARE(dimension->EnumMemberListMembers(id, -2), whole);
        QCOMPARE(dimension->EnumMemberListMembers(id, 1000000), whole);
    }
}

void MemberListContract::aTopMemberNarrowsSystemListsToTheMembersBelowIt_data()
{
    addDimensionRows();
}

void MemberListContract::aTopMemberNarrowsSystemListsToTheMembersBelowIt()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    const QStringList upwards = {u"[Parents]"_s, u"[Ancestors]"_s};
    for (const QString &list : dimension->EnumMemberListNames().filter(u"["_s))
        for (const MemberId top : dimension->EnumAllMembers()) {
            const auto below = dimension->EnumMembersBelow(top, hfm::EachMemberOnce);
            for (const MemberId member : membersOf(*dimension, list, top)) {
                if (upwards.contains(list))
                    QVERIFY(dimension->EnumMembersBelow(member, hfm::EachMemberOnce).contains(top));
                else
                    QVERIFY(below.contains(member));
            }
        }
}

void MemberListContract::listsOfEntitiesFollowTheTopMember()
{
    const auto entity = dimensionOf(*mClient.openSession(), u"Entity"_s);
    QCOMPARE(entities(*entity, u"[Hierarchy]"_s, u"GROUP"_s),
             QStringList({u"EAST"_s, u"E1"_s, u"E2"_s, u"WEST"_s, u"E3"_s}));
    QCOMPARE(entities(*entity, u"[Descendants]"_s, u"WEST"_s), QStringList({u"E2"_s, u"E3"_s}));
    QCOMPARE(entities(*entity, u"[Base]"_s, u"GROUP"_s), QStringList({u"E1"_s, u"E2"_s, u"E3"_s}));
    QCOMPARE(entities(*entity, u"[Children]"_s, u"GROUP"_s), QStringList({u"EAST"_s, u"WEST"_s}));
    QCOMPARE(entities(*entity, u"[Parents]"_s, u"E2"_s), QStringList({u"EAST"_s, u"WEST"_s}));
    QCOMPARE(entities(*entity, u"[Parents]"_s, u"GROUP"_s), QStringList());
    QCOMPARE(entities(*entity, u"[Ancestors]"_s, u"E2"_s),
             QStringList({u"GROUP"_s, u"EAST"_s, u"WEST"_s, u"LEGAL"_s}));
    QCOMPARE(labelsOf(*entity, membersOf(*entity, u"[Children]"_s)),
             QStringList({u"[None]"_s, u"GROUP"_s, u"LEGAL"_s}));
    QCOMPARE(membersOf(*entity, u"[Parents]"_s), QList<MemberId>());
    QCOMPARE(membersOf(*entity, u"[Ancestors]"_s), QList<MemberId>());
}

void MemberListContract::aUserDefinedListKeepsItsOrderWhateverTheTopMember()
{
    const auto entity = dimensionOf(*mClient.openSession(), u"Entity"_s);
    const QStringList units = {u"E3"_s, u"E1"_s};
    QCOMPARE(entity->EnumMemberListNames().last(), u"Units"_s);
    QCOMPARE(labelsOf(*entity, membersOf(*entity, u"units"_s)), units);
    QCOMPARE(entities(*entity, u"Units"_s, u"WEST"_s), units);
    const hfm::ListId id = entity->GetMemberListId(u"Units"_s);
    QCOMPARE(labelsOf(*entity, entity->EnumMemberListMembers(id, id)), units);
}

void MemberListContract::aDimensionWithNoMemberListsGivesAnEmptyArray()
{
    const auto dimension = mClient.dimensionWithoutLists();
    if (!dimension)
        QSKIP("Every dimension of this client has member lists.");
    QCOMPARE(dimension->EnumMemberListNames(), QStringList());
    QVERIFY(failsAsUnknown([&] { dimension->GetMemberListId(u"[Hierarchy]"_s); }));
}
