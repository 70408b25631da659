#include "ListText.h"

#include <QStringEncoder>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace hfm::offline;

/// The user-defined lists of the member list file: their names, their IDs, their members and what
/// becomes of scripts that fail.
class tst_UserLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Names and IDs.

    void theNamesStandBehindTheSystemListsAndTheirIndexesAreTheIds()
    {
        ListText lists = ListText::of("Entity", {"Units", "Holding", "Other"}, "Case 1");
        const auto entity = lists.dimension(DimensionKind::Entity);
        QCOMPARE(entity->EnumMemberListNames().last(), u"Other"_s);
        QVERIFY(entity->EnumMemberListNames().first() == u"[Hierarchy]"_s);
        QCOMPARE(lists.names(DimensionKind::Entity),
                 QStringList({u"1 Units"_s, u"2 Holding"_s, u"3 Other"_s}));
        QCOMPARE(lists.names(DimensionKind::Account), QStringList());
    }

    void eachDimensionIsAskedByItsName()
    {
        ListText lists("Sub EnumMemberLists()\nDim x(1)\nx(1) = \"All of \" & HS.Dimension\n"
                       "HS.SetMemberLists x\nEnd Sub\nSub EnumMembersInList()\nEnd Sub\n");
        for (const DimensionKind kind : allDimensionKinds)
            QCOMPARE(lists.names(kind), QStringList{u"1 All of "_s + dimensionName(kind)});
        QCOMPARE(lists.warnings(), QStringList());
    }

    void emptyPositionsAreNoLists()
    {
        ListText lists("Sub EnumMemberLists()\nDim x(7)\nx(2) = \"Two\"\nx(4) = \"\"\n"
                       "x(7) = \"Seven\"\nHS.SetMemberLists x\nEnd Sub\n"
                       "Sub EnumMembersInList()\nHS.AddMemberToList \"SALES\"\nEnd Sub\n");
        QCOMPARE(lists.names(DimensionKind::Account), QStringList({u"2 Two"_s, u"7 Seven"_s}));
        QCOMPARE(lists.accounts(u"seven"_s), u"SALES"_s);
        const auto account = lists.dimension(DimensionKind::Account);
        for (const hfm::ListId none : {0, 1, 3, 8})
            QVERIFY_EXCEPTION_THROWN(account->EnumMemberListMembers(none, -1), RuntimeError);
    }

    void aNameAtPosition0IsLeftOut()
    {
        ListText lists("Sub EnumMemberLists()\nIf HS.Dimension = \"Account\" Then\n"
                       "HS.SetMemberLists Array(\"Zero\", \"One\")\nEnd If\nEnd Sub\n"
                       "Sub EnumMembersInList()\nEnd Sub\n");
        QCOMPARE(lists.names(DimensionKind::Account), QStringList{u"1 One"_s});
        QCOMPARE(
            lists.warnings(),
            QStringList{u"3: 'Zero' stands at position 0, where no list is; it is left out."_s});
    }

    void aNameThatStandsTwiceIsOneList()
    {
        ListText lists = ListText::of("Account", {"One", "ONE", "[Base]", "Two"}, "Case 1");
        QCOMPARE(lists.names(DimensionKind::Account), QStringList({u"1 One"_s, u"4 Two"_s}));
        QCOMPARE(lists.warnings(),
                 QStringList({u"8: Account has a list 'ONE' already; this one is left out."_s,
                              u"8: Account has a list '[Base]' already; this one is left out."_s}));
    }

    void withoutAFileThereAreNoLists()
    {
        const auto application = readText(applicationWithLists);
        QVERIFY(application->userLists->lists(DimensionKind::Entity).empty());
        QCOMPARE(application->userLists->check().count(), 0);
    }

    // Members.

    void theMembersStandInTheOrderOfTheScriptAsOftenAsItAddsThem()
    {
        ListText lists = ListText::ofAccounts("HS.AddMemberToList \"COST\"\nHS.AddMemberToList "
                                              "\"sales\"\nHS.AddMemberToList \"COST\"");
        QCOMPARE(lists.accounts(), u"COST SALES COST"_s);
        QCOMPARE(lists.warnings(), QStringList());
    }

    void aTopMemberDoesNotNarrowAList()
    {
        ListText lists = ListText::ofAccounts("HS.AddMemberToList \"PL\"");
        const auto account = lists.dimension(DimensionKind::Account);
        const hfm::MemberId sales = account->GetMemberId(u"SALES"_s);
        QCOMPARE(account->EnumMemberListMembers(1, sales),
                 QList<hfm::MemberId>{account->GetMemberId(u"PL"_s)});
    }

    void entitiesAreAddedWithTheirParents()
    {
        ListText lists = ListText::of("Entity", {"Units"},
                                      "Case 1\nHS.AddEntityToList \"WEST\", \"E2\"\n"
                                      "HS.AddEntityToList \"east\", \"e2\"\n"
                                      "HS.AddEntityToList \"\", \"SPARE\"\n"
                                      "HS.AddMemberToList \"GROUP\"");
        QCOMPARE(lists.members(DimensionKind::Entity, u"Units"_s), u"E2 E2 SPARE GROUP"_s);
        QCOMPARE(lists.warnings(), QStringList());
    }

    void anEntityThatIsNotUnderItsParentIsLeftOut()
    {
        ListText lists = ListText::of("Entity", {"Units"},
                                      "Case 1\nHS.AddEntityToList \"EAST\", \"E3\"\n"
                                      "HS.AddEntityToList \"GROUP\", \"NOBODY\"\n"
                                      "HS.AddEntityToList \"GROUP\", \"EAST\"");
        QCOMPARE(lists.members(DimensionKind::Entity, u"Units"_s), u"EAST"_s);
        QCOMPARE(
            lists.warnings(),
            QStringList({u"11: There is no entity 'E3' under 'EAST'; it is left out."_s,
                         u"12: There is no entity 'NOBODY' under 'GROUP'; it is left out."_s}));
    }

    void aMemberThatThereIsNotIsLeftOut()
    {
        ListText lists =
            ListText::ofAccounts("HS.AddMemberToList \"NOTHING\"\nHS.AddMemberToList \"COST\"");
        QCOMPARE(lists.accounts(), u"COST"_s);
        QCOMPARE(lists.warnings(),
                 QStringList{u"11: 'NOTHING' is not a member of Account; it is left out."_s});
    }

    void aListOfAPointOfViewIsMadeWithAnEmptyOne()
    {
        ListText lists = ListText::of(
            "Account", {"Mine(@POV)"},
            "Case 1\nIf HS.MemberListScenario & HS.MemberListYear & HS.MemberListPeriod & "
            "HS.MemberListEntity = \"\" Then HS.AddMemberToList \"PL\"");
        QCOMPARE(lists.accounts(u"Mine(@POV)"_s), u"PL"_s);
    }

    void aListThatNoCaseMakesIsEmpty()
    {
        ListText lists =
            ListText::of("Account", {"One", "Two"}, "Case 2\nHS.AddMemberToList \"PL\"");
        QCOMPARE(lists.accounts(u"One"_s), QString());
        QCOMPARE(lists.accounts(u"Two"_s), u"PL"_s);
    }

    void whatStandsOutsideOfTheSubsHoldsForEveryRun()
    {
        ListText lists("Const Wanted = \"COST\"\nDim Count\nCount = 1\n"
                       "Sub EnumMemberLists()\nDim x(2)\nx(1) = \"A\" : x(2) = \"B\"\n"
                       "If HS.Dimension = \"Account\" Then HS.SetMemberLists x\nEnd Sub\n"
                       "Sub EnumMembersInList()\nCount = Count + 1\n"
                       "If Count = 2 Then HS.AddMemberToList Wanted\nEnd Sub\n");
        QCOMPARE(lists.accounts(u"A"_s), u"COST"_s);
        QCOMPARE(lists.accounts(u"B"_s), u"COST"_s);
    }

    void aListIsMadeWhenItIsAskedForAndOnce()
    {
        ListText lists = ListText::of("Account", {"Good", "Bad"},
                                      "Case 1\nHS.AddMemberToList \"NOTHING\"\n"
                                      "Case 2\nx = 1 / 0");
        const qint64 before = lists.application().warnings.count();
        QCOMPARE(lists.accounts(u"Good"_s), lists.accounts(u"Good"_s));
        QCOMPARE(lists.accounts(u"Bad"_s), QString());
        QCOMPARE(lists.warnings().size(), 2);
        QCOMPARE(lists.warnings().size(), 2);
        QCOMPARE(lists.application().warnings.count(), before);
    }

    void nowIsWhenTheApplicationWasOpened()
    {
        ListText lists = ListText::ofAccounts(
            "If Year(Now) = 2012 And Date = Now Then HS.AddMemberToList \"PL\"");
        QCOMPARE(lists.accounts(), u"PL"_s);
    }

    // Lists of lists.

    void aListMayBeMadeOfAnother()
    {
        ListText lists = ListText::of("Account", {"Both", "One", "Three"},
                                      "Case 1\n"
                                      "For Each x In HS.Account.List(\"\", \"One\")\n"
                                      "HS.AddMemberToList x\nNext\n"
                                      "For Each x In HS.Account.List(\"\", \"Three\")\n"
                                      "HS.AddMemberToList x\nNext\n"
                                      "Case 2\nHS.AddMemberToList \"PL\"\n"
                                      "Case 3\nHS.AddMemberToList \"COST\"");
        QCOMPARE(lists.accounts(u"Both"_s), u"PL COST"_s);
        QCOMPARE(lists.warnings(), QStringList());
    }

    void aListMayBeMadeOfOneOfAnotherDimension()
    {
        ListText lists("Sub EnumMemberLists()\nDim x(1)\nx(1) = \"L\"\n"
                       "If HS.Dimension <> \"Year\" Then HS.SetMemberLists x\nEnd Sub\n"
                       "Sub EnumMembersInList()\nIf HS.Dimension = \"Account\" Then\n"
                       "If UBound(HS.Entity.List(\"GROUP\", \"l\")) = 1 Then "
                       "HS.AddMemberToList \"PL\"\n"
                       "Else\nHS.AddMemberToList \"E1\"\nHS.AddMemberToList \"E2\"\n"
                       "End If\nEnd Sub\n");
        QCOMPARE(lists.accounts(u"L"_s), u"PL"_s);
    }

    void aListThatRefersToItselfEndsWithAnError()
    {
        ListText lists =
            ListText::ofAccounts("x = HS.Account.List(\"\", \"List\")\nHS.AddMemberToList \"PL\"");
        QCOMPARE(lists.accounts(), QString());
        QCOMPARE(lists.warnings(),
                 QStringList{u"11: The list 'List' of Account is empty: The list 'List' cannot be "
                             "used to make itself. (column 16)"_s});
    }

    void aCircleOfListsEndsWithAnErrorForEachOfThem()
    {
        ListText lists =
            ListText::of("Account", {"A", "B", "C", "Good"},
                         "Case 1\nx = HS.Account.List(\"\", \"B\")\n"
                         "Case 2\nOn Error Resume Next\nx = HS.Account.List(\"\", \"C\")\n"
                         "Case 3\nx = HS.Account.List(\"\", \"A\")\n"
                         "Case 4\nHS.AddMemberToList \"PL\"");
        QCOMPARE(lists.accounts(u"B"_s), QString());
        QCOMPARE(lists.accounts(u"Good"_s), u"PL"_s);
        const QStringList found = lists.warnings();
        QCOMPARE(found.size(), 3);
        QVERIFY(found[0].startsWith(u"14: The list 'A' of Account is empty: "_s));
        QVERIFY(found[1].startsWith(u"17: The list 'B' of Account is empty: "_s));
        QVERIFY(found[2].startsWith(u"19: The list 'C' of Account is empty: "_s));
    }

    void namesCannotDependOnListsOfTheirOwnDimension()
    {
        ListText lists("Sub EnumMemberLists()\nx = HS.Account.List(\"\", \"L\")\nEnd Sub\n"
                       "Sub EnumMembersInList()\nEnd Sub\n");
        QCOMPARE(lists.names(DimensionKind::Account), QStringList());
        QVERIFY(lists.warnings().size() >= 1);
        QVERIFY(lists.warnings()[0].contains(u"cannot be used to make itself"_s));
    }

    void longRowsOfListsThatNeedEachOtherAreNoDeepRecursion()
    {
        QByteArray script = "Sub EnumMemberLists()\nDim x(3000)\nFor i = 1 To 3000\n"
                            "x(i) = \"L\" & i\nNext\n"
                            "If HS.Dimension = \"Account\" Then HS.SetMemberLists x\nEnd Sub\n"
                            "Sub EnumMembersInList()\nIf HS.MemberListID < 3000 Then\n"
                            "For Each x In HS.Account.List(\"\", \"L\" & HS.MemberListID + 1)\n"
                            "HS.AddMemberToList x\nNext\nEnd If\nHS.AddMemberToList \"PL\"\n"
                            "End Sub\n";
        ListText lists(script);
        QCOMPARE(lists.accounts(u"L2998"_s), u"PL PL PL"_s);
        QCOMPARE(lists.accounts(u"L1"_s).size(), 3 * 3000 - 1);
    }

    void aListThatNeedsOneThatFailedFailsToo()
    {
        ListText lists =
            ListText::of("Account", {"A", "B"},
                         "Case 1\nOn Error Resume Next\n"
                         "x = HS.Account.List(\"\", \"B\")\nHS.AddMemberToList \"PL\"\n"
                         "Case 2\nx = 1 / 0");
        QCOMPARE(lists.accounts(u"A"_s), QString());
        QCOMPARE(
            lists.warnings(),
            QStringList({u"13: The list 'A' of Account is empty: The list 'B' could not be made. "
                         "(column 16)"_s,
                         u"16: The list 'B' of Account is empty: Division by zero "
                         "(column 7)"_s}));
    }

    // Scripts that fail.

    void aScriptThatCannotBeReadCostsAllLists()
    {
        ListText lists("Sub EnumMemberLists()\n  x = = 1\nEnd Sub\n");
        QCOMPARE(lists.names(DimensionKind::Account), QStringList());
        QCOMPARE(lists.warnings(), QStringList{u"2: Expected expression (column 7). The file's "
                                               "lists are left out."_s});
        QVERIFY(lists.dimension(DimensionKind::Account)->EnumMemberListNames().size() > 1);
    }

    void aListThatFailsCostsThatListAlone()
    {
        ListText lists = ListText::of("Account", {"A", "B", "C"},
                                      "Case 1\nHS.AddMemberToList \"PL\"\n"
                                      "Case 2\nHS.AddMemberToList \"PL\"\n"
                                      "MsgBox \"no\"\n"
                                      "Case 3\nHS.AddMemberToList \"COST\"");
        QCOMPARE(lists.accounts(u"A"_s), u"PL"_s);
        QCOMPARE(lists.accounts(u"B"_s), QString());
        QCOMPARE(lists.accounts(u"C"_s), u"COST"_s);
        QCOMPARE(lists.warnings(),
                 QStringList{u"16: The list 'B' of Account is empty: Type mismatch: 'MsgBox' is no "
                             "procedure, array or object that is known here (column 1)"_s});
    }

    void aDimensionWhoseNamesFailHasNone()
    {
        ListText lists("Sub EnumMemberLists()\nDim x(1)\nx(1) = \"L\"\nHS.SetMemberLists x\n"
                       "If HS.Dimension = \"Entity\" Then x(2) = \"M\"\nEnd Sub\n"
                       "Sub EnumMembersInList()\nEnd Sub\n");
        QCOMPARE(lists.names(DimensionKind::Entity), QStringList());
        QCOMPARE(lists.names(DimensionKind::Account), QStringList{u"1 L"_s});
        QCOMPARE(lists.warnings(), QStringList{u"5: The member lists of Entity are left out: "
                                               "Subscript out of range (column 33)"_s});
    }

    void aListThatRunsTooLongIsEnded()
    {
        ListText lists = ListText::ofAccounts("HS.AddMemberToList \"PL\"\nDo\nLoop");
        QCOMPARE(lists.accounts(), QString());
        QCOMPARE(lists.warnings(), QStringList{u"12: The list 'List' of Account is empty: The "
                                               "script runs too long (column 1)"_s});
    }

    void whereManyListsRunTooLongTheLastAreNotTried()
    {
        const QList<QByteArray> names(100, "L");
        QList<QByteArray> numbered;
        for (qsizetype i = 0; i < names.size(); ++i)
            numbered.append(names[i] + QByteArray::number(i));
        ListText lists =
            ListText::of("Account", numbered, "Case Else\nDo\nx = String(1000000, \"a\")\nLoop");
        const QStringList found = lists.warnings();
        QCOMPARE(found.size(), 11);
        QCOMPARE(found[0], u"0: The lists take too long to try all of them."_s);
    }

    void withoutTheSubsThereIsAWarningForEach()
    {
        ListText lists("' nothing\n");
        QCOMPARE(lists.names(DimensionKind::Account), QStringList());
        QCOMPARE(lists.warnings(), QStringList({u"0: There is no Sub EnumMemberLists."_s,
                                                u"0: There is no Sub EnumMembersInList."_s}));
    }

    void namesThatAreNoArrayAreATypeMismatch()
    {
        ListText lists("Sub EnumMemberLists()\nHS.SetMemberLists \"L\"\nEnd Sub\n"
                       "Sub EnumMembersInList()\nEnd Sub\n");
        QCOMPARE(lists.warnings().size(), 12);
        QVERIFY(lists.warnings()[0].endsWith(u"Type mismatch (column 4)"_s));
    }

    // Encodings.

    void theFileMayBeInAnyOfHfmsEncodings_data()
    {
        QTest::addColumn<QByteArray>("file");
        const QString script = u"Sub EnumMemberLists()\r\nDim x(1)\r\nx(1) = \"Größe\"\r\n"
                               "HS.SetMemberLists x\r\nEnd Sub\r\n"
                               "Sub EnumMembersInList()\r\nHS.AddMemberToList \"PL\"\r\nEnd Sub"_s;
        QTest::newRow("Windows-1252") << script.toLatin1();
        QTest::newRow("UTF-8") << script.toUtf8();
        QTest::newRow("UTF-8 with a mark") << "\xEF\xBB\xBF" + script.toUtf8();
        QStringEncoder encoder(QStringConverter::Utf16LE);
        const QByteArray utf16 = encoder(script);
        QTest::newRow("UTF-16") << utf16;
        QTest::newRow("UTF-16 with a mark") << "\xFF\xFE" + utf16;
    }

    void theFileMayBeInAnyOfHfmsEncodings()
    {
        QFETCH(QByteArray, file);
        ListText lists(file);
        QCOMPARE(lists.names(DimensionKind::Account), QStringList{u"1 Größe"_s});
        QCOMPARE(lists.accounts(u"größe"_s), u"PL"_s);
    }

    void bytesThatAreNoScriptAreAWarning()
    {
        QByteArray bytes;
        for (int i = 0; i < 256; ++i)
            bytes.append(char(i));
        ListText lists(bytes);
        QCOMPARE(lists.warnings().size(), 1);
    }
};

QTEST_APPLESS_MAIN(tst_UserLists)
#include "tst_UserLists.moc"
