#include "shell/frmMain.h"
#include "shell/WindowInstance.h"
#include "support/FakeServices.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <array>

namespace {

constexpr const char *toolButtons[] = {"cmdApplicationInfo", "cmdExtractMetadata",
                                       "cmdMemberListBuilder", "cmdMetadataViewer"};

QString latin1(const char *text)
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

} // namespace

/// The main window over a fake client, with a stub for every tool.
class tst_frmMain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }

    void init()
    {
        mFakes = std::make_unique<FakeServices>();
        mState = std::make_unique<modGlobal>();
        FakeApplication &application = mFakes->hfm.application();
        application.languages = {latin1("English"), latin1("German")};
        application.clusterName = latin1("HFMCluster");
        application.applicationName = latin1("COMMA");
        mFakes->hfm.setLogonInfo({latin1("jane"), latin1("detail"), false});
        ToolStub::loads = 0;
        for (auto &tool : mTools)
            tool = std::make_unique<WindowInstance<ToolStub>>([] { return new ToolStub; });
    }
    void cleanup()
    {
        mMain.reset();
        for (auto &tool : mTools)
            tool.reset();
        mState.reset();
        mFakes.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // What stands in the window.

    void theCaptionsAndToolTipsAreThese_data();
    void theCaptionsAndToolTipsAreThese();
    void theMenusAreThese();
    void theListsAndLabelsAreThese();
    void everyControlHasAnAccessibleNameAndALabelItsBuddy();
    void theKeyboardWalksThroughTheControlsInOrder();

    // The logon.

    void loadingLogsOnBeforeTheWindowIsShown();
    void beforeADimensionIsChosenTheDimensionsToolsAreOff();
    void anAbandonedLogonLeavesTheWindowAsItStarts();
    void noOnTheFirstFailureLeavesStatusLanguagesAndButtonsAsTheyWere();
    void buttonAndMenuEntryLogOnAgain();
    void aSecondLogonAppendsTheLanguagesAgainAndSelectsTheFirst();
    void theStatusTimeIsTheLogonsAndStays();
    void withoutAnyLanguageNoneIsSelected();
    void aLogonThatFailsOnLoadingFailsTheWindow();
    void aLogonThatFailsLaterEndsTheProgram();

    // The dimension and the language.

    void choosingAnEntrySetsTheDimension();
    void theSameEntryChosenAgainSetsItAgain();
    void enterInTheTextSetsTheDimension();
    void aTypedTextThatIsNoDimensionGivesTheMessage();
    void leavingTheTextIsNoChoice();
    void nothingIsInsertedIntoTheList();
    void withEntityTheMemberListBuilderIsOff();
    void anotherDimensionTurnsTheMemberListBuilderOnAgain();
    void aLanguagesPositionIsItsIndex();

    // Tools and commands.

    void aButtonOpensItsTool_data();
    void aButtonOpensItsTool();
    void aToolThatIsNotThereHasNoButton();
    void aToolIsLoadedOnceAndLoadedAnewAfterItsClosing();
    void theMemberListBuilderSilentlyStaysClosedForEntity();
    void theHourglassShowsWhileAToolIsOpened();
    void theHourglassGoesWhenAToolFails();
    void aToolStandsOverTheMainWindow();
    void helpRunsTheHelpViewersCommandLine();
    void aHelpViewerThatIsMissingEndsTheProgram();
    void generateScriptsDoesNothing();
    void theExitEntryEndsTheProgramAtOnce();
    void theExitButtonUnloadsTheMainWindowOnly();
    void theProgramLastsUntilTheLastWindowIsClosed();

private:
    void load()
    {
        mMain = new frmMain(*mState, mFakes->services, tools());
        mMain->setAttribute(Qt::WA_DeleteOnClose);
    }
    void show()
    {
        load();
        mMain->show();
        QVERIFY(QTest::qWaitForWindowActive(mMain));
    }
    frmMain::Tools tools()
    {
        const auto tool = [this](int index) {
            return [this, index]() -> QWidget * { return mTools[size_t(index)]->window(); };
        };
        return {tool(0), tool(1), tool(2), tool(3)};
    }
    template <typename Control>
    Control *control(const char *name)
    {
        return mMain->findChild<Control *>(latin1(name));
    }
    QPushButton *button(const char *name) { return control<QPushButton>(name); }
    QComboBox *dimensionList() { return control<QComboBox>("cboSetDimension"); }
    QComboBox *languageList() { return control<QComboBox>("cboLanguages"); }
    QString status() { return control<QLabel>("sbStatusBar_1")->text(); }
    /// As a user who opens the list and picks the entry.
    void choose(QComboBox *list, const QString &entry)
    {
        list->showPopup();
        const int row = list->findText(entry);
        QVERIFY(row >= 0);
        list->view()->setCurrentIndex(list->model()->index(row, 0));
        QTest::keyClick(list->view(), Qt::Key_Return);
        list->hidePopup();
    }
    void typeDimension(const char *text)
    {
        dimensionList()->lineEdit()->selectAll();
        QTest::keyClicks(dimensionList(), latin1(text));
    }
    QStringList enabledTools()
    {
        QStringList enabled;
        for (const char *name : toolButtons)
            if (button(name)->isEnabled())
                enabled.append(latin1(name));
        return enabled;
    }
    QStringList languages()
    {
        QStringList entries;
        for (int i = 0; i < languageList()->count(); ++i)
            entries.append(languageList()->itemText(i));
        return entries;
    }

    std::unique_ptr<FakeServices> mFakes;
    std::unique_ptr<modGlobal> mState;
    std::array<std::unique_ptr<WindowInstance<ToolStub>>, 4> mTools;
    struct DeleteWindow
    {
        QPointer<frmMain> window;
        ~DeleteWindow() { reset(); }
        void reset() { delete window.data(); }
        DeleteWindow &operator=(frmMain *other)
        {
            window = other;
            return *this;
        }
        operator frmMain *() const { return window; }
        frmMain *operator->() const { return window; }
    } mMain;
};

