#include "BuilderWindow.h"
#include "shell/frmLargeText.h"
#include "support/CursorLog.h"

#include <QComboBox>
#include <QLabel>
#include <QTabWidget>

using namespace Qt::StringLiterals;

/// The builder window's second tab: the lists and the member list file that the application has.
class tst_ViewingLists : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<BuilderWindow> mBuilder;

    void make()
    {
        mBuilder = std::make_unique<BuilderWindow>(u"A|Alpha\n  B|Beta"_s);
        mBuilder->account().addUserList(u"Sales"_s, {u"A"_s, u"B"_s});
        mBuilder->account().addUserList(u"Empty"_s, {});
    }
    void open()
    {
        delete mBuilder->window;
        mBuilder->open();
        mBuilder->control<QTabWidget>("ssTabMemberListBuilder")->setCurrentIndex(1);
    }

    QComboBox *combo() const { return mBuilder->control<QComboBox>("cboMemberLists"); }
    QString caption() const { return mBuilder->control<QLabel>("lblMembersInList")->text(); }
    QStringList members() const { return mBuilder->rows("lstMembersInList"); }
    QString file() const
    {
        return mBuilder->control<LargeTextView>("txtCurrentMemberListFile")->text();
    }
    FakeCalls &calls() { return mBuilder->fake.hfm.calls(); }

    /// Chooses a list from the opened box.
    void choose(const QString &name)
    {
        const int row = combo()->findText(name);
        QVERIFY(row >= 0);
        combo()->showPopup();
        QAbstractItemView *view = combo()->view();
        QTRY_VERIFY(view->isVisible());
        view->setCurrentIndex(combo()->model()->index(row, 0));
        QTest::keyClick(view, Qt::Key_Return);
        QTRY_VERIFY(!view->isVisible());
    }

