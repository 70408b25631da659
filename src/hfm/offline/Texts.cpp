#include "hfm/offline/Texts.h"

#include "runtime/RuntimeError.h"

#include <QHashFunctions>

#include <cstdlib>
#include <cstring>
#include <new>

namespace hfm::offline {

TextArena::TextArena()
{
    addBlocks(blockSize);
    mBlocks.front()[0] = '\0';
    mUsed = 1;
}

void TextArena::addBlocks(size_t bytes)
{
    const size_t blocks = (bytes + blockSize - 1) / blockSize;
    if (mBlocks.size() + blocks > (size_t(1) << 32U) / blockSize)
        throw RuntimeError(OutOfMemory);
    mUsed = quint64(mBlocks.size()) * blockSize;
    // Of a small application's only block most stays untouched, and is no memory at all.
    void *const memory = mBlocks.empty() ? std::malloc(bytes) : allocateLarge(blocks * blockSize);
    if (!memory)
        throw std::bad_alloc();
    mMemory.emplace_back(static_cast<char *>(memory), freeLarge);
    for (size_t i = 0; i < blocks; ++i)
        mBlocks.push_back(mMemory.back().get() + i * blockSize);
}

TextRef TextArena::add(QByteArrayView text)
{
    if (text.isEmpty())
        return 0;
    const bool isLong = text.size() >= qsizetype(longText);
    const size_t bytes = size_t(text.size()) + (isLong ? 5 : 1);
    if (mUsed + bytes > quint64(mBlocks.size()) * blockSize)
        addBlocks(bytes);
    const auto ref = TextRef(mUsed);
    char *byte = mBlocks[ref / blockSize] + ref % blockSize;
    *byte++ = char(isLong ? longText : quint32(text.size()));
    if (isLong) {
        const auto length = quint32(text.size());
        std::memcpy(byte, &length, sizeof length);
        byte += sizeof length;
    }
    std::memcpy(byte, text.data(), size_t(text.size()));
    mUsed += bytes;
    return ref;
}

QByteArrayView TextArena::longTextAt(const char *byte)
{
    quint32 length = 0;
    std::memcpy(&length, byte + 1, sizeof length);
    return {byte + 1 + sizeof length, qsizetype(length)};
}

TextRef TextPool::intern(QByteArrayView text)
{
    if (text.isEmpty())
        return 0;
    if (3 * mUsed >= 2 * mSlots.size())
        grow();
    const auto hash = quint32(qHashBits(text.data(), size_t(text.size())));
    Slot &slot = slotFor(hash, text);
    if (!slot.ref) {
        slot = {hash, mArena.add(text)};
        ++mUsed;
    }
    return slot.ref;
}

void TextPool::clear()
{
    mSlots = {};
    mUsed = 0;
}

/// The slot that holds the text, or the free one where it belongs.
TextPool::Slot &TextPool::slotFor(quint32 hash, QByteArrayView text)
{
    const size_t mask = mSlots.size() - 1;
    size_t i = hash & mask;
    while (mSlots[i].ref && (mSlots[i].hash != hash || !sameBytes(mArena.at(mSlots[i].ref), text)))
        i = (i + 1) & mask;
    return mSlots[i];
}

void TextPool::grow()
{
    LargeVector<Slot> old(std::max<size_t>(64, 2 * mSlots.size()));
    old.swap(mSlots);
    const size_t mask = mSlots.size() - 1;
    for (const Slot &slot : old) {
        if (!slot.ref)
            continue;
        size_t i = slot.hash & mask;
        while (mSlots[i].ref)
            i = (i + 1) & mask;
        mSlots[i] = slot;
    }
}

} // namespace hfm::offline
