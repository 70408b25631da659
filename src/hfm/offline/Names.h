#pragma once

#include "hfm/offline/Labels.h"
#include "hfm/offline/Place.h"

namespace hfm::offline {

/// Names that a file mentions again and again (currencies, security classes, languages), each
/// numbered from 0 when it is met first. Letter case does not count.
class Names
{
public:
    explicit Names(TextArena &arena) : mLabels(arena) {}

    /// The name's number; -1 for the empty name.
    qint32 mention(QByteArrayView name, Place place)
    {
        if (name.isEmpty())
            return -1;
        if (mLast >= 0 && mLabels.at(mLast) == name)
            return mLast;
        return note(mLabels.findOrAdd(name), place);
    }
    /// The same, for a name that the arena holds already.
    qint32 mention(TextRef name, Place place) { return note(mLabels.findOrAdd(name), place); }

    qint32 count() const { return mLabels.count(); }
    qint32 find(QByteArrayView name) const { return mLabels.find(name); }
    QByteArrayView at(qint32 index) const { return mLabels.at(index); }
    TextRef ref(qint32 index) const { return mLabels.ref(index); }
    QString text(qint32 index) const { return mLabels.text(index); }
    /// Where the name was met first.
    Place place(qint32 index) const { return mPlaces[size_t(index)]; }

private:
    qint32 note(qint32 index, Place place)
    {
        mLast = index;
        if (index == qint32(mPlaces.size()))
            mPlaces.push_back(place);
        return index;
    }

    Labels mLabels;
    std::vector<Place> mPlaces;
    qint32 mLast = -1; ///< most often the next one is the same again
};

} // namespace hfm::offline
