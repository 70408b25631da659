#include "hfm/offline/script/Text.h"

#include <algorithm>
#include <limits>
#include <new>

namespace hfm::offline::script {

Text::Data *Text::make(qsizetype size, Memory *memory)
{
    if (size > std::numeric_limits<qint32>::max() / 2)
        throw finalFault(MemoryExhausted);
    const qint64 bytes = qint64(sizeof(Data)) + 2 * qint64(size);
    if (memory != nullptr)
        memory->take(bytes);
    return new (::operator new(size_t(bytes))) Data{{}, qint32(size), memory};
}

void Text::destroy(Data *data)
{
    if (data->memory != nullptr)
        data->memory->giveBack(data->bytes());
    ::operator delete(data);
}

Text::Text(QStringView units, Memory *memory)
{
    if (units.isEmpty())
        return;
    mData = make(units.size(), memory);
    std::copy(units.utf16(), units.utf16() + units.size(), mData->units());
}

Text Text::joined(QStringView left, QStringView right, Memory *memory)
{
    Text text;
    if (left.isEmpty() && right.isEmpty())
        return text;
    text.mData = make(left.size() + right.size(), memory);
    char16_t *const end = std::copy(left.utf16(), left.utf16() + left.size(), text.mData->units());
    std::copy(right.utf16(), right.utf16() + right.size(), end);
    return text;
}

} // namespace hfm::offline::script
