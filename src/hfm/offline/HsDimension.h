#pragma once

#include "hfm/offline/ListRun.h"

namespace hfm::offline {

/// A dimension as a member list script sees it: HS.Entity, HS.Custom1, ...
class HsDimension final : public script::HostObject
{
public:
    HsDimension(ListRun &run, DimensionKind kind)
        : mList(run), mKind(kind), mDimension(run.stored(kind))
    {
    }
    QString name() const override;
    script::Value invoke(qint32 member, script::Arguments arguments,
                         script::RunState &run) override;

private:
    script::Value list(script::Arguments arguments, script::RunState &run);
    script::Value labels(const QList<MemberId> &members, script::RunState &run) const;
    void chargeWalk(MemberId top, script::RunState &run) const;

    script::Value relation(HsMember member, script::Arguments arguments, script::RunState &run);
    script::Value count(HsMember member, MemberId of, script::RunState &run) const;
    bool isBelow(MemberId member, MemberId top, script::RunState &run) const;

    script::Value attribute(HsMember member, MemberId of);
    script::Value entityAttribute(HsMember member, MemberId of);
    script::Value accountAttribute(HsMember member, MemberId of);
    script::Value sharedAttribute(HsMember member, const UserDefined &userDefined, ClassId ofClass);

    ListRun &mList;
    DimensionKind mKind;
    const StoredDimension &mDimension;
};

} // namespace hfm::offline
