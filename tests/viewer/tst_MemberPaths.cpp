#include "runtime/RuntimeError.h"
#include "support/FakeHfm.h"
#include "viewer/MemberPaths.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList entries(const MemberPaths &paths)
{
    QStringList all;
    for (qint32 position = 0; position < paths.count(); ++position)
        all.append(paths.entry(position));
    return all;
}

qint32 errorOf(const std::function<void()> &action)
{
    try {
        action();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}

} // namespace

class tst_MemberPaths : public QObject
{
    Q_OBJECT

    FakeHfm mHfm;
    FakeDimension &mDimension = mHfm.application().account();
    MemberPaths mPaths;

private Q_SLOTS:
    void init()
    {
        mHfm.calls().clear();
        mHfm.calls().clearFaults();
    }

    void entriesStandInDepthFirstPreOrder()
    {
        mDimension.setMembers(u"A\n  B\n    C\n  D\nE"_s);
        mPaths.read(mDimension);
        QCOMPARE(entries(mPaths), QStringList({u"-1_ROOT#0_A"_s, u"0_A#1_B"_s, u"1_B#2_C"_s,
                                               u"0_A#3_D"_s, u"-1_ROOT#4_E"_s}));
    }

    void aSharedMembersSubtreeIsRepeatedUnderEachOccurrence()
    {
        mDimension.setMembers(u"A\n  S\n    X\nB\n  S"_s);
        mPaths.read(mDimension);
        QCOMPARE(entries(mPaths), QStringList({u"-1_ROOT#0_A"_s, u"0_A#1_S"_s, u"1_S#2_X"_s,
                                               u"-1_ROOT#3_B"_s, u"3_B#1_S"_s, u"1_S#2_X"_s}));
    }

    void aDimensionWithoutMembersHasNoEntries()
    {
        mDimension.setMembers({});
        mPaths.read(mDimension);
        QCOMPARE(mPaths.count(), 0);
        QCOMPARE(mHfm.calls().made(), QStringList{u"EnumChildMembers"_s});
    }

    void eachOccurrenceCostsOneLabelAndOneReadOfItsChildren()
    {
        mDimension.setMembers(u"A\n  S\n    X\nB\n  S"_s);
        mPaths.read(mDimension);
        QCOMPARE(mHfm.calls().count("GetMemberLabel"_L1), 6);
        QCOMPARE(mHfm.calls().count("EnumChildMembers"_L1), 7);
        QCOMPARE(mHfm.calls().made().size(), 13);
    }

    void readingAgainReplacesTheEntries()
    {
        mDimension.setMembers(u"A\n  B"_s);
        mPaths.read(mDimension);
        mDimension.setMembers(u"C"_s);
        mPaths.read(mDimension);
        QCOMPARE(entries(mPaths), QStringList{u"-1_ROOT#0_C"_s});
    }

    void aFailureKeepsWhatWasRead()
    {
        mDimension.setMembers(u"A\n  B\nC"_s);
        mHfm.calls().fail("GetMemberLabel"_L1, RuntimeError(70), 3);
        QCOMPARE(errorOf([&] { mPaths.read(mDimension); }), 70);
        QCOMPARE(entries(mPaths), QStringList({u"-1_ROOT#0_A"_s, u"0_A#1_B"_s}));
    }

    void thePartsOfAnEntryAreParted_data()
    {
        QTest::addColumn<QString>("parent");
        QTest::addColumn<QString>("child");
        QTest::addColumn<QString>("parentPart");
        QTest::addColumn<QString>("childPart");
        QTest::addColumn<int>("member"); // -1 where it is no number
        QTest::newRow("plain") << u"P"_s << u"C"_s << u"0_P"_s << u"1_C"_s << 1;
        QTest::newRow("underscores") << u"P_Q"_s << u"C_D_"_s << u"0_P_Q"_s << u"1_C_D_"_s << 1;
        QTest::newRow("# in the child") << u"P"_s << u"C#2_D"_s << u"0_P"_s << u"1_C#2_D"_s << 1;
        QTest::newRow("# in the parent") << u"P#Q"_s << u"C"_s << u"0_P"_s << u"Q#1_C"_s << -1;
        QTest::newRow("# and _ in the parent")
            << u"P#Q_R"_s << u"C"_s << u"0_P"_s << u"Q_R#1_C"_s << -1;
        QTest::newRow("# and a number in the parent")
            << u"P#77_R"_s << u"C"_s << u"0_P"_s << u"77_R#1_C"_s << 77;
        QTest::newRow("# at the end of the parent")
            << u"P#"_s << u"C"_s << u"0_P"_s << u"#1_C"_s << -1;
        QTest::newRow("# at the beginning of the parent")
            << u"#5_"_s << u"C"_s << u"0_"_s << u"5_#1_C"_s << 5;
        QTest::newRow("a parent that reads like the root")
            << u"-1_ROOT"_s << u"C"_s << u"0_-1_ROOT"_s << u"1_C"_s << 1;
        QTest::newRow("empty child") << u"P"_s << QString() << u"0_P"_s << u"1_"_s << 1;
    }
    void thePartsOfAnEntryAreParted()
    {
        QFETCH(QString, parent);
        QFETCH(QString, child);
        QFETCH(int, member);
        mDimension.setMembers(u"0\n  1"_s);
        mDimension.members().at(0).label = parent;
        mDimension.members().at(1).label = child;
        mPaths.read(mDimension);
        QTEST(mPaths.parentPart(1), "parentPart");
        QTEST(mPaths.childPart(1), "childPart");
        if (member == -1)
            QCOMPARE(errorOf([&] { mPaths.memberId(1); }), 13);
        else
            QCOMPARE(mPaths.memberId(1), member);
    }

    void anIdBeyond32BitsIsOverflow()
    {
        mDimension.setMembers(u"0\n  1"_s);
        mDimension.members().at(0).label = u"P#2147483648_"_s;
        mPaths.read(mDimension);
        QCOMPARE(errorOf([&] { mPaths.memberId(1); }), 6);
        mDimension.members().at(0).label = u"P#-2147483648_"_s;
        mPaths.read(mDimension);
        QCOMPARE(mPaths.memberId(1), std::numeric_limits<qint32>::min());
    }

    void aMemberBelowItselfIsOutOfStackSpace()
    {
        mDimension.setMembers(u"A\n  B\n    C\nD"_s);
        mDimension.members().at(2).children.append(0);
        QCOMPARE(errorOf([&] { mPaths.read(mDimension); }), 28);
        QCOMPARE(mPaths.count(), 4);
    }

    void moreOccurrencesThanMemoryHoldsAreRefused()
    {
        mDimension.setMembers(u"A\n  B\n  C\nD"_s);
        mPaths.read(mDimension, 4);
        QCOMPARE(mPaths.count(), 4);
        QCOMPARE(errorOf([&] { mPaths.read(mDimension, 3); }), 7);
        QCOMPARE(mPaths.count(), 3);
    }

    void allChildrenAreAskedForEachTime()
    {
        mDimension.setMembers(u"A\n  B\n    C\nD"_s);
        mPaths.read(mDimension);
        QCOMPARE(mHfm.calls().count("EnumChildMembers"_L1), 5);
        QCOMPARE(mDimension.childSelectors(), QSet<qint32>{-1});
    }
};

QTEST_APPLESS_MAIN(tst_MemberPaths)
#include "tst_MemberPaths.moc"
