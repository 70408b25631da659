#include "hfm/offline/SystemMembers.h"

namespace hfm::offline {

MemberAdder::MemberAdder(DimensionDraft &dimension)
    : mDimension(dimension), mPlaced(size_t(dimension.count()))
{
    for (const Edge &edge : dimension.edges())
        mPlaced[size_t(edge.child)] = true;
}

MemberId MemberAdder::add(QByteArrayView label, MemberId parent, bool placeThoseOfFiles)
{
    return place(mDimension.findOrAdd(label, Origin::Client, {}), parent, placeThoseOfFiles);
}

MemberId MemberAdder::add(TextRef label, MemberId parent, bool placeThoseOfFiles)
{
    return place(mDimension.findOrAdd(label, Origin::Client, {}), parent, placeThoseOfFiles);
}

MemberId MemberAdder::add(TextRef label, MemberId parent, TextRef descriptions,
                          bool placeThoseOfFiles)
{
    const MemberId id = mDimension.findOrAdd(label, Origin::Client, {});
    put(id, parent, descriptions, placeThoseOfFiles);
    return id;
}

void MemberAdder::put(MemberId id, MemberId parent, TextRef descriptions, bool placeThoseOfFiles)
{
    place(id, parent, placeThoseOfFiles);
    if (mDimension.origin(id) == Origin::Client)
        mDimension.setDescriptions(id, descriptions);
}

MemberId MemberAdder::place(MemberId id, MemberId parent, bool placeThoseOfFiles)
{
    if (size_t(id) >= mPlaced.size())
        mPlaced.resize(size_t(id) + 1);
    const bool ours = mDimension.origin(id) == Origin::Client;
    if (!mPlaced[size_t(id)] && (ours || placeThoseOfFiles)) {
        mPlaced[size_t(id)] = true;
        mDimension.addEdge({parent, id}, {});
    }
    return id;
}

} // namespace hfm::offline
