#include "shell/SplashWait.h"

#include <cmath>

namespace {

constexpr qint32 waitSeconds = 5;
constexpr qint32 cutSeconds = 10;

double secondsSinceMidnight(QTime time)
{
    return time.msecsSinceStartOfDay() / 1000.0;
}

/// Halves go to the even second.
qint32 toWholeSeconds(double seconds)
{
    return qint32(std::lrint(seconds));
}

} // namespace

void SplashWait::start(QTime now)
{
    mStart = toWholeSeconds(secondsSinceMidnight(now));
}

void SplashWait::cutShort(QTime now)
{
    mStart = toWholeSeconds(secondsSinceMidnight(now) - cutSeconds);
}

bool SplashWait::isOver(QTime now) const
{
    return secondsSinceMidnight(now) >= mStart + waitSeconds;
}
