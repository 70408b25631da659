#include "OpenWindow.h"
#include "support/CursorLog.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

/// The four tabs that analyse a dimension.
class tst_frmAnalyses : public QObject
{
    Q_OBJECT

private:
    static constexpr int sharedMembersTab = 1;
    static constexpr int compareTab = 3;
    static constexpr int duplicatesTab = 4;
    static constexpr int statisticsTab = 5;

    std::unique_ptr<OpenWindow> mOpen;

    FakeDimension &dimension(FakeKind kind) { return mOpen->dimension(kind); }
    QString currentDimension() { return mOpen->state.gDimension->GetDimensionName(); }
    /// Compares two entities.
    void compare(const QString &from, const QString &to)
    {
        mOpen->click("optDimensionCompare_10");
        mOpen->choose("cboTopMember1", from);
        mOpen->choose("cboTopMember2", to);
        mOpen->click("cmdCompare");
    }
    /// The dimension that a click on each option button makes the current one.
    QString dimensionsBehind(const QString &options, int first, int last)
    {
        QStringList words;
        for (int index = first; index <= last; ++index) {
            mOpen->state.gDimension.reset();
            mOpen->click(qPrintable(options + u'_' + QString::number(index)));
            words.append(currentDimension());
        }
        return words.join(u' ');
    }

private Q_SLOTS:
    void init()
    {
        mOpen = std::make_unique<OpenWindow>();
        dimension(FakeKind::Account).setMembers(u"A\n"_s);
        dimension(FakeKind::Account).addSystemList(u"[System]"_s, {});
        for (int number = 0; number < 4; ++number)
            dimension(FakeKind(int(FakeKind::Custom1) + number)).setMembers(u"[None]\n"_s);
        dimension(FakeKind::Entity).setMembers(u"P\n  A\n  Q\n    A\n    B\nR\n  Q\n  C\n"_s);
    }
    void cleanup() { mOpen.reset(); }

    // Shared members.

    void anOptionShowsTheSharedMembersOfItsDimension()
    {
        mOpen->open(sharedMembersTab);
        mOpen->click("optDimension_1");
        QCOMPARE(mOpen->report("txtSharedMembers"), u"A (P)\r\nQ (P) **\r\nA (Q)\r\nB (Q)\r\n"_s);
        QCOMPARE(currentDimension(), u"Entity"_s);
        QCOMPARE(mOpen->state.gDimensionName, u"PERIOD"_s);
        mOpen->click("optDimension_5");
        QCOMPARE(mOpen->report("txtSharedMembers"), u"No Shared Members Detected"_s);
        QVERIFY(mOpen->isWell());
    }

    void theSharedMembersOptionsStandForTheseDimensions()
    {
        mOpen->open(sharedMembersTab);
        QCOMPARE(dimensionsBehind(u"optDimension"_s, 0, 5),
                 u"Account Entity Custom1 Custom2 Custom3 Custom4"_s);
    }

    void theSameOptionClickedAgainReadsAgain()
    {
        mOpen->open(sharedMembersTab);
        mOpen->click("optDimension_1");
        dimension(FakeKind::Entity).setMembers(u"P\n  A\n"_s);
        mOpen->click("optDimension_1");
        QCOMPARE(mOpen->report("txtSharedMembers"), u"No Shared Members Detected"_s);
    }

    void aWalkThatFailsLeavesTheLastSharedMembersAndEndsTheProgram()
    {
        mOpen->open(sharedMembersTab);
        mOpen->click("optDimension_1");
        const QString before = mOpen->report("txtSharedMembers");
        mOpen->calls().fail("EnumChildMembers"_L1, RuntimeError(5, u"HFM"_s, u"Gone."_s), 2);
        mOpen->click("optDimension_1");
        QCOMPARE(mOpen->report("txtSharedMembers"), before);
        QCOMPARE(mOpen->lastMessage(), u"Run-time error '5':\r\n\r\nGone."_s);
        QCOMPARE(mOpen->fakes.program.endCodes, QList<int>{1});
    }

