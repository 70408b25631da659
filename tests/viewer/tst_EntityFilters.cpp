#include "support/FakeHfm.h"
#include "viewer/EntityFilters.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_EntityFilters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyFiltersLetEveryEntityPass()
    {
        const EntityFilter filter{true, {}, {}};
        QVERIFY(filter.passes(u"EUR"_s, u"Europe"_s));
        QVERIFY(filter.passes({}, {}));
    }

    void aCurrencyInLowerCaseMatchesTheSameInUpperCase()
    {
        const EntityFilter filter{true, u"eur"_s, {}};
        QVERIFY(filter.passes(u"EUR"_s, u"Europe"_s));
        QVERIFY(!filter.passes(u"USD"_s, u"Europe"_s));
        QVERIFY(!filter.passes({}, u"Europe"_s));
        QVERIFY(!filter.passes(u"EUR "_s, u"Europe"_s));
    }

    void aSecurityClassComparesInAnyCase()
    {
        const EntityFilter filter{true, {}, u"EuRoPe"_s};
        QVERIFY(filter.passes(u"EUR"_s, u"europe"_s));
        QVERIFY(!filter.passes(u"EUR"_s, u"Europe West"_s));
    }

    void anEntityWithoutAClassIsFoundByDefault()
    {
        const EntityFilter filter{true, {}, u"[default]"_s};
        QVERIFY(filter.passes(u"EUR"_s, u"[Default]"_s));
    }

    void bothFiltersMustBeMet()
    {
        const EntityFilter filter{true, u"EUR"_s, u"Europe"_s};
        QVERIFY(filter.passes(u"EUR"_s, u"Europe"_s));
        QVERIFY(!filter.passes(u"EUR"_s, u"Asia"_s));
        QVERIFY(!filter.passes(u"USD"_s, u"Europe"_s));
    }

    void allIsComparedLikeAnyOtherText()
    {
        const EntityFilter all{true, u"ALL CURRENCIES"_s, u"ALL SECURITY CLASSES"_s};
        QVERIFY(!all.passes(u"EUR"_s, u"Europe"_s));
        QVERIFY(all.passes(u"All Currencies"_s, u"All Security Classes"_s));
    }

    void theClassesComeInTheClientsOrder()
    {
        FakeHfm hfm;
        hfm.application().security->addClass(u"Zebra"_s);
        hfm.application().security->addClass(u"Ant"_s);
        QCOMPARE(EntityFilterLists::securityClasses(*hfm.application().security),
                 QStringList({u"ALL SECURITY CLASSES"_s, u"Zebra"_s, u"Ant"_s}));
    }

    void anApplicationWithoutClassesOffersAllAlone()
    {
        FakeHfm hfm;
        QCOMPARE(EntityFilterLists::securityClasses(*hfm.application().security),
                 QStringList{u"ALL SECURITY CLASSES"_s});
        QCOMPARE(EntityFilterLists::currencies(hfm.application().value()),
                 QStringList{u"ALL CURRENCIES"_s});
    }

    void theCurrenciesAreThoseValueMembersThatAreNoParts()
    {
        FakeHfm hfm;
        hfm.application().value().setMembers(u"[None]\n"
                                             "USD Total\n"
                                             "  USD\n"
                                             "  USD Adjs\n"
                                             "<Entity Currency>\n"
                                             "EUR total\n"
                                             "  EUR\n"
                                             "  EUR aDJS\n"_s);
        QCOMPARE(EntityFilterLists::currencies(hfm.application().value()),
                 QStringList({u"ALL CURRENCIES"_s, u"USD"_s, u"EUR"_s}));
    }

    void whatIsTakenForACurrency_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("isCurrency");
        QTest::newRow("plain") << u"USD"_s << true;
        QTest::newRow("bracket") << u"[None]"_s << false;
        QTest::newRow("angle") << u"<Parent>"_s << false;
        QTest::newRow("adjs") << u"USD Adjs"_s << false;
        QTest::newRow("adjs alone") << u"adjs"_s << false;
        QTest::newRow("adjs within a word") << u"USDADJS"_s << false;
        QTest::newRow("adj") << u"USD Adj"_s << true;
        QTest::newRow("total") << u"USD TOTAL"_s << false;
        QTest::newRow("total alone") << u"Total"_s << false;
        QTest::newRow("total in front") << u"Total USD"_s << true;
        QTest::newRow("bracket behind") << u"A[B]<C>"_s << true;
        QTest::newRow("short") << u"T"_s << true;
        QTest::newRow("empty") << QString() << true;
    }
    void whatIsTakenForACurrency()
    {
        QFETCH(QString, label);
        QFETCH(bool, isCurrency);
        QCOMPARE(EntityFilterLists::isCurrency(label), isCurrency);
    }
};

QTEST_APPLESS_MAIN(tst_EntityFilters)
#include "tst_EntityFilters.moc"
