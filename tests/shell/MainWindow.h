#pragma once

#include "shell/frmMain.h"
#include "shell/WindowInstance.h"
#include "support/FakeServices.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

#include <array>

inline QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

/// A tool's window that a test can count.
class ToolStub final : public QWidget
{
public:
    static inline int loads = 0;
    ToolStub() { ++loads; }
};

/// The tools' buttons, in the order of MainWindow::tools.
inline constexpr const char *toolButtons[] = {"cmdApplicationInfo", "cmdExtractMetadata",
                                              "cmdMemberListBuilder", "cmdMetadataViewer"};

/// A main window over a fake client, with a stub for every tool.
class MainWindow
{
public:
    MainWindow()
    {
        FakeApplication &application = fakes.hfm.application();
        application.languages = {latin1("English"), latin1("German")};
        application.clusterName = latin1("HFMCluster");
        application.applicationName = latin1("COMMA");
        fakes.hfm.setLogonInfo({latin1("jane"), latin1("detail"), false});
        ToolStub::loads = 0;
        for (auto &tool : tools)
            tool = std::make_unique<WindowInstance<ToolStub>>([] { return new ToolStub; });
    }
    ~MainWindow() { delete window.data(); }
    Q_DISABLE_COPY_MOVE(MainWindow)

    void load() { load(allTools()); }
    void load(const frmMain::Tools &given)
    {
        window = new frmMain(state, fakes.services, given);
        window->setAttribute(Qt::WA_DeleteOnClose);
    }
    /// False when the window did not become the active one.
    bool show()
    {
        if (!window)
            load();
        window->show();
        const bool active = QTest::qWaitForWindowActive(window);
        QCoreApplication::processEvents(); // what an activation does is done from the event loop
        return active;
    }
    frmMain::Tools allTools()
    {
        const auto tool = [this](size_t index) {
            return [this, index]() -> QWidget * { return tools[index]->window(); };
        };
        return {tool(0), tool(1), tool(2), tool(3)};
    }

    template <typename Control>
    Control *control(const char *name) const
    {
        return window->findChild<Control *>(latin1(name));
    }
    QPushButton *button(const char *name) const { return control<QPushButton>(name); }
    QComboBox *dimensionList() const { return control<QComboBox>("cboSetDimension"); }
    QComboBox *languageList() const { return control<QComboBox>("cboLanguages"); }
    QString status() const { return control<QLabel>("sbStatusBar_1")->text(); }
    QStringList languages() const { return entriesOf(languageList()); }
    static QStringList entriesOf(const QComboBox *list)
    {
        QStringList entries;
        for (int i = 0; i < list->count(); ++i)
            entries.append(list->itemText(i));
        return entries;
    }
    QStringList enabledTools() const
    {
        QStringList enabled;
        for (const char *name : toolButtons)
            if (button(name)->isEnabled())
                enabled.append(latin1(name));
        return enabled;
    }

    void click(const char *name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
    /// As a user who opens the list and picks the entry.
    static void choose(QComboBox *list, const char *entry)
    {
        list->showPopup();
        const QModelIndex index = list->model()->index(list->findText(latin1(entry)), 0);
        QVERIFY(index.isValid());
        list->view()->setCurrentIndex(index);
        QTest::keyClick(list->view(), Qt::Key_Return);
        list->hidePopup();
    }
    void chooseDimension(const char *entry) const { choose(dimensionList(), entry); }
    void typeDimension(const char *text) const
    {
        dimensionList()->setFocus();
        QTest::keyClick(dimensionList(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(dimensionList(), latin1(text));
    }

    FakeServices fakes;
    modGlobal state;
    std::array<std::unique_ptr<WindowInstance<ToolStub>>, 4> tools;
    QPointer<frmMain> window;
};
