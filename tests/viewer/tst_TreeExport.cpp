#include "support/Errors.h"
#include "support/FakeHfm.h"
#include "support/FakeSpreadsheet.h"
#include "viewer/NodeText.h"
#include "viewer/TreeExport.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The tree's layout, against a spreadsheet that notes what it is told.
class tst_TreeExport : public QObject
{
    Q_OBJECT

    FakeHfm mHfm;
    FakeDimension &mDimension = mHfm.application().account();
    std::unique_ptr<MemberTree> mTree;
    FakeSpreadsheet mSpreadsheet;

    /// Each line of the outline is the label, its description behind '|'. The node texts are
    /// "<label> - <description>", followed by what `attributes` gives for the label.
    void build(const QString &outline, const QHash<QString, QString> &attributes = {})
    {
        mDimension.setMembers(outline);
        MemberPaths paths;
        paths.read(mDimension);
        mTree = std::make_unique<MemberTree>();
        mTree->build(paths, [&](hfm::MemberId member) {
            const QString label = mDimension.GetMemberLabel(member);
            return label + u" - "_s + mDimension.GetMemberDescription(member, 0) +
                   attributes.value(label);
        });
    }
    TreeExport::Source fullTree() const
    {
        return {.tree = mTree.get(),
                .top = MemberTree::none,
                .levels = mTree->maxLevel(),
                .maxLevel = mTree->maxLevel(),
                .showsAttributes = false,
                .writesAttributes = false};
    }
    TreeExport::Source withAttributes(TreeExport::Source source) const
    {
        source.showsAttributes = source.writesAttributes = true;
        return source;
    }
    void write(const TreeExport::Source &source)
    {
        const auto application = mSpreadsheet.createApplication();
        TreeExport tree(application->addWorkbook().addWorksheet(), source);
        tree.writeHeader();
        tree.writeNodes();
    }

private Q_SLOTS:
    void init() { mSpreadsheet = FakeSpreadsheet(); }

    void theQuestion()
    {
        QCOMPARE(TreeExport::attributesQuestion(),
                 (Prompt{u"Print Attributes"_s, u"Print metadata attributes?"_s,
                         Prompt::Icon::Question, Prompt::Buttons::YesNo}));
    }

    void eachLabelStandsInTheColumnOfItsLevelAndTheDescriptionAfterAGap()
    {
        build(u"Net|Net\n  Sales|All sales\n    Home|Home\n  Cost|\nTax|Tax"_s);
        write(fullTree());
        QCOMPARE(mSpreadsheet.rows(), QStringList({
                                          u"Level 1|Level 2|Level 3||Description"_s,
                                          u"Net||||Net"_s,
                                          u"|Sales|||All sales"_s,
                                          u"||Home||Home"_s,
                                          u"|Cost"_s,
                                          u"Tax||||Tax"_s,
                                      }));
    }

    void theHeaderIsWrittenWithApostrophesAndBeforeTheNodesWhichHaveNone()
    {
        build(u"A|a\n  B|b"_s);
        write(fullTree());
        QCOMPARE(mSpreadsheet.writes(), QStringList({
                                            u"(1, 1) = 'Level 1"_s,
                                            u"(1, 2) = 'Level 2"_s,
                                            u"(1, 4) = 'Description"_s,
                                            u"(2, 1) = A"_s,
                                            u"(2, 4) = a"_s,
                                            u"(3, 2) = B"_s,
                                            u"(3, 4) = b"_s,
                                        }));
    }

    void attributesAreWrittenItemByItemWithTheirLeadingBlanks()
    {
        build(u"A|a\n  B|b"_s,
              {{u"A"_s, u" (Type=Asset, UD1=x)"_s}, {u"B"_s, u" (Type=Flow, UD1=)"_s}});
        write(withAttributes(fullTree()));
        QCOMPARE(mSpreadsheet.writes().sliced(3), QStringList({
                                                      u"(2, 1) = A"_s,
                                                      u"(2, 4) = a"_s,
                                                      u"(1, 5) = 'Type"_s,
                                                      u"(2, 5) = 'Type=Asset"_s,
                                                      u"(1, 6) = ' UD1"_s,
                                                      u"(2, 6) = ' UD1=x"_s,
                                                      u"(3, 2) = B"_s,
                                                      u"(3, 4) = b"_s,
                                                      u"(3, 5) = 'Type=Flow"_s,
                                                      u"(3, 6) = ' UD1="_s,
                                                  }));
    }

