#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <vector>

namespace hfm::offline {

/// Stands for a text of an arena; 0 is the empty text.
using TextRef = quint32;

/// The texts of an application, one behind the other, as UTF-8. A text is a QString only while
/// somebody asks for it.
class TextArena
{
public:
    TextArena();

    /// Stores a text and returns what stands for it. Fails with RuntimeError OutOfMemory when the
    /// arena would be larger than 4 GiB.
    TextRef add(QByteArrayView text);
    /// Valid up to the next call of add().
    QByteArrayView at(TextRef ref) const;
    QString text(TextRef ref) const { return QString::fromUtf8(at(ref)); }

    /// Gives back the memory that was kept ready for more texts.
    void squeeze() { mBytes.squeeze(); }

private:
    QByteArray mBytes; ///< each text behind its length; seven bits a byte, the lowest first
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
    std::vector<Slot> mSlots;
    size_t mUsed = 0;
};

} // namespace hfm::offline
