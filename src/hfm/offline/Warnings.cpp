#include "hfm/offline/Warnings.h"

#include <algorithm>

namespace hfm::offline {

bool Warnings::countAndKeep(const void *kind, SourceFile file)
{
    ++mCount;
    qsizetype &ofKind = mKeptOfKinds[size_t(file)][kind];
    if (mEntries.size() >= kept && ofKind >= keptOfAKind)
        return false;
    ++ofKind;
    return true;
}

QList<Warning> Warnings::list() const
{
    QList<Entry> sorted = mEntries;
    std::stable_sort(sorted.begin(), sorted.end(), [](const Entry &left, const Entry &right) {
        if (left.place.file() != right.place.file())
            return left.place.file() < right.place.file();
        return left.place.line() < right.place.line();
    });
    QList<Warning> warnings;
    warnings.reserve(sorted.size());
    for (const Entry &entry : std::as_const(sorted))
        warnings.append({fileName(entry.place.file()), entry.place.line(), entry.text});
    return warnings;
}

QString quoted(QByteArrayView utf8)
{
    constexpr qsizetype longest = 80;
    QString text = QString::fromUtf8(utf8.first(std::min(utf8.size(), 4 * longest)));
    if (text.size() > longest)
        text = text.first(longest - 3) + QStringLiteral("...");
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

} // namespace hfm::offline
