#include "viewer/TextStore.h"

#include <algorithm>

namespace {
constexpr qsizetype largestBlock = 1 << 19; // in characters: a megabyte
}

const char16_t *TextStore::append(QStringView first, QStringView second)
{
    char16_t *const place = room(first.size() + second.size());
    std::copy_n(first.utf16(), first.size(), place);
    std::copy_n(second.utf16(), second.size(), place + first.size());
    return place;
}

char16_t *TextStore::room(qsizetype size)
{
    if (size > mLeft) {
        const qsizetype block = std::max(size, mNextBlock);
        mBlocks.push_back(std::make_unique_for_overwrite<char16_t[]>(size_t(block)));
        mFree = mBlocks.back().get();
        mLeft = block;
        mNextBlock = std::min(2 * mNextBlock, largestBlock);
    }
    char16_t *const place = mFree;
    mFree += size;
    mLeft -= size;
    return place;
}
