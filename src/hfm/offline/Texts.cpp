#include "hfm/offline/Texts.h"

#include "runtime/RuntimeError.h"

#include <QHashFunctions>

#include <limits>

namespace hfm::offline {

TextArena::TextArena()
{
    mBytes.append('\0');
}

TextRef TextArena::add(QByteArrayView text)
{
    if (text.isEmpty())
        return 0;
    if (mBytes.size() + text.size() > qsizetype(std::numeric_limits<TextRef>::max()) - 8)
        throw RuntimeError(OutOfMemory);
    const auto ref = TextRef(mBytes.size());
    auto length = quint64(text.size());
    for (; length >= 0x80; length >>= 7U)
        mBytes.append(char(uchar(length) | 0x80U));
    mBytes.append(char(length));
    mBytes.append(text);
    return ref;
}

QByteArrayView TextArena::at(TextRef ref) const
{
    const char *byte = mBytes.constData() + ref;
    auto length = quint64(uchar(*byte) & 0x7FU);
    for (unsigned shift = 7; uchar(*byte) & 0x80U; shift += 7)
        length |= quint64(uchar(*++byte) & 0x7FU) << shift;
    return {byte + 1, qsizetype(length)};
}

TextRef TextPool::intern(QByteArrayView text)
{
    if (text.isEmpty())
        return 0;
    if (2 * mUsed >= mSlots.size())
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
    while (mSlots[i].ref && (mSlots[i].hash != hash || mArena.at(mSlots[i].ref) != text))
        i = (i + 1) & mask;
    return mSlots[i];
}

void TextPool::grow()
{
    std::vector<Slot> old(std::max<size_t>(64, 2 * mSlots.size()));
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
