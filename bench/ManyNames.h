#pragma once

#include "hfm/Security.h"

/// Security with so many users, roles and classes, whoever and whatever is asked for. Every second
/// user has every role, and access of all codes is spread evenly.
class ManyNames final : public hfm::Security
{
public:
    explicit ManyNames(qint32 count)
    {
        for (qint32 i = 0; i < count; ++i) {
            const QString name = QStringLiteral("DOMAIN\\name.%1").arg(i);
            mFlagged.names.append(name);
            mFlagged.flags.append(i % 2 ? QStringLiteral("True") : QStringLiteral("False"));
            mAccess.names.append(name);
            mAccess.codes.append(i % 5);
        }
    }

    hfm::SecurityClasses EnumSecurityClasses() override { return {}; }
    QString GetSecurityClassName(hfm::ClassId) override { return {}; }
    hfm::ClassId GetSecurityClassId(const QString &) override { return 0; }
    hfm::RoleId GetRoleId(const QString &) override { return 0; }
    hfm::FlaggedNames EnumRoleUsers(hfm::RoleId) override { return mFlagged; }
    hfm::UserId GetUserId(const QString &) override { return 0; }
    hfm::FlaggedNames EnumUserRoles(hfm::UserId) override { return mFlagged; }
    hfm::AccessList EnumClassAccess(hfm::ClassId) override { return mAccess; }
    hfm::AccessList EnumUserClassAccess(hfm::UserId) override { return mAccess; }

private:
    hfm::FlaggedNames mFlagged;
    hfm::AccessList mAccess;
};
