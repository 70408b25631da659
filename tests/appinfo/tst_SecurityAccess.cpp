#include "appinfo/SecurityAccess.h"
#include "support/Errors.h"
#include "support/FakeHfm.h"

#include <QTest>

using namespace Qt::StringLiterals;
using SecurityAccess::Columns;

class tst_SecurityAccess : public QObject
{
    Q_OBJECT

private:
    FakeHfm mHfm;
    FakeSecurity *mSecurity = nullptr;

private Q_SLOTS:
    void init()
    {
        mSecurity = mHfm.newApplication().security.get();
        mSecurity->addClass(u"SC_FIN"_s);
        mSecurity->addClass(u"SC_TAX"_s);
        mSecurity->addRole(u"Administrator"_s);
        mSecurity->addRole(u"Reviewer 1"_s);
        mSecurity->addUser(u"CORP\\jsmith"_s);
        mSecurity->addUser(u"admin"_s);
        mSecurity->addUser(u"CORP\\EU\\Controllers"_s);
        mHfm.calls().clear();
    }

    void accessCodesHaveTheirTexts_data()
    {
        QTest::addColumn<qint32>("code");
        QTest::addColumn<QString>("text");
        QTest::newRow("0") << 0 << u"NONE"_s;
        QTest::newRow("1") << 1 << u"UNKNOWN"_s;
        QTest::newRow("2") << 2 << u"READONLY"_s;
        QTest::newRow("3") << 3 << u"READANDPROMOTE"_s;
        QTest::newRow("4") << 4 << u"ALL"_s;
        QTest::newRow("5") << 5 << u"UNKNOWN"_s;
        QTest::newRow("-1") << -1 << u"UNKNOWN"_s;
    }
    void accessCodesHaveTheirTexts()
    {
        QFETCH(const qint32, code);
        QTEST(SecurityAccess::accessText(code), "text");
    }

    void theDomainIsWhatStandsBeforeTheLastBackslash()
    {
        QCOMPARE(SecurityAccess::StripDomainFromUserName(u"CORP\\jsmith"_s), u"jsmith"_s);
        QCOMPARE(SecurityAccess::StripDomainFromUserName(u"CORP\\EU\\jsmith"_s), u"jsmith"_s);
        QCOMPARE(SecurityAccess::StripDomainFromUserName(u"admin"_s), u"admin"_s);
        QCOMPARE(SecurityAccess::StripDomainFromUserName(u"CORP\\"_s), QString());
        QCOMPARE(SecurityAccess::StripDomainFromUserName({}), QString());
    }

    void aRoleHasAHeadingAndItsMembersWithoutTheirDomains()
    {
        mSecurity->setRole(u"CORP\\jsmith"_s, u"Reviewer 1"_s);
        mSecurity->setRole(u"CORP\\EU\\Controllers"_s, u"Reviewer 1"_s);
        const Columns expected = {
            {u"User/Group Access to Reviewer 1"_s, u"jsmith"_s, u"Controllers"_s}, {}};
        QCOMPARE(SecurityAccess::ofRole(*mSecurity, u"Reviewer 1"_s), expected);
        QCOMPARE(mHfm.calls().made(), QStringList({u"GetRoleId"_s, u"EnumRoleUsers"_s}));
    }

    void aFlagCountsOnlyWhenItReadsTrue()
    {
        mSecurity->setRole(u"CORP\\jsmith"_s, u"Reviewer 1"_s, u"true"_s);
        mSecurity->setRole(u"admin"_s, u"Reviewer 1"_s, u"True "_s);
        mSecurity->setRole(u"CORP\\EU\\Controllers"_s, u"Reviewer 1"_s, u"-1"_s);
        const Columns expected = {{u"User/Group Access to Reviewer 1"_s}, {}};
        QCOMPARE(SecurityAccess::ofRole(*mSecurity, u"Reviewer 1"_s), expected);
    }

    void aRoleWithoutMembersYieldsItsHeadingAlone()
    {
        const Columns expected = {{u"User/Group Access to Administrator"_s}, {}};
        QCOMPARE(SecurityAccess::ofRole(*mSecurity, u"Administrator"_s), expected);
    }

