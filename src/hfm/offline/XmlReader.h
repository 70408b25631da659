#pragma once

#include "hfm/offline/Encoding.h"

#include <QIODevice>
#include <QString>
#include <QXmlStreamReader>

namespace hfm::offline {

/// How the text of an XML file is to be read.
struct XmlText
{
    Encoding encoding = Encoding::Utf8;
    qsizetype markLength = 0;     ///< where the text begins
    bool hasSeveralRoots = false; ///< whether elements follow the first one at the top
};

/// Looks a file through from its beginning for its encoding. What the XML declaration says of it is
/// passed over, because files are converted without changing that.
XmlText encodingOfXml(QIODevice &device);

/// The tokens of an XML file, read in pieces. Fails with ReadingError where the file is not
/// well-formed, cannot be read, expands its entities beyond some thousand characters, or goes on
/// for longestText without any element. No entity from outside the file is resolved.
class XmlReader
{
public:
    static constexpr qsizetype longestText = qsizetype(16) << 20; ///< in characters

    /// `fileName` is for the messages.
    XmlReader(QIODevice &device, QString fileName, const XmlText &text);

    /// Goes to the next token; EndDocument at the end.
    QXmlStreamReader::TokenType next();
    const QXmlStreamReader &token() const { return mXml; }
    qint64 line() const { return mXml.lineNumber(); }
    const QString &fileName() const { return mFileName; }
    /// Whether reading failed because of an element that follows the first one at the top.
    bool metAnotherRoot() const { return mMetAnotherRoot; }

private:
    bool feed();
    QString readPiece();
    void refuseLongText(const QString &piece);
    [[noreturn]] void refuse(const QString &reason) const;

    QIODevice &mDevice;
    QString mFileName;
    QXmlStreamReader mXml;
    QStringDecoder mDecoder;
    bool mIsWindows1252;
    bool mIsWrapped;
    bool mIsFirst = true;
    bool mEnded = false;
    bool mMetAnotherRoot = false;
    qint64 mDepth = 0;
    qint64 mRoots = 0;
    qsizetype mSinceMarkup = 0;
};

} // namespace hfm::offline
