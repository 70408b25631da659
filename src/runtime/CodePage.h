#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

/// The 8-bit code page of files and stored lists: Windows-1252.
namespace CodePage {

/// One byte a character; a character that the code page lacks becomes '?', one for each code point.
QByteArray encode(QStringView text);

/// One character a byte. The five bytes that the code page leaves open (81, 8D, 8F, 90, 9D) become
/// the control characters of the same number, as Windows converts them, and encode() takes them
/// back.
QString decode(QByteArrayView bytes);

} // namespace CodePage
