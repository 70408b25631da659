#pragma once

#include "hfm/Security.h"

#include <QStringList>

/// Who may do what in an application: a role's users, a class's users, a user's roles and classes.
namespace SecurityAccess {

/// An answer in lines, the first of each column being its heading. A question with one column
/// leaves the second without any line.
struct Columns
{
    QStringList first;
    QStringList second;

    friend bool operator==(const Columns &, const Columns &) = default;
};

// Each fails as the security's operations do, and with RuntimeError Overflow at more than 32,767
// names.

/// The users and groups that hold the role, without their domains.
Columns ofRole(hfm::Security &security, const QString &role);
/// Every user and group without its domain, and its access to the class.
Columns ofClass(hfm::Security &security, const QString &securityClass);
/// The roles of a user or group, and the classes that it has access to. `user` as HFM lists it.
Columns ofUser(hfm::Security &security, const QString &user);

/// The lines of a column, each ended by CR LF.
QString text(const QStringList &lines);

/// "READONLY" for 2 and so on; "UNKNOWN" for a code that HFM does not have.
QString accessText(qint32 code);

/// The part of "domain\name" behind the last backslash; a name alone as it is.
QString StripDomainFromUserName(const QString &name);

} // namespace SecurityAccess
