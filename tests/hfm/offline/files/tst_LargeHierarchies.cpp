#include "Reading.h"
#include "runtime/RuntimeError.h"

#include <QTest>

using namespace hfm;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int million = 1000000;

QByteArray number(int i)
{
    return QByteArray::number(i);
}

/// 30 diamonds, one upon the other: more than a thousand million ways lead from the top to the
/// bottom.
QByteArray diamonds(int count)
{
    QByteArray text = "!HIERARCHIES=Entity\n;T0\n";
    for (int i = 0; i < count; ++i) {
        const QByteArray top = "T" + number(i);
        const QByteArray bottom = "T" + number(i + 1);
        for (const char *side : {"L", "R"})
            text += top + ';' + side + number(i) + '\n' + side + number(i) + ';' + bottom + '\n';
    }
    return text;
}

template <typename Call>
qint32 errorOf(Call call)
{
    try {
        call();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}

} // namespace

/// Hierarchies of a million members, deep and broad, and ones that share without bound.
class tst_LargeHierarchies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChainOfAMillionMembers()
    {
        QByteArray text = "!HIERARCHIES=Entity\n;0\n";
        for (int i = 1; i < million; ++i)
            text += number(i - 1) + ';' + number(i) + '\n';
        text += "!MEMBERS=Entity\n";
        for (int i = 0; i < million; ++i)
            text += number(i) + ";DefaultParent=" + (i ? number(i - 1) : "#root") + '\n';
        const Reading reading = readText(text);
        QCOMPARE(reading.application->warnings.count(), qint64(0));
        const auto entity = reading.entity();
        QCOMPARE(entity->EnumAllMembers().size(), million);
        QCOMPARE(entity->GetGenerationsBelow(rootMember), million);
        QCOMPARE(entity->GetGenerationsBelow(0), million - 1);
        QCOMPARE(entity->GetDefaultParentGeneration(million - 1), million - 1);
        const Occurrences all = entity->EnumHierarchy();
        QCOMPARE(all.members.size(), million);
        QCOMPARE(all.members.last(), million - 1);
        QCOMPARE(all.parents.last(), million - 2);
        QCOMPARE(entity->EnumBaseMembers(rootMember, EveryOccurrence),
                 QList<MemberId>{million - 1});
        QCOMPARE(entity->EnumMembersBelow(rootMember, EachMemberOnce).size(), million);
        const ListId ancestors = entity->GetMemberListId(u"[Ancestors]"_s);
        QCOMPARE(entity->EnumMemberListMembers(ancestors, million - 1).size(), million - 1);
    }

    void aChainWhoseRecordsAndLinesStandUpsideDown()
    {
        QByteArray text = "!MEMBERS=Entity\n";
        for (int i = million - 1; i >= 0; --i)
            text += number(i) + ";DefaultParent=" + (i ? number(i - 1) : "#root") + '\n';
        text += "!HIERARCHIES=Entity\n";
        for (int i = million - 1; i > 0; --i)
            text += number(i - 1) + ';' + number(i) + '\n';
        text += ";0\n";
        const Reading reading = readText(text);
        QCOMPARE(reading.application->warnings.count(), qint64(0));
        const auto entity = reading.entity();
        QCOMPARE(entity->GetMemberLabel(0), u"999999"_s);
        QCOMPARE(entity->GetDefaultParentGeneration(0), million - 1);
        QCOMPARE(entity->GetGenerationsBelow(rootMember), million);
    }

    void aMillionChildrenOfOneParent()
    {
        QByteArray text = "!HIERARCHIES=Entity\n;Top\n";
        for (int i = 0; i < million; ++i)
            text += "Top;" + number(i) + '\n';
        text += "!MEMBERS=Entity\nTop\n";
        for (int i = 0; i < million; ++i)
            text += number(i) + ";;;Y;DefaultParent=Top\n";
        const Reading reading = readText(text);
        QCOMPARE(reading.application->warnings.count(), qint64(0));
        const auto entity = reading.entity();
        QCOMPARE(entity->GetChildCount(0), million);
        const auto children = entity->EnumChildMembers(allChildren, 0);
        QCOMPARE(children.size(), million);
        QCOMPARE(children.last(), million);
        QCOMPARE(entity->GetMemberLabel(million), u"999999"_s);
        QCOMPARE(entity->EnumHierarchy().members.size(), million + 1);
        QCOMPARE(reading.metadata()->GetICPDimension()->EnumAllMembers().size(), million + 3);
    }

    void aCycleOfAMillionMembersIsRefusedInAShortMessage()
    {
        QByteArray text = "!HIERARCHIES=Entity\n;0\n";
        for (int i = 1; i < million; ++i)
            text += number(i - 1) + ';' + number(i) + '\n';
        text += number(million - 1) + ";0\n";
        const Reading reading = readText(text);
        QVERIFY(reading.refusal);
        QCOMPARE(reading.refusal->line(), qint64(million + 2));
        QVERIFY(reading.refusal->reason().contains(u"'0'"_s));
        QVERIFY(reading.refusal->reason().size() < 1000);
    }

    void thirtyDiamondsHaveTooManyOccurrencesAndFewMembers()
    {
        const Reading reading = readText(diamonds(30));
        const auto entity = reading.entity();
        const MemberId bottom = entity->GetMemberId(u"T30"_s);
        QCOMPARE(entity->EnumAllMembers().size(), 91);
        QCOMPARE(errorOf([&] { entity->EnumHierarchy(); }), qint32(OutOfMemory));
        QCOMPARE(errorOf([&] { entity->EnumHierarchyAux(); }), qint32(OutOfMemory));
        for (const MemberId top : {rootMember, entity->GetMemberId(u"T0"_s)}) {
            QCOMPARE(errorOf([&] { entity->EnumBaseMembers(top, EveryOccurrence); }),
                     qint32(OutOfMemory));
            QCOMPARE(errorOf([&] { entity->EnumMembersBelow(top, EveryOccurrence); }),
                     qint32(OutOfMemory));
        }
        QCOMPARE(entity->EnumBaseMembers(rootMember, EachMemberOnce), QList<MemberId>{bottom});
        QCOMPARE(entity->EnumMembersBelow(rootMember, EachMemberOnce).size(), 91);
        QCOMPARE(entity->GetGenerationsBelow(rootMember), 61);
        QCOMPARE(entity->GetDefaultParentGeneration(bottom), 60);
        for (const QString &list : entity->EnumMemberListNames())
            for (const MemberId top : {rootMember, MemberId(0), bottom})
                QVERIFY(entity->EnumMemberListMembers(entity->GetMemberListId(list), top).size() <=
                        91);
    }

    void aFewDiamondsHaveEveryOccurrence()
    {
        const auto entity = readText(diamonds(10)).entity();
        QCOMPARE(entity->EnumBaseMembers(rootMember, EveryOccurrence).size(), 1024);
        QCOMPARE(entity->EnumHierarchy().members.size(), 1 + 4 * 1023);
    }

    void aPeriodTreeOfDiamondsHasItsGenerationLists()
    {
        const Reading reading = readText(diamonds(30).replace("Entity", "Period"));
        const auto period = reading.metadata()->GetPeriodDimension();
        QCOMPARE(period->EnumMemberListNames().size(), 5 + 6);
        const ListId sixth = period->GetMemberListId(u"[Sixth Generation]"_s);
        QCOMPARE(period->EnumMemberListMembers(sixth, rootMember).size(), 2);
    }
};

QTEST_APPLESS_MAIN(tst_LargeHierarchies)
#include "tst_LargeHierarchies.moc"
