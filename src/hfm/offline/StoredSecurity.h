#pragma once

#include "hfm/offline/AccessTable.h"
#include "hfm/offline/Labels.h"
#include "hfm/Values.h"

namespace hfm::offline {

struct ApplicationDraft;

/// The security of an open application. Users (and groups, which no file tells from them), roles
/// and classes are numbered by their IDs. Nothing in it changes any more.
struct StoredSecurity
{
    explicit StoredSecurity(TextArena &arena) : users(arena), roles(arena), classes(arena) {}

    Labels users; ///< as "directory\name", or the name alone
    Labels roles;
    Labels classes;          ///< the listed ones, then those that members have
    AccessTable classAccess; ///< a row a class, a column a user
    AccessTable roleAccess;  ///< a row a role, a column a user; 1 where the user has it
    /// The classes that the records of members count.
    std::vector<ClassId> memberClasses;
};

/// Makes the security of an application's draft, without a security file that of its members'
/// classes, and warns of what does not fit together in it.
StoredSecurity storeSecurity(ApplicationDraft &draft);

} // namespace hfm::offline