// What stands in the window.

void tst_frmMain::theCaptionsAndToolTipsAreThese_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("toolTip");
    const auto row = [](const char *name, const char *caption, const char *toolTip) {
        QTest::newRow(name) << latin1(caption) << latin1(toolTip);
    };
    row("cmdLogon", "(Re) &Logon", "Logon and Connect to Hyperion Financial Management");
    row("cmdExit", "E&xit", "Exit the Application");
    row("cmdApplicationInfo", "A&pplication Info",
        "Module that provides general or dimension specific information");
    row("cmdScripting", "Generate &Scripts", "");
    row("cmdExtractMetadata", "&Extract Metadata", "Flat File Metadata extract functionality");
    row("cmdMemberListBuilder", "&Member List Builder",
        "Utilitiy module that allows you to create static member lists");
    row("cmdMetadataViewer", "Metadata &Viewer",
        "Hierarchical member list viewer with Export to Excel");
}
void tst_frmMain::theCaptionsAndToolTipsAreThese()
{
    load();
    QPushButton *const found = button(QTest::currentDataTag());
    QVERIFY(found);
    QTEST(found->text(), "caption");
    QTEST(found->toolTip(), "toolTip");
}

void tst_frmMain::theMenusAreThese()
{
    load();
    QStringList entries;
    for (const QAction *menu : mMain->menuBar()->actions()) {
        entries.append(menu->menu()->objectName() + u' ' + menu->text());
        for (const QAction *entry : menu->menu()->actions())
            entries.append(entry->objectName() + u' ' + entry->text());
    }
    QCOMPARE(entries, (QStringList{latin1("mnuFile &File"), latin1("mnuLogon (Re) &Logon"),
                                   latin1("mnuExit E&xit Tessaly"), latin1("mnuHelp &Help"),
                                   latin1("mnuHFMHelp &Tessaly Help"),
                                   latin1("mnuHelpAbout &About Tessaly...")}));
}