    void aLabelThatFailsComesAfterTheTextIsEmptied()
    {
        mOpen->open(sharedMembersTab);
        mOpen->click("optDimension_1");
        mOpen->calls().fail("GetMemberLabel"_L1, RuntimeError(5));
        mOpen->click("optDimension_1");
        QCOMPARE(mOpen->report("txtSharedMembers"), QString());
        QVERIFY(mOpen->fakes.program.isEnding());
    }

    // The parent lists.

    void theCompareOptionsStandForTheseDimensions()
    {
        mOpen->open(duplicatesTab);
        QCOMPARE(dimensionsBehind(u"optDimensionCompare"_s, 0, 5),
                 u"Account Entity Custom1 Custom2 Custom3 Custom4"_s);
        mOpen->tabs()->setCurrentIndex(compareTab);
        QCOMPARE(dimensionsBehind(u"optDimensionCompare"_s, 6, 11),
                 u"Custom4 Custom3 Custom2 Custom1 Entity Account"_s);
        QCOMPARE(mOpen->state.gDimensionName, u"PERIOD"_s);
    }

    void entitiesOnTheCompareTabFillAllThreeParentLists()
    {
        mOpen->open(compareTab);
        mOpen->click("optDimensionCompare_10");
        for (const char *list : {"cboTopMember1", "cboTopMember2", "cboParents"}) {
            QCOMPARE(mOpen->entries(list), QStringList({u"P"_s, u"Q"_s, u"R"_s}));
            QCOMPARE(mOpen->box(list)->currentText(), QString());
        }
        QVERIFY(mOpen->isWell());
    }

    void eachParentListHasAChoiceOfItsOwn()
    {
        mOpen->open(compareTab);
        mOpen->click("optDimensionCompare_10");
        mOpen->choose("cboTopMember1", u"P"_s);
        mOpen->choose("cboTopMember2", u"R"_s);
        QCOMPARE(mOpen->box("cboTopMember1")->currentText(), u"P"_s);
        QCOMPARE(mOpen->box("cboTopMember2")->currentText(), u"R"_s);
        QCOMPARE(mOpen->box("cboParents")->currentText(), QString());
    }

    void aDimensionWithoutParentsLeavesAllThreeParentListsEmpty()
    {
        mOpen->open(duplicatesTab);
        mOpen->click("optDimensionCompare_1");
        mOpen->type("cboParents", u"Q"_s);
        mOpen->click("optDimensionCompare_5");
        for (const char *list : {"cboTopMember1", "cboTopMember2", "cboParents"}) {
            QCOMPARE(mOpen->box(list)->count(), 0);
            QCOMPARE(mOpen->box(list)->currentText(), QString());
        }
    }

    void parentListsAreClearedBeforeTheyAreRead()
    {
        mOpen->open(duplicatesTab);
        mOpen->click("optDimensionCompare_1");
        mOpen->calls().fail("EnumAllMemberLabels"_L1, RuntimeError(5));
        mOpen->click("optDimensionCompare_1");
        QCOMPARE(mOpen->box("cboParents")->count(), 0);
        QVERIFY(mOpen->fakes.program.isEnding());
    }

    void theOtherTabsOptionShowsWhatTheParentListsHold()
    {
        mOpen->open(duplicatesTab);
        mOpen->click("optDimensionCompare_1");
        QVERIFY(mOpen->control<QRadioButton>("optDimensionCompare_10")->isChecked());
        mOpen->tabs()->setCurrentIndex(compareTab);
        mOpen->click("optDimensionCompare_6");
        QVERIFY(mOpen->control<QRadioButton>("optDimensionCompare_5")->isChecked());
        QVERIFY(!mOpen->control<QRadioButton>("optDimensionCompare_1")->isChecked());
    }

    // Duplicates below a parent.

    void aChosenParentShowsItsDuplicates()
    {
        mOpen->open(duplicatesTab);
        mOpen->click("optDimensionCompare_1");
        mOpen->choose("cboParents", u"P"_s);
        QCOMPARE(mOpen->report("txtDuplicatesUnderSameParent"),
                 u"Duplicate members under parent member P: \r\n\r\nA\r\nA\r\n"_s);
        mOpen->choose("cboParents", u"R"_s);
        QCOMPARE(mOpen->report("txtDuplicatesUnderSameParent"),
                 u"Duplicate members under parent member R: \r\n\r\n"_s);
        QVERIFY(mOpen->isWell());
    }

