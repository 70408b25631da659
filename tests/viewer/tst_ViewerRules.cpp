#include "viewer/ViewerRules.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_ViewerRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePanelNamesTheApplication()
    {
        QCOMPARE(ViewerRules::applicationPanel(u"Comma"_s), u"Application: Comma"_s);
    }

    void theDimensionIsNamedInUpperCase()
    {
        QCOMPARE(ViewerRules::dimensionCaption(u"Account"_s), u"ACCOUNT Dimension"_s);
    }

    void onlySixDimensionsCanBeViewed_data()
    {
        QTest::addColumn<bool>("supported");
        for (const char *name : {"ENTITY", "ACCOUNT", "CUSTOM1", "CUSTOM2", "CUSTOM3", "CUSTOM4"})
            QTest::newRow(name) << true;
        for (const char *name :
             {"SCENARIO", "YEAR", "PERIOD", "VIEW", "VALUE", "ICP", "CUSTOM5", "Entity", ""})
            QTest::newRow(name) << false;
    }
    void onlySixDimensionsCanBeViewed()
    {
        QFETCH(bool, supported);
        QCOMPARE(ViewerRules::isSupported(QString::fromLatin1(QTest::currentDataTag())), supported);
    }

    void anUnsupportedDimensionIsTold()
    {
        const Prompt expected{u"Unsupported Dimension"_s,
                              u"The SCENARIO dimension is not yet support for metadata viewing."_s,
                              Prompt::Icon::Exclamation, Prompt::Buttons::OkCancel};
        QCOMPARE(ViewerRules::unsupportedDimension(u"SCENARIO"_s), expected);
    }

    void onlyEntitiesHaveFilters()
    {
        QVERIFY(ViewerRules::hasEntityFilters(u"ENTITY"_s));
        QVERIFY(ViewerRules::hasEntityFilters(u"Entity"_s));
        QVERIFY(!ViewerRules::hasEntityFilters(u"ACCOUNT"_s));
        QVERIFY(!ViewerRules::hasEntityFilters(QString()));
    }

    void totalsArePlainDecimal()
    {
        QCOMPARE(ViewerRules::totals(1235, 7), u"1235 Total Members - 7 levels"_s);
        QCOMPARE(ViewerRules::totals(0, 0), u"0 Total Members - 0 levels"_s);
        QCOMPARE(ViewerRules::topMemberTotals(1234567, u"%1 Sales"_s, 3),
                 u"1234567 Total Members from Top Member of %1 Sales - 3 levels"_s);
    }
};

QTEST_APPLESS_MAIN(tst_ViewerRules)
#include "tst_ViewerRules.moc"
