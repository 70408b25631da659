#pragma once

#include "runtime/ErrorLog.h"
#include "shell/Services.h"

#include <functional>

/// How start-up shows its two windows.
struct StartUpWindows
{
    std::function<void()> showSplash;     ///< returns when the splash has closed
    std::function<void()> showMainWindow; ///< returns when the main window is shown
};

/// Starts the program: recreates the error log in the program's folder, refuses an HFM client that
/// is too old, and shows the splash, then the main window. Where no main window is to be shown,
/// because the client was refused or its version could not be had, the user has been told and the
/// program is ending.
/// The version check fails on nothing: its errors are logged and shown. What the windows fail with
/// goes to the trap, and so ends the program too.
void startUp(Services &services, const StartUpWindows &windows);

/// The error log's path: the folder's own, as it is given, and "/tessalyerror.log".
QString errorLogPath(const QString &programFolder);

/// The version of the installed client, dot-separated. An error is written to `log` and shown, and
/// the version is "00.00.00" then.
QString GetHFMVersion(qint16 selector, Services &services, ErrorLog &log);

/// Whether a client of that version can be worked with.
/// Fails with RuntimeError SubscriptOutOfRange when the version has fewer than three pieces,
/// TypeMismatch when a piece is no number, Overflow when a piece or what is computed of it does not
/// fit 16 bits, and 23001 when it is no version at all.
bool isSupportedVersion(const QString &version);
