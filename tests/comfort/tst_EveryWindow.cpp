#include "EveryWindow.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Pages of the tab control that a person can bring to the front; one, -1, where there are no tabs.
QList<int> pages(const QTabWidget *tabs)
{
    QList<int> found;
    for (int i = 0; tabs && i < tabs->count(); ++i) {
        if (tabs->isTabEnabled(i))
            found.append(i);
    }
    return found.isEmpty() ? QList<int>{-1} : found;
}

/// A part of another control, which speaks for it.
bool isPart(const QWidget *widget)
{
    for (const QWidget *above = widget->parentWidget(); above; above = above->parentWidget()) {
        if (qobject_cast<const QComboBox *>(above) ||
            qobject_cast<const QAbstractSpinBox *>(above) ||
            qobject_cast<const QAbstractScrollArea *>(above) ||
            qobject_cast<const QTabBar *>(above) || qobject_cast<const QMenuBar *>(above) ||
            qobject_cast<const QLineEdit *>(above))
            return true;
    }
    return false;
}

/// What a person uses with keys: the visible controls that take the focus.
QList<QWidget *> controls(const QWidget &window)
{
    QList<QWidget *> found;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus && !isPart(widget) &&
            !qobject_cast<QScrollBar *>(widget) && !qobject_cast<QMenuBar *>(widget) &&
            !qobject_cast<QTabWidget *>(widget)) // its tab bar is the control
            found.append(widget);
    }
    return found;
}

QChar mnemonicOf(const QString &caption)
{
    const QKeySequence keys = QKeySequence::mnemonic(caption);
    return keys.isEmpty() ? QChar() : QChar(keys[0].key());
}

QString nameOf(const QWidget *widget)
{
    return widget->objectName().isEmpty() ? QString::fromLatin1(widget->metaObject()->className())
                                          : widget->objectName();
}

/// True for a control whose text does not fit into it.
bool isClipped(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        if (label->text().isEmpty())
            return false;
        return label->wordWrap() ? label->height() < label->heightForWidth(label->width())
                                 : label->width() < label->sizeHint().width();
    }
    if (qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QGroupBox *>(widget))
        return !isPart(widget) && widget->width() < widget->minimumSizeHint().width();
    return false;
}

/// Of a group of option buttons the Tab key reaches one; the arrow keys go to the others.
bool isReached(QWidget *control, const QSet<QWidget *> &reached)
{
    if (reached.contains(control) || reached.contains(control->focusProxy()))
        return true;
    const auto *option = qobject_cast<QRadioButton *>(control);
    if (!option)
        return false;
    const QString groupName = option->objectName().section(u'_', 0, 0);
    return std::any_of(reached.begin(), reached.end(), [&](const QWidget *other) {
        return qobject_cast<const QRadioButton *>(other) && other->parent() == option->parent() &&
               other->objectName().section(u'_', 0, 0) == groupName;
    });
}

QPalette darkPalette()
{
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::ButtonText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::gray);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::gray);
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

} // namespace

/// What every window owes to everybody: a name for each control, the keyboard, room on the screen.
/// Where TESSALY_PICTURES names a folder, a picture of each window is left there.
class tst_EveryWindow : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<EveryWindow> mWindows;
    std::unique_ptr<QWidget> mWindow;

    void addRows()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : EveryWindow::names())
            QTest::newRow(qPrintable(name)) << name;
    }

    /// Opens the row's window and runs `check` on each of its pages.
    template <typename Check>
    void onEachPage(Check check)
    {
        QFETCH(QString, name);
        mWindow = mWindows->open(name);
        QVERIFY(mWindow);
        QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
        auto *tabs = mWindow->findChild<QTabWidget *>();
        for (const int page : pages(tabs)) {
            if (page >= 0)
                tabs->setCurrentIndex(page);
            QCoreApplication::sendPostedEvents();
            check();
        }
    }

