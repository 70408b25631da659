#pragma once

#include "hfm/offline/Texts.h"
#include "hfm/Values.h"

#include <array>

namespace hfm::offline {

/// The three user-defined texts of a member.
using UserDefined = std::array<TextRef, 3>;

/// What an entity has besides its label, its descriptions and its place in the hierarchy.
struct EntityRecord
{
    UserDefined userDefined = {};
    qint32 currency = -1;      ///< position among the application's entity currencies, or -1
    qint32 securityClass = -1; ///< position among the classes that members have, or -1
    bool allowAdjs = false;
    bool isICP = false;
    bool allowAdjFromChildren = false;
};

/// The code of an account type that HFM does not have.
inline constexpr qint8 unknownAccountType = -1;

struct AccountRecord
{
    UserDefined userDefined = {};
    /// For Custom1 to Custom4, the position among the names that accounts give as top members of
    /// that dimension; -1 where the account gives none.
    std::array<qint32, 4> topMembers = {-1, -1, -1, -1};
    qint32 securityClass = -1; ///< as an entity's
    qint16 decimalPlaces = 0;
    qint8 type = unknownAccountType; ///< as AccountAttributes::GetAccountType returns it
    qint8 isICP = 0;                 ///< -1 yes, 0 no, 1 restricted
    bool isCalculated : 1 = false;
    bool isConsolidated : 1 = false;
    bool usesLineItems : 1 = false;
    /// Bit k stands for EnableCustom(k+1)Aggr.
    quint8 aggregatesCustoms : 4 = 0;
};

/// An entity that has a holding company. Few do, so that these are no part of every record.
struct EntityHolding
{
    MemberId entity;
    TextRef company;
};

/// A member of a custom dimension, of Scenario or of ICP.
struct CustomRecord
{
    UserDefined userDefined = {};
    qint32 securityClass = -1; ///< as an entity's
};

} // namespace hfm::offline
