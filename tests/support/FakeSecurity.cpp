#include "support/FakeSecurity.h"

#include "support/FakeAttributes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

qint32 append(QStringList &names, const QString &name)
{
    names.append(name);
    return qint32(names.size() - 1);
}

qint32 find(const QStringList &names, const QString &name)
{
    for (qsizetype i = 0; i < names.size(); ++i)
        if (names[i].compare(name, Qt::CaseInsensitive) == 0)
            return qint32(i);
    throw fakeClientError();
}

void require(const QStringList &names, qint32 id)
{
    if (id < 0 || id >= names.size())
        throw fakeClientError();
}

} // namespace

hfm::ClassId FakeSecurity::addClass(const QString &name)
{
    return append(mClasses, name);
}

hfm::RoleId FakeSecurity::addRole(const QString &name)
{
    return append(mRoles, name);
}

hfm::UserId FakeSecurity::addUser(const QString &name)
{
    return append(mUsers, name);
}

void FakeSecurity::setRole(const QString &user, const QString &role, const QString &flag)
{
    mFlags[{find(mUsers, user), find(mRoles, role)}] = flag;
}

void FakeSecurity::setAccess(const QString &user, const QString &securityClass, qint32 code)
{
    mCodes[{find(mUsers, user), find(mClasses, securityClass)}] = code;
}

hfm::SecurityClasses FakeSecurity::EnumSecurityClasses()
{
    mCalls->enter("EnumSecurityClasses"_L1);
    hfm::SecurityClasses classes;
    for (hfm::ClassId id = 0; id < mClasses.size(); ++id) {
        classes.ids.append(id);
        classes.names.append(mClasses[id]);
    }
    return classes;
}

QString FakeSecurity::GetSecurityClassName(hfm::ClassId securityClass)
{
    mCalls->enter("GetSecurityClassName"_L1);
    require(mClasses, securityClass);
    return mClasses[securityClass];
}

hfm::ClassId FakeSecurity::GetSecurityClassId(const QString &name)
{
    mCalls->enter("GetSecurityClassId"_L1);
    return find(mClasses, name);
}

hfm::RoleId FakeSecurity::GetRoleId(const QString &role)
{
    mCalls->enter("GetRoleId"_L1);
    return find(mRoles, role);
}

hfm::FlaggedNames FakeSecurity::EnumRoleUsers(hfm::RoleId role)
{
    mCalls->enter("EnumRoleUsers"_L1);
    require(mRoles, role);
    hfm::FlaggedNames users;
    for (hfm::UserId user = 0; user < mUsers.size(); ++user) {
        users.names.append(mUsers[user]);
        users.flags.append(mFlags.value({user, role}, u"False"_s));
    }
    return users;
}

hfm::UserId FakeSecurity::GetUserId(const QString &name)
{
    mCalls->enter("GetUserId"_L1);
    return find(mUsers, name);
}

hfm::FlaggedNames FakeSecurity::EnumUserRoles(hfm::UserId user)
{
    mCalls->enter("EnumUserRoles"_L1);
    require(mUsers, user);
    hfm::FlaggedNames roles;
    for (hfm::RoleId role = 0; role < mRoles.size(); ++role) {
        roles.names.append(mRoles[role]);
        roles.flags.append(mFlags.value({user, role}, u"False"_s));
    }
    return roles;
}

hfm::AccessList FakeSecurity::EnumClassAccess(hfm::ClassId securityClass)
{
    mCalls->enter("EnumClassAccess"_L1);
    require(mClasses, securityClass);
    hfm::AccessList access;
    for (hfm::UserId user = 0; user < mUsers.size(); ++user) {
        access.names.append(mUsers[user]);
        access.codes.append(mCodes.value({user, securityClass}));
    }
    return access;
}

hfm::AccessList FakeSecurity::EnumUserClassAccess(hfm::UserId user)
{
    mCalls->enter("EnumUserClassAccess"_L1);
    require(mUsers, user);
    hfm::AccessList access;
    for (hfm::ClassId id = 0; id < mClasses.size(); ++id) {
        access.names.append(mClasses[id]);
        access.codes.append(mCodes.value({user, id}));
    }
    return access;
}
