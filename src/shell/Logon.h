#pragma once

#include "shell/modGlobal.h"
#include "shell/Services.h"

#include <QLocale>
#include <QStringList>
#include <QTime>

/// Where a logon shows what it has reached, step by step.
class LogonDisplay
{
public:
    virtual ~LogonDisplay() = default;
    /// Cluster, application, user and time of the logon, as one line.
    virtual void showStatus(const QString &text) = 0;
    /// There is an application to choose a language in and to be informed about.
    virtual void enableApplication() = 0;
    /// Appends the application's languages to those that are there, and selects the first of all.
    virtual void addLanguages(const QStringList &languages) = 0;
};

/// Logs on to a cluster and opens an application, in place of the open one. The HFM client shows
/// its own dialogs; after a failure the user is asked whether to try again. Without another try
/// nothing changes but gClient and gClientUI. True when an application is open.
/// Fails as the HFM operations do; what was reached by then stays.
bool logOn(modGlobal &state, Services &services, LogonDisplay &display);

/// A time of day as the locale writes it in full, without a time zone: "3:09:26 PM" in en_US.
QString timeOfDayText(QTime time, const QLocale &locale);
