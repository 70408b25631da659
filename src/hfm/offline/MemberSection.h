#pragma once

#include "hfm/offline/AttributeReader.h"
#include "hfm/offline/DescriptionReader.h"
#include "hfm/offline/Section.h"

namespace hfm::offline {

/// !MEMBERS= of one dimension. Some records are taken apart before the first of them is stored, so
/// that the parts of the large tables that storing them needs are fetched in the meantime.
class MemberSection final : public Section
{
public:
    MemberSection(ApplicationDraft &draft, DimensionKind kind, char delimiter);

    void readColumns(const QList<QByteArrayView> &columns) override;
    void readRecord(QByteArrayView line, Place place) override;
    void finish() override;

private:
    struct Pending
    {
        MemberRecord record;
        Labels::Key label;
        Descriptions descriptions;
    };

    void store(const Pending &pending);
    void storeAttributes(MemberId id, const MemberRecord &record);
    void storeEntity(MemberId id, const MemberRecord &record);

    ApplicationDraft &mDraft;
    DimensionDraft &mDimension;
    char mDelimiter;
    CustomNames mCustomNames;
    Layout mLayout;
    AttributeReader mAttributes;
    DescriptionReader mDescriptions;
    std::array<Pending, 16> mPending;
    size_t mPendingCount = 0;
};

} // namespace hfm::offline