void tst_frmMain::theListsAndLabelsAreThese()
{
    load();
    QCOMPARE(mMain->objectName(), latin1("frmMain"));
    QCOMPARE(mMain->windowTitle(), latin1("Tessaly"));
    QCOMPARE(control<QLabel>("lblLanguages")->text(), latin1("Language:"));
    QCOMPARE(control<QLabel>("lblSetDimension")->text(), latin1("Set Dimension:"));
    QCOMPARE(control<QLabel>("lblHelpText")->text(),
             latin1("Put help text in here explaining how these utilities are somtimes used, "
                    "etc..."));
    const auto *frame = control<QGroupBox>("frmDimensionActionItems");
    QCOMPARE(frame->title(), latin1(" Dimensional Modules "));
    for (const char *inFrame : {"lblSetDimension", "cboSetDimension", "cmdExtractMetadata",
                                "cmdMemberListBuilder", "cmdMetadataViewer"})
        QVERIFY2(frame->findChild<QWidget *>(latin1(inFrame)), inFrame);

    QVERIFY(!languageList()->isEditable());
    QVERIFY(dimensionList()->isEditable());
    QCOMPARE(dimensionList()->currentText(), QString());
    QStringList names;
    for (int i = 0; i < dimensionList()->count(); ++i)
        names.append(dimensionList()->itemText(i));
    QCOMPARE(names.join(u' '), latin1("Account Entity Scenario Year Period Custom1 Custom2 "
                                      "Custom3 Custom4 View Value ICP"));
}

void tst_frmMain::everyControlHasAnAccessibleNameAndALabelItsBuddy()
{
    load();
    QCOMPARE(control<QLabel>("lblLanguages")->buddy(), languageList());
    QCOMPARE(control<QLabel>("lblSetDimension")->buddy(), dimensionList());
    QCOMPARE(languageList()->accessibleName(), latin1("Language"));
    QCOMPARE(dimensionList()->accessibleName(), latin1("Set Dimension"));
    QCOMPARE(button("cmdLogon")->accessibleName(), latin1("(Re) Logon"));
    for (const QPushButton *found : mMain->findChildren<QPushButton *>())
        QVERIFY2(!found->accessibleName().isEmpty(), qPrintable(found->objectName()));
}

void tst_frmMain::theKeyboardWalksThroughTheControlsInOrder()
{
    show();
    choose(dimensionList(), latin1("Account"));
    QStringList order{QApplication::focusWidget()->objectName()};
    for (int i = 0; i < 8; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        order.append(QApplication::focusWidget()->objectName());
    }
    QCOMPARE(order,
             (QStringList{latin1("cboSetDimension"), latin1("cmdExtractMetadata"),
                          latin1("cmdMemberListBuilder"), latin1("cmdMetadataViewer"),
                          latin1("cboLanguages"), latin1("cmdLogon"), latin1("cmdApplicationInfo"),
                          latin1("cmdScripting"), latin1("cmdExit")}));
}

// The logon.

void tst_frmMain::loadingLogsOnBeforeTheWindowIsShown()
{
    load();
    QVERIFY(!mMain->isVisible());
    QVERIFY(mState->gMetadata);
    QCOMPARE(status(), latin1("Cluster: HFMCluster * Application: COMMA * User: jane * "
                              "Logged On: 15:09:26"));
    QCOMPARE(languages(), (QStringList{latin1("English"), latin1("German")}));
    QCOMPARE(languageList()->currentIndex(), 0);
    QVERIFY(languageList()->isEnabled());
}

void tst_frmMain::beforeADimensionIsChosenTheDimensionsToolsAreOff()
{
    show();
    QCOMPARE(enabledTools(), QStringList{latin1("cmdApplicationInfo")});
    QVERIFY(!mState->gDimension);
    QVERIFY(mFakes->prompts.asked.isEmpty());
}

