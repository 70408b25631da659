#include "OpenWindow.h"

#include <QScrollBar>

using namespace Qt::StringLiterals;

class tst_frmMemberListsTab : public QObject
{
    Q_OBJECT

private:
    static constexpr int memberListsTab = 2;

    std::unique_ptr<OpenWindow> mOpen;

    FakeDimension &dimension(FakeKind kind) { return mOpen->dimension(kind); }
    QString heading() const { return mOpen->control<QLabel>("lblMembersInList")->text(); }
    QStringList members() const { return mOpen->lines("lstMembersInList"); }
    QStringList topMembers() const { return mOpen->entries("cboParentMembers"); }
    QString topMember() const { return mOpen->box("cboParentMembers")->currentText(); }

private Q_SLOTS:
    void init()
    {
        mOpen = std::make_unique<OpenWindow>();
        FakeDimension &entity = dimension(FakeKind::Entity);
        entity.setMembers(u"P\n  A\n  Q\n    A\n    B\nR\n  Q\n  C\n"_s);
        entity.addUserList(u"Europe"_s, {u"B"_s, u"Q"_s});
        entity.addUserList(u"Empty"_s, {});
        dimension(FakeKind::Account).setMembers(u"SALES\n  NET\nEBIT\n"_s);
        mOpen->open(memberListsTab);
    }
    void cleanup() { mOpen.reset(); }

    void everyBoxShowsTheListsOfItsOwnDimension()
    {
        for (int i = 0; i < ApplicationDimensions::count; ++i) {
            const QString word = ApplicationDimensions::word(ApplicationDimension(i));
            mOpen->choose(qPrintable(u"cbo"_s + word + u"Lists"_s), u"[Base]"_s);
            QCOMPARE(mOpen->state.gDimension->GetDimensionName(), word);
            QVERIFY2(heading().startsWith(word + u" list  "_s), qPrintable(heading()));
        }
        QCOMPARE(mOpen->state.gDimensionName, u"PERIOD"_s);
        QVERIFY(mOpen->isWell());
    }

    void aUserDefinedListShowsItsMembersItsHeadingAndTheParents()
    {
        mOpen->choose("cboEntityLists", u"Europe"_s);
        QCOMPARE(members(), QStringList({u"B"_s, u"Q **"_s}));
        QCOMPARE(heading(), u"Entity list  EUROPE  -  2 members"_s);
        QCOMPARE(topMembers(), QStringList({QString(), u"P"_s, u"Q"_s, u"R"_s}));
        QCOMPARE(topMember(), QString());
        QVERIFY(mOpen->isWell());
    }

    void aSystemListShowsTheBaseMembersEachOnce()
    {
        mOpen->choose("cboEntityLists", u"[Parents]"_s);
        QCOMPARE(members(), QStringList({u"A"_s, u"B"_s, u"C"_s}));
        QCOMPARE(heading(), u"Entity list  [PARENTS]  -  3 members"_s);
    }

    void aTopMemberShowsTheSystemListBelowItAndTheParentsStay()
    {
        mOpen->choose("cboEntityLists", u"[Base]"_s);
        mOpen->calls().clear();
        mOpen->choose("cboParentMembers", u"Q"_s);
        QCOMPARE(members(), QStringList({u"A"_s, u"B"_s}));
        QCOMPARE(heading(), u"Entity list  [BASE]  -  2 members"_s);
        QCOMPARE(topMember(), u"Q"_s);
        QCOMPARE(topMembers(), QStringList({QString(), u"P"_s, u"Q"_s, u"R"_s}));
        QCOMPARE(mOpen->calls().count("EnumAllMemberLabels"_L1), 0);
    }

    void theEmptyTopMemberShowsTheWholeListAgain()
    {
        mOpen->choose("cboEntityLists", u"[Base]"_s);
        mOpen->choose("cboParentMembers", u"Q"_s);
        mOpen->choose("cboParentMembers", QString());
        QCOMPARE(members(), QStringList({u"A"_s, u"B"_s, u"C"_s}));
    }

