#pragma once

#include "hfm/Values.h"

namespace hfm {

/// An application's security: users and groups, roles, security classes and access to them.
///
/// A name or an ID that the application does not have fails with RuntimeError
/// InvalidProcedureCall. Names compare without case.
class Security
{
public:
    virtual ~Security() = default;

    virtual SecurityClasses EnumSecurityClasses() = 0;
    virtual QString GetSecurityClassName(ClassId securityClass) = 0;
    virtual ClassId GetSecurityClassId(const QString &name) = 0;

    virtual RoleId GetRoleId(const QString &role) = 0;
    /// Every user and group, each with whether it has the role.
    virtual FlaggedNames EnumRoleUsers(RoleId role) = 0;

    /// `name` as the client lists the user or group.
    virtual UserId GetUserId(const QString &name) = 0;
    /// Every role, each with whether the user or group has it.
    virtual FlaggedNames EnumUserRoles(UserId user) = 0;

    /// Every user and group, each with its access to the class.
    virtual AccessList EnumClassAccess(ClassId securityClass) = 0;
    /// Every class, each with the access that the user or group has to it.
    virtual AccessList EnumUserClassAccess(UserId user) = 0;
};

} // namespace hfm
