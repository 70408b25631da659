#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Parents and children.
class tst_HierarchyRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyDimensionHasParentAndChildCustomsAWeightToo_data()
    {
        QTest::addColumn<QByteArray>("dimension");
        QTest::addColumn<QByteArray>("weight");
        for (const char *plain :
             {"Account", "Entity", "Scenario", "Value", "ICP", "Year", "Period", "View"})
            QTest::newRow(plain) << QByteArray(plain) << QByteArray();
        for (const char *custom : {"Custom1", "Custom2", "Custom3", "Custom4"})
            for (const char *weight : {"1", "0", "-1", "0.25", "1e2", "", " "})
                QTest::addRow("%s, '%s'", custom, weight)
                    << QByteArray(custom) << QByteArray(";") + weight;
    }

    void everyDimensionHasParentAndChildCustomsAWeightToo()
    {
        QFETCH(QByteArray, dimension);
        QFETCH(QByteArray, weight);
        const QByteArray between = dimension == "Account" ? ";ASSET" : "";
        QByteArray text = "!MEMBERS=" + dimension + '\n';
        for (const char *label : {"A", "B", "C"})
            text += label + between + '\n';
        text += "!HIERARCHIES=" + dimension + "\n;A" + weight + "\nA;B" + weight + "\nA;C" +
                weight + '\n';
        const Reading reading = readText(text);
        QCOMPARE(reading.warnings(), QStringList());
        const auto found = dimensionOf(reading, dimension);
        QCOMPARE(found->EnumAllMemberLabels().first(3), QStringList({u"A"_s, u"B"_s, u"C"_s}));
        QVERIFY(treeOf(*found).startsWith(u"A\n  B\n  C\n"_s));
    }

    void aCustomMayLackTheWeight()
    {
        const Reading reading = readText("!HIERARCHIES=Custom1\n;A\nA;B\n!MEMBERS=Custom1\nA\nB\n");
        QCOMPARE(treeOf(*reading.custom1()), u"A\n  B\n[None]\n"_s);
        QCOMPARE(reading.warnings(), QStringList());
    }

    void theRootMayBeWrittenOut()
    {
        const Reading reading =
            readText("!HIERARCHIES=Entity\n#root;A\n;B\n#ROOT;C\n #Root ;D\nA;E\n");
        QCOMPARE(treeOf(*reading.entity()), u"A\n  E\nB\nC\nD\n"_s);
    }

    void theRootIsWrittenOutInAnyCaseWhereTheDelimiterIsItsFirstCharacter()
    {
        for (const QByteArray &root : QByteArrayList{"#root", "#ROOT", " #Root", ""}) {
            const Reading reading =
                readText("!MEMBERS=Entity\n'Label#DefaultParent#Descriptions\n"
                         "A#DefaultParent=" +
                         root + "#English=The A\n!HIERARCHIES=Entity\n#A\n#ROOT#B\n");
            QCOMPARE(treeOf(*reading.entity()), u"A\nB\n"_s);
            QCOMPARE(reading.entity()->GetDefaultParentLabel(0), QString());
            QCOMPARE(reading.entity()->GetMemberDescription(0, 0), u"The A"_s);
            QCOMPARE(reading.metadata()->GetLanguages(), QStringList{u"English"_s});
            QVERIFY(reading.warnsOnlyOf(6, {u"B"_s}));
        }
    }

    void fileOrderIsSiblingOrderWhateverTheMembersOrder()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\nA\nB\nC\nD\n!HIERARCHIES=Entity\n;D\nD;C\n;A\nD;A\nD;B\n");
        QCOMPARE(treeOf(*reading.entity()), u"D\n  C\n  A\n  B\nA\n"_s);
        QCOMPARE(reading.warnings(), QStringList());
    }

    void siblingOrderIsThatOfTheFileWhereRecordsNameTheirParentsInAnotherOrder()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\nT;DefaultParent=#root\nA;DefaultParent=T\n"
                     "B;DefaultParent=T\nC;DefaultParent=A\nD;DefaultParent=T\n"
                     "!HIERARCHIES=Entity\nT;D\nA;C\n;T\nT;B\nT;A\n");
        QCOMPARE(treeOf(*reading.entity()), u"T\n  D\n  B\n  A\n    C\n"_s);
        QCOMPARE(reading.warnings(), QStringList());
    }

    void childrenMayStandBeforeTheirParents()
    {
        const Reading reading =
            readText("!HIERARCHIES=Entity\nC;D\nB;C\nA;B\n;A\n!MEMBERS=Entity\nA\nB\nC\nD\n");
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n    C\n      D\n"_s);
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.entity()->GetDefaultParentGeneration(3), 3);
    }

    void aLabelUnderSeveralParentsIsASharedMember()
    {
        const Reading reading = readText("!MEMBERS=Entity\nG\nL\nP;DefaultParent=L\n"
                                         "X;;DefaultParent=P\n"
                                         "!HIERARCHIES=Entity\n;G\n;L\nG;P\nL;P\nP;X\nG;X\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto entity = reading.entity();
        QCOMPARE(treeOf(*entity), u"G\n  P\n    X\n  X\nL\n  P\n    X\n"_s);
        QCOMPARE(entity->EnumAllMembers().size(), 4);
        QCOMPARE(entity->GetDefaultParentLabel(2), u"L"_s);
        QCOMPARE(entity->GetDefaultParentLabel(3), u"P"_s);
    }

    void withoutADefaultParentTheFirstParentIsIt()
    {
        const Reading reading = readText("!MEMBERS=Entity\nA\nB\nC\n"
                                         "!HIERARCHIES=Entity\n;A\n;B\nB;C\nA;C\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.entity()->GetDefaultParentLabel(2), u"B"_s);
    }

    void labelsAreFoundInAnyCase()
    {
        const Reading reading = readText("!MEMBERS=Entity\nGroup;DefaultParent=#root\n"
                                         "Unit;DefaultParent=GROUP\n"
                                         "!HIERARCHIES=Entity\n;GROUP\ngroup;UNIT\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(treeOf(*reading.entity()), u"Group\n  Unit\n"_s);
    }

    void aDelimiterTooManyAtTheEndIsNoFieldTooMany()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\nA;;;;;;;;;;;DefaultParent=#root;\n!HIERARCHIES=Entity\n;A;\n"
                     "!MEMBERS=Value\n[None];\n!MEMBERS=ICP\n[ICP Top];;\n!MEMBERS=Custom1\nC\n"
                     "!HIERARCHIES=Custom1\n;C;1;\n!MEMBERS=View\nV;\n!HIERARCHIES=View\n;V;\n");
        QCOMPARE(reading.warnings(), QStringList());
    }

    void aLineWithoutAChildIsAWarning()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\nA\n!HIERARCHIES=Entity\n;A\nA;\nA\n;;\n");
        QCOMPARE(treeOf(*reading.entity()), u"A\n"_s);
        QCOMPARE(reading.warnings().size(), 3);
        for (const int line : {5, 6, 7})
            QVERIFY(reading.warnsOf(line, {}));
    }

private:
    static std::shared_ptr<hfm::Dimension> dimensionOf(const Reading &reading,
                                                       const QByteArray &name)
    {
        const auto metadata = reading.metadata();
        for (const auto &dimension :
             {metadata->GetScenarioDimension(), metadata->GetYearDimension(),
              metadata->GetPeriodDimension(), metadata->GetViewDimension(),
              metadata->GetEntityDimension(), metadata->GetValueDimension(),
              metadata->GetAccountDimension(), metadata->GetICPDimension(),
              metadata->GetCustom1Dimension(), metadata->GetCustom2Dimension(),
              metadata->GetCustom3Dimension(), metadata->GetCustom4Dimension()})
            if (dimension->GetDimensionName() == QLatin1String(name))
                return dimension;
        qFatal("There is no dimension %s.", name.constData());
    }
};

QTEST_APPLESS_MAIN(tst_HierarchyRecords)
#include "tst_HierarchyRecords.moc"
