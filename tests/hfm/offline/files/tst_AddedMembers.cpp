#include "Reading.h"

#include <QTest>

using namespace hfm;
using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList systemAccounts = {u"[Active]"_s,
                                    u"[PCON]"_s,
                                    u"[POWN]"_s,
                                    u"[DOWN]"_s,
                                    u"[PCTRL]"_s,
                                    u"[Method]"_s,
                                    u"[Consol1]"_s,
                                    u"[Consol2]"_s,
                                    u"[Consol3]"_s,
                                    u"[SharesOwned]"_s,
                                    u"[VotingOwned]"_s,
                                    u"[SharesOutstanding]"_s,
                                    u"[VotingOutstanding]"_s,
                                    u"[Shares%Owned]"_s,
                                    u"[Voting%Owned]"_s};

const QString valueTree = u"[None]\n"
                          "[Contribution Total]\n"
                          "  [Contribution]\n"
                          "    [Proportion]\n"
                          "      [Parent Total]\n"
                          "        [Parent]\n"
                          "          <Parent Curr Total>\n"
                          "            <Parent Currency>\n"
                          "              <Entity Curr Total>\n"
                          "                <Entity Currency>\n"
                          "                <Entity Curr Adjs>\n"
                          "            <Parent Curr Adjs>\n"
                          "        [Parent Adjs]\n"
                          "    [Elimination]\n"
                          "  [Contribution Adjs]\n"_s;

QStringList labels(Dimension &dimension, const QList<MemberId> &members)
{
    QStringList found;
    for (const MemberId member : members)
        found.append(dimension.GetMemberLabel(member));
    return found;
}

QStringList listMembers(Dimension &dimension, const QString &list)
{
    return labels(dimension,
                  dimension.EnumMemberListMembers(dimension.GetMemberListId(list), rootMember));
}

QStringList withoutBrackets(QStringList names)
{
    for (QString &name : names)
        name = name.mid(1, name.size() - 2);
    return names;
}

} // namespace

