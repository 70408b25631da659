#include "shell/ListMembers.h"
#include "support/Errors.h"
#include "support/FakeHfm.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ListMembers : public QObject
{
    Q_OBJECT

private:
    FakeHfm mHfm;

    FakeDimension &dimension(const QString &outline)
    {
        FakeDimension &fresh = mHfm.newApplication().account();
        fresh.setMembers(outline);
        return fresh;
    }

private Q_SLOTS:
    void aLineIsTheLabelAndParentsAreMarked()
    {
        FakeDimension &account = dimension(u"A|Alpha\n  B|Beta"_s);
        QCOMPARE(ListMembers::lines(account, {1, 0, 1}), QStringList({u"B"_s, u"A **"_s, u"B"_s}));
        QCOMPARE(ListMembers::lines(account, {}), QStringList());
    }

    void aMemberThatCannotBeAskedForChildrenIsNotMarkedAndTheNextOneIs()
    {
        FakeDimension &account = dimension(u"P\n  A\nQ\n  B"_s);
        mHfm.calls().fail("GetHasChildren"_L1, RuntimeError(InvalidProcedureCall), 2);
        QCOMPARE(ListMembers::lines(account, {0, 2, 0}),
                 QStringList({u"P **"_s, u"Q"_s, u"P **"_s}));
    }

    void aLabelThatCannotBeReadFails()
    {
        FakeDimension &account = dimension(u"A\nB"_s);
        mHfm.calls().fail("GetMemberLabel"_L1, RuntimeError(1234), 2);
        const auto error = errorOf([&] { ListMembers::lines(account, {0, 1}); });
        QVERIFY(error);
        QCOMPARE(error->number(), 1234);
    }

    void moreThan32767MembersOverflow()
    {
        FakeDimension &account = dimension(u"A"_s);
        QCOMPARE(ListMembers::lines(account, QList<hfm::MemberId>(32'767, 0)).size(), 32'767);
        const auto error =
            errorOf([&] { ListMembers::lines(account, QList<hfm::MemberId>(32'768, 0)); });
        QVERIFY(error);
        QCOMPARE(error->number(), Overflow);
    }

    void theHeadingNamesDimensionListAndNumberOfMembers()
    {
        QCOMPARE(ListMembers::heading(u"Entity"_s, u"Europe"_s, 12),
                 u"Entity list  EUROPE  -  12 members"_s);
        QCOMPARE(ListMembers::heading(u"ICP"_s, u"[Base]"_s, 1),
                 u"ICP list  [BASE]  -  1 members"_s);
    }

    void theHeadingOfAnEmptyListIsTheDimensionsWordAndList()
    {
        QCOMPARE(ListMembers::headingOfEmpty(u"Account"_s), u"Account list  "_s);
    }
};

QTEST_APPLESS_MAIN(tst_ListMembers)
#include "tst_ListMembers.moc"
