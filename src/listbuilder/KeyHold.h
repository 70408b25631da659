#pragma once

#include <QtGlobal>

/// Tells a key's release from those that are reported while it is held down. X11 reports a key that
/// is held as released and pressed again at the same moment, and Qt does not always see that these
/// two are a repetition.
class KeyHold
{
public:
    /// A press of the key at that time, in milliseconds; 0 where the time is not known.
    void press(int key, quint64 time, bool isRepetition)
    {
        const bool isStillHeld = time != 0 && time == mReleased && key == mKey;
        if (!isRepetition && !isStillHeld)
            mHasCounted = false;
        mKey = key;
    }

    /// A release of the key. Whether it is the one of this hold that counts.
    bool release(int key, quint64 time, bool isRepetition)
    {
        if (key != mKey)
            mHasCounted = false;
        mKey = key;
        mReleased = time;
        if (isRepetition || mHasCounted)
            return false;
        mHasCounted = true;
        return true;
    }

private:
    int mKey = 0;
    quint64 mReleased = 0;
    bool mHasCounted = false;
};
