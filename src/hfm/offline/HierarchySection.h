#pragma once

#include "hfm/offline/ApplicationDraft.h"
#include "hfm/offline/Section.h"
#include "hfm/offline/Syntax.h"

namespace hfm::offline {

/// Tells which child of a parent is probably named next: the next member, in the order of the
/// records, that has it for a default parent.
class SiblingGuess
{
public:
    explicit SiblingGuess(const DimensionDraft &dimension);

    /// -1 where there is none.
    MemberId first(MemberId parent) const { return entry(mFirst, parent + 1); }
    MemberId after(MemberId child) const { return entry(mNext, child); }

private:
    static MemberId entry(const std::vector<MemberId> &entries, MemberId at)
    {
        return size_t(at) < entries.size() ? entries[size_t(at)] : -1;
    }

    std::vector<MemberId> mFirst; ///< by parent, the root first
    std::vector<MemberId> mNext;  ///< by member
};

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
    qsizetype fieldCount() const;
    void checkFields(Place place);
    MemberId parent(QByteArrayView label, Place place);
    MemberId child(MemberId parentId, QByteArrayView label, Place place);

    ApplicationDraft &mDraft;
    DimensionDraft &mDimension;
    char mDelimiter;
    qsizetype mParentIndex = 0;
    qsizetype mChildIndex = 1;
    qsizetype mWeightIndex = 2;
    qsizetype mKnownFields;
    MemberId mLastParent = rootMember;
    MemberId mChildrenOf = rootMember; ///< whose children mExpected speaks of
    MemberId mExpected = -1;           ///< the child that probably comes next
    std::optional<SiblingGuess> mSiblings;

    Fields mFields; ///< of the record that is being read
    qsizetype mFirst = 0;
};

} // namespace hfm::offline
