#pragma once

#include "hfm/Client.h"

/// A client that the contract is checked on, with the one application that it opens.
///
/// The application has these members (indented below their parents; after the dashes the
/// descriptions in English and French), besides any that the client adds to every application:
///
///     Entity                            Account              Custom1
///       [None]                            PL - Result          [None]
///       GROUP - Group - Groupe              SALES - Sales      CLO - Closing
///         EAST - East                       COST - Costs         OPE - Opening
///           E1 - Unit 1, East - Unité 1                        Éco
///           E2 - Unit 2                 Period
///         WEST - West                     [Year]
///           E2 (shared)                     Q1
///           E3 - Unit 3                       Jan
///       LEGAL - Legal view                    Feb
///         EAST (shared)                     Q2
///     SPARE, without a node                   Mar
///
/// and no scenarios. Its security:
///
///                                   [Default]       SC_GRP    SC_PL   roles
///     CORP\jane                     -               4 all     -       Application Administrator
///     Readers                       1 metadata      2 read    -       -
///     Native Directory\jim@corp.com 3 promote       -         -       Load System
///
/// The entities and accounts of the file come first in their dimensions, in this
/// order. The default parent of EAST is LEGAL, that of E2 is WEST. The attributes are those that
/// AttributeContract compares.
class ClientUnderTest
{
public:
    virtual ~ClientUnderTest() = default;

    virtual hfm::ClientFactory &factory() = 0;
    /// Decides what the user does in the client's logon dialog, or in its open dialog, when it is
    /// shown next.
    virtual void answerNextLogon(bool accept) = 0;
    virtual void answerNextOpening(bool accept) = 0;
    /// The application's name and the names of its cluster and of the user.
    virtual QString applicationName() const = 0;
    virtual QString clusterName() const = 0;
    virtual QString userName() const = 0;

    /// A new session on the application, without the dialogs.
    virtual std::shared_ptr<hfm::Session> openSession() = 0;
    /// A dimension without any member list; null where the client has none such.
    virtual std::shared_ptr<hfm::Dimension> dimensionWithoutLists() { return nullptr; }
};
