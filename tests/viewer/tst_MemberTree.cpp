#include "runtime/RuntimeError.h"
#include "support/FakeHfm.h"
#include "viewer/PrintedTree.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_MemberTree : public QObject
{
    Q_OBJECT

    FakeHfm mHfm;
    FakeDimension &mDimension = mHfm.application().account();
    std::unique_ptr<MemberTree> mTree;

    void build(const QString &outline)
    {
        mDimension.setMembers(outline);
        build();
    }
    void build()
    {
        MemberPaths paths;
        paths.read(mDimension);
        mTree = std::make_unique<MemberTree>();
        mTree->build(paths, [this](hfm::MemberId member) { return textOf(member); });
    }
    QString textOf(hfm::MemberId member)
    {
        return mDimension.GetMemberLabel(member) + u" - "_s +
               mDimension.GetMemberDescription(member, 0);
    }

private Q_SLOTS:
    void init()
    {
        mHfm.calls().clearFaults();
        mTree = std::make_unique<MemberTree>();
    }

    void eachOccurrenceIsANodeUnderItsOwnParent()
    {
        build(u"Sales|All sales\n  Domestic|Home\n    Retail|Shops\n  Export|Abroad\nCost|Costs"_s);
        QCOMPARE(printedTexts(*mTree), u"Sales - All sales\n"
                                       "  Domestic - Home\n"
                                       "    Retail - Shops\n"
                                       "  Export - Abroad\n"
                                       "Cost - Costs\n"_s);
    }

    void aSharedMemberHasTwoNodesWithDifferentKeys()
    {
        build(u"A\n  S\n    X\nB\n  S"_s);
        QCOMPARE(printed(*mTree, [&](qint32 node) { return mTree->key(node) + mTree->tag(node); }),
                 u"KEY0-1_ROOT#0_A\n"
                 "  KEY10_A#1_S\n"
                 "    KEY21_S#2_X\n"
                 "KEY3-1_ROOT#3_B\n"
                 "  KEY43_B#1_S\n"
                 "    KEY51_S#2_X\n"_s);
    }

    void aMemberUnderTheSameParentInTwoPlacesStaysInItsBranch()
    {
        build(u"T\n  A\n    S\n      X\n      Y\n  B\n    S\n  C\n    S"_s);
        QCOMPARE(printedTexts(*mTree), u"T - \n  A - \n    S - \n      X - \n      Y - \n"
                                       "  B - \n    S - \n      X - \n      Y - \n"
                                       "  C - \n    S - \n      X - \n      Y - \n"_s);
    }

    void anEmptyDescriptionLeavesLabelBlankHyphenBlank()
    {
        build(u"A"_s);
        QCOMPARE(mTree->text(0), u"A - "_s);
    }

    void levelsCountFromOne()
    {
        build(u"A\n  B\n    C\nD"_s);
        QCOMPARE(mTree->level(0), 1);
        QCOMPARE(mTree->level(1), 2);
        QCOMPARE(mTree->level(2), 3);
        QCOMPARE(mTree->level(3), 1);
        QCOMPARE(mTree->maxLevel(), 3);
    }

    void aDimensionWithoutMembersIsAnEmptyTree()
    {
        build(QString());
        QCOMPARE(mTree->count(), 0);
        QCOMPARE(mTree->childCount(MemberTree::none), 0);
        QCOMPARE(mTree->maxLevel(), 1);
    }

    void labelsWithUnderscoresAndHashesOnBaseMembersChangeNothing()
    {
        build(u"A_B_\n  2_C#D\n  -1_ROOT\n  #\n  _\n-1_ROOT#0_A_B_"_s);
        QCOMPARE(printedTexts(*mTree),
                 u"A_B_ - \n  2_C#D - \n  -1_ROOT - \n  # - \n  _ - \n-1_ROOT#0_A_B_ - \n"_s);
        QCOMPARE(mTree->tag(1), u"0_A_B_#1_2_C#D"_s);
    }

    void parentsWithTheSameLabelAreTwoMembers()
    {
        build(u"A\n  X\nB\n  Y"_s);
        mDimension.members().at(2).label = u"A"_s;
        build();
        QCOMPARE(printedTexts(*mTree), u"A - \n  X - \nA - \n  Y - \n"_s);
    }

    void aHashInAParentsLabelMakesTheIdUnreadable()
    {
        mDimension.setMembers(u"A\nP#Q\n  C\nD"_s);
        MemberPaths paths;
        paths.read(mDimension);
        try {
            mTree->build(paths, [this](hfm::MemberId member) { return textOf(member); });
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 13);
        }
        QCOMPARE(printedTexts(*mTree), u"A - \nP#Q - \n\n"_s);
    }

    void aHashAndANumberInAParentsLabelShowTheMemberOfThatNumber()
    {
        build(u"A\nP#0_\n  C"_s);
        // The child's parent part "1_P" is found nowhere, its ID is read as 0.
        QCOMPARE(printedTexts(*mTree), u"A - \nP#0_ - \nA - \n"_s);
        QCOMPARE(mTree->tag(2), u"1_P#0_#2_C"_s);
        QCOMPARE(mTree->label(2), u"C"_s);
    }

    void anOccurrenceThatCannotBeFoundLeavesItsChildrenToTheNearestBefore()
    {
        // The second S stands below a label that shifts its parts: "1_S" is found in the first.
        build(u"A\n  S\n    X\nP#0_\n  S"_s);
        QCOMPARE(printed(*mTree, [&](qint32 node) { return mTree->tag(node); }), u"-1_ROOT#0_A\n"
                                                                                 "  0_A#1_S\n"
                                                                                 "    1_S#2_X\n"
                                                                                 "    1_S#2_X\n"
                                                                                 "-1_ROOT#3_P#0_\n"
                                                                                 "3_P#0_#1_S\n"_s);
        QCOMPARE(mTree->text(4), u"A - "_s);
    }

    void aFailureInBetweenKeepsWhatWasBuilt()
    {
        mDimension.setMembers(u"A\n  B\n  C\nD\n  E"_s);
        MemberPaths paths;
        paths.read(mDimension);
        mHfm.calls().fail("GetMemberDescription"_L1, RuntimeError(70), 4);
        QVERIFY_THROWS_EXCEPTION(RuntimeError, mTree->build(paths, [this](hfm::MemberId member) {
            return textOf(member);
        }));
        QCOMPARE(printedTexts(*mTree), u"A - \n  B - \n  C - \n\n"_s);
        QCOMPARE(mTree->count(), 4);
        QCOMPARE(mTree->key(2), u"KEY2"_s);
    }

    void theNodeWhoseTextFailsStaysBlankInItsPlace()
    {
        mDimension.setMembers(u"A\n  B\n  C"_s);
        MemberPaths paths;
        paths.read(mDimension);
        mHfm.calls().fail("GetMemberDescription"_L1, RuntimeError(70), 2);
        QVERIFY_THROWS_EXCEPTION(RuntimeError, mTree->build(paths, [this](hfm::MemberId member) {
            return textOf(member);
        }));
        QCOMPARE(mTree->count(), 2);
        QCOMPARE(mTree->parent(1), 0);
        QCOMPARE(mTree->childCount(0), 1);
        QCOMPARE(mTree->text(1), QString());
        QCOMPARE(mTree->label(1), QString());
        QCOMPARE(mTree->key(1), QString());
        QCOMPARE(mTree->tag(1), QString());
    }

    void aNodeWithAnEmptyTextKeepsKeyTagAndLabel()
    {
        mDimension.setMembers(u"A\n  B"_s);
        MemberPaths paths;
        paths.read(mDimension);
        mTree->build(paths, [](hfm::MemberId) { return QString(); });
        QCOMPARE(mTree->count(), 2);
        QCOMPARE(mTree->text(1), QString());
        QCOMPARE(mTree->label(1), u"B"_s);
        QCOMPARE(tags(*mTree), QStringList({u"-1_ROOT#0_A"_s, u"0_A#1_B"_s}));
    }

    void anyCharactersKeepTheirPlaces()
    {
        build(u"\u00C4rger|\u4E2D\n  \u4E2D|\u00E9"_s);
        QCOMPARE(printedTexts(*mTree), u"\u00C4rger - \u4E2D\n  \u4E2D - \u00E9\n"_s);
        QCOMPARE(mTree->tag(1), u"0_\u00C4rger#1_\u4E2D"_s);
    }

    void aListHasNeitherKeysNorTags()
    {
        mDimension.setMembers(u"A|one\n  B-C|two\nD|three"_s);
        mTree->buildList(mDimension.EnumAllMembers(), [this](hfm::MemberId member) {
            return member == 0 ? QString() : textOf(member);
        });
        QCOMPARE(printedTexts(*mTree), u"B-C - two\nD - three\n"_s);
        QCOMPARE(mTree->count(), 2);
        QCOMPARE(mTree->key(1), QString());
        QCOMPARE(mTree->tag(1), QString());
        QCOMPARE(mTree->label(0), u"B-C"_s);
        QCOMPARE(mTree->maxLevel(), 1);
    }

    void aListKeepsWhatStoodBeforeAFailure()
    {
        mDimension.setMembers(u"A\nB\nC"_s);
        mHfm.calls().fail("GetMemberLabel"_L1, RuntimeError(70), 3);
        QVERIFY_THROWS_EXCEPTION(RuntimeError,
                                 mTree->buildList(mDimension.EnumAllMembers(),
                                                  [this](auto member) { return textOf(member); }));
        QCOMPARE(printedTexts(*mTree), u"A - \nB - \n"_s);
    }

    void aChainDeeperThanAnyStackIsBuilt()
    {
        constexpr int length = 200'000;
        FakeMembers chain;
        for (int i = 0; i < length; ++i)
            chain.add(i - 1, QString::number(i));
        mDimension.setMembers({});
        mDimension.members() = std::move(chain);
        build();
        QCOMPARE(mTree->maxLevel(), length);
        QCOMPARE(mTree->parent(length - 1), length - 2);
        QCOMPARE(mTree->tag(length - 1), u"199998_199998#199999_199999"_s);
    }
};

QTEST_APPLESS_MAIN(tst_MemberTree)
#include "tst_MemberTree.moc"