void tst_frmMain::anAbandonedLogonLeavesTheWindowAsItStarts()
{
    mFakes->hfm.logonAnswers() = {false};
    mFakes->prompts.answers = {Prompts::Answer::No};
    show();
    QCOMPARE(status(), latin1("Status"));
    QCOMPARE(enabledTools(), QStringList());
    QVERIFY(!languageList()->isEnabled());
    QCOMPARE(languageList()->count(), 0);
    QVERIFY(!mFakes->program.isEnding());
}

void tst_frmMain::noOnTheFirstFailureLeavesStatusLanguagesAndButtonsAsTheyWere()
{
    show();
    choose(dimensionList(), latin1("Entity"));
    choose(languageList(), latin1("German"));
    const QString statusBefore = status();
    const QStringList toolsBefore = enabledTools();
    mFakes->hfm.openAnswers() = {false};
    mFakes->prompts.answers = {Prompts::Answer::No};

    QTest::mouseClick(button("cmdLogon"), Qt::LeftButton);

    QCOMPARE(mFakes->prompts.asked.size(), 1);
    QCOMPARE(status(), statusBefore);
    QCOMPARE(enabledTools(), toolsBefore);
    QCOMPARE(languages(), (QStringList{latin1("English"), latin1("German")}));
    QCOMPARE(languageList()->currentIndex(), 1);
    QCOMPARE(mState->gLanguageIndex, qint16(1));
}

void tst_frmMain::buttonAndMenuEntryLogOnAgain()
{
    show();
    mFakes->hfm.calls().clear();
    QTest::mouseClick(button("cmdLogon"), Qt::LeftButton);
    QCOMPARE(mFakes->hfm.calls().count(QLatin1StringView("Logon")), 1);
    control<QAction>("mnuLogon")->trigger();
    QCOMPARE(mFakes->hfm.calls().count(QLatin1StringView("Logon")), 2);
}

void tst_frmMain::aSecondLogonAppendsTheLanguagesAgainAndSelectsTheFirst()
{
    show();
    choose(languageList(), latin1("German"));
    mFakes->hfm.newApplication().languages = {latin1("French")};
    QTest::mouseClick(button("cmdLogon"), Qt::LeftButton);
    QCOMPARE(languages(), (QStringList{latin1("English"), latin1("German"), latin1("French")}));
    QCOMPARE(languageList()->currentIndex(), 0);
    QCOMPARE(mState->gLanguageIndex, qint16(0));
    choose(languageList(), latin1("French"));
    QCOMPARE(mState->gLanguageIndex, qint16(2));
}

void tst_frmMain::theStatusTimeIsTheLogonsAndStays()
{
    show();
    const QString before = status();
    mFakes->clock.time = mFakes->clock.time.addSecs(3600);
    choose(dimensionList(), latin1("Year"));
    QCOMPARE(status(), before);
    QTest::mouseClick(button("cmdLogon"), Qt::LeftButton);
    QVERIFY(status().endsWith(latin1("Logged On: 16:09:26")));
}

void tst_frmMain::withoutAnyLanguageNoneIsSelected()
{
    mFakes->hfm.application().languages.clear();
    load();
    QCOMPARE(languageList()->count(), 0);
    QCOMPARE(mState->gLanguageIndex, qint16(0));
}

void tst_frmMain::aLogonThatFailsOnLoadingFailsTheWindow()
{
    mFakes->hfm.calls().fail(QLatin1StringView("createClient"), RuntimeError(CannotCreateObject));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, load());
    QVERIFY(mFakes->prompts.asked.isEmpty());
}

void tst_frmMain::aLogonThatFailsLaterEndsTheProgram()
{
    show();
    mFakes->hfm.calls().fail(QLatin1StringView("GetMetadata"), RuntimeError(PermissionDenied));
    QTest::mouseClick(button("cmdLogon"), Qt::LeftButton);
    QCOMPARE(mFakes->prompts.asked.size(), 1);
    QCOMPARE(mFakes->prompts.asked[0].text,
             latin1("Run-time error '70':\r\n\r\nPermission denied"));
    QCOMPARE(mFakes->program.endCodes, QList<int>{1});
}

