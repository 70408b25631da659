#include "shell/TextSlices.h"

#include "shell/TextBoundaries.h"

#include <algorithm>

qsizetype TextSlices::count() const
{
    return std::max<qsizetype>((mLine.size() + sliceLength - 1) / sliceLength, 1);
}

qsizetype TextSlices::start(qsizetype slice) const
{
    return slice < count() ? TextBoundaries::characterStart(mLine, slice * sliceLength)
                           : mLine.size();
}

QStringView TextSlices::text(qsizetype slice) const
{
    const qsizetype from = start(slice);
    return mLine.sliced(from, start(slice + 1) - from);
}

qsizetype TextSlices::sliceOf(qsizetype offset) const
{
    const qsizetype last = count() - 1;
    // A cut lies before its nominal place where that is inside a character.
    const qsizetype slice = std::clamp<qsizetype>(offset / sliceLength, 0, last);
    return slice < last && start(slice + 1) <= offset ? slice + 1 : slice;
}
