#include "shell/Logon.h"
#include "support/FakeServices.h"

#include <QTest>

namespace {

/// Notes what a logon shows, in order.
class NotedDisplay final : public LogonDisplay
{
public:
    explicit NotedDisplay(const modGlobal &state) : mState(state) {}

    QStringList shown;

    void showStatus(const QString &text) override
    {
        shown.append(QStringLiteral("status: ") + text);
        metadataAtStatus = mState.gMetadata;
    }
    void enableApplication() override { shown.append(QStringLiteral("enable")); }
    void addLanguages(const QStringList &languages) override
    {
        shown.append(QStringLiteral("languages: ") + languages.join(u'|'));
    }

    std::shared_ptr<hfm::Metadata> metadataAtStatus;

private:
    const modGlobal &mState;
};

Prompt retryQuestion()
{
    return {QStringLiteral("Error Opening HFM"),
            QStringLiteral("Error Opening HFM.  Would you like to try again?"),
            Prompt::Icon::Critical, Prompt::Buttons::YesNo};
}

} // namespace

class tst_Logon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFakes = std::make_unique<FakeServices>();
        mState = {};
        mDisplay = std::make_unique<NotedDisplay>(mState);
        FakeApplication &application = mFakes->hfm.application();
        application.languages = {QStringLiteral("English"), QStringLiteral("Français")};
        application.clusterName = QStringLiteral("HFMCluster");
        application.applicationName = QStringLiteral("COMMA");
        application.openedName = QStringLiteral("Comma");
        mFakes->hfm.setLogonInfo({QStringLiteral("CORP\\jane"), QStringLiteral("detail"), true});
    }

    void theOperationsAreCalledInOrder()
    {
        QVERIFY(logOnNow());
        QCOMPARE(mFakes->hfm.calls().made().join(u' '),
                 QStringLiteral("createLogonUserInterface createClient Initialize Logon "
                                "OpenApplication GetLogonInfo GetSystemInfo GetClusterName "
                                "GetApplicationName GetMetadata GetLanguages"));
        QVERIFY(mFakes->prompts.asked.isEmpty());
    }

    void theSharedStateIsFilled()
    {
        QVERIFY(logOnNow());
        QVERIFY(mState.gClient);
        QVERIFY(mState.gClientUI);
        QVERIFY(mState.gSession);
        QVERIFY(mState.gSessionAux);
        QVERIFY(mState.gMetadata);
        QCOMPARE(mState.gApplicationName, QStringLiteral("Comma"));
        QCOMPARE(mState.gSysApplicationName, QStringLiteral("COMMA"));
        QCOMPARE(mState.gClusterName, QStringLiteral("HFMCluster"));
        QCOMPARE(mState.gUserName, QStringLiteral("CORP\\jane"));
        QCOMPARE(mState.gLogonDetail, QStringLiteral("detail"));
    }

    void theCurrentDimensionAndTheToolsObjectsAreNotTouched()
    {
        QVERIFY(logOnNow());
        mState.gDimension = mState.gMetadata->GetYearDimension();
        mState.gDimensionName = QStringLiteral("YEAR");
        mState.gLanguageIndex = 1;
        const modGlobal before = mState;
        mFakes->hfm.newApplication();
        QVERIFY(logOnNow());
        QCOMPARE(mState.gDimension, before.gDimension);
        QCOMPARE(mState.gDimensionName, before.gDimensionName);
        QCOMPARE(mState.gLanguageIndex, before.gLanguageIndex);
        QVERIFY(!mState.gSystemInfo);
        QVERIFY(!mState.gSecurity);
    }

    void statusThenMetadataThenEnabledControlsThenLanguages()
    {
        mFakes->clock.time = QDateTime(QDate(2012, 3, 14), QTime(15, 9, 26));
        QVERIFY(logOnNow());
        const QString time = timeOfDayText(QTime(15, 9, 26), QLocale::system());
        QVERIFY(time.contains(QLatin1StringView("09")) && time.contains(QLatin1StringView("26")));
        QCOMPARE(
            mDisplay->shown,
            (QStringList{QStringLiteral("status: Cluster: HFMCluster * Application: COMMA * "
                                        "User: CORP\\jane * Logged On: ") +
                             time,
                         QStringLiteral("enable"), QStringLiteral("languages: English|Français")}));
        QVERIFY(!mDisplay->metadataAtStatus);
    }

    void aFailedLogonIsRepeatedAsLongAsTheUserSaysYes()
    {
        mFakes->hfm.logonAnswers() = {false, false, true};
        mFakes->prompts.answers = {Prompts::Answer::Yes, Prompts::Answer::Yes};
        QVERIFY(logOnNow());
        QCOMPARE(mFakes->prompts.asked, (QList<Prompt>{retryQuestion(), retryQuestion()}));
        QCOMPARE(mFakes->hfm.calls().count(QLatin1StringView("Logon")), 3);
        QCOMPARE(mFakes->hfm.calls().count(QLatin1StringView("createClient")), 1);
        QCOMPARE(mFakes->hfm.calls().count(QLatin1StringView("Initialize")), 1);
        QCOMPARE(mFakes->hfm.silentLogons(), (QList<bool>{false, false, false}));
    }

    void aFailedOpeningIsRepeatedWithoutAnotherLogon()
    {
        mFakes->hfm.openAnswers() = {false, true};
        mFakes->prompts.answers = {Prompts::Answer::Yes};
        QVERIFY(logOnNow());
        QCOMPARE(mFakes->prompts.asked, QList<Prompt>{retryQuestion()});
        QCOMPARE(mFakes->hfm.calls().count(QLatin1StringView("Logon")), 1);
        QCOMPARE(mFakes->hfm.openedWith(), (QList<QStringList>{{{}, {}}, {{}, {}}}));
        QCOMPARE(mState.gApplicationName, QStringLiteral("Comma"));
    }

    void aFailedLogonAnsweredNoLeavesEverythingAsItWas_data()
    {
        QTest::addColumn<bool>("opening");
        QTest::newRow("failed logon") << false;
        QTest::newRow("failed opening") << true;
    }
    void aFailedLogonAnsweredNoLeavesEverythingAsItWas()
    {
        QFETCH(bool, opening);
        QVERIFY(logOnNow());
        const modGlobal before = mState;
        mDisplay->shown.clear();
        mFakes->hfm.newApplication().openedName = QStringLiteral("Meridian");
        mFakes->hfm.setLogonInfo({QStringLiteral("other"), QStringLiteral("other"), false});
        (opening ? mFakes->hfm.openAnswers() : mFakes->hfm.logonAnswers()) = {false};
        mFakes->prompts.answers = {Prompts::Answer::No};

        QVERIFY(!logOnNow());

        QCOMPARE(mFakes->prompts.asked, QList<Prompt>{retryQuestion()});
        QVERIFY(mState.gClient && mState.gClient != before.gClient);
        QVERIFY(mState.gClientUI && mState.gClientUI != before.gClientUI);
        QCOMPARE(mState.gSession, before.gSession);
        QCOMPARE(mState.gSessionAux, before.gSessionAux);
        QCOMPARE(mState.gMetadata, before.gMetadata);
        QCOMPARE(mState.gApplicationName, before.gApplicationName);
        QCOMPARE(mState.gSysApplicationName, before.gSysApplicationName);
        QCOMPARE(mState.gClusterName, before.gClusterName);
        QCOMPARE(mState.gUserName, before.gUserName);
        QCOMPARE(mState.gLogonDetail, before.gLogonDetail);
        QVERIFY(mDisplay->shown.isEmpty());
    }

    void anotherLogonReplacesTheSession()
    {
        QVERIFY(logOnNow());
        const modGlobal before = mState;
        mFakes->hfm.newApplication().openedName = QStringLiteral("Meridian");
        QVERIFY(logOnNow());
        QVERIFY(mState.gClient != before.gClient);
        QVERIFY(mState.gClientUI != before.gClientUI);
        QVERIFY(mState.gSession != before.gSession);
        QVERIFY(mState.gSessionAux != before.gSessionAux);
        QVERIFY(mState.gMetadata != before.gMetadata);
        QCOMPARE(mState.gApplicationName, QStringLiteral("Meridian"));
    }

    void anOperationThatFailsIsNotHandledHere_data()
    {
        QTest::addColumn<QString>("operation");
        for (const char *operation :
             {"createLogonUserInterface", "createClient", "Initialize", "Logon", "OpenApplication",
              "GetLogonInfo", "GetSystemInfo", "GetClusterName", "GetApplicationName",
              "GetMetadata", "GetLanguages"})
            QTest::newRow(operation) << QString::fromLatin1(operation);
    }
    void anOperationThatFailsIsNotHandledHere()
    {
        QFETCH(QString, operation);
        const QByteArray name = operation.toLatin1();
        mFakes->hfm.calls().fail(QLatin1StringView(name), RuntimeError(CannotCreateObject));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, logOnNow());
        QVERIFY(mFakes->prompts.asked.isEmpty());
        QCOMPARE(mFakes->hfm.calls().made().last(), operation);
    }

    void whatAFailingLogonReachedStays_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QStringList>("reached");
        const QStringList steps = {
            QStringLiteral("client UI"), QStringLiteral("client"),   QStringLiteral("session"),
            QStringLiteral("user"),      QStringLiteral("cluster"),  QStringLiteral("application"),
            QStringLiteral("status"),    QStringLiteral("metadata"), QStringLiteral("enabled")};
        const auto row = [&](const char *operation, qsizetype count) {
            QTest::newRow(operation) << QString::fromLatin1(operation) << steps.first(count);
        };
        row("createLogonUserInterface", 0);
        row("createClient", 1);
        row("Initialize", 2);
        row("Logon", 2);
        row("OpenApplication", 2);
        row("GetLogonInfo", 3);
        row("GetSystemInfo", 4);
        row("GetClusterName", 4);
        row("GetApplicationName", 5);
        row("GetMetadata", 7);
        row("GetLanguages", 9);
    }
    void whatAFailingLogonReachedStays()
    {
        QFETCH(QString, operation);
        QVERIFY(logOnNow());
        const modGlobal before = mState;
        mDisplay->shown.clear();
        FakeApplication &next = mFakes->hfm.newApplication();
        next.openedName = QStringLiteral("Meridian");
        next.clusterName = QStringLiteral("Other");
        next.applicationName = QStringLiteral("MERIDIAN");
        mFakes->hfm.setLogonInfo({QStringLiteral("other"), QStringLiteral("more"), false});
        const QByteArray name = operation.toLatin1();
        mFakes->hfm.calls().fail(QLatin1StringView(name), RuntimeError(CannotCreateObject));

        QVERIFY_THROWS_EXCEPTION(RuntimeError, logOnNow());
        QTEST(reachedSince(before), "reached");
    }

    void theTimeOfDayIsTheLocalesWithoutAZone_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *locale, const char *text) {
            QTest::newRow(locale) << QString::fromLatin1(locale) << QString::fromUtf8(text);
        };
        row("C", "15:09:26");
        row("en_US", "3:09:26 PM");
        row("en_GB", "15:09:26");
        row("de_DE", "15:09:26");
        row("es_ES", "15:09:26");
        row("be_BY", "15:09:26");
        row("fr_CA", "15 h 09 min 26 s");
        row("da_DK", "15.09.26");
        row("ja_JP", "15時09分26秒");
        row("nus_SS", "3:09:26 TŊ");
    }
    void theTimeOfDayIsTheLocalesWithoutAZone()
    {
        QFETCH(QString, locale);
        QTEST(timeOfDayText(QTime(15, 9, 26, 535), QLocale(locale)), "text");
    }