    void theSameParentChosenAgainIsSearchedAgain()
    {
        mOpen->open(duplicatesTab);
        mOpen->click("optDimensionCompare_1");
        mOpen->choose("cboParents", u"P"_s);
        mOpen->calls().clear();
        mOpen->choose("cboParents", u"P"_s);
        QCOMPARE(mOpen->calls().count("EnumMembersBelow"_L1), 1);
    }

    void aTypedParentIsSearchedOnceOnEnterInAnyLetterCase()
    {
        mOpen->open(duplicatesTab);
        mOpen->click("optDimensionCompare_1");
        mOpen->calls().clear();
        mOpen->type("cboParents", u"p"_s);
        QCOMPARE(mOpen->report("txtDuplicatesUnderSameParent"), QString());
        QTest::keyClick(mOpen->box("cboParents"), Qt::Key_Return);
        QCOMPARE(mOpen->report("txtDuplicatesUnderSameParent"),
                 u"Duplicate members under parent member P: \r\n\r\nA\r\nA\r\n"_s);
        QCOMPARE(mOpen->box("cboParents")->currentText(), u"P"_s);
        mOpen->type("cboParents", u"P"_s);
        QTest::keyClick(mOpen->box("cboParents"), Qt::Key_Return);
        QCOMPARE(mOpen->calls().count("EnumMembersBelow"_L1), 2);
        QCOMPARE(mOpen->box("cboParents")->count(), 3);
    }

