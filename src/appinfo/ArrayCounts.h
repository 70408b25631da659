#pragma once

#include "runtime/Counter16.h"

#include <QList>

/// The number of entries of an array that is counted without a look at whether it holds any: HFM's
/// empty arrays hold no value at all, and counting one raises RuntimeError TypeMismatch.
template <typename Entry>
qsizetype countOfFilled(const QList<Entry> &array)
{
    if (array.isEmpty())
        throw RuntimeError(TypeMismatch);
    return array.size();
}

/// The number of entries of an array that is walked with a 16-bit position. Raises RuntimeError
/// Overflow past 32,767.
template <typename Entry>
qint16 countForWalk(const QList<Entry> &array)
{
    return Counter16(array.size()).value();
}