// The dimension and the language.

void tst_frmMain::choosingAnEntrySetsTheDimension()
{
    show();
    choose(dimensionList(), latin1("Account"));
    QCOMPARE(mState->gDimensionName, latin1("ACCOUNT"));
    QCOMPARE(mState->gDimension.get(), &mFakes->hfm.application().account());
    QCOMPARE(enabledTools().size(), 4);
}

void tst_frmMain::theSameEntryChosenAgainSetsItAgain()
{
    show();
    choose(dimensionList(), latin1("Account"));
    mState->gDimension.reset();
    choose(dimensionList(), latin1("Account"));
    QCOMPARE(mState->gDimension.get(), &mFakes->hfm.application().account());
}

void tst_frmMain::enterInTheTextSetsTheDimension()
{
    show();
    for (const char *text : {"custom2", "Custom2", "CUSTOM2"}) {
        mState->gDimension.reset();
        mState->gDimensionName.clear();
        mFakes->hfm.calls().clear();
        typeDimension(text);
        QCOMPARE(dimensionList()->currentText(), latin1(text));
        QVERIFY(!mState->gDimension);
        QTest::keyClick(dimensionList(), Qt::Key_Return);
        QCOMPARE(mState->gDimensionName, latin1("CUSTOM2"));
        QCOMPARE(mState->gDimension.get(), &mFakes->hfm.application().custom(2));
        QCOMPARE(mFakes->hfm.calls().made(), QStringList{latin1("GetCustom2Dimension")});
    }
    QVERIFY(mFakes->prompts.asked.isEmpty());
}

void tst_frmMain::aTypedTextThatIsNoDimensionGivesTheMessage()
{
    show();
    choose(dimensionList(), latin1("Year"));
    const QStringList toolsBefore = enabledTools();
    typeDimension("Accounts");
    QTest::keyClick(dimensionList(), Qt::Key_Return);
    QCOMPARE(mFakes->prompts.asked,
             (QList<Prompt>{{latin1("Error Setting Dimension"),
                             latin1("Unable to set dimension to 'Accounts'."),
                             Prompt::Icon::Critical, Prompt::Buttons::Ok}}));
    QCOMPARE(mState->gDimensionName, latin1("YEAR"));
    QCOMPARE(mState->gDimension.get(), &mFakes->hfm.application().dimension(FakeKind::Year));
    QCOMPARE(enabledTools(), toolsBefore);
    QCOMPARE(dimensionList()->currentText(), latin1("Accounts"));
}

void tst_frmMain::leavingTheTextIsNoChoice()
{
    show();
    choose(dimensionList(), latin1("Year"));
    typeDimension("Entity");
    QTest::keyClick(dimensionList(), Qt::Key_Tab);
    QVERIFY(!dimensionList()->hasFocus());
    QCOMPARE(mState->gDimensionName, latin1("YEAR"));
}

void tst_frmMain::nothingIsInsertedIntoTheList()
{
    show();
    typeDimension("Accounts");
    QTest::keyClick(dimensionList(), Qt::Key_Return);
    QCOMPARE(dimensionList()->count(), 12);
    QCOMPARE(dimensionList()->findText(latin1("Accounts")), -1);
}

void tst_frmMain::withEntityTheMemberListBuilderIsOff()
{
    show();
    choose(dimensionList(), latin1("Entity"));
    QCOMPARE(enabledTools(),
             (QStringList{latin1("cmdApplicationInfo"), latin1("cmdExtractMetadata"),
                          latin1("cmdMetadataViewer")}));
}

void tst_frmMain::anotherDimensionTurnsTheMemberListBuilderOnAgain()
{
    show();
    choose(dimensionList(), latin1("Entity"));
    choose(dimensionList(), latin1("ICP"));
    QVERIFY(button("cmdMemberListBuilder")->isEnabled());
}

