#include "extract/ExtractBuilder.h"
#include "support/FakeHfm.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Lines as they stand in an extract.
QString lines(const QStringList &list)
{
    QString text;
    for (const QString &line : list)
        text += line + u"\r\n"_s;
    return text;
}

const QString fourNames = u"PARENT_LABEL,PARENT_DESCRIPTION,CHILD_LABEL,CHILD_DESCRIPTION"_s;
const ExtractIndicators dynamicStore = {u"Dynamic"_s, u"Store"_s};

} // namespace

class tst_ExtractBuilder : public QObject
{
    Q_OBJECT

private:
    FakeHfm mHfm;

    FakeDimension &dimension(const QString &outline)
    {
        mHfm.newApplication().account().setMembers(outline);
        mHfm.calls().clear();
        return mHfm.application().account();
    }

    QString rows(const QString &outline, const ExtractIndicators &indicators = {})
    {
        return buildExtract(dimension(outline), 0, indicators).rows;
    }

    void compareError(qint32 number, FakeDimension &dimension, qsizetype longest = longestExtract)
    {
        try {
            buildExtract(dimension, 0, {}, longest);
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), number);
        }
    }

private Q_SLOTS:
    void aDimensionWithoutMembersYieldsEmptyRowsAndOnlyTheHeaderLine()
    {
        const ExtractTexts texts = buildExtract(dimension(u""_s), 0, dynamicStore);
        QCOMPARE(texts.rows, QString());
        QCOMPARE(texts.rowsWithHeader, fourNames + u",INDICATOR\r\n"_s);
        QCOMPARE(mHfm.calls().made(), QStringList{u"EnumChildMembers"_s});
    }

    void aTopLevelBaseMemberGivesOneLineOfFiveQuotedFields()
    {
        QCOMPARE(rows(u"A|Alpha"_s, dynamicStore), u"\"\",\"\",\"A\",\"Alpha\",\"Store\"\r\n"_s);
    }

    void aLineHoldsTheParentThenTheChildThenTheIndicator()
    {
        QCOMPARE(rows(u"A|Alpha\n  B|Beta"_s, dynamicStore),
                 lines({u"\"\",\"\",\"A\",\"Alpha\",\"Dynamic\""_s,
                        u"\"A\",\"Alpha\",\"B\",\"Beta\",\"Store\""_s}));
    }

    void withoutIndicatorsEveryLineEndsAfterTheChildDescription()
    {
        QCOMPARE(rows(u"A|Alpha\n  B|Beta"_s),
                 lines({u"\"\",\"\",\"A\",\"Alpha\""_s, u"\"A\",\"Alpha\",\"B\",\"Beta\""_s}));
    }

    void aBlankParentIndicatorGivesParentLinesOfFourFieldsAndBaseLinesOfFive()
    {
        const ExtractTexts texts =
            buildExtract(dimension(u"A|Alpha\n  B|Beta"_s), 0, {u""_s, u"Store"_s});
        QCOMPARE(texts.rows, lines({u"\"\",\"\",\"A\",\"Alpha\""_s,
                                    u"\"A\",\"Alpha\",\"B\",\"Beta\",\"Store\""_s}));
        QVERIFY(texts.rowsWithHeader.startsWith(fourNames + u",INDICATOR\r\n"_s));
    }

    void aBlankBaseIndicatorGivesBaseLinesOfFourFieldsAndAHeaderThatEndsInAComma()
    {
        const ExtractTexts texts =
            buildExtract(dimension(u"A|Alpha\n  B|Beta"_s), 0, {u"Dynamic"_s, u""_s});
        QCOMPARE(texts.rows, lines({u"\"\",\"\",\"A\",\"Alpha\",\"Dynamic\""_s,
                                    u"\"A\",\"Alpha\",\"B\",\"Beta\""_s}));
        QCOMPARE(texts.rowsWithHeader, fourNames + u",\r\n"_s + texts.rows);
    }

    void anIndicatorOfOnlyBlanksIsBlank()
    {
        const ExtractTexts texts = buildExtract(dimension(u"A|Alpha"_s), 0, {u"  "_s, u"   "_s});
        QCOMPARE(texts.rows, u"\"\",\"\",\"A\",\"Alpha\"\r\n"_s);
        QCOMPARE(texts.rowsWithHeader, fourNames + u"\r\n"_s + texts.rows);
    }

    void anIndicatorThatIsNotBlankIsWrittenUntrimmed()
    {
        QCOMPARE(rows(u"A|Alpha"_s, {u"Dynamic"_s, u"  Store "_s}),
                 u"\"\",\"\",\"A\",\"Alpha\",\"  Store \"\r\n"_s);
    }

    void onlyBlanksCountAsBlank()
    {
        QCOMPARE(rows(u"A|Alpha"_s, {u""_s, u"\t"_s}), u"\"\",\"\",\"A\",\"Alpha\",\"\t\"\r\n"_s);
    }

    void theHeaderLineFollowsTheTwoIndicators_data()
    {
        QTest::addColumn<QString>("parent");
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("rest");
        QTest::newRow("both") << u"P"_s << u"B"_s << u",INDICATOR\r\n"_s;
        QTest::newRow("parent alone") << u"P"_s << u" "_s << u",\r\n"_s;
        QTest::newRow("base alone") << u" "_s << u"B"_s << u",INDICATOR\r\n"_s;
        QTest::newRow("none") << u""_s << u""_s << u"\r\n"_s;
    }

    void theHeaderLineFollowsTheTwoIndicators()
    {
        QFETCH(QString, parent);
        QFETCH(QString, base);
        QFETCH(QString, rest);
        const ExtractTexts texts = buildExtract(dimension(u"A\n  B"_s), 0, {parent, base});
        QCOMPARE(texts.rowsWithHeader, fourNames + rest + texts.rows);
    }

    void aQuoteInALabelOrDescriptionIsWrittenAsItStands()
    {
        QCOMPARE(rows(u"A \"x\"|The \"big\" one\n  B,1|a, \"b\""_s),
                 lines({u"\"\",\"\",\"A \"x\"\",\"The \"big\" one\""_s,
                        u"\"A \"x\"\",\"The \"big\" one\",\"B,1\",\"a, \"b\"\""_s}));
    }

    void aMemberWithoutADescriptionHasAnEmptyField()
    {
        QCOMPARE(rows(u"A\n  B"_s), lines({u"\"\",\"\",\"A\",\"\""_s, u"\"A\",\"\",\"B\",\"\""_s}));
    }

    void descriptionsAreThoseOfTheLanguage()
    {
        FakeDimension &account = dimension(u"A|Sales|Ventes|Verkäufe\n  B|Net|Net|"_s);
        QCOMPARE(buildExtract(account, 2, {}).rows,
                 lines({u"\"\",\"\",\"A\",\"Verkäufe\""_s, u"\"A\",\"Verkäufe\",\"B\",\"\""_s}));
    }

    void eachLineIsFollowedAtOnceByTheLinesOfTheChildsOwnSubtree()
    {
        QCOMPARE(rows(u"Z\n  Y\n    X\n  W\nA\n  B"_s),
                 lines({u"\"\",\"\",\"Z\",\"\""_s, u"\"Z\",\"\",\"Y\",\"\""_s,
                        u"\"Y\",\"\",\"X\",\"\""_s, u"\"Z\",\"\",\"W\",\"\""_s,
                        u"\"\",\"\",\"A\",\"\""_s, u"\"A\",\"\",\"B\",\"\""_s}));
    }

    void aSharedMemberIsWrittenUnderEachParentWithItsSubtreeEachTime()
    {
        QCOMPARE(rows(u"A\n  S|Shared\n    T\nB\n  S"_s),
                 lines({u"\"\",\"\",\"A\",\"\""_s, u"\"A\",\"\",\"S\",\"Shared\""_s,
                        u"\"S\",\"Shared\",\"T\",\"\""_s, u"\"\",\"\",\"B\",\"\""_s,
                        u"\"B\",\"\",\"S\",\"Shared\""_s, u"\"S\",\"Shared\",\"T\",\"\""_s}));
    }

    void hfmIsAskedForLabelDescriptionAndChildrenOfEachOccurrenceInTurn()
    {
        rows(u"A\n  B\nC"_s);
        const QStringList member = {u"GetMemberLabel"_s, u"GetMemberDescription"_s,
                                    u"GetHasChildren"_s, u"EnumChildMembers"_s};
        QCOMPARE(mHfm.calls().made(),
                 QStringList{u"EnumChildMembers"_s} + member + member + member);
    }

    void aParentOf32767ChildrenIsWritten()
    {
        FakeDimension &account = dimension(u"A"_s);
        for (int i = 0; i < 32767; ++i)
            account.members().add(0, u"B%1"_s.arg(i));
        QCOMPARE(buildExtract(account, 0, {}).rows.count(u'\n'), 32768);
    }

    void aParentOf32768ChildrenIsOverflow()
    {
        FakeDimension &account = dimension(u"A"_s);
        for (int i = 0; i < 32768; ++i)
            account.members().add(0, u"B%1"_s.arg(i));
        compareError(Overflow, account);
    }

    void moreThan32767TopLevelMembersAreOverflow()
    {
        FakeDimension &account = dimension(u""_s);
        for (int i = 0; i < 32768; ++i)
            account.members().add(hfm::rootMember, u"B%1"_s.arg(i));
        compareError(Overflow, account);
    }

    void manyMembersUnderManyParentsAreNoOverflow()
    {
        FakeDimension &account = dimension(u""_s);
        for (int p = 0; p < 4; ++p) {
            const hfm::MemberId parent = account.members().add(hfm::rootMember, u"P%1"_s.arg(p));
            for (int i = 0; i < 20000; ++i)
                account.members().add(parent, u"P%1B%2"_s.arg(p).arg(i));
        }
        QCOMPARE(buildExtract(account, 0, {}).rows.count(u'\n'), 80004);
    }

    void aChainOfAMillionMembersIsWritten()
    {
        FakeDimension &account = dimension(u""_s);
        hfm::MemberId parent = hfm::rootMember;
        for (int i = 0; i < 1000000; ++i)
            parent = account.members().add(parent, QString::number(i));
        const QString text = buildExtract(account, 0, dynamicStore).rows;
        QCOMPARE(text.count(u'\n'), 1000000);
        QVERIFY(text.endsWith(u"\"999998\",\"\",\"999999\",\"\",\"Store\"\r\n"_s));
    }

    void aTextOfTheLongestLengthIsBuilt()
    {
        FakeDimension &account = dimension(u"A|Alpha\n  B"_s);
        const ExtractTexts whole = buildExtract(account, 0, {});
        const ExtractTexts again = buildExtract(account, 0, {}, whole.rowsWithHeader.size());
        QCOMPARE(again.rowsWithHeader, whole.rowsWithHeader);
    }

    void aTextLongerThanTheLongestIsOutOfStringSpace()
    {
        const QString outline = u"A|Alpha\n  B"_s;
        const qsizetype whole = buildExtract(dimension(outline), 0, {}).rowsWithHeader.size();
        compareError(OutOfStringSpace, dimension(outline), whole - 1);
    }

    void sharedParentsThatMultiplyWithoutEndAreOutOfStringSpace()
    {
        // Each level has two members that share all children: 2^40 occurrences on the last.
        FakeDimension &account = dimension(u""_s);
        QList<hfm::MemberId> parents = {hfm::rootMember};
        for (int level = 0; level < 40; ++level) {
            QList<hfm::MemberId> members;
            for (const QString &line : {u"L%1"_s.arg(level), u"R%1"_s.arg(level)}) {
                hfm::MemberId member = 0;
                for (hfm::MemberId parent : parents)
                    member = account.members().add(parent, line);
                members.append(member);
            }
            parents = members;
        }
        try {
            buildExtract(account, 0, {}, 1 << 20);
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 14);
            QCOMPARE(error.description(), u"Out of string space"_s);
        }
    }

    void theLongestTextIsTwoToTheThirtiethCharacters()
    {
        QCOMPARE(longestExtract, qsizetype(1073741824));
    }

    void anErrorOfHfmIsPassedOn_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<int>("call");
        for (const char *name :
             {"EnumChildMembers", "GetMemberLabel", "GetMemberDescription", "GetHasChildren"}) {
            QTest::addRow("%s at first", name) << QString::fromLatin1(name) << 1;
            QTest::addRow("%s later", name) << QString::fromLatin1(name) << 2;
        }
    }

    void anErrorOfHfmIsPassedOn()
    {
        QFETCH(QString, operation);
        QFETCH(int, call);
        FakeDimension &account = dimension(u"A\n  B"_s);
        const QByteArray name = operation.toLatin1();
        mHfm.calls().fail(QLatin1StringView(name), RuntimeError(1234, u"HFM"_s, u"Lost."_s), call);
        try {
            buildExtract(account, 0, {});
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 1234);
            QCOMPARE(error.description(), u"Lost."_s);
        }
    }
};

QTEST_APPLESS_MAIN(tst_ExtractBuilder)
#include "tst_ExtractBuilder.moc"
