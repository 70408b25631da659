#include "hfm/offline/Encoding.h"

#include "runtime/CodePage.h"

#include <algorithm>

namespace hfm::offline {

namespace {

/// How many bytes a UTF-8 character has that begins with `lead`; 1 for what begins none.
qsizetype lengthOfCharacter(char lead)
{
    const auto byte = uchar(lead);
    if (byte >= 0xF0)
        return 4;
    if (byte >= 0xE0)
        return 3;
    return byte >= 0xC0 ? 2 : 1;
}

/// How many bytes at the end of `piece` are the beginning of a character that is not complete.
qsizetype incompleteAtEnd(QByteArrayView piece)
{
    for (qsizetype back = 1; back <= std::min<qsizetype>(3, piece.size()); ++back) {
        const char byte = piece[piece.size() - back];
        const bool continues = (uchar(byte) & 0xC0U) == 0x80;
        if (!continues)
            return lengthOfCharacter(byte) > back ? back : 0;
    }
    return 0;
}

bool isAscii(char byte)
{
    return byte != '\0' && uchar(byte) < 0x80;
}

QStringConverter::Encoding decoderOf(Encoding encoding)
{
    return encoding == Encoding::Utf16BigEndian ? QStringConverter::Utf16BE
                                                : QStringConverter::Utf16LE;
}

} // namespace

EncodingOfStart encodingOfStart(QByteArrayView start)
{
    if (start.startsWith("\xEF\xBB\xBF"))
        return {Encoding::Utf8, 3, true};
    if (start.startsWith("\xFF\xFE"))
        return {Encoding::Utf16LittleEndian, 2, true};
    if (start.startsWith("\xFE\xFF"))
        return {Encoding::Utf16BigEndian, 2, true};

    // Files begin with a section or a comment. Counting zeros alone could fail in scripts that have
    // characters with a zero for their lower half, such as the ideographic space.
    if (start.size() >= 2 && isAscii(start[0]) && start[1] == '\0')
        return {Encoding::Utf16LittleEndian, 0, true};
    if (start.size() >= 2 && start[0] == '\0' && isAscii(start[1]))
        return {Encoding::Utf16BigEndian, 0, true};

    qsizetype zeros[2] = {0, 0}; // at even and at odd positions
    const qsizetype pairs = start.size() / 2;
    for (qsizetype i = 0; i < 2 * pairs; ++i)
        zeros[i % 2] += start[i] == '\0';
    const auto upperHalvesAt = [&](int parity) {
        return zeros[parity] > 0 && 4 * zeros[parity] >= pairs && 16 * zeros[1 - parity] <= pairs;
    };
    if (upperHalvesAt(1))
        return {Encoding::Utf16LittleEndian, 0, true};
    if (upperHalvesAt(0))
        return {Encoding::Utf16BigEndian, 0, true};
    return {};
}

/// Checks the character that the last piece began, and returns what of `piece` follows it.
QByteArrayView Utf8Check::completeTail(QByteArrayView piece)
{
    const qsizetype missing = lengthOfCharacter(mTail.front()) - mTail.size();
    const qsizetype taken = std::min(missing, piece.size());
    mTail.append(piece.first(taken));
    if (taken == missing) {
        mValid = QByteArrayView(mTail).isValidUtf8();
        mTail.clear();
    }
    return piece.sliced(taken);
}

void Utf8Check::feed(QByteArrayView piece)
{
    if (mValid && !mTail.isEmpty())
        piece = completeTail(piece);
    if (!mValid || piece.isEmpty())
        return;
    const qsizetype incomplete = incompleteAtEnd(piece);
    mTail = piece.last(incomplete).toByteArray();
    mValid = piece.chopped(incomplete).isValidUtf8();
}

Transcoder::Transcoder(Encoding encoding) : mEncoding(encoding), mDecoder(decoderOf(encoding))
{
}

QByteArray Transcoder::toUtf8(QByteArrayView piece)
{
    switch (mEncoding) {
    case Encoding::Utf8:
        break;
    case Encoding::Windows1252:
        return CodePage::decode(piece).toUtf8();
    case Encoding::Utf16LittleEndian:
    case Encoding::Utf16BigEndian:
        return mEncoder(mDecoder(piece));
    }
    return piece.toByteArray();
}

} // namespace hfm::offline
