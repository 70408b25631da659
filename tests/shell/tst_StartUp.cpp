#include "shell/StartUp.h"
#include "support/FakeServices.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class tst_StartUp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFolder = std::make_unique<QTemporaryDir>();
        QVERIFY(mFolder->isValid());
        mFakes = std::make_unique<FakeServices>();
        mFakes->services.programFolder = mFolder->path();
        mShown.clear();
    }

    void aSupportedClientGetsTheSplashAndThenTheMainWindow_data()
    {
        QTest::addColumn<QString>("version");
        for (const char *version :
             {"4.1.0", "9.3.1", "11.1.2", "11.1.2.4.900", "40.5.0", " 4. 1. 0 ", "4.1.0.rc"})
            QTest::newRow(version) << QString::fromLatin1(version);
    }
    void aSupportedClientGetsTheSplashAndThenTheMainWindow()
    {
        QFETCH(QString, version);
        start(version);
        QCOMPARE(mShown, (QStringList{QStringLiteral("splash"), QStringLiteral("main")}));
        QVERIFY(mFakes->prompts.asked.isEmpty());
        QVERIFY(!mFakes->program.isEnding());
        QCOMPARE(log(), QString());
        QCOMPARE(mFakes->hfm.calls().made(),
                 (QStringList{QStringLiteral("createVersionInformation"),
                              QStringLiteral("SetVersionSelector"), QStringLiteral("GetVersion")}));
    }

    void anOlderClientIsRefused_data()
    {
        QTest::addColumn<QString>("version");
        for (const char *version : {"4.0.5", "4.0.3", "3.5.0", "0.1.0", "-4.1.0"})
            QTest::newRow(version) << QString::fromLatin1(version);
    }
    void anOlderClientIsRefused()
    {
        QFETCH(QString, version);
        start(version);
        const QString text =
            QStringLiteral("This version of Tessaly (v11.1.2) only supports System 9 FM release "
                           "4.1 and above and HFM release 4.0.5 and above\r\n\r\nTessaly detected "
                           "your HFM client version as: ") +
            version +
            QStringLiteral("\r\n\r\nPlease download and install the appropriate version from: "
                           "Oracle Software Delivery Cloud");
        QCOMPARE(mFakes->prompts.asked,
                 (QList<Prompt>{{QStringLiteral("Incompatible HFM Version Error"), text,
                                 Prompt::Icon::Critical, Prompt::Buttons::Ok}}));
        QVERIFY(mShown.isEmpty());
        QCOMPARE(mFakes->program.endCodes, QList<int>{0});
        QCOMPARE(log(), QString());
    }

    void aVersionThatCannotBeUsedEndsTheProgramWithOneLoggedLine_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("description");
        const auto row = [](const char *version, const char *number, const char *description) {
            QTest::newRow(version[0] ? version : "empty")
                << QString::fromLatin1(version) << QString::fromLatin1(number)
                << QString::fromLatin1(description);
        };
        row("4.1", "9", "Subscript out of range");
        row("4", "9", "Subscript out of range");
        row("", "9", "Subscript out of range");
        row("0.0", "9", "Subscript out of range");
        row("4.x.0", "13", "Type mismatch");
        row("4.1.beta", "13", "Type mismatch");
        row("4..0", "13", "Type mismatch");
        row("v4.1.0", "13", "Type mismatch");
        row("32768.1.0", "6", "Overflow");
        row("4.32768.0", "6", "Overflow");
        row("4.1.32768", "6", "Overflow");
        row("4.1.99999999999999999999999", "6", "Overflow");
        row("-32769.1.0", "6", "Overflow");
        row("3277.0.0", "6", "Overflow");
        row("3276.8.0", "6", "Overflow");
        row("328.0.0", "6", "Overflow");
        row("327.6.8", "6", "Overflow");
        row("9999.x.0", "6", "Overflow");
    }
    void aVersionThatCannotBeUsedEndsTheProgramWithOneLoggedLine()
    {
        QFETCH(QString, version);
        QFETCH(QString, number);
        QFETCH(QString, description);
        start(version);
        verifyReported({QStringLiteral("Tessaly Error(Main): ") + number +
                        QStringLiteral("; Source: Tessaly; LastDLLError: 0; Description: ") +
                        description});
    }

    void sixteenBitsAreEnoughForTheLargestValues()
    {
        QVERIFY(isSupportedVersion(QStringLiteral("327.6.7")));
        QVERIFY(isSupportedVersion(QStringLiteral("4.1.32357")));
        QVERIFY(isSupportedVersion(QStringLiteral("0.3236.0")));
    }

    void versionZeroIsInvalid_data()
    {
        QTest::addColumn<QString>("version");
        for (const char *version : {"00.00.00", "0.0.0", "0.0.5", "1.-10.0"})
            QTest::newRow(version) << QString::fromLatin1(version);
    }
    void versionZeroIsInvalid()
    {
        QFETCH(QString, version);
        start(version);
        verifyReported({QStringLiteral("Tessaly Error(Main): 23001; Source: Tessaly (Main); "
                                       "LastDLLError: 0; Description: Invalid Version Returned "
                                       "from GetVersion()")});
    }

    void aClientThatGivesNoVersionIsReportedTwice_data()
    {
        QTest::addColumn<QString>("operation");
        for (const char *operation :
             {"createVersionInformation", "SetVersionSelector", "GetVersion"})
            QTest::newRow(operation) << QString::fromLatin1(operation);
    }
    void aClientThatGivesNoVersionIsReportedTwice()
    {
        QFETCH(QString, operation);
        const QByteArray name = operation.toLatin1();
        mFakes->hfm.calls().fail(QLatin1StringView(name), RuntimeError(CannotCreateObject));
        start(QStringLiteral("11.1.2"));
        verifyReported({QStringLiteral("Tessaly Error(GetHFMVersion): 429; Source: Tessaly; "
                                       "LastDLLError: 0; Description: ActiveX component can't "
                                       "create object"),
                        QStringLiteral("Tessaly Error(Main): 23001; Source: Tessaly (Main); "
                                       "LastDLLError: 0; Description: Invalid Version Returned "
                                       "from GetVersion()")});
    }

    void theSelectorGoesToTheClient()
    {
        ErrorLog errorLog(mFolder->filePath(QStringLiteral("log")));
        mFakes->hfm.setVersion(QStringLiteral("9.3.1"));
        QCOMPARE(GetHFMVersion(3, mFakes->services, errorLog), QStringLiteral("9.3.1"));
        QCOMPARE(mFakes->hfm.selectors(), QList<qint16>{3});
    }

    void startUpSelects0()
    {
        start(QStringLiteral("11.1.2"));
        QCOMPARE(mFakes->hfm.selectors(), QList<qint16>{0});
    }

    void aSecondRunLeavesOnlyItsOwnEntries()
    {
        start(QStringLiteral("4.1"));
        const QString first = log();
        start(QStringLiteral("4.x.0"));
        const QString second = log();
        QVERIFY(first.contains(QLatin1StringView("(Main): 9;")));
        QVERIFY(second.contains(QLatin1StringView("(Main): 13;")));
        QCOMPARE(second.count(u'\n'), 1);
        start(QStringLiteral("4.1.0"));
        QCOMPARE(log(), QString());
    }

    void theLogStandsInTheProgramsFolderAndNothingIsNormalised()
    {
        QCOMPARE(errorLogPath(QStringLiteral("/programs/Tessaly")),
                 QStringLiteral("/programs/Tessaly/tessalyerror.log"));
        QCOMPARE(errorLogPath(QStringLiteral("/")), QStringLiteral("//tessalyerror.log"));
        QCOMPARE(errorLogPath(QStringLiteral("C:\\")), QStringLiteral("C:\\/tessalyerror.log"));
    }

    void aFolderThatCannotBeWrittenIsNoReasonNotToStart()
    {
        mFakes->services.programFolder = mFolder->filePath(QStringLiteral("missing"));
        start(QStringLiteral("11.1.2"));
        QCOMPARE(mShown, (QStringList{QStringLiteral("splash"), QStringLiteral("main")}));
    }

    void whatTheMainWindowFailsWithEndsTheProgramAsARunTimeError()
    {
        mFakes->hfm.setVersion(QStringLiteral("11.1.2"));
        startUp(mFakes->services, {[this] { mShown.append(QStringLiteral("splash")); },
                                   [] { throw RuntimeError(CannotCreateObject); }});
        QCOMPARE(mFakes->prompts.asked.size(), 1);
        QVERIFY(
            mFakes->prompts.asked[0].text.startsWith(QLatin1StringView("Run-time error '429':")));
        QCOMPARE(mFakes->program.endCodes, QList<int>{1});
        QCOMPARE(log(), QString());
    }

    void aProgramThatEndsDuringTheSplashShowsNoMainWindow()
    {
        mFakes->hfm.setVersion(QStringLiteral("11.1.2"));
        startUp(mFakes->services, {[this] { mFakes->program.end(0); },
                                   [this] { mShown.append(QStringLiteral("main")); }});
        QVERIFY(mShown.isEmpty());
    }

