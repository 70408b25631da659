#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Labels that break HFM's rules stand as they are written.
class tst_BrokenLabels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelsAreReadAsTheyStand_data()
    {
        QTest::addColumn<QString>("label");
        for (const char *label :
             {"a*b", "a@b", "a,b",  "{a}",  "}a{", "\"a\"", "a/b", "a-b", "a#b", "a.b",
              "a+b", "-a",  "+a",   "=a",   "a=b", "#a",    "'",   "a'b", "a!b", "*",
              "@x",  "#",   "a  b", "a\tb", "<a>", "[a",    "a]",  "%",   "$",   "~",
              "^",   "&",   "|",    ":",    "?",   "\\",    "0",   "-1",  "Y",   "English"})
            QTest::newRow(label) << QString::fromLatin1(label);
        QTest::newRow("long") << QString(81, u'x');
        QTest::newRow("very long") << QString(5000, u'x');
        QTest::newRow("accents") << u"Été à Zürich"_s;
        QTest::newRow("other script") << u"東京支店"_s;
        QTest::newRow("no-break space") << u"\u00A0a\u00A0"_s;
        QTest::newRow("combining") << u"e\u0301"_s;
        QTest::newRow("line separator") << u"a\u2028b\u0085c"_s;
        QTest::newRow("control") << u"a\u0001b\u007F"_s;
    }

    void labelsAreReadAsTheyStand()
    {
        QFETCH(QString, label);
        const QByteArray bytes = label.toUtf8();
        const Reading reading = readText(
            "!HIERARCHIES=Entity\n;First\n;Top " + bytes + "\nTop " + bytes + ';' + bytes +
            "\n!MEMBERS=Entity\nFirst\n" + "Top " + bytes + "\n" +
            (label.startsWith(u'\'') ? "" : bytes + ";;Y;DefaultParent=Top " + bytes + '\n'));
        const auto entity = reading.entity();
        QCOMPARE(treeOf(*entity), u"First\nTop %1\n  %1\n"_s.arg(label));
        const auto id = entity->GetMemberId(label);
        QCOMPARE(entity->GetMemberLabel(id), label);
        QCOMPARE(entity->GetDefaultParentLabel(id), u"Top "_s + label);
        if (!label.startsWith(u'\'')) {
            QVERIFY(entity->entityAttributes()->GetEntityAllowAdjs(id));
            QCOMPARE(reading.warnings(), QStringList());
        }
    }

    void severalThousandCharactersInAMessageAreCut()
    {
        const QByteArray label(100000, 'x');
        const Reading reading = readText("!HIERARCHIES=Entity\n;" + label + '\n');
        QCOMPARE(reading.warnings().size(), 1);
        QVERIFY(reading.warnings().first().size() < 500);
        const Reading cycle =
            readText("!HIERARCHIES=Entity\n;A\nA;" + label + '\n' + label + ";A\n");
        QVERIFY(cycle.refusal);
        QVERIFY(cycle.refusal->reason().size() < 500);
    }

    void theSameLabelMayStandInEveryDimension()
    {
        const Reading reading = readText("!HIERARCHIES=Entity\n;X\n!HIERARCHIES=Account\n;X\n"
                                         "!HIERARCHIES=Custom1\n;X;1\n!HIERARCHIES=Scenario\n;X\n");
        QCOMPARE(treeOf(*reading.entity()), u"X\n"_s);
        QVERIFY(treeOf(*reading.account()).startsWith(u"X\n[Active]\n"_s));
        QCOMPARE(treeOf(*reading.custom1()), u"X\n[None]\n"_s);
        QCOMPARE(treeOf(*reading.metadata()->GetScenarioDimension()), u"X\n"_s);
    }

    void aLabelMayLookLikeASectionOrAComment()
    {
        const Reading reading = readText("!HIERARCHIES=Entity\n;'A\n;!MEMBERS=Entity\n;#root\n");
        const auto labels = reading.entity()->EnumAllMemberLabels();
        QVERIFY(labels.contains(u"'A"_s));
        QVERIFY(labels.contains(u"!MEMBERS=Entity"_s));
    }
};

QTEST_APPLESS_MAIN(tst_BrokenLabels)
#include "tst_BrokenLabels.moc"
