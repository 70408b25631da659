#include "shell/frmLargeTextAccessible.h"

#include "shell/TextBoundaries.h"

#include <QAccessibleWidget>
#include <QFontInfo>

#include <algorithm>
#include <limits>

using TextBoundaries::Range;
using Boundary = QAccessible::TextBoundaryType;

namespace {

constexpr qsizetype announcedLength = 65'536;

int asOffset(qsizetype position)
{
    return int(std::min<qsizetype>(position, std::numeric_limits<int>::max()));
}

class LargeTextAccessible final : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit LargeTextAccessible(LargeTextView *view)
        : QAccessibleWidget(view, QAccessible::EditableText), mView(*view)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override { return mView.caret().hasSelection() ? 1 : 0; }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override { return asOffset(mView.caret().position()); }
    void setCursorPosition(int position) override { mView.select(position, position); }

    QString text(int start, int end) const override;
    QString textBeforeOffset(int offset, Boundary boundary, int *start, int *end) const override;
    QString textAfterOffset(int offset, Boundary boundary, int *start, int *end) const override;
    QString textAtOffset(int offset, Boundary boundary, int *start, int *end) const override;
    int characterCount() const override { return asOffset(mView.lines().length()); }

    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int *start, int *end) const override;

private:
    enum class Neighbour { Before, At, After };

    QString neighbour(Neighbour which, int offset, Boundary boundary, int *start, int *end) const;
    Range lineRange(qsizetype line) const;
    Range rangeOf(Neighbour which, qsizetype offset, Boundary boundary) const;
    bool isOffset(int offset) const { return offset >= 0 && offset <= characterCount(); }

    LargeTextView &mView;
};

QAccessible::State LargeTextAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
}

QString LargeTextAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? mView.text() : QAccessibleWidget::text(kind);
}

void LargeTextAccessible::selection(int index, int *start, int *end) const
{
    const bool isThere = index == 0 && mView.caret().hasSelection();
    const Range range = isThere ? mView.caret().selection() : Range();
    *start = asOffset(range.start);
    *end = asOffset(range.end);
}

void LargeTextAccessible::removeSelection(int index)
{
    if (index == 0)
        mView.select(mView.caret().position(), mView.caret().position());
}

void LargeTextAccessible::setSelection(int index, int start, int end)
{
    if (index == 0)
        mView.select(start, end);
}

QString LargeTextAccessible::text(int start, int end) const
{
    const int from = std::clamp(start, 0, characterCount());
    const int to = std::clamp(end, from, characterCount());
    return mView.lines().text().mid(from, to - from);
}

QString LargeTextAccessible::textBeforeOffset(int offset, Boundary boundary, int *start,
                                              int *end) const
{
    return neighbour(Neighbour::Before, offset, boundary, start, end);
}

QString LargeTextAccessible::textAfterOffset(int offset, Boundary boundary, int *start,
                                             int *end) const
{
    return neighbour(Neighbour::After, offset, boundary, start, end);
}

QString LargeTextAccessible::textAtOffset(int offset, Boundary boundary, int *start, int *end) const
{
    return neighbour(Neighbour::At, offset, boundary, start, end);
}

/// A text, and where it starts and ends; both -1, and no text, where there is nothing to give.
QString LargeTextAccessible::neighbour(Neighbour which, int offset, Boundary boundary, int *start,
                                       int *end) const
{
    const Range range = isOffset(offset) ? rangeOf(which, offset, boundary) : Range{-1, -1};
    *start = asOffset(range.start);
    *end = asOffset(range.end);
    return range.start < 0 ? QString() : text(*start, *end);
}

Range LargeTextAccessible::lineRange(qsizetype line) const
{
    const TextLines &lines = mView.lines();
    if (line < 0 || line >= lines.count())
        return {-1, -1};
    return {lines.start(line), lines.end(line)};
}