    void aClassListsEveryUserWithItsAccessBetweenDoubleBlanks()
    {
        mSecurity->setAccess(u"CORP\\jsmith"_s, u"SC_FIN"_s, 4);
        mSecurity->setAccess(u"admin"_s, u"SC_FIN"_s, 7);
        const Columns expected = {{u"User Access to SC_FIN"_s, u"jsmith  -  ALL"_s,
                                   u"admin  -  UNKNOWN"_s, u"Controllers  -  NONE"_s},
                                  {}};
        QCOMPARE(SecurityAccess::ofClass(*mSecurity, u"SC_FIN"_s), expected);
        QCOMPARE(mHfm.calls().made(), QStringList({u"GetSecurityClassId"_s, u"EnumClassAccess"_s}));
    }

    void aUserHasRolesInTheFirstColumnAndClassesInTheSecondBetweenSingleBlanks()
    {
        mSecurity->setRole(u"CORP\\jsmith"_s, u"Administrator"_s);
        mSecurity->setAccess(u"CORP\\jsmith"_s, u"SC_FIN"_s, 3);
        mSecurity->setAccess(u"CORP\\jsmith"_s, u"SC_TAX"_s, 1);
        const Columns expected = {{u"User/Group CORP\\jsmith Role Access:"_s, u"Administrator"_s},
                                  {u"User/Group CORP\\jsmith Security Class Access:"_s,
                                   u"SC_FIN - READANDPROMOTE"_s, u"SC_TAX - UNKNOWN"_s}};
        QCOMPARE(SecurityAccess::ofUser(*mSecurity, u"CORP\\jsmith"_s), expected);
        QCOMPARE(mHfm.calls().made(), QStringList({u"GetUserId"_s, u"EnumUserRoles"_s,
                                                   u"GetUserId"_s, u"EnumUserClassAccess"_s}));
    }

    void classesWithoutAccessAreLeftOutOfAUsersColumn()
    {
        mSecurity->setAccess(u"admin"_s, u"SC_TAX"_s, 2);
        QCOMPARE(
            SecurityAccess::ofUser(*mSecurity, u"admin"_s).second,
            QStringList({u"User/Group admin Security Class Access:"_s, u"SC_TAX - READONLY"_s}));
    }

    void aUserWithNoClassAccessGetsTheSecondHeadingOnly()
    {
        const Columns expected = {{u"User/Group admin Role Access:"_s},
                                  {u"User/Group admin Security Class Access:"_s}};
        QCOMPARE(SecurityAccess::ofUser(*mSecurity, u"admin"_s), expected);
    }

    void moreThan32767NamesOverflow_data()
    {
        QTest::addColumn<int>("question");
        QTest::newRow("the users of a role") << 0;
        QTest::newRow("the users of a class") << 1;
        QTest::newRow("the roles of a user") << 2;
        QTest::newRow("the classes of a user") << 3;
    }
    void moreThan32767NamesOverflow()
    {
        QFETCH(const int, question);
        FakeSecurity &security = *mHfm.newApplication().security;
        const QString one = u"first"_s;
        security.addUser(one);
        security.addRole(one);
        security.addClass(one);
        const auto add = [&](int number) {
            const QString name = QString::number(number);
            if (question < 2)
                security.addUser(name);
            else if (question == 2)
                security.addRole(name);
            else
                security.addClass(name);
        };
        const auto ask = [&] {
            if (question == 0)
                SecurityAccess::ofRole(security, one);
            else if (question == 1)
                SecurityAccess::ofClass(security, one);
            else
                SecurityAccess::ofUser(security, one);
        };
        for (int number = 2; number <= 32'767; ++number)
            add(number);
        QVERIFY(!errorOf(ask));
        add(32'768);
        const auto error = errorOf(ask);
        QVERIFY(error);
        QCOMPARE(error->number(), Overflow);
    }

    void anUnknownNameIsTheClientsError()
    {
        QVERIFY(errorOf([&] { SecurityAccess::ofRole(*mSecurity, u"nobody"_s); }));
        QVERIFY(errorOf([&] { SecurityAccess::ofClass(*mSecurity, u"nobody"_s); }));
        QVERIFY(errorOf([&] { SecurityAccess::ofUser(*mSecurity, u"nobody"_s); }));
    }

    void everyLineOfATextEndsWithCrLf()
    {
        QCOMPARE(SecurityAccess::text({u"a"_s, u"b"_s}), u"a\r\nb\r\n"_s);
        QCOMPARE(SecurityAccess::text({}), QString());
    }
};

QTEST_APPLESS_MAIN(tst_SecurityAccess)
#include "tst_SecurityAccess.moc"
