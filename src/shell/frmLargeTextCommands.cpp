// The caret, the menu's commands and the find bar of a long text.

#include "shell/frmLargeText.h"
#include "shell/frmLargeTextFind.h"
#include "shell/TextPiece.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>

namespace {

/// A longer selection is not what one wants to look for.
constexpr qsizetype longestOffer = 200;

} // namespace

void LargeTextView::addActions()
{
    mCopyAction = addShortcut(QStringLiteral("mnuCopy"), QStringLiteral("&Copy"),
                              QKeySequence::keyBindings(QKeySequence::Copy), &LargeTextView::copy);
    mCopyAction->setEnabled(false);
    addShortcut(QStringLiteral("mnuSelectAll"), QStringLiteral("Select &All"),
                QKeySequence::keyBindings(QKeySequence::SelectAll), &LargeTextView::selectAll);
    addShortcut(QStringLiteral("mnuFind"), QStringLiteral("&Find..."),
                {QKeySequence(Qt::CTRL | Qt::Key_F)}, &LargeTextView::showFind);
    addShortcut(QStringLiteral("mnuFindNext"), QStringLiteral("Find &Next"),
                {QKeySequence(Qt::Key_F3)}, &LargeTextView::findNext);
    addShortcut(QStringLiteral("mnuFindPrevious"), QStringLiteral("Find &Previous"),
                {QKeySequence(Qt::SHIFT | Qt::Key_F3)}, &LargeTextView::findPrevious);
}

QAction *LargeTextView::addShortcut(const QString &name, const QString &text,
                                    const QList<QKeySequence> &shortcuts,
                                    void (LargeTextView::*handler)())
{
    auto *const action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcuts(shortcuts);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
    mTrap.connect(action, &QAction::triggered, this, [this, handler] { (this->*handler)(); });
    return action;
}

void LargeTextView::setCaret(const TextCaret &caret)
{
    const TextCaret before = mCaret;
    mCaret = caret;
    mColumn.reset();
    mCopyAction->setEnabled(mCaret.hasSelection());
    restartBlinking();
    if (!(mCaret == before))
        Q_EMIT caretMoved(before);
}

void LargeTextView::setCaretAndReveal(const TextCaret &caret)
{
    setCaret(caret);
    reveal(mCaret.position());
}

QString LargeTextView::selectedText() const
{
    const TextBoundaries::Range range = mCaret.selection();
    return mLines.text().mid(range.start, range.end - range.start);
}

void LargeTextView::select(qsizetype anchor, qsizetype position)
{
    TextCaret caret = mCaret;
    caret.select(anchor, position);
    setCaretAndReveal(caret);
}

void LargeTextView::selectAll()
{
    TextCaret caret = mCaret;
    caret.select(0, mLines.length());
    setCaret(caret);
    offerSelection();
}

void LargeTextView::copy()
{
    if (mCaret.hasSelection())
        QGuiApplication::clipboard()->setMimeData(new TextPiece(text(), mCaret.selection()));
}

void LargeTextView::offerSelection()
{
    QClipboard *const clipboard = QGuiApplication::clipboard();
    if (clipboard->supportsSelection() && mCaret.hasSelection())
        clipboard->setMimeData(new TextPiece(text(), mCaret.selection()), QClipboard::Selection);
}

void LargeTextView::showFind()
{
    const TextBoundaries::Range range = mCaret.selection();
    if (mCaret.hasSelection() && range.end - range.start <= longestOffer &&
        mLines.lineOf(range.start) == mLines.lineOf(range.end))
        mFindBar->setWords(selectedText());
    openFindBar();
    mFindBar->activate();
}

void LargeTextView::openFindBar()
{
    mFindBar->show();
    setViewportMargins(0, 0, 0, mFindBar->sizeHint().height());
    placeFindBar();
}

void LargeTextView::hideFind()
{
    mFindBar->hide();
    setViewportMargins(0, 0, 0, 0);
    setFocus(Qt::OtherFocusReason);
}

void LargeTextView::findNext()
{
    if (mFindBar->words().isEmpty())
        return showFind();
    showMatch(TextSearch::forward(mLines.text(), mFindBar->words(), mCaret.selection().end,
                                  mFindBar->sensitivity()));
}

void LargeTextView::findPrevious()
{
    if (mFindBar->words().isEmpty())
        return showFind();
    showMatch(TextSearch::backward(mLines.text(), mFindBar->words(), mCaret.selection().start,
                                   mFindBar->sensitivity()));
}

void LargeTextView::showMatch(const TextSearch::Result &result)
{
    mFindBar->setOutcome(TextSearch::outcomeText(result.outcome));
    if (result.outcome == TextSearch::Outcome::NotFound)
        return openFindBar();
    reveal(result.match.start);
    select(result.match.start, result.match.end);
}
