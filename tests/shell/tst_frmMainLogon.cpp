#include "MainWindow.h"

#include <QTextDocumentFragment>

/// The logon, as the main window shows it.
class tst_frmMainLogon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }
    void init() { mMain = std::make_unique<MainWindow>(); }
    void cleanup() { mMain.reset(); }

    void loadingLogsOnBeforeTheWindowIsShown()
    {
        mMain->load();
        QVERIFY(!mMain->window->isVisible());
        QVERIFY(mMain->state.gMetadata);
        QCOMPARE(mMain->status(), latin1("Cluster: HFMCluster * Application: COMMA * User: jane * "
                                         "Logged On: 15:09:26"));
        QCOMPARE(mMain->languages(), (QStringList{latin1("English"), latin1("German")}));
        QCOMPARE(mMain->languageList()->currentIndex(), 0);
        QVERIFY(mMain->languageList()->isEnabled());
    }

    void beforeADimensionIsChosenTheDimensionsToolsAreOff()
    {
        QVERIFY(mMain->show());
        QCOMPARE(mMain->enabledTools(), QStringList{latin1("cmdApplicationInfo")});
        QVERIFY(!mMain->state.gDimension);
        QVERIFY(mMain->fakes.prompts.asked.isEmpty());
    }

    void anAbandonedLogonLeavesTheWindowAsItStarts()
    {
        mMain->fakes.hfm.logonAnswers() = {false};
        mMain->fakes.prompts.answers = {Prompts::Answer::No};
        QVERIFY(mMain->show());
        QCOMPARE(mMain->status(), latin1("Status"));
        QCOMPARE(mMain->enabledTools(), QStringList());
        QVERIFY(!mMain->languageList()->isEnabled());
        QCOMPARE(mMain->languageList()->count(), 0);
        QVERIFY(!mMain->fakes.program.isEnding());
    }

    void noOnTheFirstFailureLeavesStatusLanguagesAndButtonsAsTheyWere()
    {
        QVERIFY(mMain->show());
        mMain->chooseDimension("Entity");
        MainWindow::choose(mMain->languageList(), "German");
        const QString statusBefore = mMain->status();
        const QStringList toolsBefore = mMain->enabledTools();
        mMain->fakes.hfm.openAnswers() = {false};
        mMain->fakes.prompts.answers = {Prompts::Answer::No};

        mMain->click("cmdLogon");

        QCOMPARE(mMain->fakes.prompts.asked.size(), 1);
        QCOMPARE(mMain->status(), statusBefore);
        QCOMPARE(mMain->enabledTools(), toolsBefore);
        QCOMPARE(mMain->languages(), (QStringList{latin1("English"), latin1("German")}));
        QCOMPARE(mMain->languageList()->currentIndex(), 1);
        QCOMPARE(mMain->state.gLanguageIndex, qint16(1));
    }

    void buttonAndMenuEntryLogOnAgain()
    {
        QVERIFY(mMain->show());
        mMain->fakes.hfm.calls().clear();
        mMain->click("cmdLogon");
        QCOMPARE(mMain->fakes.hfm.calls().count(QLatin1StringView("Logon")), 1);
        mMain->control<QAction>("mnuLogon")->trigger();
        QCOMPARE(mMain->fakes.hfm.calls().count(QLatin1StringView("Logon")), 2);
    }

    void aSecondLogonAppendsTheLanguagesAgainAndSelectsTheFirst()
    {
        QVERIFY(mMain->show());
        MainWindow::choose(mMain->languageList(), "German");
        mMain->fakes.hfm.newApplication().languages = {latin1("French")};
        mMain->click("cmdLogon");
        QCOMPARE(mMain->languages(),
                 (QStringList{latin1("English"), latin1("German"), latin1("French")}));
        QCOMPARE(mMain->languageList()->currentIndex(), 0);
        QCOMPARE(mMain->state.gLanguageIndex, qint16(0));
        MainWindow::choose(mMain->languageList(), "French");
        QCOMPARE(mMain->state.gLanguageIndex, qint16(2));
    }

    void theStatusTimeIsTheLogonsAndStays()
    {
        QVERIFY(mMain->show());
        const QString before = mMain->status();
        mMain->fakes.clock.time = mMain->fakes.clock.time.addSecs(3600);
        mMain->chooseDimension("Year");
        QCOMPARE(mMain->status(), before);
        mMain->click("cmdLogon");
        QVERIFY(mMain->status().endsWith(latin1("Logged On: 16:09:26")));
    }

    void theStatusIsPlainTextAndSoIsItsToolTip()
    {
        mMain->fakes.hfm.application().clusterName = latin1("<b>North</b> & Co");
        mMain->load();
        const auto *panel = mMain->control<QLabel>("sbStatusBar_1");
        QVERIFY(panel->text().startsWith(latin1("Cluster: <b>North</b> & Co * ")));
        QCOMPARE(panel->textFormat(), Qt::PlainText);
        QTextDocumentFragment shown = QTextDocumentFragment::fromHtml(panel->toolTip());
        QVERIFY(Qt::mightBeRichText(panel->toolTip()));
        QCOMPARE(shown.toPlainText(), panel->text());
    }

    void withoutAnyLanguageNoneIsSelected()
    {
        mMain->fakes.hfm.application().languages.clear();
        mMain->load();
        QCOMPARE(mMain->languageList()->count(), 0);
        QCOMPARE(mMain->state.gLanguageIndex, qint16(0));
    }

    void aLogonThatFailsOnLoadingFailsTheWindow_data() { addOperations(); }
    void aLogonThatFailsOnLoadingFailsTheWindow()
    {
        QFETCH(QString, operation);
        const QByteArray name = operation.toLatin1();
        mMain->fakes.hfm.calls().fail(QLatin1StringView(name), RuntimeError(CannotCreateObject));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, mMain->load());
        QVERIFY(mMain->fakes.prompts.asked.isEmpty());
    }

    void aLogonThatFailsLaterEndsTheProgram_data() { addOperations(); }
    void aLogonThatFailsLaterEndsTheProgram()
    {
        QFETCH(QString, operation);
        const QByteArray name = operation.toLatin1();
        QVERIFY(mMain->show());
        mMain->fakes.hfm.calls().fail(QLatin1StringView(name), RuntimeError(PermissionDenied));
        mMain->click("cmdLogon");
        QCOMPARE(mMain->languages(), (QStringList{latin1("English"), latin1("German")}));
        QCOMPARE(mMain->fakes.prompts.asked.size(), 1);
        QCOMPARE(mMain->fakes.prompts.asked[0].text,
                 latin1("Run-time error '70':\r\n\r\nPermission denied"));
        QCOMPARE(mMain->fakes.program.endCodes, QList<int>{1});
    }

private:
    static void addOperations()
    {
        QTest::addColumn<QString>("operation");
        for (const char *operation :
             {"createLogonUserInterface", "createClient", "Initialize", "Logon", "OpenApplication",
              "GetLogonInfo", "GetSystemInfo", "GetClusterName", "GetApplicationName",
              "GetMetadata", "GetLanguages"})
            QTest::newRow(operation) << latin1(operation);
    }

    std::unique_ptr<MainWindow> mMain;
};

QTEST_MAIN(tst_frmMainLogon)
#include "tst_frmMainLogon.moc"
