#include "hfm/offline/SystemMembers.h"

namespace hfm::offline {

MemberAdder::MemberAdder(ApplicationDraft &draft, DimensionKind dimension)
    : mWarnings(draft.warnings), mDimension(draft.dimension(dimension)), mCircles(mDimension),
      mPlaced(size_t(mDimension.count()))
{
    for (const Edge &edge : mDimension.edges())
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
        // A member of the client's own has nothing below it yet.
        const bool closesCircle =
            !ours && parent != rootMember && mCircles.mayStandAbove(id, parent);
        if (closesCircle)
            warnOfCircle(id, parent);
        mDimension.addEdge({closesCircle ? rootMember : parent, id}, {});
    }
    return id;
}

void MemberAdder::warnOfCircle(MemberId id, MemberId parent)
{
    mWarnings.add(mDimension.place(id), [&] {
        return QStringLiteral("%1 is put at the top level; under %2 it would close a circle.")
            .arg(quoted(mDimension.labels().at(id)), quoted(mDimension.labels().at(parent)));
    });
}

} // namespace hfm::offline
