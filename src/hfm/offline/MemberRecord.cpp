#include "hfm/offline/MemberRecord.h"

namespace hfm::offline {

void MemberRecord::read(QByteArrayView line, Place place, const Layout &layout, char delimiter)
{
    mPlace = place;
    mLayout = &layout;
    mDelimiter = delimiter;
    mFields.split(line, delimiter);
    findParts();
}

/// The DefaultParent field tells where the attributes end. Records that have none of it have their
/// first description there, which is no attribute, because it holds a '='.
void MemberRecord::findParts()
{
    mDefaultParent = mFields.defaultParentIndex();
    mPositional = mDefaultParent;
    if (mDefaultParent >= 0)
        return;
    mPositional = std::min(mLayout->hasDefaultParent() ? mLayout->count() : 1, mFields.count());
    while (mPositional < mFields.count() && !mFields.at(mPositional).contains('='))
        ++mPositional;
    // A delimiter too many at the line's end makes no field.
    if (mPositional == mFields.count()) {
        while (mPositional > mLayout->count() && mFields.at(mPositional - 1).isEmpty())
            --mPositional;
    }
}

QByteArrayView MemberRecord::defaultParent() const
{
    constexpr qsizetype prefix = sizeof("DefaultParent=") - 1;
    return trimmed(mFields.at(mDefaultParent).sliced(prefix));
}

/// In a file that is delimited by '#', what follows an empty default parent is the rest of "#root".
qsizetype MemberRecord::firstDescription() const
{
    if (mDefaultParent < 0)
        return mPositional;
    const bool isSplit = mDelimiter == '#' && sameWord(mFields.at(mDefaultParent + 1), "root");
    return mDefaultParent + (isSplit ? 2 : 1);
}

} // namespace hfm::offline
