#include "hfm/offline/ApplicationChoices.h"
#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// What a real file may get wrong, and what is done then. Warnings never stop an opening.
class tst_WrongRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChildWithoutARecordIsAMemberWithEmptyAttributes()
    {
        const Reading reading = readText("!MEMBERS=Entity\nA;;;;;;;;;;;DefaultParent=#root\n"
                                         "!HIERARCHIES=Entity\n;A\nA;Stray\n");
        QVERIFY(reading.warnsOnlyOf(5, {u"Stray"_s}));
        const auto entity = reading.entity();
        QCOMPARE(treeOf(*entity), u"A\n  Stray\n"_s);
        QCOMPARE(entity->GetMemberDescription(1, 0), QString());
        QCOMPARE(entity->GetDefaultParentLabel(1), u"A"_s);
        const auto view = entity->entityAttributes();
        QCOMPARE(reading.value()->GetMemberLabel(view->GetEntityCurrencyId(1)), u"[None]"_s);
        QCOMPARE(view->GetEntitySecurityClassId(1), hfm::noClass);
        QVERIFY(!view->GetEntityAllowAdjs(1) && !view->GetEntityIsICP(1));
        QVERIFY(!view->GetEntityAllowChildAdjs(1));
        QCOMPARE(view->GetEntityUserDefined1(1), QString());
    }

    void anAccountOrCustomWithoutARecordHasEmptyAttributesToo()
    {
        const Reading reading = readText("!HIERARCHIES=Account\n;A\n!HIERARCHIES=Custom3\n;C;1\n");
        const auto accounts = reading.account()->accountAttributes();
        QCOMPARE(accounts->GetAccountType(0), -1);
        QCOMPARE(accounts->GetAccountTopCustom1(0), -1);
        QCOMPARE(accounts->GetAccountIsICP(0), 0);
        QCOMPARE(accounts->GetAccountDecimalPlaces(0), qint16(0));
        QCOMPARE(accounts->GetAccountSecurityClassId(0), hfm::noClass);
        const auto customs = reading.metadata()->GetCustom3Dimension()->customAttributes();
        QCOMPARE(customs->GetCustomUserDefined1(0), QString());
        QCOMPARE(customs->GetCustomSecurityClassId(0), hfm::noClass);
        QVERIFY(reading.warnsOf(2, {u"A"_s}));
        QVERIFY(reading.warnsOf(4, {u"C"_s}));
    }

    void aParentWithoutARecordIsAWarningAsWell()
    {
        const Reading reading = readText("!MEMBERS=Entity\nA;;;;;;;;;;;DefaultParent=Stray\n"
                                         "!HIERARCHIES=Entity\nStray;A\n;Stray\n");
        QVERIFY(reading.warnsOnlyOf(4, {u"Stray"_s}));
        QCOMPARE(treeOf(*reading.entity()), u"Stray\n  A\n"_s);
        QCOMPARE(reading.entity()->EnumAllMemberLabels(), QStringList({u"A"_s, u"Stray"_s}));
    }

    void aMemberWithNoPlaceIsAMemberWithoutANode()
    {
        const Reading reading = readText("!MEMBERS=Entity\nA;;;;;;;;;;;DefaultParent=#root\n"
                                         "Lost;;Y;;;;one;;;;;DefaultParent=A;English=Lost one\n"
                                         "!HIERARCHIES=Entity\n;A\n");
        QVERIFY(reading.warnsOnlyOf(3, {u"Lost"_s}));
        const auto entity = reading.entity();
        QCOMPARE(treeOf(*entity), u"A\n"_s);
        QCOMPARE(entity->EnumAllMemberLabels(), QStringList({u"A"_s, u"Lost"_s}));
        QCOMPARE(entity->GetMemberDescription(1, 0), u"Lost one"_s);
        QCOMPARE(entity->entityAttributes()->GetEntityUserDefined1(1), u"one"_s);
        QCOMPARE(entity->GetDefaultParentLabel(1), QString());
        QCOMPARE(entity->GetDefaultParentGeneration(1), 0);
        QVERIFY(!entity->GetHasChildren(0));
    }

    void theSameParentAndChildTwiceIsOneNode()
    {
        const Reading reading = readText("!MEMBERS=Entity\nA\nB\n"
                                         "!HIERARCHIES=Entity\n;A\nA;B\n;A\na;b\nA;B\n");
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n"_s);
        QCOMPARE(reading.entity()->GetChildCount(0), 1);
        QCOMPARE(reading.warnings().size(), 3);
        QVERIFY(reading.warnsOf(7, {u"A"_s}));
        QVERIFY(reading.warnsOf(8, {u"A"_s, u"B"_s}));
        QVERIFY(reading.warnsOf(9, {u"A"_s, u"B"_s}));
    }

    void aDefaultParentThatIsNoneOfItsParentsGivesWayToTheFirst_data()
    {
        QTest::addColumn<QByteArray>("named");
        QTest::newRow("another member") << QByteArray("Y");
        QTest::newRow("no member") << QByteArray("Nobody");
        QTest::newRow("itself") << QByteArray("X");
        QTest::newRow("the root") << QByteArray("#root");
        QTest::newRow("its child") << QByteArray("Z");
    }

    void aDefaultParentThatIsNoneOfItsParentsGivesWayToTheFirst()
    {
        QFETCH(QByteArray, named);
        const Reading reading = readText("!MEMBERS=Entity\nA\nB\nY\nZ\nX;DefaultParent=" + named +
                                         "\n!HIERARCHIES=Entity\n;Y\n;A\n;B\nB;X\nA;X\nX;Z\n");
        QVERIFY(reading.warnsOnlyOf(6, {u"X"_s, u"B"_s}));
        QCOMPARE(reading.entity()->GetDefaultParentLabel(4), u"B"_s);
        QCOMPARE(reading.entity()->GetDefaultParentGeneration(4), 1);
    }

    void aCycleIsRefused_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<int>("line");
        QTest::addColumn<QStringList>("labels");
        QTest::newRow("of itself") << QByteArray(";A\nA;A\n") << 3 << QStringList{u"A"_s};
        QTest::newRow("of two") << QByteArray(";A\nA;B\nB;A\n") << 4 << QStringList{u"A"_s, u"B"_s};
        QTest::newRow("further down") << QByteArray(";T\nT;A\nA;B\nB;C\nC;A\nT;D\n") << 6
                                      << QStringList{u"A"_s, u"B"_s, u"C"_s};
        QTest::newRow("that nothing leads to")
            << QByteArray(";T\nA;B\nB;A\n") << 4 << QStringList{u"A"_s, u"B"_s};
        QTest::newRow("in any case")
            << QByteArray(";A\nA;B\nb;a\n") << 4 << QStringList{u"A"_s, u"B"_s};
    }

    void aCycleIsRefused()
    {
        QFETCH(QByteArray, lines);
        QFETCH(int, line);
        QFETCH(QStringList, labels);
        for (const QByteArray &dimension : {QByteArray("Entity"), QByteArray("Custom4")}) {
            const Reading reading = readText("!HIERARCHIES=" + dimension + '\n' + lines);
            QVERIFY(reading.refusal);
            QCOMPARE(reading.refusal->file(), u"Test.app"_s);
            QCOMPARE(reading.refusal->line(), line);
            QVERIFY(reading.refusal->reason().contains(QLatin1String(dimension)));
            for (const QString &label : labels)
                QVERIFY(reading.refusal->reason().contains(u"'"_s + label + u"'"_s));
            QVERIFY(!reading.refusal->reason().contains(u"'T'"_s));
            QVERIFY(reading.refusal->description().startsWith(u"Test.app, line %1: "_s.arg(line)));
        }
    }

    void aLineWithTooManyFieldsIsReadAsFarAsItGoes()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\nA;;Y;Y;Y;;one;;;;;x;y;DefaultParent=#root;English=The A\n"
                     "!HIERARCHIES=Entity\n;A;x\n"
                     "!HIERARCHIES=Custom1\n;C;1;x\n!MEMBERS=Custom1\n"
                     "C;N;N;N;one;two;three;;;;DefaultParent=#root\n");
        QCOMPARE(reading.warnings().size(), 4);
        QVERIFY(reading.warnsOf(2, {u"A"_s}));
        QVERIFY(reading.warnsOf(4, {}));
        QVERIFY(reading.warnsOf(6, {}));
        QVERIFY(reading.warnsOf(8, {u"C"_s}));
        QCOMPARE(treeOf(*reading.entity()), u"A\n"_s);
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(0), u"one"_s);
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), u"The A"_s);
        QCOMPARE(reading.custom1()->customAttributes()->GetCustomUserDefined3(0), u"three"_s);
    }

    void aWeightThatIsNoNumberIsAWarning()
    {
        const Reading reading = readText("!MEMBERS=Custom1\nC\n!HIERARCHIES=Custom1\n;C;heavy\n");
        QVERIFY(reading.warnsOnlyOf(4, {u"heavy"_s}));
        QCOMPARE(treeOf(*reading.custom1()), u"C\n[None]\n"_s);
    }

    void aClassThatTheSecurityFileDoesNotDefineIsKeptByName()
    {
        const QByteArray entity = "!MEMBERS=Entity\nA;;;;;SC_X;;;;;;DefaultParent=#root\n"
                                  "!HIERARCHIES=Entity\n;A\n";
        const Reading reading = readTexts({entity, {}, "!SECURITY_CLASSES\n[Default]\nSC_Y\n"});
        QVERIFY(reading.warnsOnlyOf(2, {u"SC_X"_s}));
        QCOMPARE(reading.session()->GetSecurity()->GetSecurityClassName(
                     reading.entity()->entityAttributes()->GetEntitySecurityClassId(0)),
                 u"SC_X"_s);
        const Reading defined = readTexts({entity, {}, "!SECURITY_CLASSES\n[Default]\nsc_x\n"});
        QCOMPARE(defined.warnings(), QStringList());
    }

    void aCurrencyThatIsNowhereDefinedIsKeptByName()
    {
        const Reading reading = readText("!MEMBERS=Entity\nA;XYZ;;;;;;;;;;DefaultParent=#root\n"
                                         "B;xyz;;;;;;;;;;DefaultParent=#root\n"
                                         "!HIERARCHIES=Entity\n;A\n;B\n!CURRENCIES\nEUR;0\n");
        QVERIFY(reading.warnsOnlyOf(2, {u"XYZ"_s}));
        const auto view = reading.entity()->entityAttributes();
        QCOMPARE(reading.value()->GetMemberLabel(view->GetEntityCurrencyId(0)), u"XYZ"_s);
        QCOMPARE(view->GetEntityCurrencyId(1), view->GetEntityCurrencyId(0));
        QVERIFY(treeOf(*reading.value())
                    .endsWith(u"EUR Total\n  EUR\n  EUR Adjs\nXYZ Total\n  XYZ\n  XYZ Adjs\n"_s));
        QCOMPARE(treeOf(*reading.custom2()), u"[None]\nEUR\nXYZ\n"_s);
    }

    void aTopMemberThatItsDimensionLacksBecomesAMemberWithoutANode()
    {
        const Reading reading =
            readText("!MEMBERS=Account\nA;ASSET;N;N;N;;Lacking;;;;DefaultParent=#root\n"
                     "B;ASSET;N;N;N;;LACKING;;;;DefaultParent=#root\n"
                     "!HIERARCHIES=Account\n;A\n;B\n!HIERARCHIES=Custom1\n;C;1\n"
                     "!MEMBERS=Custom1\nC\n");
        QVERIFY(reading.warnsOnlyOf(2, {u"Lacking"_s}));
        const auto custom = reading.custom1();
        QCOMPARE(treeOf(*custom), u"C\n[None]\n"_s);
        const auto top = reading.account()->accountAttributes()->GetAccountTopCustom1(0);
        QCOMPARE(custom->GetMemberLabel(top), u"Lacking"_s);
        QCOMPARE(reading.account()->accountAttributes()->GetAccountTopCustom1(1), top);
        QCOMPARE(custom->GetDefaultParentLabel(top), QString());
        QVERIFY(custom->EnumAllMembers().contains(top));
    }

    void aSecondRecordOfALabelIsLeftOut()
    {
        const Reading reading = readText("!MEMBERS=Entity\nA;;;;;;one;;;;;DefaultParent=#root\n"
                                         "a;;;;;;two;;;;;DefaultParent=#root\n"
                                         "!HIERARCHIES=Entity\n;A\n");
        QVERIFY(reading.warnsOf(3, {}));
        QCOMPARE(reading.entity()->EnumAllMembers().size(), 1);
        QCOMPARE(reading.entity()->entityAttributes()->GetEntityUserDefined1(0), u"one"_s);
    }

    void everyWarningIsCountedAndTheFirstThousandAreKept()
    {
        QByteArray text = "!HIERARCHIES=Entity\n";
        for (int i = 0; i < 5000; ++i)
            text += ";M" + QByteArray::number(i) + '\n';
        const Reading reading = readText(text);
        QCOMPARE(reading.application->warnings.count(), qint64(5000));
        QCOMPARE(reading.warnings().size(), 1000);
        QCOMPARE(reading.entity()->EnumAllMembers().size(), 5000);
    }

    void someWarningsOfEachKindAndFileAreKeptHoweverManyStandBefore()
    {
        QByteArray text = "!HIERARCHIES=Entity\n";
        for (int i = 0; i < 5000; ++i)
            text += "A;\n";
        text += ";Stray\n!MEMBERS=Account\n";
        for (int i = 0; i < 100; ++i)
            text += "B" + QByteArray::number(i) + ";ODD;DefaultParent=#root\n";
        const Reading reading =
            readTexts({text, "!HIERARCHIES=Year\n2010;\n", "!SECURITY_CLASSES\nSC\nSC\n"});
        const QStringList kept = reading.warnings();
        // The last hundred have no place in their hierarchy either.
        QCOMPARE(reading.application->warnings.count(), qint64(5000 + 1 + 100 + 100 + 1 + 1));
        QVERIFY(kept.size() < 1100);
        QVERIFY(reading.warnsOf(5002, {u"Stray"_s}));
        QVERIFY(reading.warnsOf(5004, {u"B0"_s}));
        QVERIFY(reading.warnsOf(5004, {u"ODD"_s}));
        QCOMPARE(kept.filter(u"'ODD'"_s).size(), 20);
        QCOMPARE(kept.filter(u"Test.profile, line 2: "_s).size(), 1);
        QCOMPARE(kept.filter(u"Test.sec, line 3: "_s).size(), 1);
    }

    void theLineBehindTheWarningsSaysHowManyMoreThereAre()
    {
        const auto lastLine = [](int count) {
            QByteArray text = "!HIERARCHIES=Entity\n";
            for (int i = 0; i < count; ++i)
                text += ";M" + QByteArray::number(i) + '\n';
            const ClusterFolder cluster;
            cluster.write(u"Test.app"_s, text);
            const hfm::offline::ApplicationPreview preview =
                hfm::offline::ApplicationChoices(cluster.path(), SystemClock()).read(0);
            return u"%1: %2"_s.arg(preview.warnings.size()).arg(preview.warnings.last());
        };
        QCOMPARE(lastLine(5000), u"1001: ... and 4000 more"_s);
        QCOMPARE(lastLine(1001), u"1001: ... and 1 more"_s);
        QVERIFY(lastLine(1000).startsWith(u"1000: Test.app, line 1001: "_s));
    }
};

QTEST_APPLESS_MAIN(tst_WrongRecords)
#include "tst_WrongRecords.moc"
