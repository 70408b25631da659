#pragma once

#include "hfm/offline/Syntax.h"

#include <array>

namespace hfm::offline {

/// Finds the delimiter of a security file, which no file states: the one that splits the records of
/// class access into three or four fields, the third of which is an access. Where there are none of
/// these records, the one that splits the records of role access into two. It is never '@', which
/// identities hold.
class SecurityDelimiter
{
public:
    void lookAtClassAccess(QByteArrayView record) { mClassAccess.look(record, 3, 4); }
    void lookAtRoleAccess(QByteArrayView record) { mRoleAccess.look(record, 2, 2); }

    /// ';' where the records do not tell.
    char result() const;

private:
    struct Votes
    {
        std::array<qint32, delimiters.size()> records = {};  ///< that the delimiter splits so
        std::array<qint32, delimiters.size()> accesses = {}; ///< of these: with an access in them
        qint32 looked = 0;

        void look(QByteArrayView record, qsizetype fewest, qsizetype most);
        /// '\0' where no record is split.
        char result() const;
    };

    Votes mClassAccess;
    Votes mRoleAccess;
};

/// The code of an access as Security::EnumClassAccess returns it: 0 for "None" and an empty text, 1
/// "Metadata", 2 "Read", 3 "Promote", 4 "All", in any letter case; unknownAccess for others.
qint8 accessCode(QByteArrayView text);
inline constexpr qint8 unknownAccess = -1;

} // namespace hfm::offline