    void theSameTopMemberChosenAgainShowsTheListAgain()
    {
        mOpen->choose("cboEntityLists", u"[Base]"_s);
        mOpen->choose("cboParentMembers", u"Q"_s);
        mOpen->calls().clear();
        mOpen->choose("cboParentMembers", u"Q"_s);
        QCOMPARE(mOpen->calls().count("EnumBaseMembers"_L1), 1);
    }

    void aListChosenWithATopMemberIsShownBelowItAndThenTheParentsAreRefreshed()
    {
        mOpen->choose("cboEntityLists", u"[Base]"_s);
        mOpen->choose("cboParentMembers", u"Q"_s);
        mOpen->choose("cboEntityLists", u"[Children]"_s);
        QCOMPARE(members(), QStringList({u"A"_s, u"B"_s}));
        QCOMPARE(topMember(), QString());
    }

    void aTopMemberThatTheNextDimensionDoesNotHaveIsTheClientsError()
    {
        mOpen->choose("cboEntityLists", u"[Base]"_s);
        mOpen->choose("cboParentMembers", u"Q"_s);
        mOpen->choose("cboAccountLists", u"[Base]"_s);
        QCOMPARE(mOpen->lastMessage(),
                 u"Run-time error '5':\r\n\r\n'Q' is not a member of Account."_s);
        QCOMPARE(members(), QStringList({u"A"_s, u"B"_s}));
    }

    void aUserDefinedListResetsTheTopMemberAndIsNotNarrowed()
    {
        mOpen->choose("cboEntityLists", u"[Base]"_s);
        mOpen->choose("cboParentMembers", u"R"_s);
        mOpen->calls().clear();
        mOpen->choose("cboEntityLists", u"Europe"_s);
        QCOMPARE(members(), QStringList({u"B"_s, u"Q **"_s}));
        QCOMPARE(topMember(), QString());
        // The reset is no choice: the list is read once.
        QCOMPARE(mOpen->calls().count("EnumMemberListMembers"_L1), 1);
        QCOMPARE(mOpen->calls().count("EnumBaseMembers"_L1), 0);
    }

    void aTopMemberOverAUserDefinedListIsResetAtOnce()
    {
        mOpen->choose("cboEntityLists", u"Europe"_s);
        mOpen->calls().clear();
        mOpen->choose("cboParentMembers", u"R"_s);
        QCOMPARE(topMember(), QString());
        QCOMPARE(members(), QStringList({u"B"_s, u"Q **"_s}));
        QCOMPARE(mOpen->calls().count("EnumMemberListMembers"_L1), 1);
    }

    void aTopMemberShowsTheListOfTheDimensionShownLast()
    {
        mOpen->choose("cboEntityLists", u"[Base]"_s);
        mOpen->choose("cboAccountLists", u"[Base]"_s);
        QCOMPARE(topMembers(), QStringList({QString(), u"SALES"_s}));
        mOpen->state.gDimension = mOpen->state.gMetadata->GetViewDimension();
        mOpen->choose("cboParentMembers", u"SALES"_s);
        QCOMPARE(heading(), u"Account list  [BASE]  -  1 members"_s);
        QCOMPARE(members(), QStringList{u"NET"_s});
        QCOMPARE(mOpen->state.gDimension->GetDimensionName(), u"Account"_s);
    }

    void anEmptyListHasNoMembersAndALittleHeadingAndLeavesTheParents()
    {
        mOpen->choose("cboAccountLists", u"[Base]"_s);
        mOpen->choose("cboEntityLists", u"Empty"_s);
        QCOMPARE(members(), QStringList());
        QCOMPARE(heading(), u"Entity list  "_s);
        QCOMPARE(topMembers(), QStringList({QString(), u"SALES"_s}));
        QVERIFY(mOpen->isWell());
    }

    void aListThatCannotBeReadLeavesTheLastOneAndEndsTheProgram()
    {
        mOpen->choose("cboEntityLists", u"Europe"_s);
        mOpen->calls().fail("EnumMemberListMembers"_L1, RuntimeError(5));
        mOpen->choose("cboEntityLists", u"Europe"_s);
        QCOMPARE(members(), QStringList({u"B"_s, u"Q **"_s}));
        QCOMPARE(mOpen->fakes.program.endCodes, QList<int>{1});
    }

