#pragma once

#include "hfm/offline/Application.h"

namespace hfm::offline {

/// Who works where.
struct Logon
{
    QString clusterFolder;
    QString userName;
};

/// Asks for the folder of a cluster and a user's name.
class LogonDialog
{
public:
    virtual ~LogonDialog() = default;
    /// True, with `logon` filled, when the user confirms; otherwise `logon` is as it was.
    virtual bool ask(Logon &logon) = 0;
};

/// Lets the user choose one of a cluster's applications.
class OpenDialog
{
public:
    virtual ~OpenDialog() = default;
    /// The application that was chosen and read; null when the user gives up.
    virtual std::shared_ptr<const Application> choose(const QString &clusterFolder) = 0;
};

} // namespace hfm::offline
