#include "BuilderWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

/// Editing the new list in the builder window, and when it can be generated.
class tst_NewList : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<BuilderWindow> mBuilder;

    /// Inserts the members of a dimension of so many: A, B, C and further ones.
    void open(int members)
    {
        mBuilder = std::make_unique<BuilderWindow>(u"A\nB\nC"_s);
        for (int i = 3; i < members; ++i)
            mBuilder->account().members().add(hfm::rootMember, QString::number(i));
        mBuilder->open();
        mBuilder->click("cmdListSelectAll");
        mBuilder->click("cmdListSelected");
    }
    QString newList() const { return mBuilder->rows("lstMemberList").join(u' '); }
    int selected() const { return mBuilder->selected("lstMemberList"); }
    void select(int row) { mBuilder->select("lstMemberList", row); }
    void send(const char *control, QEvent::Type type, Qt::Key key, quint64 time,
              bool isRepetition = false)
    {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), isRepetition);
        event.setTimestamp(time);
        QApplication::sendEvent(mBuilder->control<QWidget>(control), &event);
    }
    bool canGenerate() const { return mBuilder->isEnabled("cmdGenerateList"); }
    void name(const QString &text) { mBuilder->type("txtMemberListName", text); }
    void focusElsewhere() { mBuilder->tree()->setFocus(); }

