#pragma once

#include "hfm/offline/ApplicationDraft.h"
#include "hfm/offline/Section.h"
#include "hfm/offline/Syntax.h"

namespace hfm::offline {

/// !HIERARCHIES= of one dimension: parent and child, for custom dimensions also a weight, which is
/// looked at but not kept.
class HierarchySection final : public Section
{
public:
    HierarchySection(ApplicationDraft &draft, DimensionKind kind, char delimiter);

    void readColumns(const QList<QByteArrayView> &columns) override;
    void readRecord(QByteArrayView line, Place place) override;

private:
    void rejoinRoot();
    MemberId parent(QByteArrayView label, Place place);
    MemberId child(QByteArrayView label, Place place);

    ApplicationDraft &mDraft;
    DimensionDraft &mDimension;
    char mDelimiter;
    qsizetype mParentIndex = 0;
    qsizetype mChildIndex = 1;
    qsizetype mKnownFields;
    MemberId mLastParent = rootMember;
    MemberId mLastChild = -1;

    Fields mFields; ///< of the record that is being read
    qsizetype mFirst = 0;
};

} // namespace hfm::offline
