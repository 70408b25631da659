#include "Reading.h"

#include <QTest>

using namespace hfm;
using namespace Qt::Literals::StringLiterals;

/// Member IDs, the root and the generations along default parents.
class tst_MemberNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void membersAreNumberedAsTheirRecordsComeThenAsTheHierarchyNamesThemThenTheAddedOnes()
    {
        const Reading reading =
            readText("!HIERARCHIES=Custom1\n;H1;1\nH1;M2;1\nM2;H2;1\n;M1;1\n!CURRENCIES\nEUR;0\n"
                     "!CONSOLIDATION_METHODS\nGLOBAL;Y;N\n"
                     "!MEMBERS=Custom1\nM1\nM2\nM3\n!HIERARCHIES=Custom1\n;M3;1\nH3;M3;1\n;H3;1\n");
        const auto custom = reading.custom1();
        const QStringList labels = {u"M1"_s, u"M2"_s,     u"M3"_s,  u"H1"_s,    u"H2"_s,
                                    u"H3"_s, u"[None]"_s, u"EUR"_s, u"GLOBAL"_s};
        QCOMPARE(custom->EnumAllMemberLabels(), labels);
        QCOMPARE(custom->EnumAllMembers(), QList<MemberId>({0, 1, 2, 3, 4, 5, 6, 7, 8}));
        for (MemberId id = 0; id < labels.size(); ++id) {
            QCOMPARE(custom->GetMemberLabel(id), labels[id]);
            QCOMPARE(custom->GetMemberId(labels[id]), id);
        }
        QCOMPARE(treeOf(*custom), u"H1\n  M2\n    H2\nM1\nM3\nH3\n  M3\n[None]\nEUR\nGLOBAL\n"_s);
    }

    void attributesAndDescriptionsGoWithTheirMembersWhateverStandsFirst()
    {
        const Reading reading = readText("!HIERARCHIES=Entity\n;C\nC;X\nC;B\nB;A\n!MEMBERS=Entity\n"
                                         "A;;;;;;ud A;;;;;DefaultParent=B;English=The A\n"
                                         "B;;;;;;ud B;;;;;DefaultParent=C;English=The B\n"
                                         "C;;;;;;ud C;;;;;DefaultParent=#root;English=The C\n");
        const auto entity = reading.entity();
        for (MemberId id = 0; id < 3; ++id) {
            const QString label = entity->GetMemberLabel(id);
            QCOMPARE(entity->GetMemberDescription(id, 0), u"The "_s + label);
            QCOMPARE(entity->entityAttributes()->GetEntityUserDefined1(id), u"ud "_s + label);
        }
        QCOMPARE(entity->GetDefaultParentLabel(0), u"B"_s);
        QCOMPARE(entity->GetDefaultParentLabel(1), u"C"_s);
        QCOMPARE(entity->GetMemberLabel(3), u"X"_s);
        QCOMPARE(treeOf(*entity), u"C\n  X\n  B\n    A\n"_s);
        QVERIFY(reading.warnsOnlyOf(3, {u"X"_s}));
    }

    void theRootIsMinusOneWithAnEmptyLabelAndDescription()
    {
        const Reading reading = readText("!HIERARCHIES=Entity\n;A\n!MEMBERS=Entity\n"
                                         "A;DefaultParent=#root;English=The A\n");
        QCOMPARE(rootMember, -1);
        const auto entity = reading.entity();
        QCOMPARE(entity->GetMemberLabel(rootMember), QString());
        QCOMPARE(entity->GetMemberDescription(rootMember, 0), QString());
        QCOMPARE(entity->EnumChildMembers(allChildren, rootMember), QList<MemberId>{0});
        QCOMPARE(entity->EnumHierarchy().parents, QList<MemberId>{rootMember});
    }

    void aDefaultParentsGenerationIsCountedAlongDefaultParents()
    {
        // X stands under A (generation 1) and, by default, under C (generation 3).
        const Reading reading =
            readText("!HIERARCHIES=Entity\n;A\nA;B\nB;C\nA;X\nC;X\nX;Y\n!MEMBERS=Entity\n"
                     "A;DefaultParent=#root\nB;DefaultParent=A\nC;DefaultParent=B\n"
                     "X;DefaultParent=C\nY;DefaultParent=X\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto entity = reading.entity();
        const QList<qint32> generations = {0, 1, 2, 3, 4};
        for (MemberId id = 0; id < 5; ++id)
            QCOMPARE(entity->GetDefaultParentGeneration(id), generations[id]);
        QCOMPARE(entity->GetDefaultParentLabel(0), QString());
        QCOMPARE(entity->GetDefaultParentLabel(4), u"X"_s);
    }

    void aMemberWithoutANodeHasTheRootForADefaultParent()
    {
        const Reading reading = readText("!HIERARCHIES=Entity\n;A\nA;B\nLost;C\n!MEMBERS=Entity\n"
                                         "A\nB\nC;DefaultParent=Lost\nLost;DefaultParent=B\n");
        const auto entity = reading.entity();
        QCOMPARE(treeOf(*entity), u"A\n  B\n"_s);
        for (const MemberId id : {2, 3}) {
            QCOMPARE(entity->GetDefaultParentLabel(id), QString());
            QCOMPARE(entity->GetDefaultParentGeneration(id), 0);
        }
        QVERIFY(reading.warnsOf(8, {u"C"_s}));
        QVERIFY(reading.warnsOf(9, {u"Lost"_s}));
    }

    void aDimensionThatTheFileSaysNothingOfHasItsAddedMembersOnly()
    {
        const Reading reading = readText("!MEMBERS=Account\nA\n!HIERARCHIES=Account\n;A\n");
        const auto metadata = reading.metadata();
        QVERIFY(metadata->GetEntityDimension()->EnumAllMembers().isEmpty());
        QVERIFY(metadata->GetScenarioDimension()->EnumAllMembers().isEmpty());
        QVERIFY(metadata->GetScenarioDimension()->EnumHierarchy().members.isEmpty());
        QCOMPARE(treeOf(*metadata->GetCustom4Dimension()), u"[None]\n"_s);
        QCOMPARE(metadata->GetValueDimension()->EnumAllMembers().size(), 15);
        QCOMPARE(metadata->GetICPDimension()->EnumAllMembers().size(), 3);
    }
};

QTEST_APPLESS_MAIN(tst_MemberNumbers)
#include "tst_MemberNumbers.moc"