private:
    bool logOnNow() { return logOn(mState, mFakes->services, *mDisplay); }

    /// What a second logon has changed; values that belong together count only when all have.
    QStringList reachedSince(const modGlobal &before) const
    {
        QStringList reached;
        const auto note = [&](const char *what, bool changed) {
            if (changed)
                reached.append(QString::fromLatin1(what));
        };
        note("client UI", mState.gClientUI != before.gClientUI);
        note("client", mState.gClient != before.gClient);
        note("session", mState.gSession != before.gSession &&
                            mState.gSessionAux != before.gSessionAux &&
                            mState.gApplicationName == QLatin1StringView("Meridian"));
        note("user", mState.gUserName == QLatin1StringView("other") &&
                         mState.gLogonDetail == QLatin1StringView("more"));
        note("cluster", mState.gClusterName == QLatin1StringView("Other"));
        note("application", mState.gSysApplicationName == QLatin1StringView("MERIDIAN"));
        note("status", mDisplay->shown.size() > 0);
        note("metadata", mState.gMetadata != before.gMetadata);
        note("enabled", mDisplay->shown.size() > 1);
        return reached;
    }

    std::unique_ptr<FakeServices> mFakes;
    modGlobal mState;
    std::unique_ptr<NotedDisplay> mDisplay;
};

QTEST_APPLESS_MAIN(tst_Logon)
#include "tst_Logon.moc"
