#pragma once

#include "hfm/offline/Texts.h"

#include <cstring>
#include <vector>

namespace hfm::offline {

/// The descriptions of one member put together to one text, so that an arena holds those of a
/// million members without a table of them. For each description there stand the number of its
/// language, in two bytes, the length of its text, in four, and the text. Languages are numbered as
/// they were met.
class Descriptions
{
public:
    void clear() { mBytes.clear(); }
    void add(quint16 language, QByteArrayView text)
    {
        const Head head = {language, quint32(text.size())};
        char bytes[Head::size];
        std::memcpy(bytes, &head.language, sizeof head.language);
        std::memcpy(bytes + sizeof head.language, &head.length, sizeof head.length);
        mBytes.insert(mBytes.end(), bytes, bytes + Head::size);
        mBytes.insert(mBytes.end(), text.begin(), text.end());
    }
    /// Valid up to the next change. Empty where there are no descriptions.
    QByteArrayView together() const { return {mBytes.data(), qsizetype(mBytes.size())}; }

    /// The first text in that language; empty where there is none.
    static QByteArrayView find(QByteArrayView together, quint16 language)
    {
        while (!together.isEmpty()) {
            Head head = {};
            std::memcpy(&head.language, together.data(), sizeof head.language);
            std::memcpy(&head.length, together.data() + sizeof head.language, sizeof head.length);
            const QByteArrayView text = together.sliced(Head::size, head.length);
            if (head.language == language)
                return text;
            together = together.sliced(Head::size + head.length);
        }
        return {};
    }

private:
    struct Head
    {
        static constexpr qsizetype size = sizeof(quint16) + sizeof(quint32);
        quint16 language;
        quint32 length;
    };

    std::vector<char> mBytes;
};

} // namespace hfm::offline
