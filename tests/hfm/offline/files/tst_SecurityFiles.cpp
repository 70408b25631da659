#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray entities = "!MEMBERS=Entity\nA;;;;;SC_A;;;;;;DefaultParent=#root\n"
                            "B;;;;;;;;;;;DefaultParent=#root\n!HIERARCHIES=Entity\n;A\n;B\n";

Reading withSecurity(const QByteArray &security)
{
    return readTexts({entities, {}, security});
}

QStringList usersOf(hfm::Security &security)
{
    return security.EnumClassAccess(security.EnumSecurityClasses().ids.first()).names;
}

QStringList rolesOf(hfm::Security &security)
{
    return security.EnumUserRoles(0).names;
}

/// A line for each class: its name and the codes of all users.
QStringList accessOf(hfm::Security &security)
{
    QStringList lines;
    const hfm::SecurityClasses classes = security.EnumSecurityClasses();
    for (qsizetype i = 0; i < classes.ids.size(); ++i) {
        QString line = classes.names[i];
        for (const qint32 code : security.EnumClassAccess(classes.ids[i]).codes)
            line += u" %1"_s.arg(code);
        lines.append(line);
    }
    return lines;
}

} // namespace

/// What a security file may hold, row by row, and how the client tells it.
class tst_SecurityFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWholeFileIsToldInEveryOperation()
    {
        const Reading reading =
            withSecurity("!FILE_FORMAT=2.0\r\n!VERSION=11.12\r\n!USERS_AND_GROUPS\r\n"
                         "jane@CORP\r\nReaders@Native Directory\r\n\r\n"
                         "!SECURITY_CLASSES\r\n[Default]\r\nSC_A\r\nSC_B\r\n"
                         "!ROLE_ACCESS\r\nDefault;jane@CORP\r\nLoad System;jane@CORP\r\n"
                         "Default;Readers@Native Directory\r\n"
                         "!SECURITY_CLASS_ACCESS\r\n[Default];jane@CORP;All;N\r\n"
                         "SC_A;Readers@Native Directory;Read;Y\r\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto security = reading.session()->GetSecurity();
        const QStringList users = {u"CORP\\jane"_s, u"Native Directory\\Readers"_s};
        const QStringList classes = {u"[Default]"_s, u"SC_A"_s, u"SC_B"_s};
        QCOMPARE(security->EnumSecurityClasses().ids, QList<qint32>({0, 1, 2}));
        QCOMPARE(security->EnumSecurityClasses().names, classes);
        QCOMPARE(security->GetSecurityClassName(2), u"SC_B"_s);
        QCOMPARE(security->GetSecurityClassId(u"sc_b"_s), 2);
        QCOMPARE(security->GetRoleId(u"load system"_s), 1);
        QCOMPARE(security->EnumRoleUsers(0).names, users);
        QCOMPARE(security->EnumRoleUsers(0).flags, QStringList({u"True"_s, u"True"_s}));
        QCOMPARE(security->EnumRoleUsers(1).flags, QStringList({u"True"_s, u"False"_s}));
        QCOMPARE(security->GetUserId(u"native directory\\READERS"_s), 1);
        QCOMPARE(security->EnumUserRoles(1).names, QStringList({u"Default"_s, u"Load System"_s}));
        QCOMPARE(security->EnumUserRoles(1).flags, QStringList({u"True"_s, u"False"_s}));
        QCOMPARE(security->EnumClassAccess(0).names, users);
        QCOMPARE(security->EnumClassAccess(0).codes, QList<qint32>({4, 0}));
        QCOMPARE(security->EnumUserClassAccess(1).names, classes);
        QCOMPARE(security->EnumUserClassAccess(1).codes, QList<qint32>({0, 2, 0}));
    }

    void anIdentityIsSplitAtItsLastAt_data()
    {
        QTest::addColumn<QByteArray>("written");
        QTest::addColumn<QString>("listed");
        QTest::newRow("name and directory") << QByteArray("jane@CORP") << u"CORP\\jane"_s;
        QTest::newRow("no @") << QByteArray("jane") << u"jane"_s;
        QTest::newRow("blanks") << QByteArray("All staff@Native Directory")
                                << u"Native Directory\\All staff"_s;
        QTest::newRow("a mail address")
            << QByteArray("jane@corp.com@LDAP") << u"LDAP\\jane@corp.com"_s;
        QTest::newRow("several") << QByteArray("a@b@c@d") << u"d\\a@b@c"_s;
        QTest::newRow("a backslash already") << QByteArray("CORP\\jane") << u"CORP\\jane"_s;
        QTest::newRow("accents") << QByteArray("Éva@Süd") << u"Süd\\Éva"_s;
    }

    void anIdentityIsSplitAtItsLastAt()
    {
        QFETCH(QByteArray, written);
        QFETCH(QString, listed);
        const Reading reading =
            withSecurity("!USERS_AND_GROUPS\n" + written +
                         "\n!SECURITY_CLASSES\nSC_A\n!SECURITY_CLASS_ACCESS\nSC_A;" + written +
                         ";Read;N\n!ROLE_ACCESS\nDefault;" + written + '\n');
        QCOMPARE(reading.warnings(), QStringList());
        const auto security = reading.session()->GetSecurity();
        QCOMPARE(usersOf(*security), QStringList{listed});
        QCOMPARE(security->GetUserId(listed), 0);
        QCOMPARE(accessOf(*security), QStringList{u"SC_A 2"_s});
        QCOMPARE(security->EnumRoleUsers(0).flags, QStringList{u"True"_s});
    }

    void anIdentityThatLacksAPartStaysAsItIsWithAWarning_data()
    {
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("no name") << QByteArray("@CORP");
        QTest::newRow("no directory") << QByteArray("jane@");
        QTest::newRow("neither") << QByteArray("@");
    }

    void anIdentityThatLacksAPartStaysAsItIsWithAWarning()
    {
        QFETCH(QByteArray, written);
        const Reading reading = withSecurity("!SECURITY_CLASSES\nSC_A\n!USERS_AND_GROUPS\n" +
                                             written + "\n!ROLE_ACCESS\nDefault;" + written + '\n');
        const QString text = QString::fromUtf8(written);
        QCOMPARE(usersOf(*reading.session()->GetSecurity()), QStringList{text});
        QCOMPARE(reading.warnings(),
                 QStringList{u"Test.sec, line 4: '%1' lacks a name or a directory."_s.arg(text)});
    }

    void accessIsReadInAnyCase_data()
    {
        QTest::addColumn<QByteArray>("access");
        QTest::addColumn<int>("code");
        QTest::newRow("None") << QByteArray("None") << 0;
        QTest::newRow("Metadata") << QByteArray("Metadata") << 1;
        QTest::newRow("Read") << QByteArray("Read") << 2;
        QTest::newRow("Promote") << QByteArray("Promote") << 3;
        QTest::newRow("All") << QByteArray("All") << 4;
        QTest::newRow("NONE") << QByteArray("NONE") << 0;
        QTest::newRow("metadata") << QByteArray("metadata") << 1;
        QTest::newRow("READ") << QByteArray("READ") << 2;
        QTest::newRow("pROMOTE") << QByteArray("pROMOTE") << 3;
        QTest::newRow("blanks around") << QByteArray(" all\t") << 4;
    }

    void accessIsReadInAnyCase()
    {
        QFETCH(QByteArray, access);
        QFETCH(int, code);
        const Reading reading = withSecurity("!USERS_AND_GROUPS\njane@CORP\n!SECURITY_CLASSES\n"
                                             "SC_A\n!SECURITY_CLASS_ACCESS\nSC_A;jane@CORP;" +
                                             access + ";N\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.session()->GetSecurity()->EnumClassAccess(0).codes, QList<qint32>{code});
    }

    void anAccessThatIsNoneIsUnknownWithAWarning()
    {
        const Reading reading =
            withSecurity("!USERS_AND_GROUPS\njane\njim\n!SECURITY_CLASSES\nSC_A\n"
                         "!SECURITY_CLASS_ACCESS\nSC_A;jane;Write;N\nSC_A;jim;;N\n");
        QCOMPARE(accessOf(*reading.session()->GetSecurity()), QStringList{u"SC_A -1 0"_s});
        QCOMPARE(reading.warnings(), QStringList({u"Test.sec, line 7: 'Write' is no access."_s,
                                                  u"Test.sec, line 8: '' is no access."_s}));
    }

    void theFlagMayBeMissing()
    {
        const Reading reading = withSecurity("!USERS_AND_GROUPS\njane\n!SECURITY_CLASSES\nSC_A\n"
                                             "!SECURITY_CLASS_ACCESS\nSC_A;jane;Read\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(accessOf(*reading.session()->GetSecurity()), QStringList{u"SC_A 2"_s});
    }

    void classesThatMembersUseAndTheFileLacksFollowTheListedOnes()
    {
        const Reading reading = readTexts(
            {"!MEMBERS=Entity\nA;;;;;SC_M;;;;;;DefaultParent=#root\n"
             "B;;;;;sc_2;;;;;;DefaultParent=#root\n!HIERARCHIES=Entity\n;A\n;B\n"
             "!MEMBERS=Custom1\nC;N;N;N;;;;SC_C;DefaultParent=#root\n!HIERARCHIES=Custom1\n;C;1\n"
             "!MEMBERS=Account\nP;ASSET;N;N;N;;;;;;0;N;N;N;N;N;;;;;SC_P;;N;DefaultParent=#root\n"
             "!HIERARCHIES=Account\n;P\n",
             {},
             "!SECURITY_CLASSES\nSC_1\nSC_2\n!USERS_AND_GROUPS\njane\n"
             "!SECURITY_CLASS_ACCESS\nSC_M;jane;All;N\nSC_2;jane;Read;N\n"});
        const auto security = reading.session()->GetSecurity();
        QCOMPARE(accessOf(*security),
                 QStringList({u"SC_1 0"_s, u"SC_2 2"_s, u"SC_M 4"_s, u"SC_C 0"_s, u"SC_P 0"_s}));
        const auto entities = reading.entity()->entityAttributes();
        QCOMPARE(entities->GetEntitySecurityClassId(0), 2);
        QCOMPARE(entities->GetEntitySecurityClassId(1), 1);
        QCOMPARE(reading.account()->accountAttributes()->GetAccountSecurityClassId(0), 4);
        QCOMPARE(reading.custom1()->customAttributes()->GetCustomSecurityClassId(0), 3);
        QCOMPARE(reading.warnings().size(), 3);
        QVERIFY(reading.warnsOf(2, {u"SC_M"_s}));
        QVERIFY(reading.warnsOf(8, {u"SC_C"_s}));
        QVERIFY(reading.warnsOf(12, {u"SC_P"_s}));
    }

    void withoutAFileTheClassesAreThoseOfMembersAndNobodyHasAccess()
    {
        const Reading reading = readText(entities);
        QCOMPARE(reading.warnings(), QStringList());
        const auto security = reading.session()->GetSecurity();
        QCOMPARE(security->EnumSecurityClasses().names, QStringList{u"SC_A"_s});
        QVERIFY(security->EnumClassAccess(0).names.isEmpty());
        QVERIFY(security->EnumClassAccess(0).codes.isEmpty());
        const auto view = reading.entity()->entityAttributes();
        QCOMPARE(view->GetEntitySecurityClassId(0), 0);
        QCOMPARE(view->GetEntitySecurityClassId(1), hfm::noClass);
    }

    void sectionsMayComeInAnyOrderAndTwice()
    {
        const Reading reading =
            withSecurity("!SECURITY_CLASS_ACCESS\nSC_A;jim@X;Read;N\nSC_B;jane@X;All;N\n"
                         "!ROLE_ACCESS\nSecond;jim@X\nFirst;jane@X\n"
                         "!SECURITY_CLASSES\nSC_B\n!USERS_AND_GROUPS\njane@X\n"
                         "!SECURITY_CLASSES\nSC_A\n!USERS_AND_GROUPS\njim@X\n"
                         "!SECURITY_CLASS_ACCESS\nSC_B;jim@X;Promote;N\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto security = reading.session()->GetSecurity();
        QCOMPARE(usersOf(*security), QStringList({u"X\\jane"_s, u"X\\jim"_s}));
        QCOMPARE(accessOf(*security), QStringList({u"SC_B 4 3"_s, u"SC_A 0 2"_s}));
        QCOMPARE(rolesOf(*security), QStringList({u"Second"_s, u"First"_s}));
        QCOMPARE(security->EnumUserRoles(0).flags, QStringList({u"False"_s, u"True"_s}));
    }

    void unknownSectionsCommentsAndBlankLinesAreSkipped()
    {
        const Reading reading =
            withSecurity("stray\n!PROVISIONING\njim@X\n!users_and_groups\n'jo@X\n\n  \n jane@X \n"
                         "! Security_Classes = \nSC_A\n!OTHER\nSC_B\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto security = reading.session()->GetSecurity();
        QCOMPARE(usersOf(*security), QStringList{u"X\\jane"_s});
        QCOMPARE(security->EnumSecurityClasses().names, QStringList{u"SC_A"_s});
    }

    void namesThatDifferInCaseAreOne()
    {
        const Reading reading =
            withSecurity("!USERS_AND_GROUPS\nJane@Corp\n!SECURITY_CLASSES\nSC_A\n"
                         "!ROLE_ACCESS\nDefault;jane@corp\nDEFAULT;JANE@CORP\n"
                         "!SECURITY_CLASS_ACCESS\nsc_a;JANE@corp;Read;N\n");
        const auto security = reading.session()->GetSecurity();
        QCOMPARE(usersOf(*security), QStringList{u"Corp\\Jane"_s});
        QCOMPARE(rolesOf(*security), QStringList{u"Default"_s});
        QCOMPARE(accessOf(*security), QStringList{u"SC_A 2"_s});
        QCOMPARE(reading.warnings(), QStringList{u"Test.sec, line 7: 'Corp\\Jane' has a record for "
                                                 "'Default' already; this one is left out."_s});
    }
};

QTEST_APPLESS_MAIN(tst_SecurityFiles)
#include "tst_SecurityFiles.moc"
