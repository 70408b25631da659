#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Something to be metadata in files that only have lists.
const QByteArray entities = "!MEMBERS=Entity\nA;;;;;;;;;;;DefaultParent=#root\n"
                            "!HIERARCHIES=Entity\n;A\n";

QStringList topLevel(hfm::Dimension &dimension)
{
    QStringList labels;
    const auto members = dimension.EnumChildMembers(hfm::allChildren, hfm::rootMember);
    for (const hfm::MemberId member : members)
        labels.append(dimension.GetMemberLabel(member));
    return labels;
}

} // namespace

/// Application settings, currencies and consolidation methods.
class tst_ListRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void currenciesHaveTwoOrFourFieldsAndDescriptions_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::newRow("label only") << QByteArray("EUR");
        QTest::newRow("two") << QByteArray("EUR;0");
        QTest::newRow("two, described") << QByteArray("EUR;0;English=Euro;French=L'euro");
        QTest::newRow("four") << QByteArray("EUR;0;M;Y");
        QTest::newRow("four, described") << QByteArray("EUR;0;M;Y;English=Euro;French=L'euro");
        QTest::newRow("empty ones") << QByteArray("EUR;;;;English=Euro;French=L'euro");
        QTest::newRow("without description") << QByteArray("EUR;0;;N;");
    }

    void currenciesHaveTwoOrFourFieldsAndDescriptions()
    {
        QFETCH(QByteArray, record);
        const Reading reading = readText("!CURRENCIES\n" + record + "\nUSD;0\n" + entities);
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(topLevel(*reading.custom1()), QStringList({u"[None]"_s, u"EUR"_s, u"USD"_s}));
        const QString description = record.contains("English") ? u"Euro"_s : QString();
        const auto value = reading.value();
        QCOMPARE(value->GetMemberDescription(value->GetMemberId(u"EUR"_s), 0), description);
    }

    void theDefaultCurrencyIsTakenFromTheSettings()
    {
        const QByteArray settings = "!APPLICATION_SETTINGS\nConsolidationRules=R\n"
                                    " defaultcurrency = CHF \nFDMAppName=a=b\nnothing\n";
        const Reading listed = readText(settings + "!CURRENCIES\nCHF;0\n" + entities);
        QCOMPARE(listed.warnings(), QStringList());
        QCOMPARE(topLevel(*listed.custom2()), QStringList({u"[None]"_s, u"CHF"_s}));

        const Reading unlisted = readText(settings + "!CURRENCIES\nEUR;0\n" + entities);
        QVERIFY(unlisted.warnsOnlyOf(3, {u"CHF"_s}));
        QCOMPARE(topLevel(*unlisted.custom2()), QStringList({u"[None]"_s, u"EUR"_s, u"CHF"_s}));
    }

    void theFirstDefaultCurrencyOfTheSettingsHolds()
    {
        const Reading reading =
            readText("!APPLICATION_SETTINGS\nDefaultCurrency=CHF\nDefaultCurrency=SEK\n"
                     "!CURRENCIES\nEUR;0\n" +
                     entities);
        QVERIFY(reading.warnsOnlyOf(2, {u"CHF"_s}));
        QCOMPARE(topLevel(*reading.custom2()), QStringList({u"[None]"_s, u"EUR"_s, u"CHF"_s}));
    }

    void theFirstRecordOfACurrencyHolds()
    {
        const Reading reading = readText("!CURRENCIES\nEUR;0;English=Euro\nUSD;0\n"
                                         "eur;0;English=Another\n" +
                                         entities);
        QVERIFY(reading.warnsOnlyOf(4, {u"eur"_s}));
        const auto custom = reading.custom2();
        QCOMPARE(topLevel(*custom), QStringList({u"[None]"_s, u"EUR"_s, u"USD"_s}));
        QCOMPARE(custom->GetMemberDescription(custom->GetMemberId(u"EUR"_s), 0), u"Euro"_s);
    }

    void theSettingsCurrencyStandsBeforeThoseThatOnlyEntitiesName()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\nA;SEK;DefaultParent=#root\nB;CHF;DefaultParent=#root\n"
                     "C;NOK;DefaultParent=#root\n!HIERARCHIES=Entity\n;A\n;B\n;C\n"
                     "!APPLICATION_SETTINGS\nDefaultCurrency=CHF\n!CURRENCIES\nEUR;0\n");
        QCOMPARE(topLevel(*reading.custom2()),
                 QStringList({u"[None]"_s, u"EUR"_s, u"CHF"_s, u"SEK"_s, u"NOK"_s}));
    }

    void noneIsNoCurrencyWhereverAFileNamesIt_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("listed") << QByteArray("!CURRENCIES\n[None];0;;Y;English=Nothing\nEUR;0\n"
                                              "!MEMBERS=Entity\nA;DefaultParent=#root\n"
                                              "!HIERARCHIES=Entity\n;A\n");
        QTest::newRow("of an entity") << QByteArray("!CURRENCIES\nEUR;0\n!MEMBERS=Entity\n"
                                                    "A;[NONE];DefaultParent=#root\n"
                                                    "!HIERARCHIES=Entity\n;A\n");
        QTest::newRow("of the settings")
            << QByteArray("!APPLICATION_SETTINGS\nDefaultCurrency=[None]\n!CURRENCIES\nEUR;0\n"
                          "!MEMBERS=Entity\nA;[None];DefaultParent=#root\n"
                          "!HIERARCHIES=Entity\n;A\n");
    }

    void noneIsNoCurrencyWhereverAFileNamesIt()
    {
        QFETCH(QByteArray, text);
        const Reading reading = readText(text);
        QCOMPARE(reading.warnings(), QStringList());
        const auto value = reading.value();
        const auto currency = reading.entity()->entityAttributes()->GetEntityCurrencyId(0);
        QCOMPARE(value->GetMemberLabel(currency), u"[None]"_s);
        QCOMPARE(topLevel(*value),
                 QStringList({u"[None]"_s, u"[Contribution Total]"_s, u"EUR Total"_s}));
        QVERIFY(!value->EnumAllMemberLabels().contains(u"[None] Total"_s));
        const auto custom = reading.custom2();
        QCOMPARE(topLevel(*custom), QStringList({u"[None]"_s, u"EUR"_s}));
        const auto list = custom->GetMemberListId(u"[Currencies]"_s);
        QCOMPARE(custom->EnumMemberListMembers(list, hfm::rootMember).size(), 1);
    }

    void methodsAreCountedBecauseTheirComparisonHoldsAnEqualsSign_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::newRow("<=") << QByteArray("GLOBAL;Y;N;<=;0;100;x;English=Full = all;French=Tout");
        QTest::newRow("<") << QByteArray("GLOBAL;Y;N;<;0;100;x;English=Full = all;French=Tout");
        QTest::newRow("none") << QByteArray("GLOBAL;N;Y;;;;;English=Full = all;French=Tout");
    }

    void methodsAreCountedBecauseTheirComparisonHoldsAnEqualsSign()
    {
        QFETCH(QByteArray, record);
        const Reading reading =
            readText("!CONSOLIDATION_METHODS\n" + record +
                     "\nEQUITY;Y;N;<=;20;50;Equity\nHOLDING;N;Y\nOLD\n" + entities);
        QCOMPARE(reading.warnings(), QStringList());
        const auto custom = reading.custom1();
        QCOMPARE(topLevel(*custom),
                 QStringList({u"[None]"_s, u"GLOBAL"_s, u"EQUITY"_s, u"HOLDING"_s, u"OLD"_s}));
        QCOMPARE(topLevel(*reading.custom2()), QStringList{u"[None]"_s});
        QCOMPARE(reading.metadata()->GetLanguages(), QStringList({u"English"_s, u"French"_s}));
        const auto global = custom->GetMemberId(u"GLOBAL"_s);
        QCOMPARE(custom->GetMemberDescription(global, 0), u"Full = all"_s);
        QCOMPARE(custom->GetMemberDescription(global, 1), u"Tout"_s);
    }

    void aCommentNamesTheirColumnsToo()
    {
        const Reading reading = readText(
            "!CURRENCIES\n'Label;Scale;TranslationOperator;DisplayInICT;Descriptions\n"
            "EUR;0;M;Y;English=Euro\n!CONSOLIDATION_METHODS\n"
            "'Label;UsedByCalcRoutine;IsHoldingMethod;ToPercentControlComp;ToPercentControl;"
            "PercentConsol;Control;Descriptions\n"
            "GLOBAL;Y;N;<=;100;100;FULL;English=Full\n" +
            entities);
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(topLevel(*reading.custom1()), QStringList({u"[None]"_s, u"EUR"_s, u"GLOBAL"_s}));
        const auto custom = reading.custom1();
        QCOMPARE(custom->GetMemberDescription(custom->GetMemberId(u"GLOBAL"_s), 0), u"Full"_s);
    }

    void aNumberThatIsNoneIsAWarning_data()
    {
        QTest::addColumn<QByteArray>("section");
        QTest::newRow("scale") << QByteArray("!CURRENCIES\nEUR;zero;M;Y\n");
        QTest::newRow("first number of a method")
            << QByteArray("!CONSOLIDATION_METHODS\nEUR;Y;N;<=;zero;100;x\n");
        QTest::newRow("number of a method whose columns are named")
            << QByteArray("!CONSOLIDATION_METHODS\n'Label;PercentConsol;ToPercentControl;"
                          "Descriptions\nEUR;100;zero\n");
        QTest::newRow("second number of a method")
            << QByteArray("!CONSOLIDATION_METHODS\nEUR;Y;N;<=;0;zero;x\n");
    }

    void aNumberThatIsNoneIsAWarning()
    {
        QFETCH(QByteArray, section);
        const Reading reading = readText(section + entities);
        QCOMPARE(topLevel(*reading.custom1()), QStringList({u"[None]"_s, u"EUR"_s}));
        const int line = int(section.count('\n'));
        QVERIFY(reading.warnsOnlyOf(line, {u"zero"_s}));
    }

    void theShareOfAMethodMayBeTheOneThatIsCalculated()
    {
        const Reading reading = readText(
            "!CONSOLIDATION_METHODS\nGLOBAL;Y;N;<=;100;POWN;x\nEQUITY;Y;N;<=;50;POWNMIN;x\n" +
            entities);
        QCOMPARE(reading.warnings(), QStringList());
    }

    void aLineWithTooManyFieldsIsReadAsFarAsItGoes_data()
    {
        QTest::addColumn<QByteArray>("section");
        QTest::newRow("currency") << QByteArray("!CURRENCIES\nEUR;0;M;Y;x;y;English=Euro\n");
        QTest::newRow("method") << QByteArray(
            "!CONSOLIDATION_METHODS\nEUR;Y;N;<=;0;100;x;y;z;English=Euro\n");
    }

    void aLineWithTooManyFieldsIsReadAsFarAsItGoes()
    {
        QFETCH(QByteArray, section);
        const Reading reading = readText(section + entities);
        const auto custom = reading.custom1();
        QCOMPARE(topLevel(*custom), QStringList({u"[None]"_s, u"EUR"_s}));
        QCOMPARE(custom->GetMemberDescription(custom->GetMemberId(u"EUR"_s), 0), u"Euro"_s);
        QVERIFY(!reading.warnings().isEmpty());
        for (const QString &warning : reading.warnings())
            QVERIFY(warning.startsWith(u"2: "_s));
    }
};

QTEST_APPLESS_MAIN(tst_ListRecords)
#include "tst_ListRecords.moc"
