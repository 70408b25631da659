#include "hfm/offline/DescriptionReader.h"

#include <limits>

namespace hfm::offline {

void DescriptionReader::look(const Fields &fields, qsizetype first, Place place,
                             Descriptions &found)
{
    found.clear();
    for (qsizetype i = first; i < fields.count(); ++i) {
        const QByteArrayView field = fields.at(i);
        if (field.isEmpty())
            continue;
        const auto description = assignment(field);
        const qint32 language = description ? languageOf(description->name, i - first, place) : -1;
        if (language < 0) {
            mDraft.warnings.add(place, [&] {
                return QStringLiteral("The field %1 is no description; it is left out.")
                    .arg(quoted(field));
            });
        } else if (!description->value.isEmpty()) {
            found.add(quint16(language), description->value);
        }
    }
}

/// Records have their descriptions in the same order, so that the language at one position is most
/// often that of the record before.
qint32 DescriptionReader::languageOf(QByteArrayView name, qsizetype position, Place place)
{
    if (size_t(position) < mUsual.size() && mUsual[size_t(position)] >= 0 &&
        sameBytes(mDraft.languages.at(mUsual[size_t(position)]), name))
        return mUsual[size_t(position)];
    // A language's position is a 16-bit number for HFM's clients.
    constexpr qint32 most = std::numeric_limits<qint16>::max();
    if (mDraft.languages.count() >= most && mDraft.languages.find(name) < 0)
        return -1;
    const qint32 language = mDraft.languages.mention(name, place);
    if (size_t(position) >= mUsual.size())
        mUsual.resize(size_t(position) + 1, -1);
    mUsual[size_t(position)] = language;
    return language;
}

} // namespace hfm::offline
