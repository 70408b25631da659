#include "hfm/offline/XmlReader.h"

#include "hfm/offline/ReadingError.h"
#include "runtime/CodePage.h"

namespace hfm::offline {

namespace {

constexpr qint64 pieceSize = qint64(1) << 20;

QStringConverter::Encoding decoderOf(Encoding encoding)
{
    switch (encoding) {
    case Encoding::Utf16LittleEndian:
        return QStringConverter::Utf16LE;
    case Encoding::Utf16BigEndian:
        return QStringConverter::Utf16BE;
    case Encoding::Utf8:
    case Encoding::Windows1252:
        break;
    }
    return QStringConverter::Utf8;
}

/// Where a declaration at the text's beginning ends; 0 where there is none.
qsizetype endOfDeclaration(const QString &text)
{
    if (!text.startsWith(QLatin1StringView("<?xml")))
        return 0;
    const qsizetype end = text.indexOf(QLatin1StringView("?>"));
    return end < 0 ? 0 : end + 2;
}

} // namespace

XmlText encodingOfXml(QIODevice &device)
{
    constexpr qint64 startLength = 4096;
    const EncodingOfStart found = encodingOfStart(device.peek(startLength));
    XmlText text{found.encoding, found.markLength, false};
    if (found.certain)
        return text;
    Utf8Check utf8;
    while (!device.atEnd()) {
        const QByteArray piece = device.read(pieceSize);
        if (piece.isEmpty())
            break;
        utf8.feed(piece);
    }
    if (utf8.isValid())
        text.encoding = Encoding::Utf8;
    return text;
}

XmlReader::XmlReader(QIODevice &device, QString fileName, const XmlText &text)
    : mDevice(device), mFileName(std::move(fileName)), mDecoder(decoderOf(text.encoding)),
      mIsWindows1252(text.encoding == Encoding::Windows1252), mIsWrapped(text.hasSeveralRoots)
{
    // A prefix that nobody declares makes a file no less readable.
    mXml.setNamespaceProcessing(false);
    if (!mDevice.seek(text.markLength))
        refuse(QStringLiteral("The file cannot be read: %1").arg(mDevice.errorString()));
}

QXmlStreamReader::TokenType XmlReader::next()
{
    while (true) {
        const QXmlStreamReader::TokenType token = mXml.readNext();
        if (token == QXmlStreamReader::StartElement) {
            mRoots += mDepth++ == 0;
        } else if (token == QXmlStreamReader::EndElement) {
            --mDepth;
        } else if (token == QXmlStreamReader::Invalid) {
            if (mXml.error() == QXmlStreamReader::PrematureEndOfDocumentError && feed())
                continue;
            mMetAnotherRoot = mDepth == 0 && mRoots > 0;
            refuse(QStringLiteral("The file is no XML: %1").arg(mXml.errorString()));
        }
        return token;
    }
}

/// Gives the parser more of the file; false at its end.
bool XmlReader::feed()
{
    if (mEnded)
        return false;
    QString piece = readPiece();
    mEnded = piece.isNull();
    refuseLongText(piece);
    if (mIsWrapped && mIsFirst)
        piece = QStringLiteral("<all>") + piece.sliced(endOfDeclaration(piece));
    if (mIsWrapped && mEnded)
        piece = QStringLiteral("</all>");
    mIsFirst = false;
    mXml.addData(piece);
    return !piece.isEmpty();
}

/// Null at the file's end.
QString XmlReader::readPiece()
{
    while (true) {
        const QByteArray bytes = mDevice.read(pieceSize);
        if (bytes.isEmpty()) {
            if (!mDevice.atEnd())
                refuse(QStringLiteral("The file cannot be read: %1").arg(mDevice.errorString()));
            return {};
        }
        const QString text = mIsWindows1252 ? CodePage::decode(bytes) : QString(mDecoder(bytes));
        if (!text.isEmpty())
            return text;
    }
}

void XmlReader::refuseLongText(const QString &piece)
{
    const qsizetype last = piece.lastIndexOf(QLatin1Char('<'));
    mSinceMarkup = last < 0 ? mSinceMarkup + piece.size() : piece.size() - last;
    if (mSinceMarkup > longestText)
        refuse(QStringLiteral("The file goes on for %1 characters without an element; this is no "
                              "file of an application.")
                   .arg(longestText));
}

void XmlReader::refuse(const QString &reason) const
{
    throw ReadingError(mFileName, mXml.lineNumber(), reason);
}

} // namespace hfm::offline
