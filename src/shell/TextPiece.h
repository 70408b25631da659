#pragma once

#include "shell/TextBoundaries.h"

#include <QMimeData>

#include <utility>

/// A part of a text for the clipboard, exactly as it stands. It shares the text and cuts its part
/// out only when another program asks for it, so that selecting all of a hundred megabytes costs
/// nothing.
class TextPiece : public QMimeData
{
public:
    /// `range` lies within `text`.
    TextPiece(QString text, TextBoundaries::Range range) : mText(std::move(text)), mRange(range) {}

    QStringList formats() const override;

protected:
    QVariant retrieveData(const QString &format, QMetaType type) const override;

private:
    QString mText;
    TextBoundaries::Range mRange;
};
