#include "appinfo/ZipDirectory.h"

#include <QFile>
#include <QtEndian>

namespace {

constexpr qsizetype endSize = 22;
constexpr qsizetype wideEndSize = 56 + 20; ///< with its locator
constexpr qsizetype entrySize = 46;
constexpr quint32 elsewhere = 0xFFFFFFFF; ///< too large for its field

template <typename Number>
Number numberAt(const QByteArray &bytes, qsizetype place)
{
    return qFromLittleEndian<Number>(bytes.constData() + place);
}

/// Empty where it cannot be read.
QByteArray directoryOf(const QString &name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(file.size() - endSize))
        return {};
    const QByteArray end = file.read(endSize);
    if (end.size() != endSize || !end.startsWith("PK\5\6"))
        return {};
    const qint64 size = numberAt<quint32>(end, 12);
    const bool isWide = numberAt<quint32>(end, 16) == elsewhere;
    const qint64 place = file.size() - endSize - (isWide ? wideEndSize : 0) - size;
    return file.seek(place) ? file.read(size) : QByteArray();
}

/// The size in the extra fields, where it is the first number if it is there; -1 if not.
qint64 wideSize(const QByteArray &extra)
{
    for (qsizetype place = 0; place + 4 <= extra.size();) {
        const bool isWide = numberAt<quint16>(extra, place) == 1;
        if (isWide && place + 12 <= extra.size())
            return numberAt<qint64>(extra, place + 4);
        place += 4 + numberAt<quint16>(extra, place + 2);
    }
    return -1;
}

} // namespace

QHash<QByteArray, qint64> sizesInZip(const QString &file)
{
    const QByteArray directory = directoryOf(file);
    QHash<QByteArray, qint64> sizes;
    for (qsizetype place = 0; place + entrySize <= directory.size();) {
        const auto size = numberAt<quint32>(directory, place + 24);
        const qsizetype name = numberAt<quint16>(directory, place + 28);
        const qsizetype extra = numberAt<quint16>(directory, place + 30);
        const qsizetype comment = numberAt<quint16>(directory, place + 32);
        sizes.insert(directory.mid(place + entrySize, name),
                     size == elsewhere ? wideSize(directory.mid(place + entrySize + name, extra))
                                       : qint64(size));
        place += entrySize + name + extra + comment;
    }
    return sizes;
}