void tst_frmMain::aLanguagesPositionIsItsIndex()
{
    show();
    choose(languageList(), latin1("German"));
    QCOMPARE(mState->gLanguageIndex, qint16(1));
    choose(languageList(), latin1("English"));
    QCOMPARE(mState->gLanguageIndex, qint16(0));
}

// Tools and commands.

void tst_frmMain::aButtonOpensItsTool_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < 4; ++i)
        QTest::newRow(toolButtons[i]) << i;
}
void tst_frmMain::aButtonOpensItsTool()
{
    QFETCH(int, index);
    show();
    choose(dimensionList(), latin1("Account"));
    QTest::mouseClick(button(toolButtons[index]), Qt::LeftButton);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(mTools[size_t(i)]->isLoaded(), i == index);
    QVERIFY(mTools[size_t(index)]->window()->isVisible());
    QCOMPARE(mTools[size_t(index)]->window()->windowModality(), Qt::NonModal);
    QCOMPARE(ToolStub::loads, 1);
}

void tst_frmMain::aToolThatIsNotThereHasNoButton()
{
    mMain = new frmMain(*mState, mFakes->services, {{}, tools().extract, {}, {}});
    mMain->show();
    QVERIFY(button("cmdExtractMetadata")->isVisible());
    for (const char *name : {"cmdApplicationInfo", "cmdMemberListBuilder", "cmdMetadataViewer"})
        QVERIFY2(!button(name)->isVisible(), name);
    choose(dimensionList(), latin1("Account"));
    QVERIFY(!button("cmdMetadataViewer")->isVisible());
}

void tst_frmMain::aToolIsLoadedOnceAndLoadedAnewAfterItsClosing()
{
    show();
    choose(dimensionList(), latin1("Account"));
    QTest::mouseClick(button("cmdExtractMetadata"), Qt::LeftButton);
    QPointer<QWidget> first = mTools[1]->window();
    QTest::mouseClick(button("cmdExtractMetadata"), Qt::LeftButton);
    QCOMPARE(ToolStub::loads, 1);
    QVERIFY(first->isVisible());

    first->showMinimized();
    QTest::mouseClick(button("cmdExtractMetadata"), Qt::LeftButton);
    QCOMPARE(ToolStub::loads, 1);
    QVERIFY(!first->isMinimized());

    first->close();
    QVERIFY(!mTools[1]->isLoaded());
    QTest::mouseClick(button("cmdExtractMetadata"), Qt::LeftButton);
    QCOMPARE(ToolStub::loads, 2);
    QTRY_VERIFY(!first);
    QVERIFY(mTools[1]->isLoaded());
    QVERIFY(mTools[1]->window()->isVisible());
    QCOMPARE(ToolStub::loads, 2);
}

void tst_frmMain::theMemberListBuilderSilentlyStaysClosedForEntity()
{
    show();
    choose(dimensionList(), latin1("Account"));
    mState->gDimensionName = latin1("ENTITY"); // the button has not heard of it
    QTest::mouseClick(button("cmdMemberListBuilder"), Qt::LeftButton);
    QVERIFY(!mTools[2]->isLoaded());
    QVERIFY(mFakes->prompts.asked.isEmpty());
}

void tst_frmMain::theHourglassShowsWhileAToolIsOpened()
{
    Qt::CursorShape during = Qt::ArrowCursor;
    mTools[1] = std::make_unique<WindowInstance<ToolStub>>([&] {
        during = mMain->cursor().shape();
        return new ToolStub;
    });
    show();
    choose(dimensionList(), latin1("Account"));
    QTest::mouseClick(button("cmdExtractMetadata"), Qt::LeftButton);
    QCOMPARE(during, Qt::WaitCursor);
    QCOMPARE(mMain->cursor().shape(), Qt::ArrowCursor);
}

