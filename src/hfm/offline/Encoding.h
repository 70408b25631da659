#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringDecoder>
#include <QStringEncoder>

namespace hfm::offline {

/// How the text of a file is stored.
enum class Encoding { Utf8, Utf16LittleEndian, Utf16BigEndian, Windows1252 };

/// What the first bytes of a file tell of its encoding.
struct EncodingOfStart
{
    Encoding encoding = Encoding::Windows1252;
    qsizetype markLength = 0; ///< bytes of the byte-order mark, which are no text
    /// Whether this is settled. Otherwise it is a text of single bytes: UTF-8 where the whole file
    /// is valid UTF-8, else Windows-1252.
    bool certain = false;
};

/// A byte-order mark decides. Without one, UTF-16 is recognised by its zero bytes: they are the
/// upper halves of the Latin characters, first of all the one that every such file begins with.
/// `start` is the file's beginning, some kilobytes of it.
EncodingOfStart encodingOfStart(QByteArrayView start);

/// Whether a text that comes in pieces is valid UTF-8 as a whole.
class Utf8Check
{
public:
    void feed(QByteArrayView piece);
    /// Asked at the end: a text that ends inside a character is not valid.
    bool isValid() const { return mValid && mTail.isEmpty(); }

private:
    QByteArrayView completeTail(QByteArrayView piece);

    bool mValid = true;
    QByteArray mTail; ///< the beginning of a character that the next piece must end
};

/// Makes UTF-8 of a text that comes in pieces. UTF-8 itself passes as it is.
class Transcoder
{
public:
    explicit Transcoder(Encoding encoding);
    QByteArray toUtf8(QByteArrayView piece);

private:
    Encoding mEncoding;
    // For UTF-16. They keep a unit and a pair of units that a piece cut in two.
    QStringDecoder mDecoder;
    QStringEncoder mEncoder{QStringConverter::Utf8};
};

} // namespace hfm::offline
