#include "MainWindow.h"

#include <QTimer>
#include <QWindow>

/// Opening the tools, help, and the ways out.
class tst_frmMainTools : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }
    void init() { mMain = std::make_unique<MainWindow>(); }
    void cleanup() { mMain.reset(); }

    void aButtonOpensItsTool_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < 4; ++i)
            QTest::newRow(toolButtons[i]) << i;
    }

    void aButtonOpensItsTool()
    {
        QFETCH(int, index);
        QVERIFY(mMain->show());
        mMain->chooseDimension("Account");
        mMain->click(toolButtons[index]);
        for (int i = 0; i < 4; ++i)
            QCOMPARE(mMain->tools[size_t(i)]->isLoaded(), i == index);
        QVERIFY(mMain->tools[size_t(index)]->window()->isVisible());
        QCOMPARE(mMain->tools[size_t(index)]->window()->windowModality(), Qt::NonModal);
        QCOMPARE(ToolStub::loads, 1);
    }

    void aToolThatIsNotThereHasNoButton()
    {
        mMain->load({{}, mMain->allTools().extract, {}, {}});
        QVERIFY(mMain->show());
        QVERIFY(mMain->button("cmdExtractMetadata")->isVisible());
        for (const char *name : {"cmdApplicationInfo", "cmdMemberListBuilder", "cmdMetadataViewer"})
            QVERIFY2(!mMain->button(name)->isVisible(), name);
        mMain->chooseDimension("Account");
        QVERIFY(!mMain->button("cmdMetadataViewer")->isVisible());
    }

    void aToolIsLoadedOnceAndLoadedAnewAfterItsClosing()
    {
        QVERIFY(mMain->show());
        mMain->chooseDimension("Account");
        mMain->click("cmdExtractMetadata");
        QPointer<QWidget> first = mMain->tools[1]->window();
        mMain->click("cmdExtractMetadata");
        QCOMPARE(ToolStub::loads, 1);
        QVERIFY(first->isVisible());

        first->showMinimized();
        mMain->click("cmdExtractMetadata");
        QCOMPARE(ToolStub::loads, 1);
        QVERIFY(!first->isMinimized());

        first->close();
        QVERIFY(!mMain->tools[1]->isLoaded());
        mMain->click("cmdExtractMetadata");
        QCOMPARE(ToolStub::loads, 2);
        QTRY_VERIFY(!first);
        QVERIFY(mMain->tools[1]->isLoaded());
        QVERIFY(mMain->tools[1]->window()->isVisible());
        QCOMPARE(ToolStub::loads, 2);
    }

    void theMemberListBuilderSilentlyStaysClosedForEntity()
    {
        QVERIFY(mMain->show());
        mMain->chooseDimension("Account");
        mMain->state.gDimensionName = latin1("ENTITY"); // the button has not heard of it
        mMain->click("cmdMemberListBuilder");
        QVERIFY(!mMain->tools[2]->isLoaded());
        QVERIFY(mMain->fakes.prompts.asked.isEmpty());
    }

    void theHourglassShowsWhileAToolIsOpened()
    {
        Qt::CursorShape during = Qt::ArrowCursor;
        mMain->tools[1] = std::make_unique<WindowInstance<ToolStub>>([&] {
            during = mMain->window->cursor().shape();
            return new ToolStub;
        });
        QVERIFY(mMain->show());
        mMain->chooseDimension("Account");
        mMain->click("cmdExtractMetadata");
        QCOMPARE(during, Qt::WaitCursor);
        QCOMPARE(mMain->window->cursor().shape(), Qt::ArrowCursor);
    }

    void theHourglassGoesWhenAToolFails()
    {
        mMain->tools[1] = std::make_unique<WindowInstance<ToolStub>>(
            []() -> ToolStub * { throw RuntimeError(TypeMismatch); });
        QVERIFY(mMain->show());
        mMain->chooseDimension("Account");
        mMain->click("cmdExtractMetadata");
        QCOMPARE(mMain->window->cursor().shape(), Qt::ArrowCursor);
        QVERIFY(!mMain->tools[1]->isLoaded());
        QCOMPARE(mMain->fakes.prompts.asked.size(), 1);
        QCOMPARE(mMain->fakes.prompts.asked[0].text,
                 latin1("Run-time error '13':\r\n\r\nType mismatch"));
        QCOMPARE(mMain->fakes.program.endCodes, QList<int>{1});
    }

    void aToolStandsOverTheMainWindow()
    {
        QVERIFY(mMain->show());
        mMain->click("cmdApplicationInfo");
        QCOMPARE(mMain->tools[0]->window()->windowHandle()->transientParent(),
                 mMain->window->windowHandle());
        QVERIFY(!mMain->tools[0]->window()->parentWidget());
        // What X11's window managers go by.
        QCOMPARE(mMain->tools[0]->window()->windowType(), Qt::Dialog);
    }

    void helpRunsTheHelpViewersCommandLine()
    {
        QVERIFY(mMain->show());
        mMain->control<QAction>("mnuHFMHelp")->trigger();
        QCOMPARE(mMain->fakes.launcher.commandLines,
                 QStringList{latin1("hh.exe /programs/Tessaly\\System11TessalyHelp.chm")});
    }

    void aHelpViewerThatIsMissingEndsTheProgram()
    {
        QVERIFY(mMain->show());
        mMain->fakes.launcher.failure = RuntimeError(FileNotFound);
        mMain->control<QAction>("mnuHFMHelp")->trigger();
        QCOMPARE(mMain->fakes.prompts.asked.size(), 1);
        QCOMPARE(mMain->fakes.prompts.asked[0].text,
                 latin1("Run-time error '53':\r\n\r\nFile not found"));
        QCOMPARE(mMain->fakes.program.endCodes, QList<int>{1});
    }

    void generateScriptsDoesNothing()
    {
        QVERIFY(mMain->show());
        mMain->fakes.hfm.calls().clear();
        const qsizetype windows = QApplication::topLevelWidgets().size();
        QVERIFY(mMain->button("cmdScripting")->isEnabled());
        mMain->click("cmdScripting");
        QCOMPARE(mMain->fakes.hfm.calls().made(), QStringList());
        QVERIFY(mMain->fakes.prompts.asked.isEmpty());
        QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    }

    void theExitEntryEndsTheProgramAtOnce()
    {
        QVERIFY(mMain->show());
        mMain->control<QAction>("mnuExit")->trigger();
        QCOMPARE(mMain->fakes.program.endCodes, QList<int>{0});
    }

    void theExitButtonUnloadsTheMainWindowOnly()
    {
        QVERIFY(mMain->show());
        mMain->click("cmdApplicationInfo");
        mMain->click("cmdExit");
        QTRY_VERIFY(!mMain->window);
        QVERIFY(mMain->tools[0]->isLoaded());
        QVERIFY(mMain->tools[0]->window()->isVisible());
        QVERIFY(!mMain->fakes.program.isEnding());
    }

    void theProgramLastsUntilTheLastWindowIsClosed()
    {
        QVERIFY(mMain->show());
        mMain->click("cmdApplicationInfo");
        mMain->chooseDimension("Account");
        mMain->click("cmdExtractMetadata");
        mMain->tools[1]->window()->close();

        QApplication::setQuitOnLastWindowClosed(true);
        bool runsWithoutMainWindow = false;
        mMain->click("cmdExit");
        QTimer::singleShot(0, this, [&] {
            runsWithoutMainWindow = !mMain->window || !mMain->window->isVisible();
            mMain->tools[0]->window()->close();
        });
        QCOMPARE(QCoreApplication::exec(), 0);
        QApplication::setQuitOnLastWindowClosed(false);

        QVERIFY(runsWithoutMainWindow);
        QVERIFY(!mMain->tools[0]->isLoaded());
    }

private:
    std::unique_ptr<MainWindow> mMain;
};

QTEST_MAIN(tst_frmMainTools)
#include "tst_frmMainTools.moc"
