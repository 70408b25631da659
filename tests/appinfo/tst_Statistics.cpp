#include "appinfo/Statistics.h"
#include "support/Errors.h"
#include "support/FakeHfm.h"

#include <QTest>

using namespace Qt::StringLiterals;
using Statistics::Section;

namespace {

/// "count" children of one parent, as an outline.
QString parentWithChildren(int count)
{
    QString outline = u"TOP\n"_s;
    for (int i = 0; i < count; ++i)
        outline += u"  C%1\n"_s.arg(i);
    return outline;
}

} // namespace

class tst_Statistics : public QObject
{
    Q_OBJECT

private:
    FakeHfm mHfm;

    FakeDimension &dimension(const QString &outline)
    {
        FakeDimension &fresh = mHfm.newApplication().entity();
        fresh.setMembers(outline);
        mHfm.calls().clear();
        return fresh;
    }
    static QString report(hfm::Dimension &dimension, Section section = Section::None,
                          const QString &threshold = u"200"_s, const QLocale &locale = QLocale::c())
    {
        return Statistics::report(dimension, section, {threshold, locale});
    }
    /// The section behind the nine counts.
    static QString section(const QString &report) { return report.section(u"\r\n\r\n"_s, 9); }
    QString wideParents(const QString &outline, const QString &threshold,
                        const QLocale &locale = QLocale::c())
    {
        return section(report(dimension(outline), Section::WideParents, threshold, locale));
    }
    /// A count of the report, by its label.
    static int count(const QString &report, const QString &label)
    {
        const QStringList lines = report.split(u"\r\n\r\n"_s);
        for (const QString &line : lines)
            if (line.startsWith(label + u":  "_s))
                return line.mid(label.size() + 3).toInt();
        return -1;
    }

private Q_SLOTS:
    void theNineCountsStandInOrderWithBlankLinesBetweenAndNoLineBreakBehind()
    {
        QCOMPARE(report(dimension(u"P\n  A\n  Q\n    B\nR\n  B\n  Q\nC\n"_s)),
                 u"Total Members:  9\r\n\r\n"
                 "Total Distinct Members:  6\r\n\r\n"
                 "Total Base Members:  5\r\n\r\n"
                 "Total Distinct Base Members:  3\r\n\r\n"
                 "Total Parent Members:  4\r\n\r\n"
                 "Total Distinct Parent Members:  3\r\n\r\n"
                 "Duplicate Base Members:  2\r\n\r\n"
                 "Duplicate Parent Members:  1\r\n\r\n"
                 "Maximum Hierarchy Generation Depth:  3"_s);
    }

    void withoutSharedMembersTotalAndDistinctCountsAreEqual()
    {
        const QString text = report(dimension(u"P\n  A\n  B\nQ\n  C\n"_s));
        QCOMPARE(count(text, u"Total Members"_s), 5);
        QCOMPARE(count(text, u"Total Distinct Members"_s), 5);
        QCOMPARE(count(text, u"Total Base Members"_s), 3);
        QCOMPARE(count(text, u"Total Distinct Base Members"_s), 3);
        QVERIFY(text.contains(u"Duplicate Base Members:  0\r\n"_s));
        QVERIFY(text.contains(u"Duplicate Parent Members:  0\r\n"_s));
    }

    void aBaseMemberUnderThreeParentsAddsThreeAndOneAndTwo()
    {
        const QString without = report(dimension(u"P\n  A\nQ\n  B\nR\n  C\n"_s));
        const QString with = report(dimension(u"P\n  A\n  S\nQ\n  B\n  S\nR\n  C\n  S\n"_s));
        const auto added = [&](const QString &label) {
            return count(with, label) - count(without, label);
        };
        QCOMPARE(added(u"Total Base Members"_s), 3);
        QCOMPARE(added(u"Total Distinct Base Members"_s), 1);
        QCOMPARE(added(u"Duplicate Base Members"_s), 2);
        QCOMPARE(added(u"Total Parent Members"_s), 0);
    }

    void anEmptyHierarchyHasItsReportWithDepthZero()
    {
        const QString text = report(dimension({}));
        QCOMPARE(count(text, u"Total Members"_s), 0);
        QCOMPARE(count(text, u"Duplicate Parent Members"_s), 0);
        QVERIFY(text.endsWith(u"Maximum Hierarchy Generation Depth:  0"_s));
    }

    void baseMembersAtTheTopLevelAloneHaveDepthOne()
    {
        QCOMPARE(count(report(dimension(u"A\nB\n"_s)), u"Maximum Hierarchy Generation Depth"_s), 1);
    }

