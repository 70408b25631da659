#include "appinfo/SharedMembers.h"
#include "support/Errors.h"
#include "support/FakeHfm.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_SharedMembers : public QObject
{
    Q_OBJECT

private:
    FakeHfm mHfm;

    FakeDimension &dimension(const QString &outline)
    {
        FakeDimension &fresh = mHfm.newApplication().account();
        fresh.setMembers(outline);
        mHfm.calls().clear();
        return fresh;
    }
    QString report(const QString &outline)
    {
        FakeDimension &members = dimension(outline);
        return SharedMembers::report(members, SharedMembers::occurrences(members));
    }

private Q_SLOTS:
    void theWalkGoesDownBeforeItGoesOn()
    {
        FakeDimension &members = dimension(u"P\n  Q\n    A\n  B\nR\n  Q\n"_s);
        const hfm::Occurrences found = SharedMembers::occurrences(members);
        // P 0, Q 1, A 2, B 3, R 4
        QCOMPARE(found.members, QList<hfm::MemberId>({0, 1, 2, 3, 4, 1, 2}));
        QCOMPARE(found.parents, QList<hfm::MemberId>({-1, 0, 1, 0, -1, 4, 1}));
        QCOMPARE(mHfm.calls().count("EnumChildMembers"_L1), 8);
    }

    void withoutSharedMembersItSaysSo()
    {
        QCOMPARE(report(u"P\n  A\nQ\n  B\n"_s), u"No Shared Members Detected"_s);
        QCOMPARE(report({}), u"No Shared Members Detected"_s);
    }

    void aBaseMemberUnderTwoParentsYieldsOneLineWithTheFirst()
    {
        QCOMPARE(report(u"P1\n  A\nP2\n  A\n"_s), u"A (P1)\r\n"_s);
    }

    void aMemberThatOccursFourTimesIsListedThreeTimesWithAllParentsButTheLast()
    {
        QCOMPARE(report(u"P1\n  A\nP2\n  A\nP3\n  A\nP4\n  A\n"_s),
                 u"A (P1)\r\nA (P2)\r\nA (P3)\r\n"_s);
    }

    void aTopLevelOccurrenceThatComesFirstIsBelowTheDimensionsRoot()
    {
        QCOMPARE(report(u"A\nP\n  A\n"_s), u"A (<DimRoot>)\r\n"_s);
    }

    void aTopLevelOccurrenceThatComesLastIsNotListed()
    {
        QCOMPARE(report(u"P\n  A\nA\n"_s), u"A (P)\r\n"_s);
    }

    void aSharedParentIsMarkedBehindTheParenthesis()
    {
        QCOMPARE(report(u"P\n  S\n    A\nQ\n  S\n"_s), u"S (P) **\r\nA (S)\r\n"_s);
    }

    void aParentWhoseLabelIsBlankIsShownAsTheRoot()
    {
        FakeDimension &members = dimension(u"P\n  A\nQ\n  A\n"_s);
        members.members().at(0).label = u"  "_s;
        QCOMPARE(SharedMembers::report(members, SharedMembers::occurrences(members)),
                 u"A (<DimRoot>)\r\n"_s);
    }

    void linesAreReadInTheOrderOfTheirParts()
    {
        FakeDimension &members = dimension(u"P\n  A\nQ\n  A\n"_s);
        const hfm::Occurrences found = SharedMembers::occurrences(members);
        mHfm.calls().clear();
        SharedMembers::report(members, found);
        QCOMPARE(mHfm.calls().made(),
                 QStringList({u"GetMemberLabel"_s, u"GetMemberLabel"_s, u"GetHasChildren"_s}));
    }

    void aChainOf32767MembersIsWalked()
    {
        FakeDimension &members = dimension({});
        hfm::MemberId parent = hfm::rootMember;
        for (int i = 0; i < 32'767; ++i)
            parent = members.members().add(parent, QString::number(i));
        QCOMPARE(SharedMembers::occurrences(members).members.size(), 32'767);
    }

    void moreThan32767OccurrencesOverflow()
    {
        FakeDimension &members = dimension({});
        const hfm::MemberId top = members.members().add(hfm::rootMember, u"TOP"_s);
        for (int i = 0; i < 32'767; ++i)
            members.members().add(top, QString::number(i));
        const auto error = errorOf([&] { SharedMembers::occurrences(members); });
        QVERIFY(error);
        QCOMPARE(error->number(), Overflow);
    }

    void parentsSharedBeyondAnyMemoryOverflowAtOnce()
    {
        FakeDimension &members = dimension({});
        // Each of 40 levels stands twice below the one above it: 2^40 occurrences.
        QList<hfm::MemberId> above = {hfm::rootMember};
        for (int level = 0; level < 40; ++level) {
            const QList<QString> pair = {u"L%1"_s.arg(level), u"R%1"_s.arg(level)};
            QList<hfm::MemberId> added;
            for (const QString &label : pair)
                for (const hfm::MemberId parent : above)
                    added.append(members.members().add(parent, label));
            above = {members.members().find(pair[0]), members.members().find(pair[1])};
        }
        const auto error = errorOf([&] { SharedMembers::occurrences(members); });
        QVERIFY(error);
        QCOMPARE(error->number(), Overflow);
        QVERIFY(mHfm.calls().count("EnumChildMembers"_L1) < 33'000);
    }
};

QTEST_APPLESS_MAIN(tst_SharedMembers)
#include "tst_SharedMembers.moc"
