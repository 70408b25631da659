#include "Hands.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void lost(QWidget &window, const char *control, const char *why)
{
    std::fprintf(stderr, "%s: %s %s\n", qPrintable(window.objectName()), control, why);
    std::_Exit(1);
}

template <typename Kind>
Kind &find(QWidget &window, const char *control)
{
    auto *found = window.findChild<Kind *>(QString::fromLatin1(control));
    if (found == nullptr)
        lost(window, control, "is not there");
    return *found;
}

QWidget &usable(QWidget &window, const char *control)
{
    auto &widget = find<QWidget>(window, control);
    if (!widget.isVisible() || !widget.isEnabled())
        lost(window, control, "cannot be used");
    return widget;
}

void chooseIn(QComboBox &box, const QString &entry)
{
    const int index = box.findText(entry, Qt::MatchExactly);
    if (index < 0)
        lost(*box.window(), qPrintable(box.objectName()),
             qPrintable(QStringLiteral("has no entry ") + entry));
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Home);
    box.setCurrentIndex(index);
    Q_EMIT box.activated(index);
}

void chooseIn(QAbstractItemView &view, const QString &entry)
{
    const QAbstractItemModel &model = *view.model();
    const QModelIndexList found = model.match(model.index(0, 0), Qt::DisplayRole, entry, 1,
                                              Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty())
        lost(*view.window(), qPrintable(view.objectName()),
             qPrintable(QStringLiteral("has no entry ") + entry));
    view.scrollTo(found.first());
    const QRect seen = view.visualRect(found.first()) & view.viewport()->rect();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, seen.center());
}

} // namespace

void Hands::click(QWidget &window, const char *control)
{
    QWidget *widget = &usable(window, control);
    QMetaObject::invokeMethod(
        widget, [widget] { QTest::mouseClick(widget, Qt::LeftButton); }, Qt::QueuedConnection);
}

void Hands::type(QWidget &window, const char *control, const QString &text)
{
    QWidget &widget = usable(window, control);
    widget.setFocus();
    auto *box = qobject_cast<QComboBox *>(&widget);
    QWidget *target = box != nullptr ? box->lineEdit() : &widget;
    QTest::keyClick(target, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(target, text);
}

void Hands::key(QWidget &window, const char *control, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget &widget = usable(window, control);
    widget.setFocus();
    QTest::keyClick(&widget, key, modifiers);
}

void Hands::choose(QWidget &window, const char *control, const QString &entry)
{
    QWidget &widget = usable(window, control);
    if (auto *box = qobject_cast<QComboBox *>(&widget))
        chooseIn(*box, entry);
    else if (auto *view = qobject_cast<QAbstractItemView *>(&widget))
        chooseIn(*view, entry);
    else
        lost(window, control, "is no list");
}

void Hands::tab(QWidget &window, const char *control, const QString &caption)
{
    usable(window, control);
    QTabBar &bar = *find<QTabWidget>(window, control).tabBar();
    int index = 0;
    while (index < bar.count() && bar.tabText(index) != caption)
        ++index;
    if (index == bar.count() || !bar.isTabEnabled(index))
        lost(window, control, qPrintable(QStringLiteral("has no usable tab ") + caption));
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(index).center());
}

void Hands::menu(QWidget &window, const char *action)
{
    auto *entry = &find<QAction>(window, action);
    if (!entry->isEnabled())
        lost(window, action, "is off");
    QMetaObject::invokeMethod(entry, &QAction::trigger, Qt::QueuedConnection);
}

QString Hands::text(QWidget &window, const char *control)
{
    auto &widget = find<QWidget>(window, control);
    if (auto *box = qobject_cast<QComboBox *>(&widget))
        return box->currentText();
    return widget.property("text").toString();
}

bool Hands::isEnabled(QWidget &window, const char *control)
{
    return find<QWidget>(window, control).isEnabled();
}
