#include "appinfo/BaseMemberCompare.h"
#include "support/Errors.h"
#include "support/FakeHfm.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_BaseMemberCompare : public QObject
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
    static QStringList missing(hfm::Dimension &dimension, const QString &from, const QString &to)
    {
        QString text;
        BaseMemberCompare::append(dimension, from, to, text);
        return text.split(u"\r\n"_s);
    }
    static qint32 errorNumber(hfm::Dimension &dimension, const QString &from, const QString &to)
    {
        const auto error = errorOf([&] { missing(dimension, from, to); });
        return error ? error->number() : 0;
    }

private Q_SLOTS:
    void theHeadingHoldsBothLabelsInUpperCaseAndABlankLine()
    {
        QCOMPARE(BaseMemberCompare::heading(u"eu"_s, u"Legal"_s),
                 u"Base members under top member EU and NOT under LEGAL: \r\n\r\n"_s);
    }

    void theMessageAboutAMissingChoiceIsThis()
    {
        const Prompt expected{
            u"Compare Error"_s,
            u"You must choose a top member from BOTH drop-down boxes to compare."_s,
            Prompt::Icon::Exclamation, Prompt::Buttons::Ok};
        QCOMPARE(BaseMemberCompare::choiceMissing(), expected);
    }

    void baseMembersOfTheFirstThatTheSecondLacksAreListedInOrder()
    {
        FakeDimension &entity = dimension(u"P\n  C\n  A\n  S\n    B\nQ\n  A\n  D\n"_s);
        QCOMPARE(missing(entity, u"P"_s, u"Q"_s), QStringList({u"C"_s, u"B"_s, QString()}));
        QCOMPARE(missing(entity, u"q"_s, u"p"_s), QStringList({u"D"_s, QString()}));
    }

    void theFirstParentsMembersAreReadBeforeTheSecondsAreLookedUp()
    {
        FakeDimension &entity = dimension(u"P\n  A\nQ\n  A\n"_s);
        missing(entity, u"P"_s, u"Q"_s);
        QCOMPARE(mHfm.calls().made(), QStringList({u"GetMemberId"_s, u"EnumBaseMembers"_s,
                                                   u"GetMemberId"_s, u"EnumBaseMembers"_s}));
        const auto error = errorOf([&] { missing(entity, u"X"_s, u"Y"_s); });
        QVERIFY(error);
        QCOMPARE(error->description(), u"'X' is not a member of Entity."_s);
    }

    void theSameParentTwiceGivesNothing()
    {
        FakeDimension &entity = dimension(u"P\n  A\n  B\n"_s);
        QCOMPARE(missing(entity, u"P"_s, u"P"_s), QStringList{QString()});
    }

    void aBaseMemberSharedTwiceBelowTheFirstIsListedTwice()
    {
        FakeDimension &entity = dimension(u"P\n  A\n  R\n    A\n    B\nQ\n  B\n"_s);
        QCOMPARE(missing(entity, u"P"_s, u"Q"_s), QStringList({u"A"_s, u"A"_s, QString()}));
    }

    void noBaseMembersBelowEitherIsError13()
    {
        FakeDimension &entity = dimension(u"P\n  A\nB\n"_s);
        QCOMPARE(errorNumber(entity, u"B"_s, u"P"_s), qint32(TypeMismatch));
        QCOMPARE(errorNumber(entity, u"P"_s, u"B"_s), qint32(TypeMismatch));
    }

    void aTypedTextThatIsNoMemberIsTheClientsError()
    {
        FakeDimension &entity = dimension(u"P\n  A\n"_s);
        QCOMPARE(errorNumber(entity, u"P"_s, u"X"_s), qint32(InvalidProcedureCall));
        QCOMPARE(errorNumber(entity, u"X"_s, u"P"_s), qint32(InvalidProcedureCall));
    }

    void moreThan32767OccurrencesBelowEitherOverflow()
    {
        FakeDimension &entity = dimension(u"P\n  A\nQ\n"_s);
        for (int i = 0; i < 32'767; ++i)
            entity.members().add(entity.members().find(u"Q"_s), QString::number(i));
        QCOMPARE(missing(entity, u"Q"_s, u"P"_s).size(), 32'768);
        QCOMPARE(missing(entity, u"P"_s, u"Q"_s), QStringList({u"A"_s, QString()}));
        entity.members().add(entity.members().find(u"Q"_s), u"one more"_s);
        QCOMPARE(errorNumber(entity, u"Q"_s, u"P"_s), qint32(Overflow));
        QCOMPARE(errorNumber(entity, u"P"_s, u"Q"_s), qint32(Overflow));
    }
};

QTEST_APPLESS_MAIN(tst_BaseMemberCompare)
#include "tst_BaseMemberCompare.moc"
