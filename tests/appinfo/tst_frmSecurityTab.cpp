#include "OpenWindow.h"

#include <QMouseEvent>

using namespace Qt::StringLiterals;

/// The tab that loading switches off, switched on again and its lists filled.
class tst_frmSecurityTab : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<OpenWindow> mOpen;

    QListView *list(const char *name) const { return mOpen->control<QListView>(name); }
    void click(const char *name, int row) { mOpen->clickRow(name, row); }
    void press(const char *name, int row, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers keys = {})
    {
        QTest::mousePress(list(name)->viewport(), button, keys, mOpen->middleOf(name, row));
    }
    /// With the left button down.
    void dragTo(const char *name, int row)
    {
        const QPoint place = mOpen->middleOf(name, row);
        QMouseEvent event(QEvent::MouseMove, place, list(name)->viewport()->mapToGlobal(place),
                          Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(list(name)->viewport(), &event);
    }
    void release(const char *name, int row, Qt::MouseButton button = Qt::LeftButton,
                 Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseRelease(list(name)->viewport(), button, keys, mOpen->middleOf(name, row));
    }
    /// The entry that is selected, and the one that the answer is about.
    QString selected(const char *name) const
    {
        const QModelIndexList rows = list(name)->selectionModel()->selectedIndexes();
        return rows.size() == 1 ? rows.first().data().toString() : QString();
    }
    QString answered() const { return firstColumn().value(0).section(u" to "_s, 1); }
    QStringList firstColumn() const { return mOpen->lines("lstTemp"); }
    QStringList secondColumn() const { return mOpen->lines("lstTemp2"); }

private Q_SLOTS:
    void init()
    {
        mOpen = std::make_unique<OpenWindow>();
        FakeSecurity &security = *mOpen->fakes.hfm.application().security;
        security.addClass(u"SC_FIN"_s);
        security.addClass(u"SC_TAX"_s);
        security.addRole(u"Administrator"_s);
        security.addRole(u"Default"_s);
        security.addRole(u"Reviewer 1"_s);
        security.addUser(u"CORP\\jsmith"_s);
        security.addUser(u"admin"_s);
        security.setRole(u"CORP\\jsmith"_s, u"Administrator"_s);
        security.setAccess(u"CORP\\jsmith"_s, u"SC_FIN"_s, 2);
        security.setAccess(u"CORP\\jsmith"_s, u"SC_TAX"_s, 1);
        mOpen->open(0);
        TabControls::setLines(list("lstUsers"), {u"CORP\\jsmith"_s, u"admin"_s, u"gone"_s});
        TabControls::setLines(list("lstRoles"),
                              {u"Administrator"_s, u"Default"_s, u"Reviewer 1"_s});
        TabControls::setLines(list("lstSecurityClasses"), {u"SC_FIN"_s, u"SC_TAX"_s});
    }
    void cleanup() { mOpen.reset(); }

    void aRoleShowsItsUsersInTheFirstColumnAlone()
    {
        click("lstRoles", 0);
        QCOMPARE(mOpen->report("txtTemp"), u"User/Group Access to Administrator\r\njsmith\r\n"_s);
        QCOMPARE(mOpen->report("txtTemp2"), QString());
        QCOMPARE(firstColumn(),
                 QStringList({u"User/Group Access to Administrator"_s, u"jsmith"_s}));
        QCOMPARE(secondColumn(), QStringList());
        QVERIFY(mOpen->isWell());
    }

    void aRoleWithoutMembersYieldsItsHeadingLineAlone()
    {
        click("lstRoles", 1);
        QCOMPARE(mOpen->report("txtTemp"), u"User/Group Access to Default\r\n"_s);
        QCOMPARE(firstColumn(), QStringList{u"User/Group Access to Default"_s});
    }

    void aClassShowsTheAccessOfAllItsUsers()
    {
        click("lstSecurityClasses", 0);
        QCOMPARE(mOpen->report("txtTemp"),
                 u"User Access to SC_FIN\r\njsmith  -  READONLY\r\nadmin  -  NONE\r\n"_s);
        QCOMPARE(mOpen->report("txtTemp2"), QString());
        QCOMPARE(firstColumn(), QStringList({u"User Access to SC_FIN"_s, u"jsmith  -  READONLY"_s,
                                             u"admin  -  NONE"_s}));
    }

    void aUserShowsRolesAndClassesInTwoColumns()
    {
        click("lstUsers", 0);
        QCOMPARE(mOpen->report("txtTemp"),
                 u"User/Group CORP\\jsmith Role Access:\r\nAdministrator\r\n"_s);
        QCOMPARE(mOpen->report("txtTemp2"), u"User/Group CORP\\jsmith Security Class Access:\r\n"
                                            "SC_FIN - READONLY\r\nSC_TAX - UNKNOWN\r\n"_s);
        QCOMPARE(firstColumn(),
                 QStringList({u"User/Group CORP\\jsmith Role Access:"_s, u"Administrator"_s}));
        QCOMPARE(secondColumn(), QStringList({u"User/Group CORP\\jsmith Security Class Access:"_s,
                                              u"SC_FIN - READONLY"_s, u"SC_TAX - UNKNOWN"_s}));
    }

    void aUserWithNoClassAccessGetsTheSecondHeadingOnly()
    {
        click("lstUsers", 1);
        QCOMPARE(mOpen->report("txtTemp2"), u"User/Group admin Security Class Access:\r\n"_s);
    }

    void theNextQuestionReplacesBothColumns()
    {
        click("lstUsers", 0);
        click("lstRoles", 1);
        QCOMPARE(firstColumn(), QStringList{u"User/Group Access to Default"_s});
        QCOMPARE(secondColumn(), QStringList());
        QCOMPARE(mOpen->report("txtTemp2"), QString());
    }

    void theKeysThatSelectAnEntryChooseIt_data()
    {
        QTest::addColumn<QString>("heading");
        QTest::newRow("lstUsers") << u"User/Group admin Role Access:"_s;
        QTest::newRow("lstRoles") << u"User/Group Access to Default"_s;
        QTest::newRow("lstSecurityClasses") << u"User Access to SC_TAX"_s;
    }
    void theKeysThatSelectAnEntryChooseIt()
    {
        const char *name = QTest::currentDataTag();
        click(name, 0);
        mOpen->calls().clear();
        QTest::keyClick(list(name), Qt::Key_Down);
        QTEST(firstColumn().value(0), "heading");
        QCOMPARE(mOpen->calls().count("GetSecurity"_L1), 1);
        QVERIFY(mOpen->isWell());
    }

    void aDragShowsOnceTheEntryThatItEndsOn()
    {
        press("lstRoles", 0);
        dragTo("lstRoles", 1);
        dragTo("lstRoles", 2);
        QCOMPARE(mOpen->calls().made(), QStringList());
        release("lstRoles", 2);
        QCOMPARE(selected("lstRoles"), u"Reviewer 1"_s);
        QCOMPARE(answered(), u"Reviewer 1"_s);
        QCOMPARE(mOpen->calls().count("EnumRoleUsers"_L1), 1);
    }

    void aDragThatEndsBesideTheEntriesShowsTheLastOneSelected()
    {
        press("lstRoles", 0);
        dragTo("lstRoles", 1);
        QTest::mouseRelease(list("lstRoles")->viewport(), Qt::LeftButton, {}, {-20, -20});
        QCOMPARE(selected("lstRoles"), u"Default"_s);
        QCOMPARE(answered(), u"Default"_s);
    }

    void aDragBackToTheChosenEntryAsksAgain()
    {
        click("lstRoles", 0);
        mOpen->calls().clear();
        press("lstRoles", 0);
        dragTo("lstRoles", 1);
        dragTo("lstRoles", 0);
        release("lstRoles", 0);
        QCOMPARE(selected("lstRoles"), u"Administrator"_s);
        QCOMPARE(answered(), u"Administrator"_s);
        QCOMPARE(mOpen->calls().count("EnumRoleUsers"_L1), 1);
    }

    void aRightClickShowsTheEntryThatItSelects()
    {
        click("lstRoles", 0);
        press("lstRoles", 1, Qt::RightButton);
        release("lstRoles", 1, Qt::RightButton);
        QCOMPARE(selected("lstRoles"), u"Default"_s);
        QCOMPARE(answered(), u"Default"_s);
    }

    void theControlKeyDoesNotTakeAChoiceBack()
    {
        click("lstRoles", 1);
        press("lstRoles", 1, Qt::LeftButton, Qt::ControlModifier);
        release("lstRoles", 1, Qt::LeftButton, Qt::ControlModifier);
        QCOMPARE(selected("lstRoles"), u"Default"_s);
        QCOMPARE(answered(), u"Default"_s);
    }

    void aClickBesideTheEntriesAsksNothing()
    {
        click("lstRoles", 1);
        mOpen->calls().clear();
        const QRect last = list("lstRoles")->visualRect(list("lstRoles")->model()->index(2, 0));
        QTest::mouseClick(list("lstRoles")->viewport(), Qt::LeftButton, {},
                          last.center() + QPoint(0, last.height()));
        QCOMPARE(mOpen->calls().made(), QStringList());
        QCOMPARE(selected("lstRoles"), u"Default"_s);
        QCOMPARE(answered(), u"Default"_s);
    }

    void aDoubleClickOnAnotherEntryShowsThatOne()
    {
        click("lstRoles", 0);
        QTest::mouseDClick(list("lstRoles")->viewport(), Qt::LeftButton, {},
                           mOpen->middleOf("lstRoles", 2));
        release("lstRoles", 2);
        QCOMPARE(selected("lstRoles"), u"Reviewer 1"_s);
        QCOMPARE(answered(), u"Reviewer 1"_s);
    }

    void theSameEntryClickedAgainAsksAgain()
    {
        click("lstRoles", 0);
        mOpen->calls().clear();
        click("lstRoles", 0);
        QCOMPARE(mOpen->calls().made(),
                 QStringList({u"GetSecurity"_s, u"GetRoleId"_s, u"EnumRoleUsers"_s}));
    }

    void enteringAListWithTheKeyboardAsksNothing()
    {
        mOpen->calls().clear();
        list("lstUsers")->setFocus(Qt::TabFocusReason);
        QCOMPARE(mOpen->calls().made(), QStringList());
    }

    void theSecurityIsThatOfTheOpenSession()
    {
        QVERIFY(!mOpen->state.gSecurity);
        click("lstRoles", 0);
        QVERIFY(mOpen->state.gSecurity);
    }

    void theColumnsAreEmptiedBeforeTheQuestion_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::newRow("lstUsers") << u"GetUserId"_s;
        QTest::newRow("lstRoles") << u"GetRoleId"_s;
        QTest::newRow("lstSecurityClasses") << u"GetSecurityClassId"_s;
    }
    void theColumnsAreEmptiedBeforeTheQuestion()
    {
        QFETCH(const QString, operation);
        click("lstUsers", 0);
        const QByteArray name = operation.toLatin1();
        mOpen->calls().fail(QLatin1StringView(name), RuntimeError(5));
        click(QTest::currentDataTag(), 1);
        QCOMPARE(mOpen->report("txtTemp"), QString());
        QCOMPARE(mOpen->report("txtTemp2"), QString());
        QCOMPARE(firstColumn(), QStringList());
        QCOMPARE(secondColumn(), QStringList());
        QCOMPARE(mOpen->fakes.program.endCodes, QList<int>{1});
    }

    void anUnknownNameEndsTheProgram()
    {
        click("lstUsers", 2);
        QVERIFY(mOpen->lastMessage().startsWith(u"Run-time error '5':"_s));
        QCOMPARE(mOpen->fakes.program.endCodes, QList<int>{1});
    }

    void withoutASessionNoObjectIsSet()
    {
        mOpen->state.gSession.reset();
        click("lstUsers", 0);
        QCOMPARE(mOpen->lastMessage(),
                 u"Run-time error '91':\r\n\r\nObject variable or With block variable not set"_s);
    }
};

QTEST_MAIN(tst_frmSecurityTab)
#include "tst_frmSecurityTab.moc"