    void attributesThatAreShownButNotWantedAreLeftOutOfTheDescription()
    {
        build(u"A|a (b)"_s, {{u"A"_s, u" (Type=Asset)"_s}});
        TreeExport::Source source = fullTree();
        source.showsAttributes = true;
        write(source);
        QCOMPARE(mSpreadsheet.rows(), QStringList({u"Level 1||Description"_s, u"A||a (b)"_s}));
    }

    void headerNamesComeFromTheFirstNodeOnly()
    {
        build(u"A|a\nB|b"_s, {{u"A"_s, u" (X=1)"_s}, {u"B"_s, u" (Y=1, Z=2)"_s}});
        write(withAttributes(fullTree()));
        QCOMPARE(mSpreadsheet.rows(),
                 QStringList({u"Level 1||Description|X"_s, u"A||a|X=1"_s, u"B||b|Y=1| Z=2"_s}));
    }

    void aPieceWithoutAnEqualsSignIsItsOwnName()
    {
        build(u"A|a"_s, {{u"A"_s, u" ([Default], UD1=a,b)"_s}});
        write(withAttributes(fullTree()));
        QCOMPARE(mSpreadsheet.rows(), QStringList({u"Level 1||Description|[Default]| UD1|b"_s,
                                                   u"A||a|[Default]| UD1=a|b"_s}));
    }

    void aMemberLabelContainingAHyphenIsCutThereAndTheRestGoesToTheDescription()
    {
        build(u"A-B|desc\nAB-C|desc\nABC -D|desc"_s);
        write(fullTree());
        QCOMPARE(mSpreadsheet.rows().sliced(1),
                 QStringList({u"|| - desc"_s, u"A|| - desc"_s, u"ABC|| - desc"_s}));
    }

    void aLabelThatBeginsWithAHyphenIsAnInvalidCall()
    {
        build(u"A|a\n-B|b"_s);
        const auto error = errorOf([&] { write(fullTree()); });
        QVERIFY(error);
        QCOMPARE(error->number(), 5);
        QCOMPARE(mSpreadsheet.rows(), QStringList({u"Level 1||Description"_s, u"A||a"_s}));
    }

    void theTwoViewsFindTheOpeningParenthesisDifferently()
    {
        build(u"A(1)|a (old) b\n  B|b"_s,
              {{u"A(1)"_s, u" (X=1, Y=2)"_s}, {u"B"_s, u" (X=3, Y=4)"_s}});
        write(withAttributes(fullTree()));
        QCOMPARE(mSpreadsheet.rows()[1], u"A(1)|||a (old) b|X=1| Y=2"_s);
        TreeExport::Source source = withAttributes(fullTree());
        source.top = 0;
        write(source);
        QCOMPARE(mSpreadsheet.rows()[0], u"Level 1|Level 2||Description|old) b (X| Y"_s);
        QCOMPARE(mSpreadsheet.rows()[1], u"A(1)|||a|old) b (X=1| Y=2"_s);
        QCOMPARE(mSpreadsheet.rows()[2], u"|B||b|X=3| Y=4"_s);
    }

    void aParenthesisInAnAttributeShiftsTheSplitOfTheFullTree()
    {
        build(u"A|a"_s, {{u"A"_s, u" (X=1, UD1=b (c))"_s}});
        write(withAttributes(fullTree()));
        QCOMPARE(mSpreadsheet.rows(),
                 QStringList({u"Level 1||Description|c)"_s, u"A||a (X=1, UD1=b|c)"_s}));
    }

    void aDescriptionThatBeginsWithAParenthesisIsEmptyInTheTopMemberView()
    {
        const NodeText parts =
            NodeText::split(u"A - (old) a (X=1)", NodeText::Opening::FirstBehindHyphen);
        QCOMPARE(parts.label, u"A");
        QCOMPARE(parts.description, QStringView());
        QCOMPARE(parts.attributes, u"old) a (X=1");
    }

    void aTextThatEndsAtItsHyphenHasNoDescription()
    {
        QCOMPARE(NodeText::split(u"A -", NodeText::Opening::None).description, QStringView());
        QCOMPARE(NodeText::split(u"A - ", NodeText::Opening::None).description, QStringView());
    }

    void aTextWithoutAParenthesisHasNoAttributes()
    {
        const NodeText parts = NodeText::split(u"A - a", NodeText::Opening::Last);
        QCOMPARE(parts.description, u"a");
        QCOMPARE(parts.attributes, QStringView());
    }

