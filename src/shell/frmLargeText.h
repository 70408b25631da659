#pragma once

#include "runtime/ErrorTrap.h"
#include "shell/frmLargeTextLayout.h"
#include "shell/TextCaret.h"
#include "shell/TextLines.h"
#include "shell/TextSearch.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>

#include <optional>
#include <utility>

class LargeTextFindBar;
class QAction;

/// A read-only text box for a text of any length: it lays out the lines that it shows and no
/// others, so a hundred megabytes are shown as fast as a page. The text is shared with whoever set
/// it, not copied; what is read, copied or handed to assistive tools is that text to the last
/// character, line ends included.
///
/// It has the keys, the pointer's ways and the menu of a text box, a find bar of its own (Ctrl+F,
/// F3, Shift+F3, Esc), and the text interface of assistive tools (frmLargeTextAccessible.h).
///
/// The scroll bars count in lines and in pixels. Lines are not wrapped. The text's direction is
/// each line's own, all lines start at the left. Of more than 2,147,483,647 lines the rest is not
/// reached by scrolling.
class LargeTextView : public QAbstractScrollArea
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /// `trap` takes the errors of its event handlers (a copy for which there is no memory) and
    /// outlives the text box.
    explicit LargeTextView(ErrorTrap &trap, QWidget *parent = nullptr);

    QString text() const { return mLines.text(); }
    /// Shows a text from its beginning, with nothing selected.
    void setText(const QString &text);
    void clear() { setText(QString()); }

    const TextLines &lines() const { return mLines; }
    /// Positions count the text's units from 0.
    const TextCaret &caret() const { return mCaret; }
    /// Exactly as it stands; empty where nothing is selected.
    QString selectedText() const;
    /// Selects from `anchor` to the caret's new position, and scrolls to it. Equal positions select
    /// nothing.
    void select(qsizetype anchor, qsizetype position);
    void selectAll();
    /// Puts the selection on the clipboard; with nothing selected the clipboard stays as it is.
    void copy();

    /// Opens the find bar with the caret in it, offering the selection if it is within a line.
    void showFind();
    void hideFind();
    /// Selects the next or the previous place of the find bar's words, and says in the bar if there
    /// is none. Without words it opens the bar.
    void findNext();
    void findPrevious();

    /// Where a character is shown, in the viewport's pixels, whether or not that part is in sight.
    /// A line end, and the text's end, has the width of a blank.
    QRect characterRect(qsizetype position);
    /// The position of the character at a place of the viewport; the nearest one, if none is there.
    qsizetype characterAt(QPoint place);
    /// Scrolls as little as shows the character at `position`.
    void reveal(qsizetype position);

Q_SIGNALS:
    /// Another text is shown, in place of `before`.
    void textReplaced(const QString &before);
    /// Caret or anchor are no longer where they were.
    void caretMoved(const TextCaret &before);

protected:
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void timerEvent(QTimerEvent *event) override;

private:
    // Lines and places (frmLargeText.cpp).
    void useFont();
    void measureShownLines();
    void updateScrollBars();
    void placeFindBar();
    qsizetype firstShownLine() const;
    /// The number of lines that are shown whole, at least 1.
    int shownRows() const;
    /// How much wider the text is than the viewport; negative where it fits.
    qreal hiddenWidth() const;
    /// Pixels of a step of the horizontal scroll bar: 1 but for lines wider than it can count.
    qreal scrollStep() const;
    qreal horizontalOffset() const;
    qsizetype lineAt(int y) const;
    QPointF topLeftOf(qsizetype line) const;
    qsizetype positionAt(QPoint place);
    /// The left and the right edge of a character, from the line's left edge.
    std::pair<qreal, qreal> extentOf(qsizetype position);

    // What is painted (frmLargeTextPaint.cpp).
    void paint(const QRect &area);
    void paintLineEnd(QPainter &painter, qsizetype line, const QColor &colour);
    void paintCaret(QPainter &painter);
    LargeTextLayout::Selection shownSelection() const;
    void restartBlinking();

    // What can be done (frmLargeTextCommands.cpp).
    void addActions();
    QAction *addShortcut(const QString &name, const QString &text,
                         const QList<QKeySequence> &shortcuts, void (LargeTextView::*handler)());
    void setCaret(const TextCaret &caret);
    void setCaretAndReveal(const TextCaret &caret);
    void offerSelection();
    void openFindBar();
    void showMatch(const TextSearch::Result &result);

    // The keys (frmLargeTextKeys.cpp).
    bool handleKey(const QKeyEvent &event);
    bool stepByKey(const QKeyEvent &event);
    bool moveLinesByKey(const QKeyEvent &event);
    void moveByLines(qsizetype lines, TextCaret::Anchor anchor);
    void moveByPage(int direction, TextCaret::Anchor anchor);

    // The pointer (frmLargeTextPointer.cpp).
    qsizetype pointedAt(QPoint place, TextCaret::Unit unit);
    void press(const QMouseEvent &event, TextCaret::Unit unit);
    bool isThirdClick(const QMouseEvent &event) const;
    void dragTo(QPoint place);
    void scrollWhileDragging();

    ErrorTrap &mTrap;
    TextLines mLines;
    TextCaret mCaret{&mLines};
    LargeTextLayout mLayout;
    /// The width of the widest line known: of the one with most characters, and of those shown.
    qreal mTextWidth = 0;
    /// Where the caret would be on a line that is long enough, while it moves up and down.
    std::optional<qreal> mColumn;

    LargeTextFindBar *mFindBar;
    QAction *mCopyAction = nullptr;

    QBasicTimer mBlinking;
    bool mCaretIsLit = true;
    bool mIsDragging = false;
    QPoint mDragPlace;
    QBasicTimer mAutoScroll; ///< runs while the pressed pointer is outside
    std::optional<quint64> mDoubleClickTime;
    QPoint mDoubleClickPlace;
};
