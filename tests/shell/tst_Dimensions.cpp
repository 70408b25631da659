#include "shell/Dimensions.h"
#include "support/FakeServices.h"

#include <QTest>

class tst_Dimensions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mHfm = std::make_unique<FakeHfm>();
        mState = {};
        mState.gSession = mHfm->openSession();
        mState.gMetadata = mState.gSession->GetMetadata();
        mHfm->calls().clear();
    }

    void theTwelveNamesStandInTheListsOrder()
    {
        QCOMPARE(Dimensions::names().join(u' '),
                 QStringLiteral("Account Entity Scenario Year Period Custom1 Custom2 Custom3 "
                                "Custom4 View Value ICP"));
    }

    void eachNameSetsItsDimension_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("operation");
        QTest::addColumn<int>("kind");
        const auto row = [](const char *text, const char *name, const char *operation,
                            FakeKind kind) {
            QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(name)
                                << QString::fromLatin1(operation) << int(kind);
        };
        row("Account", "ACCOUNT", "GetAccountDimension", FakeKind::Account);
        row("Entity", "ENTITY", "GetEntityDimension", FakeKind::Entity);
        row("Scenario", "SCENARIO", "GetScenarioDimension", FakeKind::Scenario);
        row("Year", "YEAR", "GetYearDimension", FakeKind::Year);
        row("Period", "PERIOD", "GetPeriodDimension", FakeKind::Period);
        row("View", "VIEW", "GetViewDimension", FakeKind::View);
        row("Value", "VALUE", "GetValueDimension", FakeKind::Value);
        row("ICP", "ICP", "GetICPDimension", FakeKind::ICP);
        row("Custom1", "CUSTOM1", "GetCustom1Dimension", FakeKind::Custom1);
        row("Custom2", "CUSTOM2", "GetCustom2Dimension", FakeKind::Custom2);
        row("Custom3", "CUSTOM3", "GetCustom3Dimension", FakeKind::Custom3);
        row("Custom4", "CUSTOM4", "GetCustom4Dimension", FakeKind::Custom4);
        row("custom2", "CUSTOM2", "GetCustom2Dimension", FakeKind::Custom2);
        row("eNTITY", "ENTITY", "GetEntityDimension", FakeKind::Entity);
    }
    void eachNameSetsItsDimension()
    {
        QFETCH(QString, text);
        QFETCH(QString, operation);
        QFETCH(int, kind);
        QCOMPARE(Dimensions::choose(mState, text), Dimensions::Choice::Set);
        QTEST(mState.gDimensionName, "name");
        QCOMPARE(mHfm->calls().made(), QStringList{operation});
        QCOMPARE(mState.gDimension.get(), &mHfm->application().dimension(FakeKind(kind)));
    }

    void anEmptyTextDoesNothing()
    {
        chooseYear();
        QCOMPARE(Dimensions::choose(mState, {}), Dimensions::Choice::Nothing);
        verifyStillYear();
    }

    void aTextThatIsNoDimensionLeavesThePreviousOneInForce_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plural") << QStringLiteral("Accounts");
        QTest::newRow("blank before") << QStringLiteral(" Entity");
        QTest::newRow("blank after") << QStringLiteral("Entity ");
        QTest::newRow("only a blank") << QStringLiteral(" ");
        QTest::newRow("a fifth custom") << QStringLiteral("Custom5");
    }
    void aTextThatIsNoDimensionLeavesThePreviousOneInForce()
    {
        QFETCH(QString, text);
        chooseYear();
        QCOMPARE(Dimensions::choose(mState, text), Dimensions::Choice::Unknown);
        verifyStillYear();
    }

    void anUnknownTextIsQuotedAsTyped()
    {
        QCOMPARE(Dimensions::unableToSet(QStringLiteral("Accounts")),
                 QStringLiteral("Unable to set dimension to 'Accounts'."));
        QCOMPARE(Dimensions::unableToSet(QStringLiteral(" %1 it's")),
                 QStringLiteral("Unable to set dimension to ' %1 it's'."));
    }

    void withoutMetadataADimensionIsAnObjectThatIsNotSet()
    {
        mState.gMetadata.reset();
        try {
            Dimensions::choose(mState, QStringLiteral("Account"));
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), qint32(ObjectVariableNotSet));
        }
        QCOMPARE(Dimensions::choose(mState, QStringLiteral("Accounts")),
                 Dimensions::Choice::Unknown);
        QCOMPARE(Dimensions::choose(mState, {}), Dimensions::Choice::Nothing);
    }

    void anAccessorThatFailsLeavesThePreviousDimension()
    {
        chooseYear();
        mHfm->calls().fail(QLatin1StringView("GetEntityDimension"), RuntimeError(PermissionDenied));
        QVERIFY_THROWS_EXCEPTION(RuntimeError,
                                 Dimensions::choose(mState, QStringLiteral("Entity")));
        QCOMPARE(mState.gDimensionName, QStringLiteral("YEAR"));
        QCOMPARE(mState.gDimension.get(), &mHfm->application().dimension(FakeKind::Year));
    }

    void theMemberListBuilderIsNotOfferedForEntities_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("offered");
        for (const QString &name : Dimensions::names())
            QTest::newRow(qPrintable(name))
                << name.toUpper() << (name != QLatin1StringView("Entity"));
        QTest::newRow("plural") << QStringLiteral("ENTITIES") << false;
        QTest::newRow("the comparison knows letter case") << QStringLiteral("Entity") << true;
    }
    void theMemberListBuilderIsNotOfferedForEntities()
    {
        QFETCH(QString, name);
        QFETCH(bool, offered);
        QCOMPARE(Dimensions::enabledTools(true, name), (Dimensions::Tools{true, true, offered}));
        QCOMPARE(Dimensions::enabledTools(false, name), (Dimensions::Tools{false, false, false}));
    }

    void theMemberListBuilderOpensForAllButEntity()
    {
        for (const QString &name : Dimensions::names())
            QCOMPARE(Dimensions::opensMemberListBuilder(name), name != QLatin1StringView("Entity"));
        QVERIFY(!Dimensions::opensMemberListBuilder(QStringLiteral("ENTITY")));
        QVERIFY(Dimensions::opensMemberListBuilder(QStringLiteral("ENTITIES")));
        QVERIFY(Dimensions::opensMemberListBuilder({}));
    }

private:
    void chooseYear()
    {
        QCOMPARE(Dimensions::choose(mState, QStringLiteral("Year")), Dimensions::Choice::Set);
        mHfm->calls().clear();
    }
    void verifyStillYear()
    {
        QCOMPARE(mState.gDimensionName, QStringLiteral("YEAR"));
        QCOMPARE(mState.gDimension.get(), &mHfm->application().dimension(FakeKind::Year));
        QCOMPARE(mHfm->calls().made(), QStringList());
    }

    std::unique_ptr<FakeHfm> mHfm;
    modGlobal mState;
};

QTEST_APPLESS_MAIN(tst_Dimensions)
#include "tst_Dimensions.moc"
