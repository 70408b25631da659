#include "listbuilder/ListViewer.h"
#include "support/Errors.h"
#include "support/FakeHfm.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ListViewer : public QObject
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
    // The names.

    void theNamesAreAllThereAreInTheClientsOrder()
    {
        FakeDimension &account = dimension(u"A"_s);
        account.addUserList(u"Zulu"_s, {});
        account.addUserList(u"Alpha"_s, {});
        QCOMPARE(ListViewer::listNames(account),
                 QStringList({u"[Hierarchy]"_s, u"[Descendants]"_s, u"[Ancestors]"_s, u"[Base]"_s,
                              u"[Children]"_s, u"[Parents]"_s, u"Zulu"_s, u"Alpha"_s}));
    }

    void aDimensionWithoutListsHasNoNames()
    {
        FakeDimension &account = dimension(u"A"_s);
        account.clearLists();
        QCOMPARE(ListViewer::listNames(account), QStringList());
    }

    void moreThan32767NamesOverflow()
    {
        FakeDimension &many = dimension(u"A"_s);
        for (int i = 6; i < 32'767; ++i)
            many.addUserList(QString::number(i), {});
        QCOMPARE(ListViewer::listNames(many).size(), 32'767);
        many.addUserList(u"one more"_s, {});
        const auto error = errorOf([&] { ListViewer::listNames(many); });
        QVERIFY(error);
        QCOMPARE(error->number(), Overflow);
    }

    // A list.

    void aListShowsItsMembersAndMarksParents()
    {
        FakeDimension &account = dimension(u"A|Alpha\n  B|Beta"_s);
        account.addUserList(u"Sales"_s, {u"A"_s, u"B"_s});
        const ListViewer::ShownList shown = ListViewer::show(account, u"ACCOUNT"_s, u"Sales"_s);
        QCOMPARE(shown.rows, QStringList({u"A **"_s, u"B"_s}));
        QCOMPARE(shown.caption, u"ACCOUNT list  SALES  -  2 members"_s);
    }

    void theCaptionHasTheListsNameInUpperCaseWhateverItIs()
    {
        FakeDimension &account = dimension(u"A"_s);
        account.addUserList(u"Überträge %1 [x]"_s, {u"A"_s});
        QCOMPARE(ListViewer::show(account, u"CUSTOM1"_s, u"Überträge %1 [x]"_s).caption,
                 u"CUSTOM1 list  ÜBERTRÄGE %1 [X]  -  1 members"_s);
    }

    void anEmptyListHasNoRowsAndOnlyTheDimensionInItsCaption()
    {
        FakeDimension &account = dimension(u"A"_s);
        account.addUserList(u"Empty"_s, {});
        const ListViewer::ShownList shown = ListViewer::show(account, u"ACCOUNT"_s, u"Empty"_s);
        QCOMPARE(shown.rows, QStringList());
        QCOMPARE(shown.caption, u"ACCOUNT list  "_s);
        QCOMPARE(mHfm.calls().made(),
                 QStringList({u"GetMemberListId"_s, u"EnumMemberListMembers"_s}));
    }

    void theClientIsAskedForIdMembersAndEachOnesLabelAndChildren()
    {
        FakeDimension &account = dimension(u"A\n  B"_s);
        account.addUserList(u"Sales"_s, {u"A"_s, u"B"_s});
        ListViewer::show(account, u"ACCOUNT"_s, u"Sales"_s);
        QCOMPARE(mHfm.calls().made(),
                 QStringList({u"GetMemberListId"_s, u"EnumMemberListMembers"_s, u"GetMemberLabel"_s,
                              u"GetHasChildren"_s, u"GetMemberLabel"_s, u"GetHasChildren"_s}));
    }

    void aSystemListIsThatOfTheWholeDimension()
    {
        FakeDimension &account = dimension(u"A\n  B\n    C\nD"_s);
        QCOMPARE(ListViewer::show(account, u"ACCOUNT"_s, u"[Base]"_s).rows,
                 QStringList({u"C"_s, u"D"_s}));
        QCOMPARE(ListViewer::show(account, u"ACCOUNT"_s, u"[Hierarchy]"_s).rows,
                 QStringList({u"A **"_s, u"B **"_s, u"C"_s, u"D"_s}));
    }

    void theListsIdStandsForTheTopMemberToo()
    {
        FakeDimension &account = dimension(u"A"_s);
        account.addUserList(u"First"_s, {});
        account.addUserList(u"Second"_s, {});
        using Asked = std::pair<hfm::ListId, hfm::MemberId>;
        ListViewer::show(account, u"ACCOUNT"_s, u"Second"_s);
        QCOMPARE(account.listAsked(), Asked(2, 2));
        ListViewer::show(account, u"ACCOUNT"_s, u"[Base]"_s);
        QCOMPARE(account.listAsked(), Asked(-4, -4));
    }

    void aFailingGetHasChildrenShowsThatMemberWithoutAMark()
    {
        FakeDimension &account = dimension(u"P\n  A\nQ\n  B"_s);
        account.addUserList(u"Parents"_s, {u"P"_s, u"Q"_s, u"P"_s});
        mHfm.calls().fail("GetHasChildren"_L1, RuntimeError(InvalidProcedureCall), 2);
        const ListViewer::ShownList shown = ListViewer::show(account, u"ACCOUNT"_s, u"Parents"_s);
        QCOMPARE(shown.rows, QStringList({u"P **"_s, u"Q"_s, u"P **"_s}));
        QCOMPARE(shown.caption, u"ACCOUNT list  PARENTS  -  3 members"_s);
    }

    void everyOtherFailureOfTheClientIsTheLists()
    {
        for (const QLatin1StringView operation :
             {"GetMemberListId"_L1, "EnumMemberListMembers"_L1, "GetMemberLabel"_L1}) {
            FakeDimension &account = dimension(u"A"_s);
            account.addUserList(u"Sales"_s, {u"A"_s});
            mHfm.calls().fail(operation, RuntimeError(1234));
            const auto error = errorOf([&] { ListViewer::show(account, u"X"_s, u"Sales"_s); });
            QVERIFY(error);
            QCOMPARE(error->number(), 1234);
        }
    }

    void moreThan32767MembersOverflow()
    {
        FakeDimension &account = dimension({});
        for (int i = 0; i < 32'767; ++i)
            account.members().add(hfm::rootMember, QString::number(i));
        QCOMPARE(ListViewer::show(account, u"ACCOUNT"_s, u"[Hierarchy]"_s).caption,
                 u"ACCOUNT list  [HIERARCHY]  -  32767 members"_s);
        account.members().add(hfm::rootMember, u"one more"_s);
        const auto error =
            errorOf([&] { ListViewer::show(account, u"ACCOUNT"_s, u"[Hierarchy]"_s); });
        QVERIFY(error);
        QCOMPARE(error->number(), Overflow);
    }

    // The stored file.

    void theStoredFileIsShownByteByByte()
    {
        QByteArray bytes = "Sub EnumMemberLists()\r\n\t'\x80uro \xE4\n\r";
        bytes += char(0x81);
        bytes += '\0';
        bytes += '\xFF';
        const QString text = ListViewer::storedFileText({bytes, 1});
        QCOMPARE(text.size(), bytes.size());
        QCOMPARE(text, u"Sub EnumMemberLists()\r\n\t'€uro ä\n\r\u0081"_s + QChar(0) + u'ÿ');
    }

    void anyFlagButZeroMeansThatThereIsAFile()
    {
        QCOMPARE(ListViewer::storedFileText({"x", -1}), u"x"_s);
        QCOMPARE(ListViewer::storedFileText({{}, 1}), QString());
    }

    void flagZeroSaysThatThereIsNoneEvenWhereThereAreBytes()
    {
        const QString none = u"No member list file is present in the system."_s;
        QCOMPARE(ListViewer::storedFileText({}), none);
        QCOMPARE(ListViewer::storedFileText({"Sub EnumMemberLists()", 0}), none);
    }
};

QTEST_APPLESS_MAIN(tst_ListViewer)
#include "tst_ListViewer.moc"
