#include "support/FakeCalls.h"

#include <optional>

QStringList FakeCalls::made() const
{
    QStringList names;
    for (const QLatin1StringView operation : mMade)
        names.append(operation);
    return names;
}

int FakeCalls::count(QLatin1StringView operation) const
{
    return int(mMade.count(operation));
}

void FakeCalls::fail(QLatin1StringView operation, const RuntimeError &error, int call)
{
    mFaults.append({operation, call, error});
}

void FakeCalls::enter(QLatin1StringView operation)
{
    mMade.append(operation);
    if (whileCalling)
        whileCalling();
    std::optional<RuntimeError> due;
    for (Fault &fault : mFaults)
        if ((fault.operation.isEmpty() || fault.operation == operation) && --fault.callsLeft == 0)
            due.emplace(fault.error);
    mFaults.removeIf([](const Fault &fault) { return fault.callsLeft <= 0; });
    if (due)
        throw *due;
}
