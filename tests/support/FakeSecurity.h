#pragma once

#include "hfm/Security.h"
#include "support/FakeCalls.h"

#include <QHash>

#include <memory>
#include <utility>

/// Security that a test sets. IDs are 0, 1, 2, ... in the order of adding, for classes, roles and
/// users each. It starts empty.
class FakeSecurity final : public hfm::Security
{
public:
    explicit FakeSecurity(std::shared_ptr<FakeCalls> calls) : mCalls(std::move(calls)) {}

    // For the test.

    hfm::ClassId addClass(const QString &name);
    hfm::RoleId addRole(const QString &name);
    /// A user or a group, such as "CORP\jane".
    hfm::UserId addUser(const QString &name);
    /// The flag of a user and a role, "False" where none is set.
    void setRole(const QString &user, const QString &role,
                 const QString &flag = QStringLiteral("True"));
    /// The access code of a user and a class, 0 where none is set.
    void setAccess(const QString &user, const QString &securityClass, qint32 code);

    // hfm::Security.

    hfm::SecurityClasses EnumSecurityClasses() override;
    QString GetSecurityClassName(hfm::ClassId securityClass) override;
    hfm::ClassId GetSecurityClassId(const QString &name) override;
    hfm::RoleId GetRoleId(const QString &role) override;
    hfm::FlaggedNames EnumRoleUsers(hfm::RoleId role) override;
    hfm::UserId GetUserId(const QString &name) override;
    hfm::FlaggedNames EnumUserRoles(hfm::UserId user) override;
    hfm::AccessList EnumClassAccess(hfm::ClassId securityClass) override;
    hfm::AccessList EnumUserClassAccess(hfm::UserId user) override;

private:
    using UserAnd = std::pair<hfm::UserId, qint32>; ///< a user and a role or a class

    std::shared_ptr<FakeCalls> mCalls;
    QStringList mClasses;
    QStringList mRoles;
    QStringList mUsers;
    QHash<UserAnd, QString> mFlags;
    QHash<UserAnd, qint32> mCodes;
};
