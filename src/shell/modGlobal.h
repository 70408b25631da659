#pragma once

#include "hfm/Client.h"

/// The state that all windows share. Everything starts empty and lives for the whole run; the
/// logon and the main window fill it, the other windows read it.
struct modGlobal
{
    std::shared_ptr<hfm::Client> gClient;               ///< made anew at each logon
    std::shared_ptr<hfm::LogonUserInterface> gClientUI; ///< made anew at each logon
    std::shared_ptr<hfm::Session> gSession;             ///< the open application
    std::shared_ptr<hfm::Session> gSessionAux;          ///< kept and never used
    std::shared_ptr<hfm::Metadata> gMetadata;
    std::shared_ptr<hfm::SystemInformation> gSystemInfo; ///< the member list builder's
    std::shared_ptr<hfm::Security> gSecurity;

    /// The current dimension, and its name in upper case, such as "CUSTOM1". The name is the one
    /// chosen in the main window, whatever dimension object a tool has put here meanwhile.
    std::shared_ptr<hfm::Dimension> gDimension;
    QString gDimensionName;

    qint16 gLanguageIndex = 0; ///< the language of descriptions, by position

    QString gApplicationName;    ///< as opening the application named it
    QString gSysApplicationName; ///< as the system information names it
    QString gClusterName;
    QString gUserName;
    QString gLogonDetail; ///< kept and never used

    // The hand-over to the save-file dialog, set just before it is shown.
    QString gPendingText;     ///< the whole text to be written
    QString gSaveFilePattern; ///< "*.txt" or ".lst"
    QString gSaveMode;        ///< "METADATAEXTRACT" or "MEMBERLIST"

    // The last extract.
    QString gExtractText;           ///< the rows
    QString gExtractTextWithHeader; ///< a header row, then the same rows
};
