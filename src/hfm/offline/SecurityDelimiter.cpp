#include "hfm/offline/SecurityDelimiter.h"

#include <algorithm>

namespace hfm::offline {

namespace {

constexpr size_t semicolon = delimiters.find(';');

} // namespace

qint8 accessCode(QByteArrayView text)
{
    constexpr QByteArrayView accesses[] = {"None", "Metadata", "Read", "Promote", "All"};
    if (text.isEmpty())
        return 0;
    for (qint8 code = 0; code < qint8(std::size(accesses)); ++code) {
        const QByteArrayView access = accesses[code];
        if (text.size() == access.size() && sameWord(text, access))
            return code;
    }
    return unknownAccess;
}

void SecurityDelimiter::Votes::look(QByteArrayView record, qsizetype fewest, qsizetype most)
{
    constexpr qint32 enough = 1000;
    if (looked == enough)
        return;
    ++looked;
    Fields fields;
    for (size_t i = 0; i < delimiters.size(); ++i) {
        if (delimiters[i] == '@')
            continue;
        fields.split(record, delimiters[i]);
        const bool endsWithOneTooMany = fields.count() == most + 1 && fields.at(most).isEmpty();
        if (fields.count() < fewest || (fields.count() > most && !endsWithOneTooMany))
            continue;
        ++records[i];
        const QByteArrayView access = fields.at(2);
        accesses[i] += !access.isEmpty() && accessCode(access) != unknownAccess;
    }
}

char SecurityDelimiter::Votes::result() const
{
    const auto isBetter = [&](size_t one, size_t other) {
        return std::pair(records[one], accesses[one]) > std::pair(records[other], accesses[other]);
    };
    size_t best = semicolon;
    for (size_t i = 0; i < delimiters.size(); ++i) {
        if (isBetter(i, best))
            best = i;
    }
    return records[best] > 0 ? delimiters[best] : '\0';
}

char SecurityDelimiter::result() const
{
    for (const Votes &votes : {mClassAccess, mRoleAccess}) {
        if (const char found = votes.result())
            return found;
    }
    return ';';
}

} // namespace hfm::offline
