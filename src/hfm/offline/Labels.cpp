#include "hfm/offline/Labels.h"

#include "hfm/offline/Prefetch.h"
#include "runtime/RuntimeError.h"

#include <QHashFunctions>
#include <QVarLengthArray>

#include <algorithm>
#include <limits>

namespace hfm::offline {

namespace {

/// A label in the form that is the same for all that differ in case only.
class Folded
{
public:
    explicit Folded(QByteArrayView label) : mBytes(label.size())
    {
        uchar all = 0;
        for (qsizetype i = 0; i < label.size(); ++i) {
            const char c = label[i];
            all |= uchar(c);
            mBytes[i] = c >= 'A' && c <= 'Z' ? char(c + ('a' - 'A')) : c;
        }
        if (all < 0x80)
            return;
        const QByteArray folded = QString::fromUtf8(label).toCaseFolded().toUtf8();
        mBytes.resize(folded.size());
        std::copy(folded.begin(), folded.end(), mBytes.begin());
    }

    QByteArrayView view() const { return {mBytes.constData(), mBytes.size()}; }

private:
    QVarLengthArray<char, 256> mBytes;
};

quint32 hashOf(QByteArrayView label)
{
    const Folded folded(label);
    return quint32(qHashBits(folded.view().data(), size_t(folded.view().size())));
}

} // namespace

bool sameLabel(QByteArrayView left, QByteArrayView right)
{
    return left == right || Folded(left).view() == Folded(right).view();
}

qint32 Labels::find(QByteArrayView label) const
{
    return mSlots.empty() ? -1 : mSlots[slotFor(hashOf(label), label)].index;
}

Labels::Key Labels::key(QByteArrayView label) const
{
    const quint32 hash = hashOf(label);
    if (!mSlots.empty())
        prefetch(&mSlots[hash & (mSlots.size() - 1)]);
    return {label, hash};
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
    if (mRefs.size() >= size_t(std::numeric_limits<qint32>::max()) - 1)
        throw RuntimeError(OutOfMemory);
    mSlots[slot] = {hash, count()};
    mRefs.push_back(ref);
    return count() - 1;
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
