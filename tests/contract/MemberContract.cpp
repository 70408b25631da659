#include "contract/MemberContract.h"

#include "contract/Reading.h"

#include <QTest>

#include <limits>

using hfm::MemberId;
using namespace Qt::Literals::StringLiterals;

void MemberContract::everyMemberIsListedOnceWithItsLabel_data()
{
    addDimensionRows();
}

void MemberContract::everyMemberIsListedOnceWithItsLabel()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    const QList<MemberId> members = dimension->EnumAllMembers();
    QCOMPARE(once(members), members);
    QVERIFY(!members.contains(hfm::rootMember));
    QCOMPARE(dimension->EnumAllMemberLabels(), labelsOf(*dimension, members));
}

void MemberContract::everyLabelIsFoundInAnyLetterCase_data()
{
    addDimensionRows();
}

void MemberContract::everyLabelIsFoundInAnyLetterCase()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    for (const MemberId member : dimension->EnumAllMembers()) {
        const QString label = dimension->GetMemberLabel(member);
        QVERIFY(!label.isEmpty());
        QCOMPARE(dimension->GetMemberId(label), member);
        QCOMPARE(dimension->GetMemberId(label.toUpper()), member);
        QCOMPARE(dimension->GetMemberId(label.toLower()), member);
    }
    const auto error = errorOf([&] { dimension->GetMemberId(u"Nobody"_s); });
    QVERIFY(error);
    QCOMPARE(error->number(), 5);
    QCOMPARE(error->source(), u"HFM"_s);
    QCOMPARE(error->description(), u"'Nobody' is not a member of %1."_s.arg(name));
    QVERIFY(failsAsUnknown([&] { dimension->GetMemberId(QString()); }));
}

void MemberContract::unknownMembersFail_data()
{
    addDimensionRows();
}

void MemberContract::unknownMembersFail()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    const MemberId past = MemberId(dimension->EnumAllMembers().size());
    QVERIFY(!dimension->EnumAllMembers().contains(past));
    for (const MemberId id :
         {past, -2, std::numeric_limits<MemberId>::max(), std::numeric_limits<MemberId>::min()}) {
        QVERIFY(failsAsUnknown([&] { dimension->GetMemberLabel(id); }));
        QVERIFY(failsAsUnknown([&] { dimension->GetMemberDescription(id, 0); }));
        QVERIFY(failsAsUnknown([&] { dimension->EnumChildMembers(hfm::allChildren, id); }));
        QVERIFY(failsAsUnknown([&] { dimension->GetChildCount(id); }));
        QVERIFY(failsAsUnknown([&] { dimension->GetHasChildren(id); }));
        QVERIFY(failsAsUnknown([&] { dimension->EnumBaseMembers(id, hfm::EachMemberOnce); }));
        QVERIFY(failsAsUnknown([&] { dimension->EnumMembersBelow(id, hfm::EveryOccurrence); }));
        QVERIFY(failsAsUnknown([&] { dimension->GetDefaultParentLabel(id); }));
        QVERIFY(failsAsUnknown([&] { dimension->GetDefaultParentGeneration(id); }));
        QVERIFY(failsAsUnknown([&] { dimension->GetGenerationsBelow(id); }));
    }
}

void MemberContract::theRootHasNoLabelAndNoDescription_data()
{
    addDimensionRows();
}

void MemberContract::theRootHasNoLabelAndNoDescription()
{
    QFETCH(QString, name);
    const auto dimension = dimensionOf(*mClient.openSession(), name);
    QCOMPARE(dimension->GetMemberLabel(hfm::rootMember), QString());
    QCOMPARE(dimension->GetMemberDescription(hfm::rootMember, 0), QString());
}

void MemberContract::theMembersOfTheApplicationAreThereInItsOrder()
{
    const auto session = mClient.openSession();
    QCOMPARE(dimensionOf(*session, u"Entity"_s)->EnumAllMemberLabels(),
             QStringList({u"[None]"_s, u"GROUP"_s, u"EAST"_s, u"E1"_s, u"E2"_s, u"WEST"_s, u"E3"_s,
                          u"LEGAL"_s, u"SPARE"_s}));
    QCOMPARE(dimensionOf(*session, u"Account"_s)->EnumAllMemberLabels().first(3),
             QStringList({u"PL"_s, u"SALES"_s, u"COST"_s}));
    QCOMPARE(dimensionOf(*session, u"Period"_s)->EnumAllMemberLabels(),
             QStringList({u"[Year]"_s, u"Q1"_s, u"Jan"_s, u"Feb"_s, u"Q2"_s, u"Mar"_s}));
}

void MemberContract::descriptionsComeInTheLanguageAskedFor()
{
    const auto entity = dimensionOf(*mClient.openSession(), u"Entity"_s);
    const MemberId unit = entity->GetMemberId(u"E1"_s);
    QCOMPARE(entity->GetMemberDescription(unit, 0), u"Unit 1, East"_s);
    QCOMPARE(entity->GetMemberDescription(unit, 1), u"Unité 1"_s);
}

void MemberContract::aDescriptionInALanguageForWhichNoneIsStoredIsEmpty()
{
    const auto entity = dimensionOf(*mClient.openSession(), u"Entity"_s);
    const MemberId unit = entity->GetMemberId(u"E3"_s);
    QCOMPARE(entity->GetMemberDescription(unit, 0), u"Unit 3"_s);
    QCOMPARE(entity->GetMemberDescription(unit, 1), QString());
    QCOMPARE(entity->GetMemberDescription(entity->GetMemberId(u"[None]"_s), 0), QString());
    for (const qint16 language : {qint16(2), qint16(32767), qint16(-1), qint16(-32768)})
        QCOMPARE(entity->GetMemberDescription(unit, language), QString());
}

void MemberContract::aDimensionWithoutMembersGivesEmptyArrays()
{
    const auto scenario = dimensionOf(*mClient.openSession(), u"Scenario"_s);
    QCOMPARE(scenario->EnumChildMembers(-1, -1), QList<MemberId>());
    QCOMPARE(scenario->EnumAllMembers(), QList<MemberId>());
    QCOMPARE(scenario->EnumAllMemberLabels(), QStringList());
    QCOMPARE(scenario->EnumHierarchy().members, QList<MemberId>());
    QCOMPARE(scenario->EnumHierarchy().parents, QList<MemberId>());
    for (const hfm::Distinct distinct : {hfm::EveryOccurrence, hfm::EachMemberOnce}) {
        QCOMPARE(scenario->EnumBaseMembers(hfm::rootMember, distinct), QList<MemberId>());
        QCOMPARE(scenario->EnumMembersBelow(hfm::rootMember, distinct), QList<MemberId>());
    }
    QVERIFY(failsAsUnknown([&] { scenario->GetMemberLabel(0); }));
}
