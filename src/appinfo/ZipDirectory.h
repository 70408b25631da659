#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

/// The sizes in bytes, unpacked, of what a zip file holds, by name, as its central directory tells
/// them (APPNOTE.TXT, 4.3.12, 4.3.16). The file has no comment at its end. Empty where the
/// directory cannot be read.
QHash<QByteArray, qint64> sizesInZip(const QString &file);
