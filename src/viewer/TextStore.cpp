#include "viewer/TextStore.h"

#include <algorithm>
#include <cstring>

namespace {

// In bytes.
constexpr qsizetype smallestBlock = 512;
constexpr qsizetype largestBlock = 1 << 20;

bool fitsOneByteEach(QStringView text)
{
    const char16_t *character = text.utf16();
    const char16_t *const end = character + text.size();
    quint64 bits = 0;
    for (; end - character >= 4; character += 4) {
        quint64 four;
        std::memcpy(&four, character, sizeof four);
        bits |= four;
    }
    for (; character != end; ++character)
        bits |= *character;
    return (bits & 0xFF00'FF00'FF00'FF00) == 0;
}

QLatin1StringView narrow(const StoredText &text)
{
    return {reinterpret_cast<const char *>(text.place), text.size};
}

QStringView wide(const StoredText &text)
{
    return {reinterpret_cast<const char16_t *>(text.place), text.size};
}

} // namespace

QString StoredText::toString() const
{
    return isWide ? wide(*this).toString() : QString(narrow(*this));
}

bool StoredText::isPrefixOf(QStringView text) const
{
    return isWide ? text.startsWith(wide(*this)) : text.startsWith(narrow(*this));
}

StoredText StoredText::mid(qint32 position, qint32 length) const
{
    return {place + (isWide ? 2 * position : position), length, isWide};
}

StoredText TextStore::append(QString text)
{
    const auto size = qint32(text.size());
    if (fitsOneByteEach(text)) {
        const QByteArray bytes = std::move(text).toLatin1(); // in place
        return {copy(bytes.constData(), size), size, false};
    }
    return {copy(text.constData(), 2 * qsizetype(size)), size, true};
}

uchar *TextStore::copy(const void *bytes, qsizetype size)
{
    const qsizetype taken = size + size % 2; // the next text may be a wide one
    if (taken > mLeft) {
        // What is left over at the end is a sixty-fourth of the whole at most.
        const qsizetype block = std::clamp(mTotal / 64, smallestBlock, largestBlock);
        mLeft = std::max(taken, block);
        mBlocks.push_back(std::make_unique_for_overwrite<uchar[]>(size_t(mLeft)));
        mFree = mBlocks.back().get();
        mTotal += mLeft;
    }
    uchar *const place = mFree;
    if (size > 0)
        std::memcpy(place, bytes, size_t(size));
    mFree += taken;
    mLeft -= taken;
    return place;
}
