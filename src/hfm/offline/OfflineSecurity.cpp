#include "hfm/offline/OfflineSecurity.h"

#include "hfm/offline/OfflineDimension.h"

namespace hfm::offline {

namespace {

[[noreturn]] void failUnknownId(qint32 id, QLatin1StringView what)
{
    failUnknown(QStringLiteral("%1 is not the ID of a %2.").arg(QString::number(id), what));
}

[[noreturn]] void failUnknownName(const QString &name, QLatin1StringView what)
{
    failUnknown(QStringLiteral("'%1' is not a %2.").arg(name, what));
}

constexpr QLatin1StringView securityClassWord("security class");
constexpr QLatin1StringView roleWord("role");
constexpr QLatin1StringView userWord("user or group");

} // namespace

OfflineSecurity::OfflineSecurity(std::shared_ptr<const Application> application)
    : mApplication(std::move(application))
{
}

SecurityClasses OfflineSecurity::EnumSecurityClasses()
{
    return {};
}

QString OfflineSecurity::GetSecurityClassName(ClassId securityClass)
{
    if (securityClass < 0 || securityClass >= mApplication->securityClasses.count())
        failUnknownId(securityClass, securityClassWord);
    return mApplication->securityClasses.text(securityClass);
}

ClassId OfflineSecurity::GetSecurityClassId(const QString &name)
{
    const ClassId found = mApplication->securityClasses.find(name.toUtf8());
    if (found < 0)
        failUnknownName(name, securityClassWord);
    return found;
}

RoleId OfflineSecurity::GetRoleId(const QString &role)
{
    failUnknownName(role, roleWord);
}

FlaggedNames OfflineSecurity::EnumRoleUsers(RoleId role)
{
    failUnknownId(role, roleWord);
}

UserId OfflineSecurity::GetUserId(const QString &name)
{
    failUnknownName(name, userWord);
}

FlaggedNames OfflineSecurity::EnumUserRoles(UserId user)
{
    failUnknownId(user, userWord);
}

AccessList OfflineSecurity::EnumClassAccess(ClassId securityClass)
{
    GetSecurityClassName(securityClass);
    return {};
}

AccessList OfflineSecurity::EnumUserClassAccess(UserId user)
{
    failUnknownId(user, userWord);
}

} // namespace hfm::offline