private Q_SLOTS:
    void init()
    {
        open(3);
        QCOMPARE(newList(), u"A B C"_s);
        QCOMPARE(selected(), -1);
    }
    void cleanup() { mBuilder.reset(); }

    // Removing.

    void deleteRemovesTheSelectedRowAndGivesTheListTheFocus()
    {
        select(1);
        focusElsewhere();
        mBuilder->click("cmdDeleteMemberInList");
        QCOMPARE(newList(), u"A C"_s);
        QVERIFY(mBuilder->hasFocus("lstMemberList"));
    }

    void withNoRowSelectedDeleteRemovesNothingButGivesTheListTheFocus()
    {
        focusElsewhere();
        mBuilder->click("cmdDeleteMemberInList");
        QCOMPARE(newList(), u"A B C"_s);
        QVERIFY(mBuilder->hasFocus("lstMemberList"));
    }

    void theDeleteKeyRemovesTheSelectedRowAsItIsReleased()
    {
        select(0);
        QTest::keyPress(mBuilder->list("lstMemberList"), Qt::Key_Delete);
        QCOMPARE(newList(), u"A B C"_s);
        QTest::keyRelease(mBuilder->list("lstMemberList"), Qt::Key_Delete);
        QCOMPARE(newList(), u"B C"_s);
    }

    void withNoRowSelectedTheDeleteKeyRemovesNothing()
    {
        mBuilder->key("lstMemberList", Qt::Key_Delete);
        QCOMPARE(newList(), u"A B C"_s);
    }

    void otherKeysRemoveNothing()
    {
        select(0);
        for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Down, Qt::Key_Period, Qt::Key_Insert})
            mBuilder->key("lstMemberList", key);
        QCOMPARE(newList(), u"A B C"_s);
    }

    void aHeldDeleteKeyRemovesOneRow()
    {
        select(0);
        QListView *list = mBuilder->list("lstMemberList");
        QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_Delete, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(list, &repeated);
        QApplication::sendEvent(list, &repeated);
        QCOMPARE(newList(), u"A B C"_s);
        mBuilder->key("lstMemberList", Qt::Key_Delete);
        QCOMPARE(newList(), u"B C"_s);
    }

    void aHeldDeleteKeyWhoseRepetitionsAreNotMarkedRemovesOneRow()
    {
        select(0);
        send("lstMemberList", QEvent::KeyPress, Qt::Key_Delete, 100);
        for (const quint64 time : {700, 740, 780}) {
            send("lstMemberList", QEvent::KeyRelease, Qt::Key_Delete, time);
            send("lstMemberList", QEvent::KeyPress, Qt::Key_Delete, time);
        }
        send("lstMemberList", QEvent::KeyRelease, Qt::Key_Delete, 800);
        QCOMPARE(newList(), u"B C"_s);
        send("lstMemberList", QEvent::KeyPress, Qt::Key_Delete, 1000);
        send("lstMemberList", QEvent::KeyRelease, Qt::Key_Delete, 1050);
        QCOMPARE(newList(), u"C"_s);
    }

    void aDeleteKeyThatIsPressedElsewhereAndReleasedInTheListRemovesTheRow()
    {
        select(0);
        send("lstMemberList", QEvent::KeyPress, Qt::Key_Delete, 100);
        send("lstMemberList", QEvent::KeyRelease, Qt::Key_Delete, 150);
        QCOMPARE(newList(), u"B C"_s);
        send("trvMembers", QEvent::KeyPress, Qt::Key_Delete, 900);
        send("lstMemberList", QEvent::KeyRelease, Qt::Key_Delete, 950);
        QCOMPARE(newList(), u"C"_s);
    }

    void aHeldDeleteKeyThatComesFromElsewhereRemovesOneRow()
    {
        select(0);
        send("trvMembers", QEvent::KeyPress, Qt::Key_Delete, 100);
        for (const quint64 time : {700, 740, 780}) {
            send("lstMemberList", QEvent::KeyRelease, Qt::Key_Delete, time);
            send("lstMemberList", QEvent::KeyPress, Qt::Key_Delete, time);
        }
        send("lstMemberList", QEvent::KeyRelease, Qt::Key_Delete, 800);
        QCOMPARE(newList(), u"B C"_s);
    }

    void anotherKeyWhileDeleteIsHeldRemovesNothing()
    {
        select(0);
        send("lstMemberList", QEvent::KeyPress, Qt::Key_Delete, 100);
        send("lstMemberList", QEvent::KeyRelease, Qt::Key_Delete, 700);
        send("lstMemberList", QEvent::KeyPress, Qt::Key_Delete, 700);
        send("lstMemberList", QEvent::KeyPress, Qt::Key_Shift, 750);
        send("lstMemberList", QEvent::KeyRelease, Qt::Key_Shift, 760);
        send("lstMemberList", QEvent::KeyRelease, Qt::Key_Delete, 800);
        QCOMPARE(newList(), u"B C"_s);
    }

    void theNextRowIsSelectedAfterADeletionAndAfterTheLastOnesThePrevious()
    {
        select(1);
        mBuilder->click("cmdDeleteMemberInList");
        QCOMPARE(newList(), u"A C"_s);
        QCOMPARE(selected(), 1);
        mBuilder->key("lstMemberList", Qt::Key_Delete);
        QCOMPARE(newList(), u"A"_s);
        QCOMPARE(selected(), 0);
        mBuilder->key("lstMemberList", Qt::Key_Delete);
        QCOMPARE(newList(), QString());
        QCOMPARE(selected(), -1);
    }

    void rowsAreDeletedFromAListOfMoreThan32767()
    {
        open(16'384);
        mBuilder->click("cmdListSelected");
        mBuilder->list("lstMemberList")
            ->setCurrentIndex(mBuilder->list("lstMemberList")->model()->index(32'767, 0));
        mBuilder->key("lstMemberList", Qt::Key_Delete);
        QCOMPARE(mBuilder->rows("lstMemberList").size(), 32'767);
        QCOMPARE(selected(), 32'766);
        QVERIFY(mBuilder->fake.prompts.asked.isEmpty());
    }

    void clearRemovesEveryRowAndGivesTheListTheFocus()
    {
        focusElsewhere();
        mBuilder->click("cmdClearMemberList");
        QCOMPARE(newList(), QString());
        QVERIFY(mBuilder->hasFocus("lstMemberList"));
    }

    void clearHasItsKey()
    {
        QTest::keyClick(mBuilder->window, Qt::Key_L, Qt::AltModifier);
        QTRY_COMPARE(newList(), QString());
    }

    void theLastRowCanGo()
    {
        for (int i = 0; i < 3; ++i) {
            select(0);
            mBuilder->click("cmdDeleteMemberInList");
        }
        QCOMPARE(newList(), QString());
        mBuilder->click("cmdDeleteMemberInList");
        QCOMPARE(selected(), -1);
    }

    // Moving.

    void aRowMovesUpAndStaysSelected()
    {
        select(2);
        focusElsewhere();
        mBuilder->click("cmdMoveUpMemberInList");
        QCOMPARE(newList(), u"A C B"_s);
        QCOMPARE(selected(), 1);
        QVERIFY(mBuilder->hasFocus("lstMemberList"));
        mBuilder->click("cmdMoveUpMemberInList");
        QCOMPARE(newList(), u"C A B"_s);
        QCOMPARE(selected(), 0);
    }

    void aRowMovesDownAndStaysSelected()
    {
        select(0);
        focusElsewhere();
        mBuilder->click("cmdMoveDownMemberInList");
        QCOMPARE(newList(), u"B A C"_s);
        QCOMPARE(selected(), 1);
        QVERIFY(mBuilder->hasFocus("lstMemberList"));
    }

    void theFirstRowDoesNotMoveUpNorTheLastDown()
    {
        select(0);
        mBuilder->click("cmdMoveUpMemberInList");
        QCOMPARE(newList(), u"A B C"_s);
        QCOMPARE(selected(), 0);
        select(2);
        mBuilder->click("cmdMoveDownMemberInList");
        QCOMPARE(newList(), u"A B C"_s);
        QCOMPARE(selected(), 2);
    }

    void withNoRowSelectedNeitherMovesAndTheListGetsTheFocus()
    {
        for (const char *button : {"cmdMoveUpMemberInList", "cmdMoveDownMemberInList"}) {
            focusElsewhere();
            mBuilder->click(button);
            QCOMPARE(newList(), u"A B C"_s);
            QCOMPARE(selected(), -1);
            QVERIFY(mBuilder->hasFocus("lstMemberList"));
        }
    }

    void altUpAndAltDownMoveAsTheButtonsDo()
    {
        select(1);
        mBuilder->key("lstMemberList", Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(newList(), u"B A C"_s);
        QCOMPARE(selected(), 0);
        mBuilder->key("lstMemberList", Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(newList(), u"B A C"_s);
        mBuilder->key("lstMemberList", Qt::Key_Down, Qt::AltModifier);
        mBuilder->key("lstMemberList", Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(newList(), u"A C B"_s);
        QCOMPARE(selected(), 2);
        mBuilder->key("lstMemberList", Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(newList(), u"A C B"_s);
    }

    void altUpMovesNothingWhileAnotherControlHasTheFocus()
    {
        select(1);
        focusElsewhere();
        mBuilder->key("trvMembers", Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(newList(), u"A B C"_s);
    }

    void aMovedRowStaysInView()
    {
        for (int i = 0; i < 100; ++i)
            mBuilder->click("cmdListSelected");
        select(1);
        for (int i = 0; i < 60; ++i)
            mBuilder->click("cmdMoveDownMemberInList");
        QCOMPARE(selected(), 61);
        const QListView *list = mBuilder->list("lstMemberList");
        QVERIFY(list->viewport()->rect().contains(list->visualRect(list->currentIndex())));
    }

    void movingInAListOfMoreThan32767RowsEndsTheProgram()
    {
        open(16'384);
        mBuilder->click("cmdListSelected");
        select(0);
        mBuilder->click("cmdMoveDownMemberInList");
        QCOMPARE(mBuilder->fake.prompts.asked.value(0).text,
                 u"Run-time error '6':\r\n\r\nOverflow"_s);
        QCOMPARE(mBuilder->fake.program.endCodes, QList<int>{1});
    }

    // When the list can be generated.

    void itCanBeGeneratedWithARowAndAName()
    {
        QVERIFY(!canGenerate());
        name(u"S"_s);
        QVERIFY(canGenerate());
        mBuilder->key("txtMemberListName", Qt::Key_Backspace);
        QVERIFY(!canGenerate());
    }

    void aNameOfBlanksCounts()
    {
        name(u" "_s);
        QVERIFY(canGenerate());
    }

    void typingANameWhileTheListIsEmptyLeavesItOffAndInsertingTurnsItOn()
    {
        mBuilder->click("cmdClearMemberList");
        name(u"Sales"_s);
        QVERIFY(!canGenerate());
        mBuilder->click("cmdListSelected");
        QVERIFY(canGenerate());
    }

    void aNameThatComesWithoutAKeyCountsOnceTheListGetsTheFocus()
    {
        focusElsewhere();
        mBuilder->control<QLineEdit>("txtMemberListName")->setText(u"Sales"_s);
        QVERIFY(!canGenerate());
        mBuilder->list("lstMemberList")->setFocus();
        QVERIFY(canGenerate());
    }

    void aNameThatComesWithoutAKeyCountsOnceAKeyIsReleasedInTheList()
    {
        mBuilder->list("lstMemberList")->setFocus();
        mBuilder->control<QLineEdit>("txtMemberListName")->setText(u"Sales"_s);
        mBuilder->key("lstMemberList", Qt::Key_Shift);
        QVERIFY(canGenerate());
    }

    void theRuleIsAppliedAsAHeldKeyRepeatsToo()
    {
        auto *name = mBuilder->control<QLineEdit>("txtMemberListName");
        for (const char *control : {"lstMemberList", "txtMemberListName"}) {
            mBuilder->control<QWidget>(control)->setFocus();
            name->setText(u"Sales"_s);
            QVERIFY2(!canGenerate(), control);
            send(control, QEvent::KeyRelease, Qt::Key_Shift, 100, true);
            QVERIFY2(canGenerate(), control);
            name->setText({});
            send(control, QEvent::KeyRelease, Qt::Key_Shift, 200, true);
            QVERIFY2(!canGenerate(), control);
        }
    }

    void clearingTurnsItOffByKeyTooWhileTheListHasTheFocus()
    {
        name(u"Sales"_s);
        mBuilder->list("lstMemberList")->setFocus();
        QVERIFY(canGenerate());
        QTest::keyClick(mBuilder->window, Qt::Key_L, Qt::AltModifier);
        QTRY_VERIFY(!canGenerate());
    }

    void deletingTheLastRowTurnsItOff()
    {
        name(u"Sales"_s);
        for (int i = 0; i < 3; ++i) {
            QVERIFY(canGenerate());
            select(0);
            mBuilder->key("lstMemberList", Qt::Key_Delete);
        }
        QVERIFY(!canGenerate());
    }

    void aMoveThatMovesNothingAppliesTheRuleToo()
    {
        mBuilder->control<QLineEdit>("txtMemberListName")->setText(u"Sales"_s);
        mBuilder->click("cmdMoveUpMemberInList");
        QVERIFY(canGenerate());
    }
};

QTEST_MAIN(tst_NewList)
#include "tst_NewList.moc"
