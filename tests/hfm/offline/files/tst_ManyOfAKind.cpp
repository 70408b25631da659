#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Files with more of something than any sensible one has.
class tst_ManyOfAKind : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sectionsThatAlternateALotOfTimes()
    {
        constexpr int times = 100000;
        QByteArray text;
        for (int i = 0; i < times; ++i)
            text += "!MEMBERS=Entity\nM" + QByteArray::number(i) + "\n!HIERARCHIES=Entity\n;M" +
                    QByteArray::number(i) + "\n!X" + QByteArray::number(i) + "\nskipped\n";
        const Reading reading = readText(text);
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.entity()->EnumHierarchy().members.size(), times);
        QCOMPARE(reading.entity()->GetMemberLabel(times - 1), u"M99999"_s);
    }

    void fieldsOfOneRecord()
    {
        const Reading reading = readText("!MEMBERS=Entity\nA" + QByteArray(200000, ';') +
                                         "x;DefaultParent=#root;English=The A\n"
                                         "B;;Y;DefaultParent=#root\n!HIERARCHIES=Entity\n;A" +
                                         QByteArray(200000, ';') + "\n;B\n");
        QCOMPARE(treeOf(*reading.entity()), u"A\nB\n"_s);
        QVERIFY(reading.entity()->entityAttributes()->GetEntityAllowAdjs(1));
        QVERIFY(reading.warnsOf(2, {u"A"_s}));
    }

    void languagesOfOneRecord()
    {
        QByteArray text = "!MEMBERS=Entity\nA;DefaultParent=#root";
        for (int i = 0; i < 50000; ++i)
            text += ";L" + QByteArray::number(i) + "=text " + QByteArray::number(i);
        const Reading reading = readText(text + "\n!HIERARCHIES=Entity\n;A\n");
        const auto languages = reading.metadata()->GetLanguages();
        QVERIFY(languages.size() <= std::numeric_limits<qint16>::max());
        for (qsizetype i = 0; i < languages.size(); i += 1000)
            QCOMPARE(reading.entity()->GetMemberDescription(0, qint16(i)), u"text %1"_s.arg(i));
    }

    void customDimensionsInTheOrder()
    {
        QByteArrayList names;
        for (int i = 0; i < 100000; ++i)
            names.append("D" + QByteArray::number(i));
        const Reading reading = readText("!CUSTOM_ORDER=" + names.join(';') +
                                         "\n!HIERARCHIES=D1\n;X;1\n!MEMBERS=Account\nA;ASSET\n");
        QCOMPARE(treeOf(*reading.custom2()), u"X\n[None]\n"_s);
        QCOMPARE(reading.account()->accountAttributes()->GetAccountType(0), 2);
    }

    void columnsPerCustomDimension()
    {
        QByteArrayList names;
        for (int i = 0; i < 256; ++i)
            names.append("Dimension" + QByteArray(1000, 'x') + QByteArray::number(i));
        QByteArrayList columns;
        for (int i = 0; i < 60000; ++i)
            columns.append("TopMember");
        const Reading reading =
            readText("!CUSTOM_ORDER=" + names.join(';') + "\n!MEMBERS=Account\n'Label;" +
                     columns.join(';') + ';' + names[1] +
                     "TopMember;DefaultParent;Descriptions\nA;M;DefaultParent=#root\n"
                     "!HIERARCHIES=Account\n;A\n!HIERARCHIES=" +
                     names[0] + "\n;M;1\n");
        const auto view = reading.account()->accountAttributes();
        QCOMPARE(view->GetAccountTopCustom1(0), reading.custom1()->GetMemberId(u"M"_s));
    }

    void currenciesThatMightCloseACircleUnderALongChain()
    {
        constexpr int many = 20000;
        QByteArray values = "!HIERARCHIES=Value\n";
        QByteArray currencies = "!CURRENCIES\n";
        for (int i = 0; i < many; ++i) {
            const QByteArray number = QByteArray::number(i);
            values += "V" + number + ";V" + QByteArray::number(i + 1) + "\nC" + number + ";D" +
                      number + "\nV20000;C" + number + " Total\n";
            currencies += "C" + number + '\n';
        }
        const Reading reading = readText(values + currencies);
        const auto value = reading.value();
        QCOMPARE(value->GetChildCount(value->GetMemberId(u"C0 Total"_s)), 2);
        for (int i = 0; i < many; i += 1000)
            QVERIFY(value->GetMemberId(u"C%1 Adjs"_s.arg(i)) >= 0);
    }

    void currenciesAndClassesAndTopMembers()
    {
        constexpr int many = 50000;
        QByteArray text = "!MEMBERS=Entity\n";
        for (int i = 0; i < many; ++i) {
            const QByteArray number = QByteArray::number(i);
            text += "E" + number + ";C" + number + ";;;;S" + number + ";DefaultParent=#root\n";
        }
        text += "!MEMBERS=Account\n";
        for (int i = 0; i < many; ++i) {
            const QByteArray number = QByteArray::number(i);
            text += "A" + number + ";ASSET;;;;;T" + number + ";DefaultParent=#root\n";
        }
        const Reading reading = readText(text);
        const auto entity = reading.entity()->entityAttributes();
        QCOMPARE(reading.value()->GetMemberLabel(entity->GetEntityCurrencyId(many - 1)),
                 u"C49999"_s);
        const auto account = reading.account()->accountAttributes();
        QCOMPARE(reading.custom1()->GetMemberLabel(account->GetAccountTopCustom1(many - 1)),
                 u"T49999"_s);
    }

    void lettersThatFoldToTwoAreNotTheSameAsThoseTwo()
    {
        const Reading reading = readText("!MEMBERS=Entity\nStra\xC3\x9F"
                                         "e\nStrasse\n"
                                         "!HIERARCHIES=Entity\n;Strasse\n;Stra\xC3\x9F"
                                         "e\n");
        QCOMPARE(reading.entity()->EnumAllMemberLabels(), QStringList({u"Straße"_s, u"Strasse"_s}));
    }
};

QTEST_APPLESS_MAIN(tst_ManyOfAKind)
#include "tst_ManyOfAKind.moc"
