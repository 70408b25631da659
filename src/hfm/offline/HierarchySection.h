#pragma once

#include "hfm/offline/ApplicationDraft.h"
#include "hfm/offline/Section.h"
#include "hfm/offline/Syntax.h"

#include <optional>
#include <vector>

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
    static MemberId entry(const LargeVector<MemberId> &entries, MemberId at)
    {
        return size_t(at) < entries.size() ? entries[size_t(at)] : -1;
    }

    LargeVector<MemberId> mFirst; ///< by parent, the root first
    LargeVector<MemberId> mNext;  ///< by member
};

/// !HIERARCHIES= of one dimension: parent and child, for custom dimensions also a weight, which is
/// looked at but not kept. Members are looked up for some lines at a time.
class HierarchySection final : public Section
{
public:
    HierarchySection(ApplicationDraft &draft, DimensionKind kind, char delimiter);

    void readColumns(const QList<QByteArrayView> &columns) override;
    void readRecord(QByteArrayView line, Place place) override;
    void finish() override;

private:
    void rejoinRoot();
    qsizetype fieldCount() const;
    void checkFields(Place place);
    QByteArrayView parentLabel() const;
    Labels::Key parentKey(QByteArrayView label) const;
    std::optional<MemberId> knownParent(const Labels::Key &key);
    MemberId guessedChild(std::optional<MemberId> parent, QByteArrayView label);
    void lookUpPending();
    void storePending();

    ApplicationDraft &mDraft;
    DimensionDraft &mDimension;
    char mDelimiter;
    qsizetype mParentIndex = 0;
    qsizetype mChildIndex = 1;
    qsizetype mWeightIndex = 2;
    qsizetype mKnownFields;
    /// A line that is not stored yet.
    struct Pending
    {
        Place place;
        QByteArrayView childLabel;
        std::optional<MemberId> parent; ///< nothing where it is no member yet
        MemberId child = -1;            ///< -1 where it was not guessed
    };
    std::vector<Pending> mPending;
    std::vector<Labels::Key> mParentKeys; ///< by pending line; the root's label is empty
    std::vector<Labels::Key> mChildKeys;  ///< of the children that were not guessed, in order

    MemberId mLastParent = rootMember;
    MemberId mChildrenOf = rootMember; ///< whose children mExpected speaks of
    MemberId mExpected = -1;           ///< the child that probably comes next
    std::optional<SiblingGuess> mSiblings;

    Fields mFields; ///< of the record that is being read
    qsizetype mFirst = 0;
};

} // namespace hfm::offline