private:
    /// One run of the program, after whatever was before.
    void start(const QString &version)
    {
        mFakes->prompts.asked.clear();
        mFakes->program.endCodes.clear();
        mShown.clear();
        mFakes->hfm.setVersion(version);
        startUp(mFakes->services, {[this] { mShown.append(QStringLiteral("splash")); },
                                   [this] { mShown.append(QStringLiteral("main")); }});
    }

    QString log() const
    {
        QFile file(mFolder->filePath(QStringLiteral("tessalyerror.log")));
        return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll())
                                              : QStringLiteral("no log");
    }

    /// The lines are logged and shown, in that order, and nothing else is.
    void verifyReported(const QStringList &lines)
    {
        QCOMPARE(log(), lines.join(u'\n') + u'\n');
        QList<Prompt> prompts;
        for (const QString &line : lines)
            prompts.append(
                {QStringLiteral("Tessaly"), line, Prompt::Icon::None, Prompt::Buttons::Ok});
        QCOMPARE(mFakes->prompts.asked, prompts);
        QVERIFY(mShown.isEmpty());
        QCOMPARE(mFakes->program.endCodes, QList<int>{0});
    }

    std::unique_ptr<QTemporaryDir> mFolder;
    std::unique_ptr<FakeServices> mFakes;
    QStringList mShown;
};

QTEST_GUILESS_MAIN(tst_StartUp)
#include "tst_StartUp.moc"
