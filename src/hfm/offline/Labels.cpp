#include "hfm/offline/Labels.h"

#include "hfm/offline/Prefetch.h"
#include "runtime/RuntimeError.h"

#include <QHashFunctions>

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>

namespace hfm::offline {

namespace {

/// The same bit of each of eight bytes.
constexpr quint64 inEachByte(quint64 bits)
{
    return bits * 0x0101010101010101U;
}

template <typename Word>
quint64 load(const char *bytes)
{
    Word word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

/// All that a text of at most eight bytes holds, some bytes of it twice.
quint64 shortText(const char *bytes, qsizetype size)
{
    if (size >= 4)
        return load<quint32>(bytes) | load<quint32>(bytes + size - 4) << 32U;
    if (size >= 2)
        return load<quint16>(bytes) | load<quint16>(bytes + size - 2) << 16U;
    return size == 1 ? load<quint8>(bytes) : 0;
}

/// Makes small letters of the capital ones among eight ASCII characters: adding carries into the
/// highest bit of those that are not below 'A', and of those that are beyond 'Z'.
quint64 lowerCase(quint64 ascii)
{
    const quint64 fromA = ascii + inEachByte(0x80 - 'A');
    const quint64 beyondZ = ascii + inEachByte(0x80 - 'Z' - 1);
    return ascii | ((fromA & ~beyondZ & inEachByte(0x80)) >> 2U);
}

/// The form that is the same for all texts that differ in case only.
QByteArray folded(QByteArrayView text)
{
    return QString::fromUtf8(text).toCaseFolded().toUtf8();
}

/// The same for all ASCII texts that differ in case only; nothing for any other text.
std::optional<quint32> hashOfAscii(QByteArrayView text)
{
    constexpr quint64 odd = 0x9E3779B97F4A7C15U;
    const char *at = text.data();
    qsizetype left = text.size();
    quint64 hash = quint64(left) * odd;
    quint64 all = 0;
    const auto mix = [&](quint64 bytes) {
        all |= bytes;
        hash = (hash ^ lowerCase(bytes)) * odd;
        hash ^= hash >> 32U;
    };
    for (; left > 8; at += 8, left -= 8)
        mix(load<quint64>(at));
    mix(shortText(at, left));
    if (all & inEachByte(0x80))
        return std::nullopt;
    return quint32(hash);
}

/// The same for all texts that differ in case only.
quint32 hashOf(QByteArrayView text)
{
    if (const auto hash = hashOfAscii(text))
        return *hash;
    const QByteArray inOneCase = folded(text); // which may be ASCII: that of the Kelvin sign is
    if (const auto hash = hashOfAscii(inOneCase))
        return *hash;
    return quint32(qHashBits(inOneCase.constData(), size_t(inOneCase.size())));
}

} // namespace

bool sameLabel(QByteArrayView left, QByteArrayView right)
{
    return sameBytes(left, right) || folded(left) == folded(right);
}

qint32 Labels::find(const Key &key) const
{
    return mSlots.empty() ? -1 : mSlots[slotFor(key.hash, key.label)].index;
}

Labels::Key Labels::key(QByteArrayView label) const
{
    const quint32 hash = hashOf(label);
    if (!mSlots.empty())
        prefetch(&mSlots[hash & (mSlots.size() - 1)]);
    return {label, hash};
}

void Labels::fetch(std::span<const Key> keys) const
{
    if (mSlots.empty())
        return;
    const auto forEachFound = [&](auto action) {
        for (const Key &key : keys) {
            const Slot &slot = mSlots[key.hash & (mSlots.size() - 1)];
            if (slot.index >= 0 && slot.hash == key.hash)
                action(mRefs[size_t(slot.index)]);
        }
    };
    forEachFound([](const TextRef &ref) { prefetch(&ref); });
    forEachFound([this](TextRef ref) { mArena->fetch(ref); });
}

qint32 Labels::findOrAdd(const Key &key)
{
    growIfNeeded();
    const size_t slot = slotFor(key.hash, key.label);
    return mSlots[slot].index >= 0 ? mSlots[slot].index
                                   : put(slot, key.hash, mArena->add(key.label));
}

qint32 Labels::findOrAdd(const Key &key, TextRef label)
{
    growIfNeeded();
    const size_t slot = slotFor(key.hash, key.label);
    return mSlots[slot].index >= 0 ? mSlots[slot].index : put(slot, key.hash, label);
}

/// The slot that holds the label, or the free one where it belongs.
size_t Labels::slotFor(quint32 hash, QByteArrayView label) const
{
    const size_t mask = mSlots.size() - 1;
    size_t i = hash & mask;
    while (mSlots[i].index >= 0 &&
           (mSlots[i].hash != hash || !sameLabel(at(mSlots[i].index), label)))
        i = (i + 1) & mask;
    return i;
}

qint32 Labels::put(size_t slot, quint32 hash, TextRef ref)
{
    requireNumber();
    mSlots[slot] = {hash, count()};
    mRefs.push_back(ref);
    return count() - 1;
}

qint32 Labels::addShared(TextRef label)
{
    requireNumber();
    mRefs.push_back(label);
    return count() - 1;
}

/// That one more label can have one.
void Labels::requireNumber() const
{
    if (mRefs.size() >= size_t(std::numeric_limits<qint32>::max()) - 1)
        throw RuntimeError(OutOfMemory);
}

void Labels::reserve(size_t further)
{
    const size_t labels = mRefs.size() + further;
    mRefs.reserve(labels);
    size_t slots = std::max<size_t>(16, mSlots.size());
    while (3 * labels >= 2 * slots)
        slots *= 2;
    growTo(slots);
}

void Labels::growIfNeeded()
{
    if (3 * mRefs.size() >= 2 * mSlots.size())
        growTo(std::max<size_t>(16, 2 * mSlots.size()));
}

void Labels::growTo(size_t slots)
{
    if (slots <= mSlots.size())
        return;
    LargeVector<Slot> old(slots, Slot{0, -1});
    old.swap(mSlots);
    const size_t mask = mSlots.size() - 1;
    for (const Slot &slot : old) {
        if (slot.index < 0)
            continue;
        size_t i = slot.hash & mask;
        while (mSlots[i].index >= 0)
            i = (i + 1) & mask;
        mSlots[i] = slot;
    }
}

void Labels::renumber(const std::vector<qint32> &newNumbers)
{
    LargeVector<TextRef> refs(mRefs.size());
    for (size_t i = 0; i < mRefs.size(); ++i)
        refs[size_t(newNumbers[i])] = mRefs[i];
    mRefs.swap(refs);
    for (Slot &slot : mSlots) {
        if (slot.index >= 0)
            slot.index = newNumbers[size_t(slot.index)];
    }
}

} // namespace hfm::offline
