#pragma once

#include <QTime>

/// How long the splash stays: five seconds by the day's clock, which starts again at 0 at midnight.
/// A wait that is not over by then is only over once it is cut short.
class SplashWait
{
public:
    void start(QTime now);
    /// The wait is over at the next look at the clock.
    void cutShort(QTime now);
    bool isOver(QTime now) const;

private:
    qint32 mStart = 0; ///< seconds since midnight
};
