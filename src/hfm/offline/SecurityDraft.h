#pragma once

#include "hfm/offline/AccessTable.h"
#include "hfm/offline/Names.h"

namespace hfm::offline {

/// The records of a security file that give identities something. Their rows are numbers of classes
/// or roles, their columns numbers of the named identities.
struct AccessRecords
{
    LargeVector<AccessTable::Record> records;
    LargeVector<Place> places; ///< by record

    void reserve(qint64 further)
    {
        constexpr qint64 most = qint64(1) << 22; // more is believed when it is met
        records.reserve(size_t(std::min(further, most)));
        places.reserve(size_t(std::min(further, most)));
    }
    void add(const AccessTable::Record &record, Place place)
    {
        records.push_back(record);
        places.push_back(place);
    }
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

    AccessRecords roleAccess;
    AccessRecords classAccess;
};

} // namespace hfm::offline