    void theMembersAreClearedBeforeTheFirstLabelIsRead()
    {
        mOpen->choose("cboEntityLists", u"Europe"_s);
        mOpen->calls().fail("GetMemberLabel"_L1, RuntimeError(5));
        mOpen->choose("cboEntityLists", u"[Base]"_s);
        QCOMPARE(members(), QStringList());
        QCOMPARE(heading(), u"Entity list  EUROPE  -  2 members"_s);
        QCOMPARE(mOpen->fakes.program.endCodes, QList<int>{1});
    }

    void theHeadingComesAfterTheMembersAndTheParentsComeLast()
    {
        mOpen->choose("cboAccountLists", u"[Base]"_s);
        QStringList seen; // whenever HFM is asked something
        mOpen->calls().whileCalling = [&] {
            const QString now = u"%1 members, %2, %3"_s.arg(members().size())
                                    .arg(heading().left(heading().indexOf(u' ')))
                                    .arg(topMembers().size());
            if (seen.isEmpty() || seen.last() != now)
                seen.append(now);
        };
        mOpen->choose("cboEntityLists", u"Europe"_s);
        QCOMPARE(seen, QStringList({u"2 members, Account, 2"_s, u"0 members, Account, 2"_s,
                                    u"2 members, Entity, 1"_s}));
        QCOMPARE(topMembers().size(), 4);
    }

    void theParentsAreClearedBeforeTheyAreRead()
    {
        mOpen->choose("cboEntityLists", u"[Base]"_s);
        mOpen->calls().fail("EnumAllMemberLabels"_L1, RuntimeError(5));
        mOpen->choose("cboEntityLists", u"Europe"_s);
        QCOMPARE(members(), QStringList({u"B"_s, u"Q **"_s}));
        QCOMPARE(heading(), u"Entity list  EUROPE  -  2 members"_s);
        QCOMPARE(topMembers(), QStringList{QString()});
        QCOMPARE(mOpen->fakes.program.endCodes, QList<int>{1});
    }

    void aHeadingShowsTheNameOfAListAsItIs()
    {
        dimension(FakeKind::Year).addUserList(u"p&l <b>"_s, {});
        dimension(FakeKind::Year).setMembers(u"2012\n"_s);
        dimension(FakeKind::Year).addUserList(u"a & <b>"_s, {u"2012"_s});
        mOpen->open(memberListsTab);
        mOpen->choose("cboYearLists", u"a & <b>"_s);
        QCOMPARE(heading(), u"Year list  A & <B>  -  1 members"_s);
        QCOMPARE(mOpen->control<QLabel>("lblMembersInList")->textFormat(), Qt::PlainText);
        QVERIFY(!mOpen->control<QLabel>("lblMembersInList")->buddy());
    }

    void aLongListOfTopMembersOpensShortWithAScrollBar()
    {
        QString outline;
        for (int i = 0; i < 200; ++i)
            outline += u"P%1\n  B%1\n"_s.arg(i);
        dimension(FakeKind::Entity).setMembers(outline);
        mOpen->choose("cboEntityLists", u"[Base]"_s);
        QComboBox *const box = mOpen->box("cboParentMembers");
        QCOMPARE(box->count(), 201);
        box->showPopup();
        const QListView *const list = qobject_cast<QListView *>(box->view());
        QVERIFY(list);
        QTRY_VERIFY(list->verticalScrollBar()->isVisible());
        const int rows =
            list->viewport()->height() / list->visualRect(list->currentIndex()).height();
        QCOMPARE(rows, box->maxVisibleItems());
        QVERIFY(list->uniformItemSizes());
        box->hidePopup();
    }

    void membersCannotBeEdited()
    {
        mOpen->choose("cboEntityLists", u"Europe"_s);
        QCOMPARE(mOpen->control<QListView>("lstMembersInList")->editTriggers(),
                 QAbstractItemView::NoEditTriggers);
    }
};

QTEST_MAIN(tst_frmMemberListsTab)
#include "tst_frmMemberListsTab.moc"
