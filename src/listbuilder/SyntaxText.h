#pragma once

#include <QString>

/// A script's text as a text document holds it. To a document U+2028, U+2029, U+FDD0 and U+FDD1 are
/// ends of lines and of frames, but a member's label may hold them; so other characters stand for
/// them in the document, noncharacters that the text does not hold.
class SyntaxText
{
public:
    /// The text as it is to be put into the document. Lines end with CR LF, CR or LF.
    QString toDocument(const QString &text);
    /// The text that the document holds, or a part of it, from its raw text. Each of the document's
    /// own line ends becomes `lineEnd`.
    QString fromDocument(QString raw, QLatin1StringView lineEnd) const;

private:
    QString mStandIns; ///< in the order of the characters that they stand for
};
