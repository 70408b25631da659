#include "hfm/offline/OfflineSecurity.h"

#include "hfm/offline/OfflineDimension.h"

#include <numeric>

namespace hfm::offline {

namespace {

constexpr QLatin1StringView securityClassWord("security class");
constexpr QLatin1StringView roleWord("role");
constexpr QLatin1StringView userWord("user or group");

void requireId(const Labels &names, qint32 id, QLatin1StringView what)
{
    if (id < 0 || id >= names.count())
        failUnknown(QStringLiteral("%1 is not the ID of a %2.").arg(QString::number(id), what));
}

qint32 idOf(const Labels &names, const QString &name, QLatin1StringView what)
{
    const qint32 found = names.find(name.toUtf8());
    if (found < 0)
        failUnknown(QStringLiteral("'%1' is not a %2.").arg(name, what));
    return found;
}

QList<QString> texts(const Labels &names)
{
    QList<QString> texts;
    texts.reserve(names.count());
    for (qint32 id = 0; id < names.count(); ++id)
        texts.append(names.text(id));
    return texts;
}

QList<QString> flags(const QList<qint32> &codes)
{
    const QString isSo = QStringLiteral("True");
    const QString isNot = QStringLiteral("False");
    QList<QString> flags;
    flags.reserve(codes.size());
    for (const qint32 code : codes)
        flags.append(code != 0 ? isSo : isNot);
    return flags;
}

} // namespace

OfflineSecurity::OfflineSecurity(std::shared_ptr<const Application> application)
    : mApplication(std::move(application)), mSecurity(mApplication->security)
{
}

SecurityClasses OfflineSecurity::EnumSecurityClasses()
{
    SecurityClasses classes{QList<ClassId>(mSecurity.classes.count()), texts(mSecurity.classes)};
    std::iota(classes.ids.begin(), classes.ids.end(), 0);
    return classes;
}

QString OfflineSecurity::GetSecurityClassName(ClassId securityClass)
{
    requireId(mSecurity.classes, securityClass, securityClassWord);
    return mSecurity.classes.text(securityClass);
}

ClassId OfflineSecurity::GetSecurityClassId(const QString &name)
{
    return idOf(mSecurity.classes, name, securityClassWord);
}

RoleId OfflineSecurity::GetRoleId(const QString &role)
{
    return idOf(mSecurity.roles, role, roleWord);
}

FlaggedNames OfflineSecurity::EnumRoleUsers(RoleId role)
{
    requireId(mSecurity.roles, role, roleWord);
    return {texts(mSecurity.users), flags(mSecurity.roleAccess.row(role))};
}

UserId OfflineSecurity::GetUserId(const QString &name)
{
    return idOf(mSecurity.users, name, userWord);
}

FlaggedNames OfflineSecurity::EnumUserRoles(UserId user)
{
    requireId(mSecurity.users, user, userWord);
    return {texts(mSecurity.roles), flags(mSecurity.roleAccess.column(user))};
}

AccessList OfflineSecurity::EnumClassAccess(ClassId securityClass)
{
    requireId(mSecurity.classes, securityClass, securityClassWord);
    return {texts(mSecurity.users), mSecurity.classAccess.row(securityClass)};
}

AccessList OfflineSecurity::EnumUserClassAccess(UserId user)
{
    requireId(mSecurity.users, user, userWord);
    return {texts(mSecurity.classes), mSecurity.classAccess.column(user)};
}

} // namespace hfm::offline