private Q_SLOTS:
    void init()
    {
        make();
        open();
    }
    void cleanup() { mBuilder.reset(); }

    void theListsAreAllThereInTheClientsOrderAndNoneIsChosen()
    {
        QStringList names;
        for (int i = 0; i < combo()->count(); ++i)
            names.append(combo()->itemText(i));
        QCOMPARE(names,
                 QStringList({u"[Hierarchy]"_s, u"[Descendants]"_s, u"[Ancestors]"_s, u"[Base]"_s,
                              u"[Children]"_s, u"[Parents]"_s, u"Sales"_s, u"Empty"_s}));
        QCOMPARE(combo()->currentIndex(), -1);
        QCOMPARE(combo()->currentText(), QString());
        QCOMPARE(members(), QStringList());
        QCOMPARE(caption(), QString());
    }

    void aDimensionWithoutListsShowsNone()
    {
        mBuilder->account().clearLists();
        open();
        QCOMPARE(combo()->count(), 0);
    }

    void aChosenListShowsItsMembersWithParentsMarked()
    {
        choose(u"Sales"_s);
        QCOMPARE(members(), QStringList({u"A **"_s, u"B"_s}));
        QCOMPARE(caption(), u"ACCOUNT list  SALES  -  2 members"_s);
        QCOMPARE(mBuilder->list("lstMembersInList")->accessibleName(), caption());
    }

    void anEmptyListClearsTheRowsAndNamesOnlyTheDimension()
    {
        choose(u"Sales"_s);
        choose(u"Empty"_s);
        QCOMPARE(members(), QStringList());
        QCOMPARE(caption(), u"ACCOUNT list  "_s);
    }

    void aSystemListIsShownWhole()
    {
        choose(u"[Hierarchy]"_s);
        QCOMPARE(members(), QStringList({u"A **"_s, u"B"_s}));
        QCOMPARE(mBuilder->account().listAsked(), (std::pair<hfm::ListId, hfm::MemberId>(-1, -1)));
    }

    void theSameListChosenAgainIsReadAgain()
    {
        choose(u"Sales"_s);
        calls().clear();
        choose(u"Sales"_s);
        QCOMPARE(calls().made(),
                 QStringList({u"GetMemberListId"_s, u"EnumMemberListMembers"_s, u"GetMemberLabel"_s,
                              u"GetHasChildren"_s, u"GetMemberLabel"_s, u"GetHasChildren"_s}));
        QCOMPARE(members().size(), 2);
    }

    void theArrowKeysChooseToo()
    {
        choose(u"Sales"_s);
        mBuilder->key("cboMemberLists", Qt::Key_Down);
        QCOMPARE(caption(), u"ACCOUNT list  "_s);
        mBuilder->key("cboMemberLists", Qt::Key_Up);
        QCOMPARE(caption(), u"ACCOUNT list  SALES  -  2 members"_s);
    }

    void theCaptionHasTheSharedNameOfTheDimension()
    {
        mBuilder->global.gDimensionName = u"R&D <b>"_s;
        choose(u"Sales"_s);
        QCOMPARE(caption(), u"R&D <b> list  SALES  -  2 members"_s);
        QVERIFY(!mBuilder->control<QLabel>("lblMembersInList")->buddy());
    }

    void theMembersAreThoseOfTheCurrentDimension()
    {
        FakeDimension &custom = mBuilder->fake.hfm.application().custom(1);
        custom.setMembers(u"Z"_s);
        custom.addUserList(u"Sales"_s, {u"Z"_s});
        mBuilder->choose(FakeKind::Custom1, u"CUSTOM1"_s);
        choose(u"Sales"_s);
        QCOMPARE(members(), QStringList{u"Z"_s});
        QCOMPARE(caption(), u"CUSTOM1 list  SALES  -  1 members"_s);
    }

    void aFailingGetHasChildrenShowsTheMemberWithoutAMark()
    {
        calls().fail("GetHasChildren"_L1, RuntimeError(InvalidProcedureCall));
        choose(u"Sales"_s);
        QCOMPARE(members(), QStringList({u"A"_s, u"B"_s}));
        QVERIFY(mBuilder->fake.prompts.asked.isEmpty());
    }

    void anyOtherFailureEndsTheProgram_data()
    {
        QTest::addColumn<QString>("operation");
        for (const char *operation : {"GetMemberListId", "EnumMemberListMembers", "GetMemberLabel"})
            QTest::newRow(operation) << QString::fromLatin1(operation);
    }

    void anyOtherFailureEndsTheProgram()
    {
        QFETCH(QString, operation);
        const QByteArray name = operation.toLatin1();
        calls().fail(QLatin1StringView(name), RuntimeError(1234, u"HFM"_s, u"Lost."_s));
        choose(u"Sales"_s);
        QCOMPARE(mBuilder->fake.prompts.asked.value(0).text,
                 u"Run-time error '1234':\r\n\r\nLost."_s);
        QCOMPARE(mBuilder->fake.program.endCodes, QList<int>{1});
        QVERIFY(mBuilder->window->cursor().shape() != Qt::WaitCursor);
    }

    void theHourglassShowsWhileAListIsRead()
    {
        const CursorLog cursors(mBuilder->window);
        choose(u"Sales"_s);
        QCOMPARE(cursors.shapes, QList<Qt::CursorShape>({Qt::WaitCursor, Qt::ArrowCursor}));
    }

    void viewingListsChangesNothingInTheBuilder()
    {
        choose(u"Sales"_s);
        QCOMPARE(mBuilder->rows("lstMemberList"), QStringList());
        QCOMPARE(mBuilder->selected("lstMetadata"), -1);
    }

    // The stored file.

    void withoutAStoredFileTheBoxSaysSo()
    {
        QCOMPARE(file(), u"No member list file is present in the system."_s);
    }

    void presenceFlagZeroSaysSoEvenWhereThereAreBytes()
    {
        mBuilder->fake.hfm.application().memberListFile = {"Sub EnumMemberLists()", 0};
        open();
        QCOMPARE(file(), u"No member list file is present in the system."_s);
    }

    void theStoredFileIsShownAsItStands()
    {
        mBuilder->fake.hfm.application().memberListFile = {
            "Sub EnumMemberLists()\r\n\t'Ums\xE4tze \x80\r\nEnd Sub\n", 1};
        open();
        QCOMPARE(file(), u"Sub EnumMemberLists()\r\n\t'Umsätze €\r\nEnd Sub\n"_s);
    }

    void theStoredFileIsReadOnceAndCannotBeChanged()
    {
        mBuilder->fake.hfm.application().memberListFile = {"old", 1};
        open();
        mBuilder->fake.hfm.application().memberListFile = {"new", 1};
        calls().clear();
        choose(u"Sales"_s);
        QTest::keyClicks(mBuilder->control<LargeTextView>("txtCurrentMemberListFile"), u"x"_s);
        QCOMPARE(file(), u"old"_s);
        QCOMPARE(calls().count("GetMemberListFile"_L1), 0);
    }
};

QTEST_MAIN(tst_ViewingLists)
#include "tst_ViewingLists.moc"
