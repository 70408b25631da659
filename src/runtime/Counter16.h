#pragma once

#include "runtime/RuntimeError.h"

#include <limits>

/// A signed 16-bit counter of members or positions. Counting past 32,767 raises RuntimeError
/// Overflow, so an array of more entries cannot be walked with it.
class Counter16
{
public:
    constexpr Counter16() = default;
    /// Raises Overflow when `value` does not fit.
    explicit Counter16(qint64 value) : mValue(checked(value)) {}

    Counter16 &operator++()
    {
        mValue = checked(qint64(mValue) + 1);
        return *this;
    }
    Counter16 &operator+=(qint64 step)
    {
        mValue = checked(mValue + step);
        return *this;
    }
    constexpr qint16 value() const { return mValue; }

private:
    static qint16 checked(qint64 value)
    {
        if (value < std::numeric_limits<qint16>::min() ||
            value > std::numeric_limits<qint16>::max())
            throw RuntimeError(Overflow);
        return qint16(value);
    }

    qint16 mValue = 0;
};
