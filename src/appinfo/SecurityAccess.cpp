#include "appinfo/SecurityAccess.h"

#include "appinfo/ArrayCounts.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 noAccess = 0;

/// The names whose flag counts.
QStringList flagged(const hfm::FlaggedNames &entries)
{
    const qint16 count = countForWalk(entries.names);
    QStringList names;
    for (qint16 i = 0; i < count; ++i)
        if (entries.flags[i] == u"True")
            names.append(entries.names[i]);
    return names;
}

} // namespace

SecurityAccess::Columns SecurityAccess::ofRole(hfm::Security &security, const QString &role)
{
    Columns columns{{u"User/Group Access to "_s + role}, {}};
    const QStringList users = flagged(security.EnumRoleUsers(security.GetRoleId(role)));
    for (const QString &user : users)
        columns.first.append(StripDomainFromUserName(user));
    return columns;
}

SecurityAccess::Columns SecurityAccess::ofClass(hfm::Security &security,
                                                const QString &securityClass)
{
    Columns columns{{u"User Access to "_s + securityClass}, {}};
    const hfm::AccessList access =
        security.EnumClassAccess(security.GetSecurityClassId(securityClass));
    const qint16 count = countForWalk(access.names);
    for (qint16 i = 0; i < count; ++i)
        columns.first.append(StripDomainFromUserName(access.names[i]) + u"  -  "_s +
                             accessText(access.codes[i]));
    return columns;
}

SecurityAccess::Columns SecurityAccess::ofUser(hfm::Security &security, const QString &user)
{
    Columns columns{{u"User/Group "_s + user + u" Role Access:"_s},
                    {u"User/Group "_s + user + u" Security Class Access:"_s}};
    columns.first += flagged(security.EnumUserRoles(security.GetUserId(user)));

    const hfm::AccessList access = security.EnumUserClassAccess(security.GetUserId(user));
    const qint16 count = countForWalk(access.names);
    for (qint16 i = 0; i < count; ++i)
        if (access.codes[i] != noAccess)
            columns.second.append(access.names[i] + u" - "_s + accessText(access.codes[i]));
    return columns;
}

QString SecurityAccess::text(const QStringList &lines)
{
    QString text;
    for (const QString &line : lines)
        text += line + u"\r\n"_s;
    return text;
}

QString SecurityAccess::accessText(qint32 code)
{
    switch (code) {
    case noAccess:
        return u"NONE"_s;
    case 2:
        return u"READONLY"_s;
    case 3:
        return u"READANDPROMOTE"_s;
    case 4:
        return u"ALL"_s;
    default:
        return u"UNKNOWN"_s;
    }
}

QString SecurityAccess::StripDomainFromUserName(const QString &name)
{
    return name.mid(name.lastIndexOf(u'\\') + 1);
}