/// What every application has besides what its files say.
class tst_AddedMembers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesStandInTheirTreeWithThreeForEachCurrency()
    {
        const Reading reading =
            readText("!CURRENCIES\nEUR;0;M;Y;English=Euro\nUSD;0\n!MEMBERS=Entity\nA\n");
        const auto value = reading.value();
        QCOMPARE(treeOf(*value), valueTree + u"EUR Total\n  EUR\n  EUR Adjs\n"
                                             "USD Total\n  USD\n  USD Adjs\n"_s);
        QCOMPARE(value->GetMemberDescription(value->GetMemberId(u"EUR"_s), 0), u"Euro"_s);
        QCOMPARE(value->GetMemberDescription(value->GetMemberId(u"EUR Total"_s), 0), QString());
        QCOMPARE(value->GetDefaultParentLabel(value->GetMemberId(u"EUR"_s)), u"EUR Total"_s);
        QCOMPARE(value->GetDefaultParentGeneration(value->GetMemberId(u"<Entity Currency>"_s)), 8);
    }

    void aValueHierarchyOfTheFileIsKept()
    {
        const Reading reading = readText("!MEMBERS=Value\nMine\n[None]\n"
                                         "!HIERARCHIES=Value\n;Mine\nMine;[None]\n");
        QCOMPARE(treeOf(*reading.value()), u"Mine\n  [None]\n"_s + valueTree.mid(valueTree.indexOf(
                                                                       u"[Contribution Total]"_s)));
        QCOMPARE(reading.warnings(), QStringList());
    }

    void partnersAreTheEntitiesWithIsIcpInEntityOrder()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\nC;;;Y;;;;;;;;DefaultParent=#root;English=The C\n"
                     "A;;;N;;;;;;;;DefaultParent=#root\nB;;;Y;;;;;;;;DefaultParent=C\n"
                     "Lost;;;Y;;;;;;;;DefaultParent=C\n"
                     "!HIERARCHIES=Entity\n;A\n;C\nC;B\nA;Stray\n");
        const auto partners = reading.metadata()->GetICPDimension();
        QCOMPARE(treeOf(*partners),
                 u"[ICP Top]\n  [ICP None]\n  [ICP Entities]\n    C\n    B\n    Lost\n"_s);
        QCOMPARE(partners->GetMemberDescription(partners->GetMemberId(u"C"_s), 0), u"The C"_s);
        QCOMPARE(partners->EnumAllMemberLabels().first(3),
                 QStringList({u"[ICP Top]"_s, u"[ICP None]"_s, u"[ICP Entities]"_s}));
    }

    void whatTheFileHasIsNotPlacedWhereItWouldCloseACircle_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<QString>("tree");
        QTest::newRow("partners' parent")
            << QByteArray("!MEMBERS=ICP\n[ICP Top]\n[ICP None]\n[ICP Entities]\n"
                          "!HIERARCHIES=ICP\n[ICP Entities];[ICP Top]\n")
            << 4 << QStringList({u"[ICP Entities]"_s, u"[ICP Top]"_s})
            << u"[ICP Entities]\n  [ICP Top]\n    [ICP None]\n  P\n"_s;
        QTest::newRow("partner, further up")
            << QByteArray("!MEMBERS=ICP\nP\nQ\n[ICP Entities]\n"
                          "!HIERARCHIES=ICP\nP;Q\nQ;[ICP Entities]\n")
            << 2 << QStringList({u"P"_s, u"[ICP Entities]"_s})
            << u"[ICP Top]\n  [ICP None]\nP\n  Q\n    [ICP Entities]\n"_s;
        QTest::newRow("currency") << QByteArray("!MEMBERS=Value\nEUR\nEUR Total\n"
                                                "!HIERARCHIES=Value\nEUR;EUR Total\n")
                                  << 2 << QStringList({u"EUR"_s, u"EUR Total"_s})
                                  << valueTree + u"EUR\n  EUR Total\n    EUR Adjs\n"_s;
    }

    void whatTheFileHasIsNotPlacedWhereItWouldCloseACircle()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        QFETCH(QStringList, labels);
        QFETCH(QString, tree);
        const Reading reading =
            readText(text + "!CURRENCIES\nEUR;0\n!MEMBERS=Entity\nP;;;Y;DefaultParent=#root\n"
                            "!HIERARCHIES=Entity\n;P\n");
        QVERIFY(reading.warnsOnlyOf(line, labels));
        const auto dimension = text.startsWith("!MEMBERS=Value")
                                   ? reading.value()
                                   : reading.metadata()->GetICPDimension();
        QCOMPARE(treeOf(*dimension), tree);
    }

    void whatTheFileHasWithMembersBelowItIsPlacedWithThem()
    {
        const Reading reading =
            readText("!MEMBERS=ICP\nP\nQ\n!HIERARCHIES=ICP\nP;Q\n"
                     "!MEMBERS=Entity\nP;;;Y;DefaultParent=#root\nQ;;;Y;DefaultParent=#root\n"
                     "!HIERARCHIES=Entity\n;P\n;Q\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(treeOf(*reading.metadata()->GetICPDimension()),
                 u"[ICP Top]\n  [ICP None]\n  [ICP Entities]\n    P\n      Q\n"_s);
    }

    void systemAccountsAreAddedAfterTheFilesOwnTopMembers()
    {
        const Reading reading =
            readText("!MEMBERS=Account\nA;ASSET\nB;FLOW\n!HIERARCHIES=Account\n;B\n;A\n");
        const auto account = reading.account();
        QCOMPARE(labels(*account, account->EnumChildMembers(allChildren, rootMember)),
                 QStringList({u"B"_s, u"A"_s}) + systemAccounts);
        QCOMPARE(account->EnumAllMemberLabels(), QStringList({u"A"_s, u"B"_s}) + systemAccounts);
        const auto view = account->accountAttributes();
        for (const QString &label : systemAccounts)
            QCOMPARE(view->GetAccountType(account->GetMemberId(label)),
                     label == u"[Active]"_s ? 11 : 4);
        QCOMPARE(listMembers(*account, u"[System]"_s), systemAccounts);
    }

    void systemAccountsOfTheFileAreTheFilesWithOrWithoutBrackets_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::newRow("with") << systemAccounts;
        QTest::newRow("without") << withoutBrackets(systemAccounts);
    }

    void systemAccountsOfTheFileAreTheFilesWithOrWithoutBrackets()
    {
        QFETCH(QStringList, names);
        QByteArray text = "!MEMBERS=Account\nT;GROUPLABEL\n";
        for (const QString &name : names)
            text += name.toUtf8() + ";FLOW\n";
        text += "!HIERARCHIES=Account\n;T\n";
        for (const QString &name : names)
            text += "T;" + name.toUtf8() + '\n';
        const Reading reading = readText(text);
        QCOMPARE(reading.warnings(), QStringList());
        const auto account = reading.account();
        QCOMPARE(account->EnumAllMembers().size(), 16);
        QCOMPARE(labels(*account, account->EnumChildMembers(allChildren, 0)), names);
        QCOMPARE(listMembers(*account, u"[System]"_s), names);
        for (MemberId id = 1; id < 16; ++id)
            QCOMPARE(account->accountAttributes()->GetAccountType(id), 5);
    }

    void onlyTheMissingSystemAccountsAreAdded()
    {
        const Reading reading = readText("!MEMBERS=Account\nPCON;FLOW\n[poWN];FLOW\n"
                                         "!HIERARCHIES=Account\n;PCON\n;[POWN]\n");
        const auto account = reading.account();
        QStringList expected = {u"PCON"_s, u"[poWN]"_s};
        expected += systemAccounts.first(1) + systemAccounts.sliced(3);
        QCOMPARE(account->EnumAllMemberLabels(), expected);
        QCOMPARE(listMembers(*account, u"[System]"_s).size(), 15);
    }

    void customsHaveNoneThenCurrenciesThenMethodsAfterTheirOwnMembers()
    {
        const Reading reading = readText(
            "!CURRENCIES\nEUR;0;English=Euro\nUSD;0\n!CONSOLIDATION_METHODS\nGLOBAL;Y;N\nEQUITY\n"
            "!HIERARCHIES=Custom1\n;C;1\n!HIERARCHIES=Custom2\n;C;1\n"
            "!HIERARCHIES=Custom3\n;C;1\n");
        const auto metadata = reading.metadata();
        const auto custom = metadata->GetCustom1Dimension();
        QCOMPARE(treeOf(*custom), u"C\n[None]\nEUR\nUSD\nGLOBAL\nEQUITY\n"_s);
        QCOMPARE(custom->GetMemberDescription(custom->GetMemberId(u"EUR"_s), 0), u"Euro"_s);
        QCOMPARE(treeOf(*metadata->GetCustom2Dimension()), u"C\n[None]\nEUR\nUSD\n"_s);
        QCOMPARE(treeOf(*metadata->GetCustom3Dimension()), u"C\n[None]\n"_s);
        QCOMPARE(treeOf(*metadata->GetCustom4Dimension()), u"[None]\n"_s);
        QCOMPARE(listMembers(*custom, u"[Currencies]"_s), QStringList({u"EUR"_s, u"USD"_s}));
        QCOMPARE(listMembers(*custom, u"[ConsolMethods]"_s),
                 QStringList({u"GLOBAL"_s, u"EQUITY"_s}));
        QCOMPARE(listMembers(*metadata->GetCustom2Dimension(), u"[Currencies]"_s),
                 QStringList({u"EUR"_s, u"USD"_s}));
    }

    void eachIsAddedOnlyWhereTheFileDoesNotHaveTheLabel()
    {
        const Reading reading =
            readText("!CURRENCIES\nEUR;0\nUSD;0\n!CONSOLIDATION_METHODS\nGLOBAL;Y;N\n"
                     "!MEMBERS=Custom1\nC\nusd;N;N;N;mine;DefaultParent=C\n[NONE]\nGlobal\n"
                     "!HIERARCHIES=Custom1\n;Global;1\n;C;1\nC;USD;1\n;[None];1\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto custom = reading.custom1();
        QCOMPARE(treeOf(*custom), u"Global\nC\n  usd\n[NONE]\nEUR\n"_s);
        QCOMPARE(custom->customAttributes()->GetCustomUserDefined1(1), u"mine"_s);
        QCOMPARE(listMembers(*custom, u"[Currencies]"_s), QStringList({u"usd"_s, u"EUR"_s}));
        QCOMPARE(listMembers(*custom, u"[ConsolMethods]"_s), QStringList{u"Global"_s});
    }

    void addedAccountsAndCustomsHaveEmptyAttributes()
    {
        const Reading reading = readText("!MEMBERS=Account\nA;ASSET\n!HIERARCHIES=Account\n;A\n");
        const auto account = reading.account();
        const MemberId active = account->GetMemberId(u"[Active]"_s);
        QCOMPARE(account->GetMemberDescription(active, 0), QString());
        QCOMPARE(account->GetDefaultParentLabel(active), QString());
        const auto view = account->accountAttributes();
        QCOMPARE(view->GetAccountTopCustom1(active), -1);
        QCOMPARE(view->GetAccountSecurityClassId(active), noClass);
        QCOMPARE(view->GetAccountUserDefined1(active), QString());
        QCOMPARE(reading.custom1()->customAttributes()->GetCustomUserDefined1(0), QString());
    }
};

QTEST_APPLESS_MAIN(tst_AddedMembers)
#include "tst_AddedMembers.moc"
