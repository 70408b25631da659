#include "hfm/offline/script/ArrayData.h"

namespace hfm::offline::script {

namespace {

qint64 elementCount(const ArrayData::Extents &extents)
{
    constexpr qint64 most = qint64(1) << 32;
    qint64 count = extents.isEmpty() ? 0 : 1;
    for (const qint32 extent : extents) {
        count *= extent;
        if (count > most)
            throw finalFault(MemoryExhausted);
    }
    return count;
}

qint64 bytesOf(qint64 elements)
{
    return qint64(sizeof(ArrayData)) + elements * qint64(sizeof(Value));
}

} // namespace

ArrayData::ArrayData(const Extents &sizes, Memory &owner) : extents(sizes), memory(&owner)
{
    const qint64 count = elementCount(extents);
    memory->take(bytesOf(count));
    elements.resize(size_t(count));
}

ArrayData::~ArrayData()
{
    memory->giveBack(bytesOf(qint64(elements.size())));
}

ArrayData *ArrayData::ofSize(qsizetype size, Memory &memory)
{
    if (size != qint32(size))
        throw finalFault(MemoryExhausted);
    return new ArrayData({qint32(size)}, memory);
}

ArrayData *ArrayData::copy() const
{
    auto *data = new ArrayData(extents, *memory);
    data->elements = elements;
    return data;
}

Value &ArrayData::at(std::span<const qint32> subscripts)
{
    if (subscripts.size() != size_t(extents.size()))
        throw fault(BadSubscript);
    size_t index = 0;
    size_t step = 1;
    for (size_t i = 0; i < subscripts.size(); ++i) {
        if (subscripts[i] < 0 || subscripts[i] >= extents[qsizetype(i)])
            throw fault(BadSubscript);
        index += step * size_t(subscripts[i]);
        step *= size_t(extents[qsizetype(i)]);
    }
    return elements[index];
}

void destroyArray(ArrayData *data)
{
    std::vector<ArrayData *> dying = {data};
    while (!dying.empty()) {
        ArrayData *const next = dying.back();
        dying.pop_back();
        for (Value &element : next->elements) {
            if (element.kind() != Kind::Array)
                continue;
            // Held here, so that the element's own release destroys nothing.
            ArrayData *const inner = element.asArray();
            ++inner->references;
            element = Value();
            if (--inner->references == 0)
                dying.push_back(inner);
        }
        delete next;
    }
}

ArrayData &writableArray(Value &slot, Bounds &bounds)
{
    ArrayData *data = slot.asArray();
    if (data->references > 1) {
        bounds.work(qint64(data->elements.size()));
        data = data->copy();
        slot = Value::array(data);
    }
    return *data;
}

} // namespace hfm::offline::script
