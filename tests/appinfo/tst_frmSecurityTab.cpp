#include "OpenWindow.h"

using namespace Qt::StringLiterals;

/// The tab that loading switches off, switched on again and its lists filled.
class tst_frmSecurityTab : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<OpenWindow> mOpen;

    QListView *list(const char *name) const { return mOpen->control<QListView>(name); }
    void click(const char *name, int row)
    {
        const QModelIndex entry = list(name)->model()->index(row, 0);
        QTest::mouseClick(list(name)->viewport(), Qt::LeftButton, {},
                          list(name)->visualRect(entry).center());
    }
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
        security.addUser(u"CORP\\jsmith"_s);
        security.addUser(u"admin"_s);
        security.setRole(u"CORP\\jsmith"_s, u"Administrator"_s);
        security.setAccess(u"CORP\\jsmith"_s, u"SC_FIN"_s, 2);
        security.setAccess(u"CORP\\jsmith"_s, u"SC_TAX"_s, 1);
        mOpen->open(0);
        TabControls::setLines(list("lstUsers"), {u"CORP\\jsmith"_s, u"admin"_s, u"gone"_s});
        TabControls::setLines(list("lstRoles"), {u"Administrator"_s, u"Default"_s});
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

    void theKeysThatSelectAnEntryChooseIt()
    {
        click("lstRoles", 0);
        mOpen->calls().clear();
        QTest::keyClick(list("lstRoles"), Qt::Key_Down);
        QCOMPARE(firstColumn(), QStringList{u"User/Group Access to Default"_s});
        QCOMPARE(mOpen->calls().count("EnumRoleUsers"_L1), 1);
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

    void anUnknownNameEndsTheProgramAfterTheColumnsAreEmptied()
    {
        click("lstUsers", 0);
        click("lstUsers", 2);
        QCOMPARE(mOpen->report("txtTemp"), QString());
        QCOMPARE(mOpen->report("txtTemp2"), QString());
        QCOMPARE(firstColumn(), QStringList());
        QCOMPARE(secondColumn(), QStringList());
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
