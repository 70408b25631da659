#include "appinfo/Duplicates.h"
#include "support/Errors.h"
#include "support/FakeHfm.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_Duplicates : public QObject
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
    QStringList duplicates(const QString &outline, const QString &parent)
    {
        QString text;
        Duplicates::append(dimension(outline), parent, text);
        return text.split(u"\r\n"_s);
    }
    void addBaseMembers(FakeDimension &entity, int count)
    {
        const hfm::MemberId top = entity.members().add(hfm::rootMember, u"TOP"_s);
        for (int i = 0; i < count; ++i)
            entity.members().add(top, u"C%1"_s.arg(i));
    }

private Q_SLOTS:
    void theHeadingHoldsTheLabelInUpperCaseAndABlankLine()
    {
        QCOMPARE(Duplicates::heading(u"Europe"_s),
                 u"Duplicate members under parent member EUROPE: \r\n\r\n"_s);
    }

    void aSubtreeWithoutSharedMembersGivesNothing()
    {
        QCOMPARE(duplicates(u"P\n  A\n  B\nQ\n  A\n"_s, u"P"_s), QStringList{QString()});
    }

    void aMemberSharedTwiceStandsAtThePlacesOfItsTwoOccurrences()
    {
        QCOMPARE(
            duplicates(u"P\n  Q\n    A\n    B\n  R\n    C\n    A\n    C2\n  S\n    B\n"_s, u"P"_s),
            QStringList({u"A"_s, u"B"_s, u"A"_s, u"B"_s, QString()}));
    }

    void aMemberThatOccursThreeTimesIsListedThreeTimes()
    {
        QCOMPARE(duplicates(u"P\n  Q\n    A\n  R\n    A\n  A\n"_s, u"P"_s),
                 QStringList({u"A"_s, u"A"_s, u"A"_s, QString()}));
    }

    void aSharedParentIsListedWithAllBelowIt()
    {
        QCOMPARE(duplicates(u"P\n  Q\n    S\n      A\n  S\n"_s, u"p"_s),
                 QStringList({u"S"_s, u"A"_s, u"S"_s, u"A"_s, QString()}));
    }

    void whatStandsInTheTextAlreadyStays()
    {
        QString text = u"before"_s;
        Duplicates::append(dimension(u"P\n  A\n  Q\n    A\n"_s), u"P"_s, text);
        QCOMPARE(text, u"beforeA\r\nA\r\n"_s);
    }

    void nothingBelowTheParentIsError13()
    {
        FakeDimension &entity = dimension(u"P\n  A\n"_s);
        QString text;
        const auto error = errorOf([&] { Duplicates::append(entity, u"A"_s, text); });
        QVERIFY(error);
        QCOMPARE(error->number(), TypeMismatch);
        QCOMPARE(text, QString());
    }

    void anUnknownParentIsTheClientsError()
    {
        FakeDimension &entity = dimension(u"P\n  A\n"_s);
        QString text;
        const auto error = errorOf([&] { Duplicates::append(entity, u"X"_s, text); });
        QVERIFY(error);
        QCOMPARE(error->number(), InvalidProcedureCall);
        QCOMPARE(error->source(), u"HFM"_s);
        QCOMPARE(error->description(), u"'X' is not a member of Entity."_s);
    }

    void whatWasAppendedBeforeAFailureStays()
    {
        FakeDimension &entity = dimension(u"P\n  A\n  Q\n    A\n"_s);
        mHfm.calls().fail("GetMemberLabel"_L1, RuntimeError(InvalidProcedureCall), 2);
        QString text;
        QVERIFY(errorOf([&] { Duplicates::append(entity, u"P"_s, text); }));
        QCOMPARE(text, u"A\r\n"_s);
    }

    void exactly32767OccurrencesAreSearched()
    {
        FakeDimension &entity = dimension({});
        addBaseMembers(entity, 32'766);
        entity.members().add(entity.GetMemberId(u"C0"_s), u"C1"_s);
        QString text;
        Duplicates::append(entity, u"TOP"_s, text);
        QCOMPARE(text, u"C1\r\nC1\r\n"_s);
    }

    void moreThan32767OccurrencesOverflow()
    {
        FakeDimension &entity = dimension({});
        addBaseMembers(entity, 32'768);
        QString text;
        const auto error = errorOf([&] { Duplicates::append(entity, u"TOP"_s, text); });
        QVERIFY(error);
        QCOMPARE(error->number(), Overflow);
    }
};

QTEST_APPLESS_MAIN(tst_Duplicates)
#include "tst_Duplicates.moc"