    void theTopMembersColumnsFollowItsOwnLevelsAndTheAttributesTheFullTrees()
    {
        const QString attributes = u" (X=1)"_s;
        build(u"T|t\n  S|s\n    A|a\n      B|b\n    C|c\nU|u"_s,
              {{u"S"_s, attributes}, {u"A"_s, attributes}, {u"C"_s, attributes}});
        TreeExport::Source source = withAttributes(fullTree());
        QCOMPARE(source.maxLevel, 4);
        source.top = 2; // A, with B below it
        source.levels = 2;
        write(source);
        QCOMPARE(mSpreadsheet.rows(), QStringList({u"Level 1|Level 2||Description|||X"_s,
                                                   u"A|||a|||X=1"_s, u"|B||b"_s}));
    }

    void theTopMembersNodesComeInDepthFirstPreOrder()
    {
        build(u"T|t\n  A|a\n    S|s\n      X|x\n    B|b\n  C|c\n    S|s\nU|u"_s);
        TreeExport::Source source = fullTree();
        source.top = 0;
        source.levels = 4;
        write(source);
        QStringList labels;
        for (const QString &row : mSpreadsheet.rows().sliced(1))
            labels.append(row.section(u'|', 0, 3).remove(u'|'));
        QCOMPARE(labels, u"T A S X B C S X"_s.split(u' '));
    }

    void aBackslashDeepensItsNodeAndAllBelowIt()
    {
        build(u"A|a\n  B|x\\y\n    C|c\n  D|d"_s);
        write(fullTree());
        QCOMPARE(mSpreadsheet.rows().sliced(1),
                 QStringList({u"A||||a"_s, u"||B||x\\y"_s, u"|||C|c"_s, u"|D|||d"_s}));
    }

    void inTheTopMemberViewOnlyTheBackslashesFromTheTopMemberDownCount()
    {
        build(u"A|x\\y\n  B|b\n    C|c\\d"_s);
        TreeExport::Source source = fullTree();
        source.top = 1;
        source.levels = 2;
        write(source);
        QCOMPARE(mSpreadsheet.rows().sliced(1), QStringList({u"B|||b"_s, u"||C|c\\d"_s}));
    }

    void aLabelAsDeepAsTheDescriptionIsReplacedByIt()
    {
        build(u"A|\\\\x"_s);
        write(fullTree());
        QCOMPARE(mSpreadsheet.writes().sliced(2),
                 QStringList({u"(2, 3) = A"_s, u"(2, 3) = \\\\x"_s}));
        QCOMPARE(mSpreadsheet.rows()[1], u"||\\\\x"_s);
    }

    void aFlatListHasEveryNodeAtLevelOne()
    {
        mDimension.setMembers(u"P|p\n  A|a\n  B|b"_s);
        mTree = std::make_unique<MemberTree>();
        mTree->buildList(mDimension.EnumAllMembers(), [&](hfm::MemberId member) {
            return mDimension.GetMemberLabel(member) + u" - x"_s;
        });
        write(fullTree());
        QCOMPARE(mSpreadsheet.rows(),
                 QStringList({u"Level 1||Description"_s, u"P||x"_s, u"A||x"_s, u"B||x"_s}));
    }

    void aSharedMembersOccurrencesHaveARowEach()
    {
        build(u"T|t\n  A|a\n    S|s\n  B|b\n    S|s"_s);
        write(fullTree());
        QCOMPARE(mSpreadsheet.rows().filter(u"||S"_s).size(), 2);
    }

    void withoutATreeThereIsTheDescriptionsCaptionAlone()
    {
        write({.tree = nullptr,
               .top = MemberTree::none,
               .levels = 0,
               .maxLevel = 0,
               .showsAttributes = true,
               .writesAttributes = true});
        QCOMPARE(mSpreadsheet.writes(), QStringList{u"(1, 2) = 'Description"_s});
    }

    void aChainOfThousandsIsWrittenToItsEnd()
    {
        constexpr int depth = 2000;
        QString outline;
        for (int i = 0; i < depth; ++i)
            outline += QString(2 * i, u' ') + u'M' + QString::number(i) + u"|d\n"_s;
        build(outline);
        TreeExport::Source source = fullTree();
        source.top = 0;
        write(source);
        QCOMPARE(mSpreadsheet.writes().size(), depth + 1 + 2 * depth);
        QCOMPARE(mSpreadsheet.writes()[mSpreadsheet.writes().size() - 2],
                 u"(2001, 2000) = M1999"_s);
    }
};

QTEST_APPLESS_MAIN(tst_TreeExport)
#include "tst_TreeExport.moc"
