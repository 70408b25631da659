#include "hfm/offline/Syntax.h"

#include <cstring>

namespace hfm::offline {

bool mayDelimit(char c)
{
    return delimiters.find(c) != std::string_view::npos;
}

std::optional<SectionHeader> sectionHeader(QByteArrayView line)
{
    if (!line.startsWith('!'))
        return std::nullopt;
    const QByteArrayView content = line.sliced(1);
    if (const auto parts = assignment(content))
        return SectionHeader{parts->name, parts->value};
    return SectionHeader{trimmed(content), {}};
}

QList<QByteArrayView> splitNames(QByteArrayView text, char delimiter)
{
    for (const char candidate : {delimiter, ';', ','}) {
        if (!text.contains(candidate))
            continue;
        Fields fields;
        fields.split(text, candidate);
        QList<QByteArrayView> names;
        for (qsizetype i = 0; i < fields.count(); ++i)
            names.append(fields.at(i));
        return names;
    }
    return {trimmed(text)};
}

std::optional<Assignment> assignment(QByteArrayView field)
{
    const qsizetype equals = field.indexOf('=');
    if (equals < 0)
        return std::nullopt;
    return Assignment{trimmed(field.first(equals)), trimmed(field.sliced(equals + 1))};
}

void Fields::split(QByteArrayView record, char delimiter)
{
    mFields.clear();
    mCut = false;
    const char *begin = record.data();
    const char *const end = begin + record.size();
    while (true) {
        const auto *found =
            static_cast<const char *>(std::memchr(begin, delimiter, size_t(end - begin)));
        const char *const fieldEnd = found ? found : end;
        mFields.push_back(trimmed({begin, fieldEnd - begin}));
        if (!found)
            return;
        begin = found + 1;
        if (count() == mostFields) {
            mCut = true;
            return;
        }
    }
}

qsizetype Fields::defaultParentIndex() const
{
    constexpr QByteArrayView prefix = "DefaultParent=";
    for (size_t i = 0; i < mFields.size(); ++i) {
        const QByteArrayView field = mFields[i];
        if (field.size() >= prefix.size() && (field[0] == 'D' || field[0] == 'd') &&
            sameWord(field.first(prefix.size()), prefix))
            return qsizetype(i);
    }
    return -1;
}

} // namespace hfm::offline
