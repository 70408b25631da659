#include "listbuilder/frmSyntaxEdit.h"

#include <QFontDatabase>
#include <QMimeData>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int charactersInATab = 4;

/// A document's text with its own line ends. Qt's plain text of a document has blanks where the
/// document has no-break blanks, which labels may hold.
QString withLineEnds(QString raw, QLatin1StringView lineEnd)
{
    return raw.replace(QChar::LineSeparator, QChar::ParagraphSeparator)
        .replace(QChar::ParagraphSeparator, lineEnd);
}

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
    return withLineEnds(document()->toRawText(), "\r\n"_L1);
}

QMimeData *SyntaxEdit::createMimeDataFromSelection() const
{
    auto selected = std::make_unique<QMimeData>();
    selected->setText(withLineEnds(textCursor().selectedText(), "\n"_L1));
    return selected.release();
}
