#pragma once

#include <QtGlobal>

namespace generator {

/// SplitMix64: small, quick, and the same on every platform, which the distributions of <random>
/// are not.
class Random
{
public:
    explicit Random(quint64 seed) : mState(seed) {}

    quint64 next()
    {
        mState += 0x9E3779B97F4A7C15ULL;
        quint64 value = mState;
        value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9ULL;
        value = (value ^ (value >> 27)) * 0x94D049BB133111EBULL;
        return value ^ (value >> 31);
    }
    /// A number from 0 to `limit` - 1; `limit` is positive.
    qint32 below(qint32 limit) { return qint32(next() % quint64(limit)); }

private:
    quint64 mState;
};

} // namespace generator