void tst_frmMain::theHourglassGoesWhenAToolFails()
{
    mTools[1] = std::make_unique<WindowInstance<ToolStub>>(
        []() -> ToolStub * { throw RuntimeError(TypeMismatch); });
    show();
    choose(dimensionList(), latin1("Account"));
    QTest::mouseClick(button("cmdExtractMetadata"), Qt::LeftButton);
    QCOMPARE(mMain->cursor().shape(), Qt::ArrowCursor);
    QVERIFY(!mTools[1]->isLoaded());
    QCOMPARE(mFakes->prompts.asked.size(), 1);
    QCOMPARE(mFakes->prompts.asked[0].text, latin1("Run-time error '13':\r\n\r\nType mismatch"));
    QCOMPARE(mFakes->program.endCodes, QList<int>{1});
}

void tst_frmMain::aToolStandsOverTheMainWindow()
{
    show();
    QTest::mouseClick(button("cmdApplicationInfo"), Qt::LeftButton);
    QCOMPARE(mTools[0]->window()->windowHandle()->transientParent(), mMain->windowHandle());
    QVERIFY(!mTools[0]->window()->parentWidget());
}

void tst_frmMain::helpRunsTheHelpViewersCommandLine()
{
    show();
    control<QAction>("mnuHFMHelp")->trigger();
    QCOMPARE(mFakes->launcher.commandLines,
             QStringList{latin1("hh.exe /programs/Tessaly\\System11TessalyHelp.chm")});
}

void tst_frmMain::aHelpViewerThatIsMissingEndsTheProgram()
{
    show();
    mFakes->launcher.failure = RuntimeError(FileNotFound);
    control<QAction>("mnuHFMHelp")->trigger();
    QCOMPARE(mFakes->prompts.asked.size(), 1);
    QCOMPARE(mFakes->prompts.asked[0].text, latin1("Run-time error '53':\r\n\r\nFile not found"));
    QCOMPARE(mFakes->program.endCodes, QList<int>{1});
}

void tst_frmMain::generateScriptsDoesNothing()
{
    show();
    mFakes->hfm.calls().clear();
    const qsizetype windows = QApplication::topLevelWidgets().size();
    QVERIFY(button("cmdScripting")->isEnabled());
    QTest::mouseClick(button("cmdScripting"), Qt::LeftButton);
    QCOMPARE(mFakes->hfm.calls().made(), QStringList());
    QVERIFY(mFakes->prompts.asked.isEmpty());
    QCOMPARE(QApplication::topLevelWidgets().size(), windows);
}

void tst_frmMain::theExitEntryEndsTheProgramAtOnce()
{
    show();
    control<QAction>("mnuExit")->trigger();
    QCOMPARE(mFakes->program.endCodes, QList<int>{0});
}

void tst_frmMain::theExitButtonUnloadsTheMainWindowOnly()
{
    show();
    QTest::mouseClick(button("cmdApplicationInfo"), Qt::LeftButton);
    QTest::mouseClick(button("cmdExit"), Qt::LeftButton);
    QTRY_VERIFY(!mMain.window);
    QVERIFY(mTools[0]->isLoaded());
    QVERIFY(mTools[0]->window()->isVisible());
    QVERIFY(!mFakes->program.isEnding());
}

void tst_frmMain::theProgramLastsUntilTheLastWindowIsClosed()
{
    show();
    QTest::mouseClick(button("cmdApplicationInfo"), Qt::LeftButton);
    choose(dimensionList(), latin1("Account"));
    QTest::mouseClick(button("cmdExtractMetadata"), Qt::LeftButton);
    mTools[1]->window()->close();

    QApplication::setQuitOnLastWindowClosed(true);
    bool runsWithoutMainWindow = false;
    QTest::mouseClick(button("cmdExit"), Qt::LeftButton);
    QTimer::singleShot(0, this, [&] {
        runsWithoutMainWindow = !mMain || !mMain->isVisible();
        mTools[0]->window()->close();
    });
    QCOMPARE(QCoreApplication::exec(), 0);
    QApplication::setQuitOnLastWindowClosed(false);

    QVERIFY(runsWithoutMainWindow);
    QVERIFY(!mTools[0]->isLoaded());
}

QTEST_MAIN(tst_frmMain)
#include "tst_frmMain.moc"
