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
    for (const hfm::ClassId id : security->EnumSecurityClasses().ids) {
        const hfm::AccessList access = security->EnumClassAccess(id);
        QCOMPARE(access.names.size(), access.codes.size());
        for (const QString &name : access.names)
            security->GetUserId(name);
    }
}

void SecurityContract::accessOfAUserIsToldForEveryClass()
{
    const auto security = mClient.openSession()->GetSecurity();
    const hfm::SecurityClasses classes = security->EnumSecurityClasses();
    if (classes.ids.isEmpty())
        QSKIP("This client does not read security.");
    const hfm::AccessList everyone = security->EnumClassAccess(classes.ids.first());
    for (qsizetype i = 0; i < everyone.names.size(); ++i) {
        const hfm::AccessList access =
            security->EnumUserClassAccess(security->GetUserId(everyone.names[i]));
        QCOMPARE(access.names, classes.names);
        QCOMPARE(access.codes.size(), access.names.size());
        QCOMPARE(access.codes.first(), everyone.codes[i]);
    }
}

void SecurityContract::rolesAreToldForEveryone()
{
    if (!mClient.hasListsAndSecurity())
        QSKIP("This client does not read security.");
    const auto security = mClient.openSession()->GetSecurity();
    const hfm::FlaggedNames users =
        security->EnumRoleUsers(security->GetRoleId(u"application administrator"_s));
    QCOMPARE(users.names, QStringList({u"CORP\\jane"_s, u"Readers"_s}));
    QCOMPARE(users.flags, QStringList({u"True"_s, u"False"_s}));
    const hfm::FlaggedNames roles = security->EnumUserRoles(security->GetUserId(u"corp\\JANE"_s));
    QCOMPARE(roles.names, QStringList({u"Application Administrator"_s, u"Load System"_s}));
    QCOMPARE(roles.flags, QStringList({u"True"_s, u"False"_s}));
}

void SecurityContract::theSecurityOfTheApplicationIsThere()
{
    if (!mClient.hasListsAndSecurity())
        QSKIP("This client does not read security.");
    const auto security = mClient.openSession()->GetSecurity();
    QCOMPARE(security->EnumSecurityClasses().names,
             QStringList({u"[Default]"_s, u"SC_GRP"_s, u"SC_PL"_s}));
    const hfm::AccessList access =
        security->EnumClassAccess(security->GetSecurityClassId(u"SC_GRP"_s));
    QCOMPARE(access.names, QStringList({u"CORP\\jane"_s, u"Readers"_s}));
    QCOMPARE(access.codes, QList<qint32>({4, 2}));
    const hfm::AccessList classes =
        security->EnumUserClassAccess(security->GetUserId(u"Readers"_s));
    QCOMPARE(classes.names, QStringList({u"[Default]"_s, u"SC_GRP"_s, u"SC_PL"_s}));
    QCOMPARE(classes.codes, QList<qint32>({0, 2, 0}));
}
