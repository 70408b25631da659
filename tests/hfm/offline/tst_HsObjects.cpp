#include "ListText.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace hfm::offline;

namespace {

/// The value of an expression of a script, as text: the name of a list that is named by it.
QString valueOf(const QString &expression, DimensionKind kind = DimensionKind::Account)
{
    const QByteArray script =
        u"Function Shown(value)\nIf IsArray(value) Then Shown = Join(value, \" \") Else Shown = "
        "\"\" & value\nEnd Function\n"
        "Sub EnumMemberLists()\nDim x(1)\nx(1) = \"<\" & Shown(%1) & \">\"\nHS.SetMemberLists x\n"
        "End Sub\nSub EnumMembersInList()\nEnd Sub\n"_s.arg(expression)
            .toUtf8();
    ListText lists(script);
    const QString name = lists.names(kind).value(0).section(u' ', 1);
    if (!name.isEmpty())
        return name.sliced(1).chopped(1);
    return u"! "_s + lists.warnings().value(0).section(u": "_s, 2);
}

} // namespace

/// What a member list script can ask of HS and its objects.
class tst_HsObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expressionsHaveTheirValues_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QString>("value");
        const auto row = [](const char *expression, const char *value) {
            QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(value);
        };
        row("HS.Dimension", "Account");
        row("hs.dimension", "Account");
        row("IsEmpty(HS.MemberListID)", "True");
        row("HS.AppSettings.Currency", "EUR");
        row("HS.AppSettings.DefCurrency", "EUR");

        // Lists.
        row("HS.Entity.List(\"\", \"\")", "[None] GROUP EAST E1 E2 WEST E3 HOLDCO SPARE");
        row("HS.Entity.List(\"\", \"[Hierarchy]\")", "[None] GROUP EAST E1 E2 WEST E3 HOLDCO");
        row("HS.Parent.List(\"EAST\", \"[Children]\")", "E1 E2");
        row("HS.Entity.List(\"GROUP\", \"[base]\")", "E1 E2 E3 HOLDCO");
        row("HS.Entity.List(\"WEST\", \"\")", "E2 E3");
        row("HS.Entity.List(\"E2\", \"[Ancestors]\")", "GROUP EAST WEST");
        row("HS.Entity.List(\"E2\", \"[Parents]\")", "EAST WEST");
        row("HS.Entity.List(\"\", \"[Parents]\")", "");
        row("UBound(HS.Entity.List(\"E1\", \"[Children]\"))", "-1");
        row("HS.Entity.List(HS.Entity.DefaultParent(\"E3\"), \"[Children]\")", "E2 E3");
        row("HS.Account.List(\"PL\", \"[Descendants]\")", "SALES COST");
        row("HS.Scenario.List(\"\", \"\")", "ACTUAL BUDGET");
        row("HS.ICP.List(\"[ICP Entities]\", \"[Base]\")", "E1 E2");
        row("HS.Custom1.List(\"CLO\", \"[Children]\")", "OPE");
        row("HS.Custom(\"Movement\").List(\"CLO\", \"[Children]\")", "OPE");
        row("HS.Custom(\"custom1\").List(\"CLO\", \"[Children]\")", "OPE");
        row("HS.Custom2.List(\"\", \"[Currencies]\")", "EUR USD");

        // Entities.
        row("HS.Entity.DefCurrency(\"E1\")", "USD");
        row("HS.Entity.DefCurrency(\"e3\")", "[None]");
        row("HS.Entity.IsICP(\"E1\")", "True");
        row("HS.Entity.IsICP(\"GROUP\")", "False");
        row("HS.Entity.Holding(\"GROUP\")", "HOLDCO");
        row("HS.Entity.Holding(\"E1\")", "");
        row("HS.Entity.UD1(\"GROUP\")", "Holding");
        row("HS.Entity.UD2(\"GROUP\")", "");
        row("HS.Entity.UD3(\"GROUP\")", "x y");
        row("HS.Parent.UD2(\"E1\")", "US");
        row("HS.Entity.SecurityClass(\"E1\")", "SC_US");
        row("HS.Entity.SecurityClass(\"E2\")", "");
        row("HS.Entity.DefaultParent(\"E2\")", "WEST");
        row("HS.Entity.DefaultParent(\"GROUP\")", "");
        row("HS.Entity.DefaultParent(\"SPARE\")", "");

        // Accounts.
        row("HS.Account.AccountType(\"SALES\")", "REVENUE");
        row("HS.Account.AccountType(\"PL\")", "GROUPLABEL");
        row("HS.Account.IsCalculated(\"COST\")", "True");
        row("HS.Account.IsCalculated(\"SALES\")", "False");
        row("HS.Account.IsConsolidated(\"SALES\")", "True");
        row("HS.Account.IsICP(\"SALES\")", "True");
        row("HS.Account.IsICP(\"COST\")", "False");
        row("HS.Account.UD2(\"SALES\")", "two");
        row("HS.Account.SecurityClass(\"SALES\")", "SC_PL");

        // The others.
        row("HS.Scenario.UD1(\"ACTUAL\")", "s1");
        row("HS.Scenario.UD3(\"ACTUAL\")", "s3");
        row("HS.Scenario.SecurityClass(\"ACTUAL\")", "SC_SCN");
        row("HS.Scenario.SecurityClass(\"BUDGET\")", "");
        row("HS.Custom1.UD3(\"CLO\")", "c3");
        row("HS.Custom1.SecurityClass(\"CLO\")", "SC_PL");
        row("HS.Custom1.UD1(\"[None]\")", "");
        row("HS.ICP.SecurityClass(\"E1\")", "SC_ICP");
        row("HS.ICP.SecurityClass(\"E2\")", "");

        // Where members stand.
        row("HS.Entity.IsBase(\"GROUP\", \"E1\")", "True");
        row("HS.Entity.IsBase(\"GROUP\", \"EAST\")", "False");
        row("HS.Entity.IsBase(\"\", \"E1\")", "True");
        row("HS.Entity.IsBase(\"\", \"SPARE\")", "False");
        row("HS.Entity.IsBase(\"EAST\", \"E3\")", "False");
        row("HS.Entity.IsChild(\"EAST\", \"E2\")", "True");
        row("HS.Entity.IsChild(\"GROUP\", \"E2\")", "False");
        row("HS.Entity.IsChild(\"\", \"GROUP\")", "True");
        row("HS.Entity.IsDescendant(\"GROUP\", \"E3\")", "True");
        row("HS.Entity.IsDescendant(\"GROUP\", \"GROUP\")", "False");
        row("HS.Entity.IsDescendant(\"EAST\", \"E3\")", "False");
        row("HS.Entity.IsDescendant(\"E1\", \"E3\")", "False");
        row("HS.Entity.NumBase(\"GROUP\")", "4");
        row("HS.Entity.NumChild(\"GROUP\")", "3");
        row("HS.Entity.NumDescendant(\"GROUP\")", "6");
        row("HS.Entity.NumDescendant(\"E1\")", "0");

        // Failures.
        row("HS.Entity.UD1(\"NOBODY\")", "! 'NOBODY' is not a member of Entity. (column 30)");
        row("HS.Entity.UD1(\"\")", "! '' is not a member of Entity. (column 30)");
        row("HS.Entity.List(\"NOBODY\", \"[Base]\")",
            "! 'NOBODY' is not a member of Entity. (column 30)");
        row("HS.Custom(\"Nothing\").UD1(\"x\")", "! 'Nothing' is no custom dimension. (column 23)");
        row("HS.Node.PCON(\"x\")",
            "! Object doesn't support this property or method: 'HS.Node' (column 23)");
        row("HS.GetCell(\"A#x\")",
            "! Object doesn't support this property or method: 'HS.GetCell' (column 23)");
        row("HS.Account.DefCurrency(\"PL\")",
            "! Object doesn't support this property or method: 'HS.Account.DefCurrency' (column "
            "31)");
        row("HS.ICP.UD1(\"E1\")",
            "! Object doesn't support this property or method: 'HS.ICP.UD1' (column 27)");
        row("HS.Entity.NumBase()", "! Wrong number of arguments or invalid property assignment: "
                                   "'NumBase' (column 30)");
        row("HS.Entity.Entity", "! Wrong number of arguments or invalid property assignment: "
                                "'Entity' (column 30)");
        row("HS.AppSettings.Entity",
            "! Object doesn't support this property or method: 'HS.AppSettings.Entity' (column "
            "35)");
        row("HS.AddMemberToList(\"PL\")",
            "! HS.AddMemberToList can be used in EnumMembersInList only. (column 23)");
        row("HS(1)", "! Object doesn't support this property or method: 'HS' (column 20)");
    }

    void expressionsHaveTheirValues()
    {
        QFETCH(QString, expression);
        QFETCH(QString, value);
        QCOMPARE(valueOf(expression), value);
    }

    void membersOfAListAreToldWhichListAndDimensionItIs()
    {
        ListText lists =
            ListText::of("Entity", {"A", "B"},
                         "Case 2\nIf HS.Dimension = \"Entity\" And HS.MemberListID = 2 Then\n"
                         "HS.AddMemberToList \"E1\"\nEnd If");
        QCOMPARE(lists.members(DimensionKind::Entity, u"B"_s), u"E1"_s);
        QCOMPARE(lists.members(DimensionKind::Entity, u"A"_s), QString());
    }

    void addEntityToListIsForEntitiesAndSetMemberListsForNames()
    {
        ListText lists = ListText::of("Account", {"A", "B"},
                                      "Case 1\nHS.AddEntityToList \"GROUP\", \"EAST\"\n"
                                      "Case 2\nHS.SetMemberLists Array(1)");
        QCOMPARE(lists.warnings(),
                 QStringList({u"12: The list 'A' of Account is empty: HS.AddEntityToList can be "
                              "used for lists of Entity only. (column 4)"_s,
                              u"14: The list 'B' of Account is empty: HS.SetMemberLists can be "
                              "used in EnumMemberLists only. (column 4)"_s}));
    }

    void aListThatThereIsNotIsAnError()
    {
        ListText lists = ListText::ofAccounts("x = HS.Entity.List(\"\", \"Nothing\")");
        QCOMPARE(lists.warnings(),
                 QStringList{u"11: The list 'List' of Account is empty: 'Nothing' is not a member "
                             "list of Entity. (column 15)"_s});
    }

    void aMissingMemberCanBePassedOver()
    {
        ListText lists = ListText::ofAccounts("On Error Resume Next\nx = HS.Account.UD1(\"Q\")\n"
                                              "HS.AddMemberToList \"PL\"");
        QCOMPARE(lists.accounts(), u"PL"_s);
    }

    void objectsCanBeKeptInVariables()
    {
        ListText lists = ListText::ofAccounts("Set a = HS.Account\nSet h = HS\n"
                                              "For Each x In a.List(\"PL\", \"[Children]\")\n"
                                              "If a.IsCalculated(x) Then h.AddMemberToList x\n"
                                              "Next");
        QCOMPARE(lists.accounts(), u"COST"_s);
        QCOMPARE(lists.warnings(), QStringList());
    }

    void labelsOfOneDimensionNameMembersOfAnother()
    {
        ListText lists = ListText::of("Entity", {"Partners"},
                                      "Case 1\n"
                                      "For Each x In HS.ICP.List(\"[ICP Entities]\", \"[Base]\")\n"
                                      "If HS.Entity.DefCurrency(x) = \"USD\" Then "
                                      "HS.AddEntityToList HS.Entity.DefaultParent(x), x\nNext");
        QCOMPARE(lists.members(DimensionKind::Entity, u"Partners"_s), u"E1"_s);
    }
};

QTEST_APPLESS_MAIN(tst_HsObjects)
#include "tst_HsObjects.moc"
