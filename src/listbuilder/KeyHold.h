#pragma once

#include <QtGlobal>

/// Tells a key's releases from those that are reported while it is held down. X11 reports a key
/// that is held as released and pressed again at the same moment, and Qt does not always see that
/// these two are a repetition. What happens to the key elsewhere is not reported: it may be pressed
/// in one control and released in another.
class KeyHold
{
public:
    /// A press of the key at that time, in milliseconds; 0 where the time is not known.
    void press(quint64 time, bool isRepetition)
    {
        const bool isStillHeld = isRepetition || (time != 0 && time == mReleased);
        mHasCounted = mHasCounted && isStillHeld;
        mIsDown = true;
    }

    /// A release of the key. Whether it is the one of this hold that counts.
    bool release(quint64 time, bool isRepetition)
    {
        const bool hasCounted = mHasCounted && mIsDown;
        mHasCounted = hasCounted || !isRepetition;
        mIsDown = false;
        mReleased = time;
        return mHasCounted && !hasCounted;
    }

private:
    quint64 mReleased = 0;
    bool mIsDown = false; ///< as far as it is reported
    bool mHasCounted = false;
};
