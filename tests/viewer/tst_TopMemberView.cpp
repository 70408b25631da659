#include "runtime/RuntimeError.h"
#include "support/FakeHfm.h"
#include "viewer/TopMemberView.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

void build(MemberTree &tree, const QString &outline)
{
    FakeHfm hfm;
    FakeDimension &dimension = hfm.application().account();
    dimension.setMembers(outline);
    MemberPaths paths;
    paths.read(dimension);
    tree.build(paths, [&](hfm::MemberId member) { return dimension.GetMemberLabel(member); });
}

} // namespace

class tst_TopMemberView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theNameIsTheLabel()
    {
        QCOMPARE(TopMemberView::name(u"Sales - All sales (UD1=x-y)"), u"Sales"_s);
        QCOMPARE(TopMemberView::name(u"Sales - "), u"Sales"_s);
        QCOMPARE(TopMemberView::name(u" - nothing"), QString());
    }

    void aLabelWithAHyphenIsCutShortAtIt()
    {
        QCOMPARE(TopMemberView::name(u"Net-Sales - Net"), u"Ne"_s);
        QCOMPARE(TopMemberView::name(u"A-B - Net"), QString());
    }

    void aHyphenAtTheBeginningIsAnInvalidCall_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("at the beginning") << u"-Net - Net"_s;
        QTest::newRow("nowhere") << u"Net"_s;
        QTest::newRow("empty") << QString();
    }
    void aHyphenAtTheBeginningIsAnInvalidCall()
    {
        QFETCH(QString, text);
        try {
            TopMemberView::name(text);
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 5);
        }
    }

    void aTopMemberWithoutChildren()
    {
        MemberTree tree;
        build(tree, u"A"_s);
        const auto below = TopMemberView::below(tree, 0);
        QCOMPARE(below.count, 0);
        QCOMPARE(below.generations, 0);
    }

    void aTopMemberWithChildrenOnly()
    {
        MemberTree tree;
        build(tree, u"A\n  B\n  C\nD"_s);
        const auto below = TopMemberView::below(tree, 0);
        QCOMPARE(below.count, 2);
        QCOMPARE(below.generations, 1);
    }

    void generationsCountFromTheTopMember()
    {
        MemberTree tree;
        build(tree, u"T\n  A\n    B\n      C\n    D\n  E\n    F\n      G\n        H"_s);
        const auto below = TopMemberView::below(tree, 1);
        QCOMPARE(below.count, 3);
        QCOMPARE(below.generations, 2);
    }

    void aSharedSubtreeCountsInEachPlace()
    {
        MemberTree tree;
        build(tree, u"T\n  A\n    S\n      X\n  B\n    S"_s);
        QCOMPARE(TopMemberView::below(tree, 0).count, 6);
        QCOMPARE(TopMemberView::below(tree, 0).generations, 3);
    }
};

QTEST_APPLESS_MAIN(tst_TopMemberView)
#include "tst_TopMemberView.moc"
