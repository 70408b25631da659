#pragma once

#include "hfm/offline/Application.h"
#include "hfm/Security.h"

namespace hfm::offline {

/// The security of an open application. See hfm/Security.h for what the operations do.
class OfflineSecurity final : public Security
{
public:
    explicit OfflineSecurity(std::shared_ptr<const Application> application);

    SecurityClasses EnumSecurityClasses() override;
    QString GetSecurityClassName(ClassId securityClass) override;
    ClassId GetSecurityClassId(const QString &name) override;
    RoleId GetRoleId(const QString &role) override;
    FlaggedNames EnumRoleUsers(RoleId role) override;
    UserId GetUserId(const QString &name) override;
    FlaggedNames EnumUserRoles(UserId user) override;
    AccessList EnumClassAccess(ClassId securityClass) override;
    AccessList EnumUserClassAccess(UserId user) override;

private:
    std::shared_ptr<const Application> mApplication;
    const StoredSecurity &mSecurity;
};

} // namespace hfm::offline
