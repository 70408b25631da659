#include "Reading.h"

#include <QTest>

using namespace hfm;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray application =
    "!CURRENCIES\nEUR;0\nUSD;0\n!CONSOLIDATION_METHODS\nGLOBAL;Y;N\n"
    "!MEMBERS=Entity\nTOP;;N;N;N;DefaultParent=#root\nEAST;;Y;N;Y;DefaultParent=TOP\n"
    "WEST;;Y;N;N;DefaultParent=TOP\nSHARED;;Y;Y;N;DefaultParent=EAST\n"
    "ONE;;N;Y;Y;DefaultParent=WEST\nLEGAL;;N;N;Y;DefaultParent=#root\n"
    "!HIERARCHIES=Entity\n;TOP\nTOP;EAST\nTOP;WEST\nEAST;SHARED\nWEST;ONE\nWEST;SHARED\n"
    ";LEGAL\nLEGAL;ONE\n"
    "!HIERARCHIES=Custom1\n;C;1\nC;D;1\nC;EUR;1\n"
    "!HIERARCHIES=Account\n;BS\nBS;CASH\n"
    "!HIERARCHIES=Period\n;Y\nY;H\nH;Q\nQ;M\nM;W\nW;D\nD;HOUR\nY;Q\n"
    "!HIERARCHIES=Scenario\n;ACT\nACT;BUD\n";

std::shared_ptr<Dimension> dimensionOf(const Reading &reading, const QString &name)
{
    const auto metadata = reading.metadata();
    for (const auto &dimension : {metadata->GetScenarioDimension(), metadata->GetYearDimension(),
                                  metadata->GetPeriodDimension(), metadata->GetViewDimension(),
                                  metadata->GetEntityDimension(), metadata->GetValueDimension(),
                                  metadata->GetAccountDimension(), metadata->GetICPDimension(),
                                  metadata->GetCustom1Dimension(), metadata->GetCustom2Dimension(),
                                  metadata->GetCustom3Dimension(), metadata->GetCustom4Dimension()})
        if (dimension->GetDimensionName() == name)
            return dimension;
    return nullptr;
}

/// The list's labels, separated by blanks.
QString members(Dimension &dimension, const QString &list, MemberId top = rootMember)
{
    QStringList labels;
    const auto found = dimension.EnumMemberListMembers(dimension.GetMemberListId(list), top);
    for (const MemberId member : found)
        labels.append(dimension.GetMemberLabel(member));
    return labels.join(u" "_s);
}

} // namespace

