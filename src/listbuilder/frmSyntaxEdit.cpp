#include "listbuilder/frmSyntaxEdit.h"

#include <QFontDatabase>
#include <QMimeData>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int charactersInATab = 4;

} // namespace

SyntaxEdit::SyntaxEdit(QWidget *parent) : QPlainTextEdit(parent)
{
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setTabStopDistance(charactersInATab * fontMetrics().averageCharWidth());
    setLineWrapMode(NoWrap);
    setTabChangesFocus(true);
}

QString SyntaxEdit::text() const
{
    // Qt's plain text of a document has blanks where labels may have no-break blanks.
    return mText.fromDocument(document()->toRawText(), "\r\n"_L1);
}

void SyntaxEdit::setText(const QString &text)
{
    setPlainText(mText.toDocument(text));
}

QMimeData *SyntaxEdit::createMimeDataFromSelection() const
{
    auto selected = std::make_unique<QMimeData>();
    selected->setText(mText.fromDocument(textCursor().selectedText(), "\n"_L1));
    return selected.release();
}
