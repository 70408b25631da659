#pragma once

#include "hfm/offline/ApplicationDraft.h"
#include "hfm/offline/MemberRecord.h"

namespace hfm::offline {

/// Reads the attributes of member records. What cannot be read is a warning.
class AttributeReader
{
public:
    explicit AttributeReader(ApplicationDraft &draft) : mDraft(draft) {}

    EntityRecord entity(const MemberRecord &record);
    AccountRecord account(const MemberRecord &record);
    /// Of a member of a custom dimension, of Scenario or of ICP.
    CustomRecord custom(const MemberRecord &record);
    /// An entity's holding company; 0 for most, which have none.
    TextRef holding(const MemberRecord &record);

private:
    UserDefined userDefined(const MemberRecord &record);
    qint32 securityClass(const MemberRecord &record);
    bool flag(const MemberRecord &record, Column column);
    qint8 accountType(const MemberRecord &record);
    qint8 accountIsICP(const MemberRecord &record);
    qint16 decimalPlaces(const MemberRecord &record);

    ApplicationDraft &mDraft;
    UserDefined mLastUserDefined = {}; ///< most often the next record has the same again
};

} // namespace hfm::offline