    void theDepthIsThatOfTheDeepestTopLevelMember()
    {
        const QString text = report(dimension(u"A\nP\n  Q\n    R\n      B\nS\n  C\n"_s));
        QCOMPARE(count(text, u"Maximum Hierarchy Generation Depth"_s), 4);
    }

    void membersAreCountedByFourEnumerationsFromTheRoot()
    {
        FakeDimension &members = dimension(u"P\n  A\nB\n"_s);
        report(members);
        QCOMPARE(mHfm.calls().made().join(u' '),
                 u"EnumMembersBelow EnumMembersBelow EnumBaseMembers EnumBaseMembers "
                 "EnumChildMembers GetGenerationsBelow GetGenerationsBelow"_s);
    }

    void accountsAddTheNumberOfSystemMembers()
    {
        FakeDimension &account = dimension(u"A\n[PCON]\n[Active]\n"_s);
        account.addSystemList(u"[System]"_s, {u"[PCON]"_s, u"[Active]"_s});
        const QString text = report(account, Section::SystemAccounts);
        QVERIFY(text.endsWith(
            u"Maximum Hierarchy Generation Depth:  1\r\n\r\nSystem Account Members: 2"_s));
    }

    void anEmptySystemListIsError13()
    {
        FakeDimension &account = dimension(u"A\n"_s);
        account.addSystemList(u"[System]"_s, {});
        const auto error = errorOf([&] { report(account, Section::SystemAccounts); });
        QVERIFY(error);
        QCOMPARE(error->number(), TypeMismatch);
    }

    void aMissingSystemListIsTheClientsError()
    {
        FakeDimension &account = dimension(u"A\n"_s);
        const auto error = errorOf([&] { report(account, Section::SystemAccounts); });
        QVERIFY(error);
        QCOMPARE(error->source(), u"HFM"_s);
    }

    void custom1AddsCurrenciesAndConsolidationMethods()
    {
        FakeDimension &custom = dimension(u"[None]\nEUR\nUSD\nGLOBAL\n"_s);
        custom.addSystemList(u"[Currencies]"_s, {u"EUR"_s, u"USD"_s});
        custom.addSystemList(u"[ConsolMethods]"_s, {u"GLOBAL"_s});
        QCOMPARE(section(report(custom, Section::CurrenciesAndConsolMethods)),
                 u"Currency Members: 2\r\n\r\nConsolMethod Members: 1"_s);
    }

    void custom1WithoutConsolidationMethodsPrintsZero()
    {
        FakeDimension &custom = dimension(u"EUR\n"_s);
        custom.addSystemList(u"[Currencies]"_s, {u"EUR"_s});
        custom.addSystemList(u"[ConsolMethods]"_s, {});
        QVERIFY(report(custom, Section::CurrenciesAndConsolMethods)
                    .endsWith(u"\r\n\r\nConsolMethod Members: 0"_s));
    }

    void emptyCurrenciesAreError13()
    {
        for (const Section section : {Section::CurrenciesAndConsolMethods, Section::Currencies}) {
            FakeDimension &custom = dimension(u"A\n"_s);
            custom.addSystemList(u"[Currencies]"_s, {});
            custom.addSystemList(u"[ConsolMethods]"_s, {u"A"_s});
            const auto error = errorOf([&] { report(custom, section); });
            QVERIFY(error);
            QCOMPARE(error->number(), TypeMismatch);
        }
    }

    void currenciesAreCountedBeforeConsolidationMethodsAreLookedUp()
    {
        FakeDimension &custom = dimension(u"A\n"_s);
        custom.addSystemList(u"[Currencies]"_s, {});
        const auto error = errorOf([&] { report(custom, Section::CurrenciesAndConsolMethods); });
        QVERIFY(error);
        QCOMPARE(error->number(), TypeMismatch); // not the client's error over the missing list
        custom.clearLists();
        custom.addSystemList(u"[ConsolMethods]"_s, {});
        mHfm.calls().clear();
        QVERIFY(errorOf([&] { report(custom, Section::CurrenciesAndConsolMethods); }));
        QCOMPARE(mHfm.calls().count("GetMemberListId"_L1), 1);
    }

    void custom2AddsCurrenciesAndNoConsolidationMethods()
    {
        FakeDimension &custom = dimension(u"EUR\nUSD\nCHF\n"_s);
        custom.addSystemList(u"[Currencies]"_s, {u"EUR"_s, u"USD"_s, u"CHF"_s});
        QCOMPARE(section(report(custom, Section::Currencies)), u"Currency Members: 3"_s);
    }

    void custom3AndCustom4AddNothing()
    {
        QVERIFY(report(dimension(u"A\n"_s)).endsWith(u"Maximum Hierarchy Generation Depth:  1"_s));
    }