Range LargeTextAccessible::rangeOf(Neighbour which, qsizetype offset, Boundary boundary) const
{
    const QStringView text = mView.lines().text();
    const int step = which == Neighbour::Before ? -1 : which == Neighbour::After ? 1 : 0;
    if (boundary == QAccessible::NoBoundary)
        return {0, text.size()};
    if (boundary != QAccessible::CharBoundary && boundary != QAccessible::WordBoundary)
        return lineRange(mView.lines().lineOf(offset) + step);

    const bool isWord = boundary == QAccessible::WordBoundary;
    const auto unitAt = [&](qsizetype position) {
        if (isWord)
            return TextBoundaries::wordAt(text, position);
        return Range{position, TextBoundaries::nextCharacter(text, position)};
    };
    const qsizetype here = TextBoundaries::characterStart(text, offset);
    const Range unit = unitAt(here);
    if (which == Neighbour::At)
        return unit;
    const bool isLast = which == Neighbour::Before ? unit.start == 0 : unit.end == text.size();
    if (isLast)
        return {-1, -1};
    if (which == Neighbour::Before)
        return unitAt(isWord ? TextBoundaries::previousWord(text, unit.start)
                             : TextBoundaries::previousCharacter(text, unit.start));
    return unitAt(isWord ? TextBoundaries::nextWord(text, here) : unit.end);
}

QRect LargeTextAccessible::characterRect(int offset) const
{
    if (!isOffset(offset))
        return {};
    return mView.characterRect(offset).translated(mView.viewport()->mapToGlobal(QPoint(0, 0)));
}

int LargeTextAccessible::offsetAtPoint(const QPoint &point) const
{
    const QPoint place = mView.viewport()->mapFromGlobal(point);
    if (!mView.viewport()->rect().contains(place))
        return -1;
    const qsizetype position = mView.characterAt(place);
    return mView.characterRect(position).contains(place) ? asOffset(position) : -1;
}

void LargeTextAccessible::scrollToSubstring(int start, int end)
{
    if (!isOffset(start) || !isOffset(end))
        return;
    mView.reveal(end);
    mView.reveal(start);
}

QString LargeTextAccessible::attributes(int offset, int *start, int *end) const
{
    const bool isThere = isOffset(offset);
    *start = isThere ? 0 : -1;
    *end = isThere ? characterCount() : -1;
    if (!isThere)
        return {};
    const QFontInfo font(mView.font());
    return QStringLiteral("font-family:\"%1\";font-size:%2pt;")
        .arg(font.family(), QString::number(font.pointSizeF()));
}

QAccessibleInterface *interfaceOf(const QString &, QObject *object)
{
    auto *const view = qobject_cast<LargeTextView *>(object);
    return view ? new LargeTextAccessible(view) : nullptr;
}

} // namespace

void makeAccessible(LargeTextView &view)
{
    QAccessible::installFactory(interfaceOf); // once, however often it is called
    QObject::connect(&view, &LargeTextView::textReplaced, &view, [&view](const QString &before) {
        announceText(view, before, QAccessible::updateAccessibility);
    });
    QObject::connect(&view, &LargeTextView::caretMoved, &view, [&view](const TextCaret &before) {
        announceCaret(view, before, QAccessible::updateAccessibility);
    });
}

void announceText(LargeTextView &view, const QString &before, Announce announce)
{
    QAccessibleTextUpdateEvent event(&view, 0, before.left(announcedLength),
                                     view.text().left(announcedLength));
    event.setCursorPosition(0);
    announce(&event);
}

void announceCaret(LargeTextView &view, const TextCaret &before, Announce announce)
{
    const TextCaret &now = view.caret();
    if (now.position() != before.position()) {
        QAccessibleTextCursorEvent event(&view, asOffset(now.position()));
        announce(&event);
    }
    const bool anySelection = now.hasSelection() || before.hasSelection();
    if (anySelection && !(now.selection() == before.selection())) {
        QAccessibleTextSelectionEvent event(&view, asOffset(now.selection().start),
                                            asOffset(now.selection().end));
        event.setCursorPosition(asOffset(now.position()));
        announce(&event);
    }
}
