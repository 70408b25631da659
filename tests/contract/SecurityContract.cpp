#include "contract/SecurityContract.h"

#include "contract/Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

void SecurityContract::classesAreFoundByIdAndByNameInAnyLetterCase()
{
    const auto security = mClient.openSession()->GetSecurity();
    const hfm::SecurityClasses classes = security->EnumSecurityClasses();
    QCOMPARE(classes.ids.size(), classes.names.size());
    for (qsizetype i = 0; i < classes.ids.size(); ++i) {
        QVERIFY(classes.ids[i] != hfm::noClass);
        QCOMPARE(classes.ids.count(classes.ids[i]), 1);
        QCOMPARE(security->GetSecurityClassName(classes.ids[i]), classes.names[i]);
        QCOMPARE(security->GetSecurityClassId(classes.names[i].toUpper()), classes.ids[i]);
        QCOMPARE(security->GetSecurityClassId(classes.names[i].toLower()), classes.ids[i]);
    }
}

void SecurityContract::namesAndIdsThatAreNotThereFail()
{
    const auto security = mClient.openSession()->GetSecurity();
    for (const qint32 id : {-1, -2, 1000}) {
        QVERIFY(failsAsUnknown([&] { security->GetSecurityClassName(id); }));
        QVERIFY(failsAsUnknown([&] { security->EnumClassAccess(id); }));
        QVERIFY(failsAsUnknown([&] { security->EnumRoleUsers(id); }));
        QVERIFY(failsAsUnknown([&] { security->EnumUserRoles(id); }));
        QVERIFY(failsAsUnknown([&] { security->EnumUserClassAccess(id); }));
    }
    for (const QString &name : {u"Nobody"_s, QString()}) {
        QVERIFY(failsAsUnknown([&] { security->GetSecurityClassId(name); }));
        QVERIFY(failsAsUnknown([&] { security->GetRoleId(name); }));
        QVERIFY(failsAsUnknown([&] { security->GetUserId(name); }));
    }
}

void SecurityContract::accessToAClassIsToldForEveryone()
{
    const auto security = mClient.openSession()->GetSecurity();
    const QStringList everyone = {u"CORP\\jane"_s, u"Readers"_s,
                                  u"Native Directory\\jim@corp.com"_s};
    const auto codes = [&](const QString &name) {
        return security->EnumClassAccess(security->GetSecurityClassId(name)).codes;
    };
    for (const hfm::ClassId id : security->EnumSecurityClasses().ids)
        QCOMPARE(security->EnumClassAccess(id).names, everyone);
    QCOMPARE(codes(u"[Default]"_s), QList<qint32>({0, 1, 3}));
    QCOMPARE(codes(u"sc_grp"_s), QList<qint32>({4, 2, 0}));
    QCOMPARE(codes(u"SC_PL"_s), QList<qint32>({0, 0, 0}));
}

void SecurityContract::accessOfAUserIsToldForEveryClass()
{
    const auto security = mClient.openSession()->GetSecurity();
    const QStringList classes = {u"[Default]"_s, u"SC_GRP"_s, u"SC_PL"_s};
    QCOMPARE(security->EnumSecurityClasses().names, classes);
    const auto codes = [&](const QString &user) {
        return security->EnumUserClassAccess(security->GetUserId(user)).codes;
    };
    for (const QString &user :
         security->EnumClassAccess(security->EnumSecurityClasses().ids.first()).names)
        QCOMPARE(security->EnumUserClassAccess(security->GetUserId(user)).names, classes);
    QCOMPARE(codes(u"CORP\\jane"_s), QList<qint32>({0, 4, 0}));
    QCOMPARE(codes(u"readers"_s), QList<qint32>({1, 2, 0}));
    QCOMPARE(codes(u"Native Directory\\jim@corp.com"_s), QList<qint32>({3, 0, 0}));
}

void SecurityContract::theUsersOfARoleAreToldForEveryone()
{
    const auto security = mClient.openSession()->GetSecurity();
    const auto usersOf = [&](const QString &role) {
        return security->EnumRoleUsers(security->GetRoleId(role));
    };
    const hfm::FlaggedNames users = usersOf(u"application administrator"_s);
    QCOMPARE(users.names,
             QStringList({u"CORP\\jane"_s, u"Readers"_s, u"Native Directory\\jim@corp.com"_s}));
    QCOMPARE(users.flags, QStringList({u"True"_s, u"False"_s, u"False"_s}));
    QCOMPARE(usersOf(u"Load System"_s).names, users.names);
    QCOMPARE(usersOf(u"Load System"_s).flags, QStringList({u"False"_s, u"False"_s, u"True"_s}));
}

void SecurityContract::theRolesOfAUserAreToldForEveryRole()
{
    const auto security = mClient.openSession()->GetSecurity();
    const auto rolesOf = [&](const QString &user) {
        return security->EnumUserRoles(security->GetUserId(user));
    };
    const hfm::FlaggedNames roles = rolesOf(u"corp\\JANE"_s);
    QCOMPARE(roles.names, QStringList({u"Application Administrator"_s, u"Load System"_s}));
    QCOMPARE(roles.flags, QStringList({u"True"_s, u"False"_s}));
    QCOMPARE(rolesOf(u"Readers"_s).names, roles.names);
    QCOMPARE(rolesOf(u"Readers"_s).flags, QStringList({u"False"_s, u"False"_s}));
}

void SecurityContract::everyNameThatIsListedIsFoundAgain()
{
    const auto security = mClient.openSession()->GetSecurity();
    QList<hfm::UserId> users;
    for (const QString &user :
         security->EnumClassAccess(security->EnumSecurityClasses().ids.first()).names) {
        users.append(security->GetUserId(user));
        QCOMPARE(security->GetUserId(user.toUpper()), users.last());
        QCOMPARE(users.count(users.last()), 1);
    }
    QList<hfm::RoleId> roles;
    for (const QString &role : security->EnumUserRoles(users.first()).names) {
        roles.append(security->GetRoleId(role));
        QCOMPARE(security->GetRoleId(role.toLower()), roles.last());
        QCOMPARE(roles.count(roles.last()), 1);
    }
    QCOMPARE(users.size(), 3);
    QCOMPARE(roles.size(), 2);
}
