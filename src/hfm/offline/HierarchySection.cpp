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
    const MemberId parentId = parent(mFields.at(mFirst + mParentIndex), place);
    mDimension.addEdge({parentId, child(parentId, childLabel, place)}, place);
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

MemberId HierarchySection::parent(QByteArrayView label, Place place)
{
    if (label.isEmpty() || mFirst == 1 || sameWord(label, rootLabel))
        return rootMember;
    if (mLastParent == rootMember || mDimension.labels().at(mLastParent) != label)
        mLastParent = mDimension.findOrAdd(label, Origin::Hierarchy, place);
    return mLastParent;
}

MemberId HierarchySection::child(MemberId parentId, QByteArrayView label, Place place)
{
    if (!mSiblings)
        mSiblings.emplace(mDimension);
    if (parentId != mChildrenOf || mExpected < 0) {
        mChildrenOf = parentId;
        mExpected = mSiblings->first(parentId);
    }
    if (mExpected < 0 || mDimension.labels().at(mExpected) != label)
        return mDimension.findOrAdd(label, Origin::Hierarchy, place);
    return std::exchange(mExpected, mSiblings->after(mExpected));
}

} // namespace hfm::offline
