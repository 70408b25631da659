#pragma once

#include "appinfo/frmApplicationInfo.h"
#include "shell/frmLargeText.h"
#include "support/FakeServices.h"

#include <QLineEdit>
#include <QTest>

/// The application information over a fake client, and a user's hands on it.
class OpenWindow
{
public:
    OpenWindow()
    {
        state.gSession = fakes.hfm.openSession();
        state.gMetadata = state.gSession->GetMetadata();
        state.gApplicationName = QStringLiteral("Comma");
        state.gDimensionName = QStringLiteral("PERIOD");
        fakes.hfm.calls().clear();
    }

    FakeDimension &dimension(FakeKind kind) { return fakes.hfm.application().dimension(kind); }
    FakeCalls &calls() { return fakes.hfm.calls(); }

    /// Loads the window and shows it, with the tab of that position in front.
    void open(int tab = 1)
    {
        window = std::make_unique<frmApplicationInfo>(fakes.services, state);
        tabs()->setTabEnabled(tab, true);
        tabs()->setCurrentIndex(tab);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        calls().clear();
    }

    template <typename Control>
    Control *control(const char *name) const
    {
        return window->findChild<Control *>(QString::fromLatin1(name));
    }
    QTabWidget *tabs() const { return control<QTabWidget>("sstabApplicationInfo"); }
    QComboBox *box(const char *name) const { return control<QComboBox>(name); }
    QString report(const char *name) const { return control<LargeTextView>(name)->text(); }
    QStringList lines(const char *name) const
    {
        return static_cast<QStringListModel *>(control<QListView>(name)->model())->stringList();
    }
    QStringList entries(const char *name) const
    {
        QStringList texts;
        for (int i = 0; i < box(name)->count(); ++i)
            texts.append(box(name)->itemText(i));
        return texts;
    }

    void click(const char *name)
    {
        auto *button = control<QAbstractButton>(name);
        QVERIFY2(button, name);
        // Option buttons are wider than what reacts to the mouse.
        const QPoint inside(button->height() / 2, button->height() / 2);
        QTest::mouseClick(button, Qt::LeftButton, {}, inside);
    }
    /// As a user who opens the box's list and picks the entry.
    void choose(const char *name, const QString &entry)
    {
        QComboBox *const list = box(name);
        QVERIFY2(list, name);
        const int row = list->findText(entry);
        QVERIFY2(row >= 0, qPrintable(entry));
        list->showPopup();
        list->view()->setCurrentIndex(list->model()->index(row, 0));
        QTest::keyClick(list->view(), Qt::Key_Return);
        list->hidePopup();
    }
    void clickRow(const char *list, int row)
    {
        auto *view = control<QListView>(list);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, middleOf(list, row));
    }
    QPoint middleOf(const char *list, int row) const
    {
        const auto *view = control<QListView>(list);
        return view->visualRect(view->model()->index(row, 0)).center();
    }
    void type(const char *name, const QString &text)
    {
        box(name)->setFocus();
        box(name)->lineEdit()->selectAll();
        QTest::keyClicks(box(name), text);
    }

    /// Whether nothing went wrong so far.
    bool isWell() const { return fakes.prompts.asked.isEmpty() && !fakes.program.isEnding(); }
    QString lastMessage() const
    {
        return fakes.prompts.asked.isEmpty() ? QString() : fakes.prompts.asked.last().text;
    }

    FakeServices fakes;
    modGlobal state;
    std::unique_ptr<frmApplicationInfo> window;
};
