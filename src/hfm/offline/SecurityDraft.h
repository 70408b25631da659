#pragma once

#include "hfm/offline/Names.h"

namespace hfm::offline {

/// A record of a security file that gives an identity something.
struct AccessRecord
{
    qint32 what;     ///< number of the class or the role
    qint32 identity; ///< number among the named identities
    Place place;
    qint8 code;
};

/// What a security file says, while it is read. Its sections may come in any order, so names are
/// numbered by what they stand in, and brought together at the end.
struct SecurityDraft
{
    explicit SecurityDraft(TextArena &arena)
        : listedIdentities(arena), listedClasses(arena), namedIdentities(arena),
          namedClasses(arena), roles(arena)
    {
    }

    // As the file writes them: identities as "name@directory".
    Names listedIdentities; ///< those of !USERS_AND_GROUPS
    Names listedClasses;    ///< those of !SECURITY_CLASSES
    Names namedIdentities;  ///< those that records of access name
    Names namedClasses;
    Names roles;

    std::vector<AccessRecord> roleAccess;
    std::vector<AccessRecord> classAccess;
};

} // namespace hfm::offline
