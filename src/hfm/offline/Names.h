#pragma once

#include "hfm/offline/Labels.h"
#include "hfm/offline/Place.h"

#include <array>

namespace hfm::offline {

/// Names that a file mentions again and again (currencies, security classes, languages), each
/// numbered from 0 when it is met first. Letter case does not count.
class Names
{
public:
    explicit Names(TextArena &arena) : mLabels(arena) { mRecent.fill(-1); }

    /// The name's number; -1 for the empty name.
    qint32 mention(QByteArrayView name, Place place)
    {
        if (name.isEmpty())
            return -1;
        qint32 &recent = mRecent[(size_t(name.size()) + uchar(name.back())) % mRecent.size()];
        if (recent < 0 || mLabels.at(recent) != name)
            recent = note(mLabels.findOrAdd(name), place);
        return recent;
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
        if (index == qint32(mPlaces.size()))
            mPlaces.push_back(place);
        return index;
    }

    Labels mLabels;
    std::vector<Place> mPlaces;
    /// Most often a name is one that was there a little before.
    std::array<qint32, 64> mRecent;
};

} // namespace hfm::offline
