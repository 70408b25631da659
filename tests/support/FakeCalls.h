#pragma once

#include "runtime/RuntimeError.h"

#include <QLatin1StringView>
#include <QList>
#include <QStringList>

#include <functional>

/// What was asked of the fake HFM client, and which calls are to fail.
class FakeCalls
{
public:
    std::function<void()> whileCalling; ///< runs within every call, where it is set; may throw

    /// The operations called since the start or the last clear(), in order, by their names in
    /// hfm/, such as "EnumChildMembers". Making one of the first objects counts too
    /// ("createClient").
    QStringList made() const;
    int count(QLatin1StringView operation) const;
    /// Forgets the calls; faults stay.
    void clear() { mMade.clear(); }

    /// Lets the `call`-th call from now on (1 is the next) of `operation` fail with `error`. An
    /// empty operation counts the calls of all.
    void fail(QLatin1StringView operation, const RuntimeError &error, int call = 1);
    void clearFaults() { mFaults.clear(); }

    /// The fake's own: notes a call, and throws when it is one that is to fail.
    void enter(QLatin1StringView operation);

private:
    struct Fault
    {
        QLatin1StringView operation;
        int callsLeft;
        RuntimeError error;
    };

    QList<QLatin1StringView> mMade;
    QList<Fault> mFaults;
};
