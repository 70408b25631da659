#include "listbuilder/MemberRows.h"
#include "support/Errors.h"
#include "support/FakeHfm.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_MemberRows : public QObject
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

private Q_SLOTS:
    void aRowIsLabelHyphenDescription()
    {
        QCOMPARE(MemberRows::ofAllMembers(dimension(u"A|Alpha\n  B|Beta, net"_s)),
                 QStringList({u"A - Alpha"_s, u"B - Beta, net"_s}));
    }

    void aMissingDescriptionLeavesTheHyphenAndItsBlanks()
    {
        QCOMPARE(MemberRows::ofAllMembers(dimension(u"A"_s)), QStringList{u"A - "_s});
    }

    void descriptionsAreThoseOfTheFirstLanguage()
    {
        QCOMPARE(MemberRows::ofAllMembers(dimension(u"A|Alpha|Erste\nB||Zweite"_s)),
                 QStringList({u"A - Alpha"_s, u"B - "_s}));
    }

    void allMembersComeOnceInTheClientsOrderThoseWithoutANodeToo()
    {
        FakeDimension &account = dimension(u"Z\n  B\nA\n  B"_s);
        account.members().addUnplaced(u"AA|spare"_s);
        QCOMPARE(MemberRows::ofAllMembers(account),
                 QStringList({u"Z - "_s, u"B - "_s, u"A - "_s, u"AA - spare"_s}));
    }

    void aDimensionWithoutMembersHasNoRows()
    {
        QCOMPARE(MemberRows::ofAllMembers(dimension({})), QStringList());
    }

    void theClientIsAskedForTheMembersThenForEachOnesTexts()
    {
        MemberRows::ofAllMembers(dimension(u"A\nB"_s));
        QCOMPARE(mHfm.calls().made(),
                 QStringList({u"EnumAllMembers"_s, u"GetMemberLabel"_s, u"GetMemberDescription"_s,
                              u"GetMemberLabel"_s, u"GetMemberDescription"_s}));
    }

    void aFailureOfTheClientIsTheRowsFailure()
    {
        for (const QLatin1StringView operation :
             {"EnumAllMembers"_L1, "GetMemberLabel"_L1, "GetMemberDescription"_L1}) {
            FakeDimension &account = dimension(u"A"_s);
            mHfm.calls().fail(operation, RuntimeError(1234));
            const auto error = errorOf([&] { MemberRows::ofAllMembers(account); });
            QVERIFY(error);
            QCOMPARE(error->number(), 1234);
        }
    }

    void moreThan32767MembersOverflow()
    {
        FakeDimension &account = dimension({});
        for (int i = 0; i < 32'767; ++i)
            account.members().addUnplaced(QString::number(i));
        QCOMPARE(MemberRows::ofAllMembers(account).size(), 32'767);
        account.members().addUnplaced(u"one more"_s);
        const auto error = errorOf([&] { MemberRows::ofAllMembers(account); });
        QVERIFY(error);
        QCOMPARE(error->number(), Overflow);
    }

    // The label part.

    void theLabelPartEndsBeforeTheBlankBeforeTheFirstHyphen_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<QString>("label");
        QTest::newRow("a label") << u"Sales - Net sales"_s << u"Sales"_s;
        QTest::newRow("no description") << u"Sales - "_s << u"Sales"_s;
        QTest::newRow("hyphens in the description") << u"Sales - Net - all-in"_s << u"Sales"_s;
        QTest::newRow("blanks in the label") << u" Net sales  - x"_s << u" Net sales "_s;
        QTest::newRow("A-B inserts an empty row") << u"A-B - Alpha"_s << u""_s;
        QTest::newRow("AB-C inserts the character A") << u"AB-C - Alpha"_s << u"A"_s;
        QTest::newRow("an empty label") << u" - Alpha"_s << u""_s;
    }

    void theLabelPartEndsBeforeTheBlankBeforeTheFirstHyphen()
    {
        QFETCH(QString, row);
        QTEST(MemberRows::labelPart(row), "label");
    }

    void aRowThatBeginsWithAHyphenIsAnInvalidProcedureCall()
    {
        const auto error = errorOf([] { MemberRows::labelPart(u"-A - Alpha"_s); });
        QVERIFY(error);
        QCOMPARE(error->number(), InvalidProcedureCall);
    }

    void aRowWithoutAHyphenIsAnInvalidProcedureCall()
    {
        const auto error = errorOf([] { MemberRows::labelPart(u"Sales"_s); });
        QVERIFY(error);
        QCOMPARE(error->number(), InvalidProcedureCall);
    }
};

QTEST_APPLESS_MAIN(tst_MemberRows)
#include "tst_MemberRows.moc"
