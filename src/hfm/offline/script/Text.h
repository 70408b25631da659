#pragma once

#include "hfm/offline/script/Bounds.h"

#include <QStringView>

namespace hfm::offline::script {

/// What values share; its owner destroys it when nobody refers to it any more.
struct Counted
{
    quint32 references = 1;
};

/// A text of a script: immutable, shared, and counted against the memory of the run that made it.
/// Unlike QString it has its characters beside its counters and needs no atomic operations, for
/// scripts make very many of them.
class Text
{
public:
    Text() = default; ///< the empty text
    /// `memory` must outlive the text; nullptr for one that belongs to no run.
    Text(QStringView units, Memory *memory);
    Text(const Text &other) : mData(other.mData) { hold(); }
    Text(Text &&other) noexcept : mData(std::exchange(other.mData, nullptr)) {}
    Text &operator=(Text other) noexcept
    {
        std::swap(mData, other.mData);
        return *this;
    }
    ~Text() { release(mData); }

    static Text joined(QStringView left, QStringView right, Memory *memory);

    QStringView view() const
    {
        return mData == nullptr ? QStringView() : QStringView(mData->units(), mData->size);
    }
    qsizetype size() const { return mData == nullptr ? 0 : mData->size; }

private:
    friend class Value;

    struct Data : Counted
    {
        qint32 size;
        Memory *memory;

        char16_t *units() { return reinterpret_cast<char16_t *>(this + 1); }
        qint64 bytes() const { return qint64(sizeof(Data)) + 2 * qint64(size); }
    };

    static Data *make(qsizetype size, Memory *memory);
    static void destroy(Data *data);
    static void release(Data *data)
    {
        if (data != nullptr && --data->references == 0)
            destroy(data);
    }
    void hold() const
    {
        if (mData != nullptr)
            ++mData->references;
    }

    Data *mData = nullptr;
};

} // namespace hfm::offline::script
