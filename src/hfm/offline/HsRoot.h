#pragma once

#include "hfm/offline/ListRun.h"

namespace hfm::offline {

/// The object HS of a member list script.
class HsRoot final : public script::HostObject
{
public:
    explicit HsRoot(ListRun &run) : mList(run) {}
    QString name() const override { return QStringLiteral("HS"); }
    script::Value invoke(qint32 member, script::Arguments arguments,
                         script::RunState &run) override;

private:
    script::Value dimension(DimensionKind kind, HsMember member, script::Arguments arguments);
    script::Value customNamed(script::Arguments arguments, script::RunState &run);
    void addMember(script::Arguments arguments, script::RunState &run);
    void addEntity(script::Arguments arguments, script::RunState &run);
    void requireRunFor(bool names, HsMember member) const;

    ListRun &mList;
};

/// The object HS.AppSettings.
class HsSettings final : public script::HostObject
{
public:
    explicit HsSettings(ListRun &run) : mList(run) {}
    QString name() const override { return QStringLiteral("HS.AppSettings"); }
    script::Value invoke(qint32 member, script::Arguments arguments,
                         script::RunState &run) override;

private:
    ListRun &mList;
};

} // namespace hfm::offline
