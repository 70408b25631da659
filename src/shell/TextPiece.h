#pragma once

#include "shell/TextBoundaries.h"

#include <QMimeData>

/// A part of a text for the clipboard, exactly as it stands. A long part shares the text and is cut
/// out only when another program asks for it, so that selecting all of a hundred megabytes costs
/// nothing; a short one is cut out at once, so that a word does not keep them in memory.
class TextPiece : public QMimeData
{
public:
    /// `range` lies within `text`.
    TextPiece(QString text, TextBoundaries::Range range);

    QStringList formats() const override;

protected:
    QVariant retrieveData(const QString &format, QMetaType type) const override;

private:
    QString mText;
    TextBoundaries::Range mRange;
};
