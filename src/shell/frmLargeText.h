#pragma once

#include "runtime/ErrorTrap.h"
#include "shell/frmLargeTextLayout.h"
#include "shell/TextLines.h"

#include <QAbstractScrollArea>

/// A read-only text box for a text of any length: it lays out the lines that it shows and no
/// others, so a hundred megabytes are shown as fast as a page. The text is shared with whoever set
/// it, not copied; what is read from it is that text to the last character, line ends included.
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

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void paint(const QRect &area);
    void useFont();
    void measureShownLines();
    void updateScrollBars();

    qsizetype firstShownLine() const;
    /// The number of lines that are shown whole, at least 1.
    int shownRows() const;
    qreal horizontalOffset() const;
    qsizetype lineAt(int y) const;
    QPointF topLeftOf(qsizetype line) const;

    ErrorTrap &mTrap;
    TextLines mLines;
    LargeTextLayout mLayout;
    /// The width of the widest line known: of the one with most characters, and of those shown.
    qreal mTextWidth = 0;
};
