#pragma once

#include "hfm/offline/Texts.h"
#include "hfm/Values.h"

#include <span>

namespace hfm::offline {

/// Whether two labels are the same: letter case does not count.
bool sameLabel(QByteArrayView left, QByteArrayView right);

/// Labels, numbered from 0 in the order in which they were added, and found without case.
class Labels
{
public:
    explicit Labels(TextArena &arena) : mArena(&arena) {}

    qint32 count() const { return qint32(mRefs.size()); }
    QByteArrayView at(qint32 index) const { return mArena->at(mRefs[size_t(index)]); }
    QString text(qint32 index) const { return mArena->text(mRefs[size_t(index)]); }
    TextRef ref(qint32 index) const { return mRefs[size_t(index)]; }

    /// Makes room for that many labels more.
    void reserve(size_t further);

    /// A label that is about to be looked for. Between making the key and using it the table's part
    /// is fetched.
    struct Key
    {
        QByteArrayView label;
        quint32 hash;
    };
    Key key(QByteArrayView label) const;
    /// Fetches what looking for the keys will read besides. Waiting for all of them at once takes
    /// little longer than waiting for one.
    void fetch(std::span<const Key> keys) const;

    /// The label's number, or -1.
    qint32 find(const Key &key) const;
    qint32 find(QByteArrayView label) const { return find(key(label)); }
    /// The label's number; adds it where there is none of that name. Fails with RuntimeError
    /// OutOfMemory when there are more than the numbers reach.
    qint32 findOrAdd(const Key &key);
    qint32 findOrAdd(QByteArrayView label) { return findOrAdd(key(label)); }
    /// The same, for a label that the arena holds already.
    qint32 findOrAdd(const Key &key, TextRef label);
    qint32 findOrAdd(TextRef label) { return findOrAdd(key(mArena->at(label)), label); }

    /// Adds a label that find() and findOrAdd() do not know, because another table of labels has
    /// it. The arena holds it already. None is to be added by name after it.
    qint32 addShared(TextRef label);
    void reserveShared(size_t further) { mRefs.reserve(mRefs.size() + further); }

    /// Numbers the labels anew: `newNumbers[i]` becomes the number of the label numbered i.
    void renumber(const std::vector<qint32> &newNumbers);

private:
    struct Slot
    {
        quint32 hash;
        qint32 index; ///< -1 where the slot is free
    };

    size_t slotFor(quint32 hash, QByteArrayView label) const;
    qint32 put(size_t slot, quint32 hash, TextRef ref);
    void requireNumber() const;
    void growTo(size_t slots);
    void growIfNeeded();

    TextArena *mArena;
    LargeVector<TextRef> mRefs;
    LargeVector<Slot> mSlots;
};

} // namespace hfm::offline
