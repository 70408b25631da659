#pragma once

#include "listbuilder/SyntaxText.h"

#include <QPlainTextEdit>

/// A text box for a script: lines are not wrapped, TAB goes to the next control, and what is read
/// from the box is its text to the character.
class SyntaxEdit final : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit SyntaxEdit(QWidget *parent = nullptr);

    /// The text as it stands, with CR LF between the lines.
    QString text() const;
    /// Replaces the text; nothing is left to be undone.
    void setText(const QString &text);

protected:
    QMimeData *createMimeDataFromSelection() const override;

private:
    SyntaxText mText;
};
