#include "hfm/offline/ScriptText.h"

#include "hfm/offline/Encoding.h"
#include "runtime/CodePage.h"

#include <algorithm>

namespace hfm::offline {

QString scriptText(QByteArrayView content)
{
    constexpr qsizetype looked = 4096;
    const EncodingOfStart start = encodingOfStart(content.first(std::min(looked, content.size())));
    const QByteArrayView text = content.sliced(start.markLength);
    switch (start.encoding) {
    case Encoding::Utf16LittleEndian:
        return QStringDecoder(QStringConverter::Utf16LE)(text);
    case Encoding::Utf16BigEndian:
        return QStringDecoder(QStringConverter::Utf16BE)(text);
    case Encoding::Utf8:
    case Encoding::Windows1252:
        break;
    }
    const bool isUtf8 = start.encoding == Encoding::Utf8 || text.isValidUtf8();
    return isUtf8 ? QString::fromUtf8(text) : CodePage::decode(text);
}

} // namespace hfm::offline