    void anOptionsIndexGivesItsSection()
    {
        QCOMPARE(Statistics::sectionOfOption(12), Section::SystemAccounts);
        QCOMPARE(Statistics::sectionOfOption(13), Section::WideParents);
        QCOMPARE(Statistics::sectionOfOption(14), Section::CurrenciesAndConsolMethods);
        QCOMPARE(Statistics::sectionOfOption(15), Section::Currencies);
        for (const int none : {0, 11, 16, 17, 18})
            QCOMPARE(Statistics::sectionOfOption(none), Section::None);
    }

    void aParentWithExactlyTheThresholdIsNotListedAndOneMoreIs()
    {
        QCOMPARE(wideParents(parentWithChildren(200), u"200"_s),
                 u"Parents with more than 200 Children: "_s);
        QCOMPARE(wideParents(parentWithChildren(201), u"200"_s),
                 u"Parents with more than 200 Children: \r\n\tTOP"_s);
    }

    void wideParentsStandInTheClientsOrderEachOnceAndWithoutALineBreakBehindTheLast()
    {
        // Q is a member before P, which shares it.
        QCOMPARE(wideParents(u"Q\n  A\n  B\nP\n  Q\n  C\nR\n  D\n"_s, u"1"_s),
                 u"Parents with more than 1 Children: \r\n\tQ\r\n\tP"_s);
    }

    void theThresholdMayHaveAFraction()
    {
        QCOMPARE(wideParents(u"P\n  A\nQ\n  B\n  C\n"_s, u"1.5"_s),
                 u"Parents with more than 1.5 Children: \r\n\tQ"_s);
    }

    void theThresholdIsReadInTheRegionalFormatAndShownAsTyped()
    {
        const QLocale german(QLocale::German, QLocale::Germany);
        QCOMPARE(wideParents(u"P\n  A\nQ\n  B\n  C\n"_s, u" 1,5 "_s, german),
                 u"Parents with more than  1,5  Children: \r\n\tQ"_s);
        QCOMPARE(wideParents(parentWithChildren(1001), u"1.000"_s, german),
                 u"Parents with more than 1.000 Children: \r\n\tTOP"_s);
        QCOMPARE(wideParents(parentWithChildren(3), u"-1e0"_s, german),
                 u"Parents with more than -1e0 Children: \r\n\tTOP"_s);
    }

    void aThresholdThatIsNoNumberIsError13WhereThereIsAParent_data()
    {
        QTest::addColumn<QString>("threshold");
        QTest::newRow("letters") << u"abc"_s;
        QTest::newRow("nothing") << QString();
        QTest::newRow("blanks") << u"  "_s;
        QTest::newRow("number and letters") << u"200 children"_s;
        QTest::newRow("infinity") << u"inf"_s;
        QTest::newRow("not a number") << u"nan"_s;
    }
    void aThresholdThatIsNoNumberIsError13WhereThereIsAParent()
    {
        QFETCH(const QString, threshold);
        FakeDimension &entity = dimension(u"P\n  A\n"_s);
        const auto error = errorOf([&] { report(entity, Section::WideParents, threshold); });
        QVERIFY(error);
        QCOMPARE(error->number(), TypeMismatch);
        QCOMPARE(mHfm.calls().made().last(), u"GetChildCount"_s);
    }

    void withoutAParentTheThresholdIsNeverConverted()
    {
        QCOMPARE(wideParents(u"A\nB\n"_s, u"abc"_s), u"Parents with more than abc Children: "_s);
        QCOMPARE(wideParents({}, u"abc"_s), u"Parents with more than abc Children: "_s);
    }

    void eachMemberIsLookedUpOnceAndEachParentMeasuredOnce()
    {
        report(dimension(u"P\n  A\n  Q\n    B\nR\n  Q\n"_s), Section::WideParents, u"1"_s);
        QCOMPARE(mHfm.calls().count("EnumAllMemberLabels"_L1), 1);
        QCOMPARE(mHfm.calls().count("GetMemberId"_L1), 5);
        QCOMPARE(mHfm.calls().count("GetHasChildren"_L1), 5);
        QCOMPARE(mHfm.calls().count("GetChildCount"_L1), 3);
        QCOMPARE(mHfm.calls().count("GetMemberLabel"_L1), 1);
    }

    void moreThan32767MembersAreCounted()
    {
        const QString text =
            report(dimension(parentWithChildren(32'768)), Section::WideParents, u"32767"_s);
        QCOMPARE(count(text, u"Total Members"_s), 32'769);
        QCOMPARE(section(text), u"Parents with more than 32767 Children: \r\n\tTOP"_s);
    }
};

QTEST_APPLESS_MAIN(tst_Statistics)
#include "tst_Statistics.moc"
