#include "appinfo/MemberLists.h"
#include "shell/ListMembers.h"
#include "support/Errors.h"
#include "support/FakeHfm.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_MemberLists : public QObject
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
    static QStringList shown(hfm::Dimension &dimension, const QString &list,
                             const QString &top = {})
    {
        return ListMembers::lines(dimension, MemberLists::members(dimension, list, top));
    }

private Q_SLOTS:
    void allListsButHierarchyAndSystemAreOfferedInTheClientsOrder()
    {
        FakeDimension &account = dimension(u"A\n"_s);
        account.addSystemList(u"[System]"_s, {});
        account.addUserList(u"Mine"_s, {});
        account.addUserList(u"[hierarchy]"_s, {}); // the letter case counts
        QCOMPARE(MemberLists::offered(account),
                 QStringList({u"[Descendants]"_s, u"[Ancestors]"_s, u"[Base]"_s, u"[Children]"_s,
                              u"[Parents]"_s, u"Mine"_s, u"[hierarchy]"_s}));
    }

    void aDimensionWithoutListsOffersNone()
    {
        FakeDimension &account = dimension(u"A\n"_s);
        account.clearLists();
        QCOMPARE(MemberLists::offered(account), QStringList());
    }

    void moreThan32767ListsOverflow()
    {
        FakeDimension &account = dimension(u"A\n"_s);
        account.clearLists();
        for (int i = 0; i < 32'767; ++i)
            account.addUserList(QString::number(i), {});
        QCOMPARE(MemberLists::offered(account).size(), 32'767);
        account.addSystemList(u"[System]"_s, {}); // counts, though it is not offered
        const auto error = errorOf([&] { MemberLists::offered(account); });
        QVERIFY(error);
        QCOMPARE(error->number(), Overflow);
    }

    void aSystemListsNameBeginsWithABracket()
    {
        QVERIFY(MemberLists::isSystemList(u"[Base]"_s));
        QVERIFY(MemberLists::isSystemList(u"[mine"_s));
        QVERIFY(!MemberLists::isSystemList(u"Mine [old]"_s));
        QVERIFY(!MemberLists::isSystemList({}));
    }

    void everySystemListShowsTheBaseMembersEachOnceAndUnmarked()
    {
        FakeDimension &entity = dimension(u"P\n  A\n  Q\n    B\n    A\nC\n"_s);
        const QStringList bases = {u"A"_s, u"B"_s, u"C"_s};
        QCOMPARE(shown(entity, u"[Base]"_s), bases);
        QCOMPARE(shown(entity, u"[Parents]"_s), bases);
        QCOMPARE(shown(entity, u"[no such list]"_s), bases);
        QCOMPARE(mHfm.calls().count("GetMemberListId"_L1), 0);
        QCOMPARE(mHfm.calls().count("EnumMemberListMembers"_L1), 0);
    }

    void aSystemListWithATopMemberShowsTheBaseMembersBelowIt()
    {
        FakeDimension &entity = dimension(u"P\n  A\n  Q\n    B\n    A\nC\n"_s);
        QCOMPARE(shown(entity, u"[Children]"_s, u"q"_s), QStringList({u"B"_s, u"A"_s}));
    }

    void aTopMemberThatIsNoneIsTheClientsError()
    {
        FakeDimension &entity = dimension(u"P\n  A\n"_s);
        const auto error = errorOf([&] { shown(entity, u"[Base]"_s, u"X"_s); });
        QVERIFY(error);
        QCOMPARE(error->description(), u"'X' is not a member of Entity."_s);
    }

    void aUserDefinedListShowsItsOwnMembersAndMarksParents()
    {
        FakeDimension &entity = dimension(u"P\n  A\n  Q\n    B\n"_s);
        entity.addUserList(u"Mixed"_s, {u"B"_s, u"P"_s, u"A"_s, u"Q"_s});
        QCOMPARE(shown(entity, u"Mixed"_s), QStringList({u"B"_s, u"P **"_s, u"A"_s, u"Q **"_s}));
    }

    void aListThatIsNoneIsTheClientsError()
    {
        FakeDimension &entity = dimension(u"A\n"_s);
        QVERIFY(errorOf([&] { shown(entity, u"Gone"_s); }));
    }

    void anEmptyListHasNoLines()
    {
        FakeDimension &entity = dimension(u"A\n"_s);
        entity.addUserList(u"Empty"_s, {});
        QCOMPARE(shown(entity, u"Empty"_s), QStringList());
    }

    void aMemberThatCannotBeAskedForChildrenIsNotMarked()
    {
        FakeDimension &entity = dimension(u"P\n  A\nQ\n  B\n"_s);
        entity.addUserList(u"Parents"_s, {u"P"_s, u"Q"_s});
        mHfm.calls().fail("GetHasChildren"_L1, RuntimeError(InvalidProcedureCall));
        QCOMPARE(shown(entity, u"Parents"_s), QStringList({u"P"_s, u"Q **"_s}));
    }

    void aLabelThatCannotBeReadFails()
    {
        FakeDimension &entity = dimension(u"A\nB\n"_s);
        mHfm.calls().fail("GetMemberLabel"_L1, RuntimeError(InvalidProcedureCall), 2);
        QVERIFY(errorOf([&] { shown(entity, u"[Base]"_s); }));
    }

    void moreThan32767MembersOverflow()
    {
        FakeDimension &entity = dimension({});
        for (int i = 0; i < 32'767; ++i)
            entity.members().add(hfm::rootMember, QString::number(i));
        QCOMPARE(shown(entity, u"[Base]"_s).size(), 32'767);
        entity.members().add(hfm::rootMember, u"one more"_s);
        const auto error = errorOf([&] { shown(entity, u"[Base]"_s); });
        QVERIFY(error);
        QCOMPARE(error->number(), Overflow);
    }
};

QTEST_APPLESS_MAIN(tst_MemberLists)
#include "tst_MemberLists.moc"
