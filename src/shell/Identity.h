#pragma once

#include <QString>
#include <QStringList>

/// What the program says of itself.
namespace Identity {

inline constexpr int majorVersion = 11;
inline constexpr int minorVersion = 1;
inline constexpr int revision = 2;

inline QString title()
{
    return QStringLiteral("Tessaly");
}

inline QString description()
{
    return QStringLiteral(
        "This utility was built to supply various graphical tools to speed development and "
        "maintenance of HFM applications.  No actual changes to the HFM application are made "
        "directly by the utility.");
}

/// "11.1.2"
inline QString version()
{
    return QStringLiteral("%1.%2.%3").arg(majorVersion).arg(minorVersion).arg(revision);
}

/// "Version 11.1.2"
inline QString versionText()
{
    return QStringLiteral("Version ") + version();
}

/// Line by line, as both windows that name the program show it.
inline QStringList disclaimer()
{
    return {QStringLiteral("This utility application is unsupported by Oracle."),
            QStringLiteral("For questions and feedback see the project's issue tracker."),
            QStringLiteral("if you wish to provide feedback, ask for enhancements and/or fixes. ")};
}

} // namespace Identity
