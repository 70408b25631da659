#pragma once

#include "hfm/offline/LargeMemory.h"
#include "hfm/offline/Prefetch.h"

#include <QByteArrayView>
#include <QString>

#include <cstring>
#include <memory>
#include <vector>

namespace hfm::offline {

/// Whether the two are the same to the letter.
inline bool sameBytes(QByteArrayView left, QByteArrayView right)
{
    return left.size() == right.size() &&
           (left.isEmpty() || std::memcmp(left.data(), right.data(), size_t(left.size())) == 0);
}

/// Stands for a text of an arena; 0 is the empty text.
using TextRef = quint32;

/// The texts of an application, as UTF-8. A text is a QString only while somebody asks for it.
class TextArena
{
public:
    TextArena();

    /// Stores a text and returns what stands for it. Fails with RuntimeError OutOfMemory when the
    /// arena would be larger than 4 GiB.
    TextRef add(QByteArrayView text);
    /// Valid for as long as the arena.
    QByteArrayView at(TextRef ref) const
    {
        const char *byte = mBlocks[ref / blockSize] + ref % blockSize;
        auto length = quint32(uchar(*byte));
        return length < longText ? QByteArrayView(byte + 1, length) : longTextAt(byte);
    }
    QString text(TextRef ref) const { return QString::fromUtf8(at(ref)); }
    /// Has the text fetched from memory, to be read a little later.
    void fetch(TextRef ref) const { prefetch(mBlocks[ref / blockSize] + ref % blockSize); }

private:
    // A text stands behind its length: one byte, or `longText` and four bytes.
    static constexpr quint32 longText = 255;
    static constexpr quint32 blockSize = quint32(2) << 20;

    static QByteArrayView longTextAt(const char *byte);
    void addBlocks(size_t bytes);

    std::vector<std::unique_ptr<char[], void (*)(void *)>> mMemory;
    /// Where each block begins. A text that is longer than a block has several, side by side.
    std::vector<char *> mBlocks;
    quint64 mUsed = 0; ///< in all blocks, with what was left empty at their ends
};

/// Sees to it that an arena holds each text once. Needed only while texts are added.
class TextPool
{
public:
    explicit TextPool(TextArena &arena) : mArena(arena) {}

    /// What stands for a text that is the same to the letter; stores it where there is none.
    TextRef intern(QByteArrayView text);
    /// Gives back the pool's memory. Texts that are added later may stand in the arena twice.
    void clear();

private:
    struct Slot
    {
        quint32 hash;
        TextRef ref; ///< 0 where the slot is free
    };

    Slot &slotFor(quint32 hash, QByteArrayView text);
    void grow();

    TextArena &mArena;
    LargeVector<Slot> mSlots;
    size_t mUsed = 0;
};

} // namespace hfm::offline