private Q_SLOTS:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }
    void init() { mWindows = std::make_unique<EveryWindow>(); }
    void cleanup()
    {
        mWindow.reset();
        mWindows.reset();
    }

    void everyControlHasARoleAndAName_data() { addRows(); }
    void everyControlHasARoleAndAName()
    {
        onEachPage([&] {
            for (QWidget *control : controls(*mWindow)) {
                QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(control);
                QVERIFY2(spoken, qPrintable(nameOf(control)));
                QVERIFY2(!spoken->text(QAccessible::Name).trimmed().isEmpty() ||
                             qobject_cast<QTabBar *>(control) ||
                             qobject_cast<QTabWidget *>(control),
                         qPrintable(nameOf(control) + u" has no name"_s));
                QVERIFY2(spoken->role() != QAccessible::NoRole &&
                             spoken->role() != QAccessible::Client,
                         qPrintable(nameOf(control) + u" has no role"_s));
            }
        });
    }

    void theTabKeyReachesEveryControl_data() { addRows(); }
    void theTabKeyReachesEveryControl()
    {
        onEachPage([&] {
            const QList<QWidget *> all = controls(*mWindow);
            QSet<QWidget *> reached;
            for (qsizetype i = 0; i <= 2 * all.size() + 20; ++i) {
                if (QWidget *focused = QApplication::focusWidget())
                    reached.insert(focused);
                QTest::keyClick(mWindow->windowHandle(), Qt::Key_Tab);
            }
            for (QWidget *control : all) {
                if (!control->isEnabled() || !(control->focusPolicy() & Qt::TabFocus))
                    continue;
                QVERIFY2(isReached(control, reached),
                         qPrintable(nameOf(control) + u" is not reached"_s));
            }
        });
    }

    void noTwoMnemonicsCollide_data() { addRows(); }
    void noTwoMnemonicsCollide()
    {
        onEachPage([&] {
            QMap<QChar, QString> taken;
            const auto take = [&](const QString &caption, const QString &owner) {
                const QChar key = mnemonicOf(caption);
                if (key.isNull())
                    return;
                QVERIFY2(!taken.contains(key),
                         qPrintable(u"%1 and %2 both have Alt+%3"_s.arg(taken[key], owner, key)));
                taken[key] = owner;
            };
            for (QWidget *widget : mWindow->findChildren<QWidget *>()) {
                if (!widget->isVisible())
                    continue;
                if (const auto *button = qobject_cast<QAbstractButton *>(widget))
                    take(button->text(), nameOf(button));
                if (const auto *label = qobject_cast<QLabel *>(widget); label && label->buddy())
                    take(label->text(), nameOf(label));
                if (const auto *bar = qobject_cast<QMenuBar *>(widget)) {
                    for (const QAction *menu : bar->actions())
                        take(menu->text(), menu->text());
                }
                if (const auto *bar = qobject_cast<QTabBar *>(widget)) {
                    for (int i = 0; i < bar->count(); ++i)
                        take(bar->tabText(i), bar->tabText(i));
                }
            }
        });
    }

    void everyTextFitsItsControlAndEveryWindowTheScreen_data() { addRows(); }
    void everyTextFitsItsControlAndEveryWindowTheScreen()
    {
        onEachPage([&] {
            for (const QWidget *widget : mWindow->findChildren<QWidget *>()) {
                if (widget->isVisible())
                    QVERIFY2(!isClipped(widget), qPrintable(nameOf(widget) + u" is cut off"_s));
            }
            // What a screen of 1,024 by 768 leaves beside a panel and the window's frame.
            const QSize room(1016, 700);
            QVERIFY2(mWindow->width() <= room.width() && mWindow->height() <= room.height(),
                     qPrintable(u"%1 by %2"_s.arg(mWindow->width()).arg(mWindow->height())));
        });
    }

    void nothingIsWrittenInAColourOfItsOwn_data() { addRows(); }
    void nothingIsWrittenInAColourOfItsOwn()
    {
        const QPalette light = QApplication::palette();
        for (const QPalette &palette : {darkPalette(), light}) {
            QApplication::setPalette(palette);
            onEachPage([&] {
                for (const QWidget *widget : mWindow->findChildren<QWidget *>()) {
                    if (!widget->isVisible() || !widget->isEnabled())
                        continue;
                    QVERIFY2(widget->styleSheet().isEmpty(), qPrintable(nameOf(widget)));
                    const QPalette &own = widget->palette();
                    const int contrast = qAbs(qGray(own.color(QPalette::WindowText).rgb()) -
                                              qGray(own.color(QPalette::Window).rgb()));
                    QVERIFY2(contrast > 90, qPrintable(nameOf(widget)));
                }
            });
            picture(palette == light ? u"light"_s : u"dark"_s);
        }
    }

private:
    void picture(const QString &what) const
    {
        const QString folder = qEnvironmentVariable("TESSALY_PICTURES");
        if (folder.isEmpty() || !mWindow)
            return;
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(mWindow->grab().save(u"%1/%2-%3.png"_s.arg(folder, mWindow->objectName(), what)));
    }
};

QTEST_MAIN(tst_EveryWindow)
#include "tst_EveryWindow.moc"