/// The system lists of each dimension.
class tst_ListsOfFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { mReading = readText(application); }

    void eachDimensionHasItsListsWithTheIdsMinusOneMinusTwo_data()
    {
        QTest::addColumn<QString>("dimension");
        QTest::addColumn<QString>("names");
        const QString tree = u"Hierarchy,Descendants,Ancestors,Base,Children,Parents"_s;
        QTest::newRow("Scenario") << u"Scenario"_s << u"Hierarchy,Descendants"_s;
        QTest::newRow("Year") << u"Year"_s << u"Hierarchy,Descendants"_s;
        QTest::newRow("View") << u"View"_s << u"Hierarchy,Descendants"_s;
        QTest::newRow("Account") << u"Account"_s << tree + u",System"_s;
        QTest::newRow("ICP") << u"ICP"_s << tree + u",System"_s;
        QTest::newRow("Entity") << u"Entity"_s
                                << tree + u",Adjustment Entities,Parent Adjustment Entities"_s;
        QTest::newRow("Custom1") << u"Custom1"_s << tree + u",Currencies,ConsolMethods"_s;
        QTest::newRow("Custom2") << u"Custom2"_s << tree + u",Currencies"_s;
        QTest::newRow("Custom3") << u"Custom3"_s << tree;
        QTest::newRow("Custom4") << u"Custom4"_s << tree;
        QTest::newRow("Value")
            << u"Value"_s
            << u"Hierarchy,Descendants,Adjustments,Default Currencies,Inputs,Totals"_s;
        QTest::newRow("Period")
            << u"Period"_s
            << u"Hierarchy,Descendants,Ancestors,Children,Parents,First Generation,"
               "Second Generation,Third Generation,Fourth Generation,Fifth Generation,"
               "Sixth Generation"_s;
    }

    void eachDimensionHasItsListsWithTheIdsMinusOneMinusTwo()
    {
        QFETCH(QString, dimension);
        QFETCH(QString, names);
        QStringList expected = names.split(u","_s);
        for (QString &name : expected)
            name = u"["_s + name + u"]"_s;
        const auto found = dimensionOf(mReading, dimension);
        QCOMPARE(found->EnumMemberListNames(), expected);
        for (qsizetype i = 0; i < expected.size(); ++i) {
            QCOMPARE(found->GetMemberListId(expected[i]), ListId(-1 - i));
            QCOMPARE(found->GetMemberListId(expected[i].toUpper()), ListId(-1 - i));
            found->EnumMemberListMembers(ListId(-1 - i), rootMember);
        }
    }

    void generationListsGoAsDeepAsThereArePeriods()
    {
        const Reading usual = readText("!MEMBERS=Entity\nA\n");
        const auto period = usual.metadata()->GetPeriodDimension();
        QCOMPARE(period->EnumMemberListNames().size(), 5 + 3);
        QCOMPARE(members(*period, u"[First Generation]"_s), u"[Year]"_s);
        QCOMPARE(members(*period, u"[Second Generation]"_s), u"Q1 Q2 Q3 Q4"_s);
        QVERIFY(members(*period, u"[Third Generation]"_s).startsWith(u"Jan Feb Mar Apr"_s));
        const auto deep = dimensionOf(mReading, u"Period"_s);
        QCOMPARE(members(*deep, u"[First Generation]"_s), u"Y"_s);
        QCOMPARE(members(*deep, u"[Second Generation]"_s), u"H Q"_s);
        QCOMPARE(members(*deep, u"[Third Generation]"_s), u"Q M"_s);
    }

    void withoutATopMember()
    {
        const auto entity = mReading.entity();
        for (const MemberId top : {-1, -2, 6, 1000, std::numeric_limits<MemberId>::min(),
                                   std::numeric_limits<MemberId>::max()}) {
            const QString all = u"TOP EAST SHARED WEST ONE LEGAL"_s;
            QCOMPARE(members(*entity, u"[Hierarchy]"_s, top), all);
            QCOMPARE(members(*entity, u"[Descendants]"_s, top), all);
            QCOMPARE(members(*entity, u"[Base]"_s, top), u"SHARED ONE"_s);
            QCOMPARE(members(*entity, u"[Children]"_s, top), u"TOP LEGAL"_s);
            QCOMPARE(members(*entity, u"[Parents]"_s, top), QString());
            QCOMPARE(members(*entity, u"[Ancestors]"_s, top), QString());
            QCOMPARE(members(*entity, u"[Adjustment Entities]"_s, top), u"EAST SHARED WEST"_s);
            QCOMPARE(members(*entity, u"[Parent Adjustment Entities]"_s, top), u"EAST ONE LEGAL"_s);
        }
    }

    void withATopMember()
    {
        const auto entity = mReading.entity();
        const MemberId east = entity->GetMemberId(u"EAST"_s);
        const MemberId west = entity->GetMemberId(u"WEST"_s);
        const MemberId one = entity->GetMemberId(u"ONE"_s);
        const MemberId top = entity->GetMemberId(u"TOP"_s);
        QCOMPARE(members(*entity, u"[Descendants]"_s, top), u"EAST SHARED WEST ONE"_s);
        QCOMPARE(members(*entity, u"[Base]"_s, top), u"SHARED ONE"_s);
        QCOMPARE(members(*entity, u"[Base]"_s, east), u"SHARED"_s);
        QCOMPARE(members(*entity, u"[Children]"_s, top), u"EAST WEST"_s);
        QCOMPARE(members(*entity, u"[Children]"_s, one), QString());
        QCOMPARE(members(*entity, u"[Descendants]"_s, one), QString());
        QCOMPARE(members(*entity, u"[Parents]"_s, one), u"WEST LEGAL"_s);
        QCOMPARE(members(*entity, u"[Parents]"_s, west), u"TOP"_s);
        QCOMPARE(members(*entity, u"[Parents]"_s, top), QString());
        QCOMPARE(members(*entity, u"[Ancestors]"_s, one), u"TOP WEST LEGAL"_s);
        QCOMPARE(members(*entity, u"[Ancestors]"_s, top), QString());
        QCOMPARE(members(*entity, u"[Adjustment Entities]"_s, east), u"SHARED"_s);
        QCOMPARE(members(*entity, u"[Parent Adjustment Entities]"_s, west), u"ONE"_s);
    }

    void theListsOfAccountsPartnersAndCustoms()
    {
        const auto account = mReading.account();
        QVERIFY(members(*account, u"[System]"_s).startsWith(u"[Active] [PCON] [POWN] [DOWN] "_s));
        QCOMPARE(members(*account, u"[System]"_s, account->GetMemberId(u"BS"_s)), QString());
        const auto custom = mReading.custom1();
        QCOMPARE(members(*custom, u"[Currencies]"_s), u"EUR USD"_s);
        QCOMPARE(members(*custom, u"[Currencies]"_s, custom->GetMemberId(u"C"_s)), u"EUR"_s);
        QCOMPARE(members(*custom, u"[ConsolMethods]"_s), u"GLOBAL"_s);
        QCOMPARE(members(*mReading.custom2(), u"[Currencies]"_s), u"EUR USD"_s);
        const auto partners = mReading.metadata()->GetICPDimension();
        QCOMPARE(members(*partners, u"[Base]"_s), u"[ICP None] SHARED ONE"_s);
        QVERIFY(members(*partners, u"[System]"_s).startsWith(u"[ICP Top]"_s));
    }

    void theListsOfValues()
    {
        const auto value = mReading.value();
        QCOMPARE(members(*value, u"[Adjustments]"_s),
                 u"<Entity Curr Adjs> <Parent Curr Adjs> [Parent Adjs] [Contribution Adjs] "
                 "EUR Adjs USD Adjs"_s);
        QCOMPARE(members(*value, u"[Default Currencies]"_s), u"EUR USD"_s);
        QCOMPARE(members(*value, u"[Inputs]"_s), u"<Entity Currency> EUR USD"_s);
        QCOMPARE(members(*value, u"[Totals]"_s),
                 u"[Contribution Total] [Parent Total] <Parent Curr Total> <Entity Curr Total> "
                 "EUR Total USD Total"_s);
        QCOMPARE(members(*value, u"[Totals]"_s, value->GetMemberId(u"[Parent]"_s)),
                 u"<Parent Curr Total> <Entity Curr Total>"_s);
    }

private:
    Reading mReading;
};

QTEST_APPLESS_MAIN(tst_ListsOfFiles)
#include "tst_ListsOfFiles.moc"
