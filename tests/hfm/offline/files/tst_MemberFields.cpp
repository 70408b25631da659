#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QString className(const Reading &reading, hfm::ClassId id)
{
    return reading.session()->GetSecurity()->GetSecurityClassName(id);
}

/// The first `count` fields, with what follows them in a record.
QByteArray record(const QByteArrayList &fields, qsizetype count)
{
    return fields.first(count).join(';') + ";DefaultParent=#root;English=Described\n";
}

} // namespace

/// The fields of entities, scenarios, customs, values and intercompany partners.
class tst_MemberFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entitiesHaveElevenFieldsAndTheMissingOnesAreEmpty()
    {
        const QByteArrayList fields = {"A",   "EUR", "Y",     "Y",       "Y",   "SC",
                                       "one", "two", "three", "HOLDING", "SC_P"};
        for (qsizetype count = 1; count <= fields.size(); ++count) {
            const Reading reading = readText("!CURRENCIES\nEUR;0\n!MEMBERS=Entity\n" +
                                             record(fields, count) + "!HIERARCHIES=Entity\n;A\n");
            QCOMPARE(reading.warnings(), QStringList());
            const auto entity = reading.entity();
            QCOMPARE(entity->GetMemberDescription(0, 0), u"Described"_s);
            const auto view = entity->entityAttributes();
            QCOMPARE(reading.value()->GetMemberLabel(view->GetEntityCurrencyId(0)),
                     count > 1 ? u"EUR"_s : u"[None]"_s);
            QCOMPARE(view->GetEntityAllowAdjs(0), count > 2);
            QCOMPARE(view->GetEntityIsICP(0), count > 3);
            QCOMPARE(view->GetEntityAllowChildAdjs(0), count > 4);
            QCOMPARE(view->GetEntitySecurityClassId(0) != hfm::noClass, count > 5);
            QCOMPARE(view->GetEntityUserDefined1(0), count > 6 ? u"one"_s : QString());
            QCOMPARE(view->GetEntityUserDefined2(0), count > 7 ? u"two"_s : QString());
            QCOMPARE(view->GetEntityUserDefined3(0), count > 8 ? u"three"_s : QString());
        }
    }

    void aRecordOfALabelAloneIsAMember()
    {
        const Reading reading = readText("!MEMBERS=Entity\nA\nB;\n!HIERARCHIES=Entity\n;A\nA;B\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n"_s);
        QCOMPARE(reading.entity()->GetDefaultParentLabel(1), u"A"_s);
    }

    void scenariosHaveFourteenToSixteenFields()
    {
        QByteArrayList fields = {"S",     "MTD", "YTD", "Y",  "Y", "Y", "one", "two",
                                 "three", "Y",   "SC",  "10", "Y", "Y", "15",  "16"};
        for (qsizetype count = 1; count <= fields.size(); ++count) {
            const Reading reading = readText("!MEMBERS=Scenario\n" + record(fields, count) +
                                             "!HIERARCHIES=Scenario\n;S\n");
            QCOMPARE(reading.warnings(), QStringList());
            const auto scenario = reading.metadata()->GetScenarioDimension();
            QCOMPARE(treeOf(*scenario), u"S\n"_s);
            QCOMPARE(scenario->GetMemberDescription(0, 0), u"Described"_s);
        }
        fields.append("17");
        QVERIFY(readText("!MEMBERS=Scenario\n" + record(fields, 17) + "!HIERARCHIES=Scenario\n;S\n")
                    .warnsOnlyOf(2, {u"S"_s}));
    }

    void customsHaveEightOrNineFieldsAndTheMissingOnesAreEmpty()
    {
        const QByteArrayList fields = {"C", "Y", "N", "Y", "one", "two", "three", "SC", "group"};
        for (qsizetype count = 1; count <= fields.size(); ++count) {
            const Reading reading = readText("!MEMBERS=Custom2\n" + record(fields, count) +
                                             "!HIERARCHIES=Custom2\n;C;1\n");
            QCOMPARE(reading.warnings(), QStringList());
            QCOMPARE(reading.custom2()->GetMemberDescription(0, 0), u"Described"_s);
            const auto view = reading.custom2()->customAttributes();
            QCOMPARE(view->GetCustomUserDefined1(0), count > 4 ? u"one"_s : QString());
            QCOMPARE(view->GetCustomUserDefined2(0), count > 5 ? u"two"_s : QString());
            QCOMPARE(view->GetCustomUserDefined3(0), count > 6 ? u"three"_s : QString());
            QCOMPARE(view->GetCustomSecurityClassId(0) != hfm::noClass, count > 7);
        }
    }

    void classesAreKeptByTheirNames()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\nA;;;;;SC_E;;;;;;DefaultParent=#root\n"
                     "!HIERARCHIES=Entity\n;A\n!MEMBERS=Account\n"
                     "B;ASSET;N;N;N;;;;;;0;N;N;N;N;N;;;;;sc_e;;N;DefaultParent=#root\n"
                     "!HIERARCHIES=Account\n;B\n!MEMBERS=Custom1\n"
                     "C;N;N;N;;;;SC_C;DefaultParent=#root\n!HIERARCHIES=Custom1\n;C;1\n");
        const auto entity = reading.entity()->entityAttributes()->GetEntitySecurityClassId(0);
        const auto account = reading.account()->accountAttributes()->GetAccountSecurityClassId(0);
        const auto custom = reading.custom1()->customAttributes()->GetCustomSecurityClassId(0);
        QCOMPARE(className(reading, entity), u"SC_E"_s);
        QCOMPARE(account, entity);
        QCOMPARE(className(reading, custom), u"SC_C"_s);
    }

    void valuesHaveALabelAndDescriptions()
    {
        const Reading reading =
            readText("!CURRENCIES\nEUR;0\n!MEMBERS=Value\n"
                     "[None];English=No value;French=Aucune\n[Elimination];English=Elimination\n"
                     "EUR Total\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto value = reading.value();
        QCOMPARE(value->EnumAllMemberLabels().first(3),
                 QStringList({u"[None]"_s, u"[Elimination]"_s, u"EUR Total"_s}));
        QCOMPARE(value->GetMemberDescription(0, 1), u"Aucune"_s);
        QCOMPARE(value->GetMemberDescription(1, 0), u"Elimination"_s);
        QCOMPARE(value->GetDefaultParentLabel(1), u"[Contribution]"_s);
        QCOMPARE(value->EnumAllMembers().size(), 15 + 3);
    }

    void partnersHaveALabelAClassAndDescriptions()
    {
        const Reading reading =
            readText("!MEMBERS=ICP\n[ICP Top];;English=Top\n[ICP None];SC;English=Nobody\n"
                     "[ICP Entities]\nA;SC;English=The A = one\n"
                     "!MEMBERS=Entity\nB;;;Y;;;;;;;;DefaultParent=#root;English=The B\n"
                     "A;;;Y;;;;;;;;DefaultParent=#root;English=As entity\n"
                     "!HIERARCHIES=Entity\n;B\n;A\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto partners = reading.metadata()->GetICPDimension();
        QCOMPARE(treeOf(*partners), u"[ICP Top]\n  [ICP None]\n  [ICP Entities]\n    B\n    A\n"_s);
        QCOMPARE(partners->GetMemberDescription(1, 0), u"Nobody"_s);
        QCOMPARE(partners->GetMemberDescription(3, 0), u"The A = one"_s);
        QCOMPARE(partners->GetMemberDescription(4, 0), u"The B"_s);
    }
};

QTEST_APPLESS_MAIN(tst_MemberFields)
#include "tst_MemberFields.moc"
