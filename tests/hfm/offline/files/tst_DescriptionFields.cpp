#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// An entity whose record ends with these fields.
Reading readEntity(const QByteArray &end)
{
    return readText("!MEMBERS=Entity\nA;;;;;;;;;;;" + end + "\n!HIERARCHIES=Entity\n;A\n");
}

} // namespace

/// What follows the positional fields of a member: its default parent and its descriptions.
class tst_DescriptionFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDescriptionIsSplitAtItsFirstEqualsSign()
    {
        const Reading reading = readEntity("DefaultParent=#root;English=a=b==c=;French==");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), u"a=b==c="_s);
        QCOMPARE(reading.entity()->GetMemberDescription(0, 1), u"="_s);
    }

    void thereMayBeAnyNumberOfThem()
    {
        QByteArray end = "DefaultParent=#root";
        for (int i = 0; i < 300; ++i)
            end += ";L" + QByteArray::number(i) + "=text " + QByteArray::number(i);
        const Reading reading = readEntity(end);
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.metadata()->GetLanguages().size(), 300);
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), u"text 0"_s);
        QCOMPARE(reading.entity()->GetMemberDescription(0, 299), u"text 299"_s);
    }

    void aMissingOneIsAbsentAndReadsAsTheEmptyString()
    {
        const Reading reading =
            readText("!MEMBERS=Entity\nA;;;;;;;;;;;DefaultParent=#root;English=The A;French=\n"
                     "B;;;;;;;;;;;DefaultParent=#root;French=Le B\n"
                     "C;;;;;;;;;;;DefaultParent=#root\nD;;;;;;;;;;;DefaultParent=#root;;\n"
                     "!HIERARCHIES=Entity\n;A\n;B\n;C\n;D\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto entity = reading.entity();
        QCOMPARE(entity->GetMemberDescription(0, 1), QString());
        QCOMPARE(entity->GetMemberDescription(1, 0), QString());
        QCOMPARE(entity->GetMemberDescription(1, 1), u"Le B"_s);
        QCOMPARE(entity->GetMemberDescription(2, 0), QString());
        QCOMPARE(entity->GetMemberDescription(3, 1), QString());
        QCOMPARE(entity->GetMemberDescription(0, 2), QString());
        QCOMPARE(entity->GetMemberDescription(0, 32767), QString());
        QCOMPARE(entity->GetMemberDescription(0, -1), QString());
    }

    void theDefaultParentFieldIsFoundInAnyCase_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char *name : {"DefaultParent=", "DEFAULTPARENT=", "defaultparent=",
                                 "dEFAULTpARENT=", "DefaultParent= "})
            QTest::newRow(name) << QByteArray(name);
    }

    void theDefaultParentFieldIsFoundInAnyCase()
    {
        QFETCH(QByteArray, name);
        const Reading reading =
            readText("!MEMBERS=Entity\nA;;;" + name + "#root;English=The A\nB;EUR;Y;" + name +
                     "a;English=The B\n!CURRENCIES\nEUR;0\n!HIERARCHIES=Entity\n;A\nA;B\n;B\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.entity()->GetDefaultParentLabel(1), u"A"_s);
        QCOMPARE(reading.entity()->GetMemberDescription(1, 0), u"The B"_s);
        QVERIFY(reading.entity()->entityAttributes()->GetEntityAllowAdjs(1));
    }

    void theRootIsTheDefaultParentOfATopMember_data()
    {
        QTest::addColumn<QByteArray>("root");
        QTest::newRow("#root") << QByteArray("#root");
        QTest::newRow("#ROOT") << QByteArray("#ROOT");
        QTest::newRow("empty") << QByteArray();
    }

    void theRootIsTheDefaultParentOfATopMember()
    {
        QFETCH(QByteArray, root);
        const Reading reading =
            readText("!MEMBERS=Entity\nA;;DefaultParent=" + root + "\nB;;DefaultParent=" + root +
                     "\n!HIERARCHIES=Entity\n;A\nA;B\n;B\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.entity()->GetDefaultParentLabel(1), QString());
        QCOMPARE(reading.entity()->GetDefaultParentGeneration(1), 0);
    }

    void aTextWithEqualsSignsBeforeTheDefaultParentIsNoDescription()
    {
        const Reading reading = readText("!MEMBERS=Entity\nA;;;;;;a=1;b=2;English=3;;;"
                                         "DefaultParent=#root;English=The A\n"
                                         "!HIERARCHIES=Entity\n;A\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto view = reading.entity()->entityAttributes();
        QCOMPARE(view->GetEntityUserDefined1(0), u"a=1"_s);
        QCOMPARE(view->GetEntityUserDefined2(0), u"b=2"_s);
        QCOMPARE(view->GetEntityUserDefined3(0), u"English=3"_s);
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), u"The A"_s);
    }

    void theSameLanguageTwiceTakesOneOfTheTwo()
    {
        const Reading reading = readEntity("DefaultParent=#root;English=one;english=two");
        QCOMPARE(reading.metadata()->GetLanguages(), QStringList{u"English"_s});
        const QString text = reading.entity()->GetMemberDescription(0, 0);
        QVERIFY(text == u"one"_s || text == u"two"_s);
    }

    void aFieldThatIsNoDescriptionIsAWarning()
    {
        const Reading reading = readEntity("DefaultParent=#root;stray;English=The A");
        QVERIFY(reading.warnsOnlyOf(2, {u"stray"_s}));
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), u"The A"_s);
    }

    void longTextsAreReadWhole()
    {
        const QByteArray description = QByteArray("long text ").repeated(2000).trimmed();
        const Reading reading = readEntity("DefaultParent=#root;English=" + description);
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), QString::fromLatin1(description));
    }
};

QTEST_APPLESS_MAIN(tst_DescriptionFields)
#include "tst_DescriptionFields.moc"