    void enterInATextThatIsNoEntrySearchesNothing_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << QString();
        QTest::newRow("no member") << u"nobody"_s;
        QTest::newRow("a base member") << u"C"_s;
        QTest::newRow("an entry and more") << u"P "_s;
    }
    void enterInATextThatIsNoEntrySearchesNothing()
    {
        QFETCH(const QString, text);
        mOpen->open(duplicatesTab);
        mOpen->click("optDimensionCompare_1");
        mOpen->choose("cboParents", u"P"_s);
        const QString before = mOpen->report("txtDuplicatesUnderSameParent");
        mOpen->calls().clear();
        mOpen->type("cboParents", u"x"_s);
        QTest::keyClick(mOpen->box("cboParents"), Qt::Key_Backspace);
        QTest::keyClicks(mOpen->box("cboParents"), text);
        QTest::keyClick(mOpen->box("cboParents"), Qt::Key_Return);
        QCOMPARE(mOpen->box("cboParents")->currentText(), text);
        QCOMPARE(mOpen->report("txtDuplicatesUnderSameParent"), before);
        QCOMPARE(mOpen->calls().made(), QStringList());
        QVERIFY(mOpen->isWell());
    }

    void leavingTheTypedTextSearchesNothing()
    {
        mOpen->open(duplicatesTab);
        mOpen->click("optDimensionCompare_1");
        mOpen->calls().clear();
        mOpen->type("cboParents", u"P"_s);
        QTest::keyClick(mOpen->box("cboParents"), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"txtDuplicatesUnderSameParent"_s);
        QCOMPARE(mOpen->calls().made(), QStringList());
    }

    void anEmptySubtreeIsError13AndTheHeadingStays()
    {
        mOpen->open(duplicatesTab);
        mOpen->click("optDimensionCompare_1");
        dimension(FakeKind::Entity).setMembers(u"P\n"_s); // a parent no more
        mOpen->choose("cboParents", u"P"_s);
        QCOMPARE(mOpen->report("txtDuplicatesUnderSameParent"),
                 u"Duplicate members under parent member P: \r\n\r\n"_s);
        QCOMPARE(mOpen->lastMessage(), u"Run-time error '13':\r\n\r\nType mismatch"_s);
        QCOMPARE(mOpen->fakes.program.endCodes, QList<int>{1});
    }

    void whatWasFoundBeforeAFailureIsShown()
    {
        mOpen->open(duplicatesTab);
        mOpen->click("optDimensionCompare_1");
        mOpen->calls().fail("GetMemberLabel"_L1, RuntimeError(5), 2);
        mOpen->choose("cboParents", u"P"_s);
        QCOMPARE(mOpen->report("txtDuplicatesUnderSameParent"),
                 u"Duplicate members under parent member P: \r\n\r\nA\r\n"_s);
        QVERIFY(mOpen->fakes.program.isEnding());
    }

    void aParentIsLookedUpInTheDimensionChosenLastWhereverThatWas()
    {
        mOpen->open(duplicatesTab);
        mOpen->click("optDimensionCompare_1");
        mOpen->tabs()->setCurrentIndex(statisticsTab);
        mOpen->click("optDimensionStats_16");
        mOpen->tabs()->setCurrentIndex(duplicatesTab);
        mOpen->choose("cboParents", u"P"_s);
        QCOMPARE(mOpen->lastMessage(),
                 u"Run-time error '5':\r\n\r\n'P' is not a member of Custom3."_s);
    }

    // Base member compare.

    void compareListsWhatTheSecondParentLacks()
    {
        mOpen->open(compareTab);
        compare(u"R"_s, u"P"_s);
        QCOMPARE(mOpen->report("txtMissingBaseMembers"),
                 u"Base members under top member R and NOT under P: \r\n\r\nC\r\n"_s);
        QVERIFY(mOpen->isWell());
    }

    void typedParentsAreComparedAndShownInUpperCase()
    {
        mOpen->open(compareTab);
        mOpen->click("optDimensionCompare_10");
        mOpen->type("cboTopMember1", u"r"_s);
        mOpen->type("cboTopMember2", u"q"_s);
        mOpen->click("cmdCompare");
        QCOMPARE(mOpen->report("txtMissingBaseMembers"),
                 u"Base members under top member R and NOT under Q: \r\n\r\nC\r\n"_s);
        QCOMPARE(mOpen->box("cboTopMember1")->currentText(), u"r"_s);
    }

    void theSameParentInBothBoxesYieldsTheHeadingOnly()
    {
        mOpen->open(compareTab);
        compare(u"P"_s, u"P"_s);
        QCOMPARE(mOpen->report("txtMissingBaseMembers"),
                 u"Base members under top member P and NOT under P: \r\n\r\n"_s);
    }

    void aMissingChoiceShowsCompareErrorAndLeavesTheTextAsItWas_data()
    {
        QTest::addColumn<QStringList>("empty");
        QTest::newRow("a parent only in cboTopMember2") << QStringList{u"cboTopMember1"_s};
        QTest::newRow("a parent only in cboTopMember1") << QStringList{u"cboTopMember2"_s};
        QTest::newRow("no parent") << QStringList{u"cboTopMember1"_s, u"cboTopMember2"_s};
    }
    void aMissingChoiceShowsCompareErrorAndLeavesTheTextAsItWas()
    {
        QFETCH(const QStringList, empty);
        mOpen->open(compareTab);
        compare(u"R"_s, u"P"_s);
        const QString before = mOpen->report("txtMissingBaseMembers");
        QVERIFY(!before.isEmpty());
        for (const QString &box : empty)
            mOpen->box(qPrintable(box))->lineEdit()->clear();
        mOpen->calls().clear();
        mOpen->click("cmdCompare");
        const Prompt expected{
            u"Compare Error"_s,
            u"You must choose a top member from BOTH drop-down boxes to compare."_s,
            Prompt::Icon::Exclamation, Prompt::Buttons::Ok};
        QCOMPARE(mOpen->fakes.prompts.asked, QList<Prompt>{expected});
        QCOMPARE(mOpen->report("txtMissingBaseMembers"), before);
        QCOMPARE(mOpen->calls().made(), QStringList());
        QVERIFY(!mOpen->fakes.program.isEnding());
    }

    void parentsAreComparedInTheDimensionChosenLastWhereverThatWas()
    {
        mOpen->open(compareTab);
        compare(u"R"_s, u"P"_s);
        dimension(FakeKind::Custom3).setMembers(u"R\n  X\nP\n  Y\n"_s);
        mOpen->tabs()->setCurrentIndex(statisticsTab);
        mOpen->click("optDimensionStats_16");
        mOpen->tabs()->setCurrentIndex(compareTab);
        mOpen->click("cmdCompare");
        QCOMPARE(mOpen->report("txtMissingBaseMembers"),
                 u"Base members under top member R and NOT under P: \r\n\r\nX\r\n"_s);
        QCOMPARE(currentDimension(), u"Custom3"_s);
    }

    void whatCompareFoundBeforeAFailureIsShown()
    {
        dimension(FakeKind::Entity).setMembers(u"P\n  A\n  B\n  C\nR\n  D\n"_s);
        mOpen->open(compareTab);
        mOpen->calls().fail("GetMemberLabel"_L1, RuntimeError(5), 3);
        compare(u"P"_s, u"R"_s);
        QCOMPARE(mOpen->report("txtMissingBaseMembers"),
                 u"Base members under top member P and NOT under R: \r\n\r\nA\r\nB\r\n"_s);
        QVERIFY(mOpen->fakes.program.isEnding());
    }

    void aTopMemberThatIsNoneIsTheClientsErrorAndTheHeadingStays()
    {
        mOpen->open(compareTab);
        mOpen->click("optDimensionCompare_10");
        mOpen->type("cboTopMember1", u"nobody"_s);
        mOpen->type("cboTopMember2", u"P"_s);
        mOpen->click("cmdCompare");
        QCOMPARE(mOpen->report("txtMissingBaseMembers"),
                 u"Base members under top member NOBODY and NOT under P: \r\n\r\n"_s);
        QCOMPARE(mOpen->lastMessage(),
                 u"Run-time error '5':\r\n\r\n'nobody' is not a member of Entity."_s);
        QCOMPARE(mOpen->fakes.program.endCodes, QList<int>{1});
    }

    // Statistics.

    void anOptionShowsTheStatisticsOfItsDimension()
    {
        mOpen->open(statisticsTab);
        mOpen->control<QLineEdit>("txtParentChildrenCheck")->setText(u"1"_s);
        mOpen->click("optDimensionStats_13");
        const QString report = mOpen->report("txtStatistics");
        QVERIFY(report.startsWith(u"Total Members:  10\r\n\r\nTotal Distinct Members:  6\r\n"_s));
        QVERIFY(report.endsWith(u"Maximum Hierarchy Generation Depth:  3\r\n\r\n"
                                "Parents with more than 1 Children: \r\n\tP\r\n\tQ\r\n\tR"_s));
        QCOMPARE(currentDimension(), u"Entity"_s);
        QCOMPARE(mOpen->state.gDimensionName, u"PERIOD"_s);
        QVERIFY(mOpen->isWell());
    }

    void theStatisticsOptionsStandForTheseDimensions()
    {
        dimension(FakeKind::Account).clearLists();
        dimension(FakeKind::Account).addSystemList(u"[System]"_s, {u"A"_s});
        for (const FakeKind kind : {FakeKind::Custom1, FakeKind::Custom2}) {
            dimension(kind).addSystemList(u"[Currencies]"_s, {u"[None]"_s});
            dimension(kind).addSystemList(u"[ConsolMethods]"_s, {});
        }
        mOpen->open(statisticsTab);
        QCOMPARE(dimensionsBehind(u"optDimensionStats"_s, 12, 17),
                 u"Account Entity Custom1 Custom2 Custom3 Custom4"_s);
        QVERIFY(mOpen->isWell());
    }

    void everyDimensionHasItsOwnSection_data()
    {
        QTest::addColumn<QString>("section");
        QTest::newRow("optDimensionStats_12") << u"System Account Members: 1"_s;
        QTest::newRow("optDimensionStats_13") << u"Parents with more than 200 Children: "_s;
        QTest::newRow("optDimensionStats_14")
            << u"Currency Members: 2\r\n\r\nConsolMethod Members: 3"_s;
        QTest::newRow("optDimensionStats_15") << u"Currency Members: 2"_s;
        QTest::newRow("optDimensionStats_16") << QString();
        QTest::newRow("optDimensionStats_17") << QString();
    }
    void everyDimensionHasItsOwnSection()
    {
        dimension(FakeKind::Account).clearLists();
        dimension(FakeKind::Account).addSystemList(u"[System]"_s, {u"A"_s});
        for (const FakeKind kind : {FakeKind::Custom1, FakeKind::Custom2, FakeKind::Custom3}) {
            dimension(kind).setMembers(u"EUR\nUSD\nE\nP\nI\n"_s);
            dimension(kind).addSystemList(u"[Currencies]"_s, {u"EUR"_s, u"USD"_s});
            dimension(kind).addSystemList(u"[ConsolMethods]"_s, {u"E"_s, u"P"_s, u"I"_s});
        }
        mOpen->open(statisticsTab);
        mOpen->click(QTest::currentDataTag());
        QTEST(mOpen->report("txtStatistics").section(u"\r\n\r\n"_s, 9), "section");
        QVERIFY(mOpen->isWell());
    }

    void theThresholdIsANumberInTheUsersRegionalFormat()
    {
        const QLocale before;
        const auto back = qScopeGuard([before] { QLocale::setDefault(before); });
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        dimension(FakeKind::Entity).setMembers(u"P\n  A\nQ\n  B\n  C\n"_s);
        mOpen->open(statisticsTab);
        mOpen->control<QLineEdit>("txtParentChildrenCheck")->setText(u"1,5"_s);
        mOpen->click("optDimensionStats_13");
        QVERIFY(mOpen->isWell());
        QVERIFY(mOpen->report("txtStatistics")
                    .endsWith(u"Parents with more than 1,5 Children: \r\n\tQ"_s));
    }

    void custom3StaysTheCurrentDimensionWhenAnotherTabIsOpened()
    {
        mOpen->open(statisticsTab);
        mOpen->click("optDimensionStats_16");
        mOpen->tabs()->setCurrentIndex(sharedMembersTab);
        QCOMPARE(currentDimension(), u"Custom3"_s);
        QCOMPARE(mOpen->state.gDimensionName, u"PERIOD"_s);
    }

    void anEmptySystemListEndsTheProgramAndLeavesTheReport()
    {
        mOpen->open(statisticsTab);
        mOpen->click("optDimensionStats_17");
        const QString before = mOpen->report("txtStatistics");
        mOpen->click("optDimensionStats_12");
        QCOMPARE(mOpen->report("txtStatistics"), before);
        QCOMPARE(mOpen->lastMessage(), u"Run-time error '13':\r\n\r\nType mismatch"_s);
        QCOMPARE(mOpen->fakes.program.endCodes, QList<int>{1});
    }

    void aThresholdThatIsNoNumberEndsTheProgramWhereThereAreParentsOnly()
    {
        mOpen->open(statisticsTab);
        mOpen->control<QLineEdit>("txtParentChildrenCheck")->setText(u"abc"_s);
        mOpen->click("optDimensionStats_17");
        QVERIFY(mOpen->isWell());
        mOpen->click("optDimensionStats_13");
        QCOMPARE(mOpen->lastMessage(), u"Run-time error '13':\r\n\r\nType mismatch"_s);
        QCOMPARE(mOpen->fakes.program.endCodes, QList<int>{1});
    }

    void theThresholdStaysAsTyped()
    {
        mOpen->open(statisticsTab);
        mOpen->control<QLineEdit>("txtParentChildrenCheck")->setText(u" 2 "_s);
        mOpen->click("optDimensionStats_13");
        QVERIFY(
            mOpen->report("txtStatistics").endsWith(u"Parents with more than  2  Children: "_s));
        QCOMPARE(mOpen->control<QLineEdit>("txtParentChildrenCheck")->text(), u" 2 "_s);
    }

    // All of them.

    void theHourglassShowsWhileADimensionIsReadAndGoesAgain()
    {
        mOpen->open(statisticsTab);
        CursorLog cursors(mOpen->window.get());
        mOpen->click("optDimensionStats_13");
        QCOMPARE(cursors.shapes, QList<Qt::CursorShape>({Qt::WaitCursor, Qt::ArrowCursor}));
    }

    void theHourglassGoesWhenAReadFails()
    {
        mOpen->open(statisticsTab);
        CursorLog cursors(mOpen->window.get());
        mOpen->calls().fail({}, RuntimeError(5), 3);
        mOpen->click("optDimensionStats_13");
        QVERIFY(mOpen->fakes.program.isEnding());
        QCOMPARE(cursors.shapes, QList<Qt::CursorShape>({Qt::WaitCursor, Qt::ArrowCursor}));
    }
};

QTEST_MAIN(tst_frmAnalyses)
#include "tst_frmAnalyses.moc"
