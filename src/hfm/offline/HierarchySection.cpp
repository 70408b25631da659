#include "hfm/offline/HierarchySection.h"

#include "hfm/offline/FieldValues.h"

#include <utility>

namespace hfm::offline {

SiblingGuess::SiblingGuess(const DimensionDraft &dimension)
    : mFirst(size_t(dimension.count()) + 1, -1), mNext(size_t(dimension.count()), -1)
{
    for (MemberId member = dimension.count() - 1; member >= 0; --member) {
        const MemberId parent = dimension.defaultParent(member);
        if (parent >= rootMember)
            mNext[size_t(member)] = std::exchange(mFirst[size_t(parent + 1)], member);
    }
}

HierarchySection::HierarchySection(ApplicationDraft &draft, DimensionKind kind, char delimiter)
    : mDraft(draft), mDimension(draft.dimension(kind)), mDelimiter(delimiter),
      mKnownFields(isCustom(kind) ? 3 : 2)
{
}

void HierarchySection::readColumns(const QList<QByteArrayView> &columns)
{
    for (qsizetype i = 0; i < columns.size(); ++i) {
        if (sameWord(columns[i], "Parent"))
            mParentIndex = i;
        else if (sameWord(columns[i], "Child"))
            mChildIndex = i;
        else if (sameWord(columns[i], "AggrWeight") || sameWord(columns[i], "Weight"))
            mWeightIndex = i;
    }
    mKnownFields = std::max(mKnownFields, columns.size());
}

void HierarchySection::readRecord(QByteArrayView line, Place place)
{
    mFields.split(line, mDelimiter);
    mFirst = 0;
    rejoinRoot();
    const QByteArrayView childLabel = mFields.at(mFirst + mChildIndex);
    if (childLabel.isEmpty()) {
        mDraft.warnings.add(place, [&] {
            return QStringLiteral("The line %1 names no child; it is left out.").arg(quoted(line));
        });
        return;
    }
    checkFields(place);
    constexpr size_t mostPending = 64;
    mParentKeys.push_back(parentKey(parentLabel()));
    mPending.push_back({place, childLabel, std::nullopt, -1});
    if (mPending.size() == mostPending)
        finish();
}

/// Most children are where they are expected. The others are looked up together, because the parts
/// of the tables that it takes have to be fetched from memory.
void HierarchySection::finish()
{
    if (mPending.empty())
        return;
    lookUpPending();
    storePending();
    mPending.clear();
    mParentKeys.clear();
    mChildKeys.clear();
}

void HierarchySection::lookUpPending()
{
    if (!mSiblings)
        mSiblings.emplace(mDimension);
    mDimension.labels().fetch(mParentKeys);
    for (size_t i = 0; i < mPending.size(); ++i) {
        Pending &edge = mPending[i];
        edge.parent = knownParent(mParentKeys[i]);
        edge.child = guessedChild(edge.parent, edge.childLabel);
        if (edge.child < 0)
            mChildKeys.push_back(mDimension.labels().key(edge.childLabel));
    }
    mDimension.labels().fetch(mChildKeys);
}

/// Only here are members added, so that they are numbered in the order of the lines.
void HierarchySection::storePending()
{
    const Labels::Key *childKey = mChildKeys.data();
    for (size_t i = 0; i < mPending.size(); ++i) {
        const Pending &edge = mPending[i];
        const MemberId parent =
            edge.parent ? *edge.parent
                        : mDimension.findOrAdd(mParentKeys[i], Origin::Hierarchy, edge.place);
        const MemberId child =
            edge.child >= 0 ? edge.child
                            : mDimension.findOrAdd(*childKey++, Origin::Hierarchy, edge.place);
        mDimension.addEdge({parent, child}, edge.place);
    }
}

/// A delimiter too many at the line's end makes no field.
qsizetype HierarchySection::fieldCount() const
{
    qsizetype count = mFields.count() - mFirst;
    while (count > mKnownFields && mFields.at(mFirst + count - 1).isEmpty())
        --count;
    return count;
}

void HierarchySection::checkFields(Place place)
{
    if (const qsizetype count = fieldCount(); count > mKnownFields) {
        mDraft.warnings.add(place, [&] {
            return QStringLiteral("The line has %1 fields where %2 are known; the last ones are "
                                  "left out.")
                .arg(QString::number(count), QString::number(mKnownFields));
        });
        return;
    }
    const QByteArrayView weight = mFields.at(mFirst + mWeightIndex);
    if (mKnownFields == 3 && !isNumber(weight))
        mDraft.warnings.add(place, [&] {
            return QStringLiteral("The weight %1 is no number.").arg(quoted(weight));
        });
}

/// In a file that is delimited by '#', the parent "#root" falls into an empty field and "root".
void HierarchySection::rejoinRoot()
{
    if (mDelimiter == '#' && mFields.count() > mKnownFields && mFields.at(0).isEmpty() &&
        sameWord(mFields.at(1), "root"))
        mFirst = 1;
}

/// Empty for the root.
QByteArrayView HierarchySection::parentLabel() const
{
    const QByteArrayView label = mFields.at(mFirst + mParentIndex);
    return mFirst == 1 || sameWord(label, rootLabel) ? QByteArrayView() : label;
}

/// Most often the parent is that of the line before.
Labels::Key HierarchySection::parentKey(QByteArrayView label) const
{
    if (!mParentKeys.empty() && sameBytes(mParentKeys.back().label, label))
        return mParentKeys.back();
    return mDimension.labels().key(label);
}

std::optional<MemberId> HierarchySection::knownParent(const Labels::Key &key)
{
    if (key.label.isEmpty())
        return rootMember;
    if (mLastParent != rootMember && sameBytes(mDimension.labels().at(mLastParent), key.label))
        return mLastParent;
    const MemberId found = mDimension.labels().find(key);
    if (found < 0)
        return std::nullopt;
    mLastParent = found;
    return found;
}

MemberId HierarchySection::guessedChild(std::optional<MemberId> parent, QByteArrayView label)
{
    if (!parent)
        return -1;
    if (*parent != mChildrenOf || mExpected < 0) {
        mChildrenOf = *parent;
        mExpected = mSiblings->first(*parent);
    }
    if (mExpected < 0 || !sameBytes(mDimension.labels().at(mExpected), label))
        return -1;
    return std::exchange(mExpected, mSiblings->after(mExpected));
}

} // namespace hfm::offline
