#include "Reading.h"

#include <QDir>
#include <QStringEncoder>
#include <QTest>

using namespace hfm;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray entities = "!MEMBERS=Entity\nA;DefaultParent=#root;English=The A\n"
                            "!HIERARCHIES=Entity\n;A\n";

const QByteArray profile =
    "!LANGUAGES\nItalian\nEnglish\n"
    "!MEMBERS=Year\n'Label;DefaultParent;Descriptions\n"
    "2011;DefaultParent=#root;English=Eleven\n2010;DefaultParent=#root;Italian=Dieci\n"
    "!HIERARCHIES=Year\n;2011\n;2010\n"
    "!MEMBERS=Period\nFY;DefaultParent=#root\nP1;DefaultParent=FY;English=First\n"
    "!HIERARCHIES=Period\n;FY\nFY;P1\n"
    "!MEMBERS=View\nYTD;DefaultParent=#root\n!HIERARCHIES=View\n;YTD\n";

const QString usualYears = u"2007\n2008\n2009\n2010\n2011\n2012\n2013\n2014\n2015\n2016\n2017\n"_s;
const QString usualPeriods = u"[Year]\n  Q1\n    Jan\n    Feb\n    Mar\n  Q2\n    Apr\n    May\n"
                             "    Jun\n  Q3\n    Jul\n    Aug\n    Sep\n  Q4\n    Oct\n    Nov\n"
                             "    Dec\n"_s;
const QString usualViews = u"<Scenario View>\nYTD\nQTD\nMTD\nPeriodic\n"_s;

void compareProfile(const Reading &reading)
{
    const auto metadata = reading.metadata();
    QCOMPARE(metadata->GetLanguages(), QStringList({u"Italian"_s, u"English"_s}));
    const auto years = metadata->GetYearDimension();
    QCOMPARE(treeOf(*years), u"2011\n2010\n"_s);
    QCOMPARE(years->GetMemberDescription(0, 1), u"Eleven"_s);
    QCOMPARE(years->GetMemberDescription(1, 0), u"Dieci"_s);
    QCOMPARE(treeOf(*metadata->GetPeriodDimension()), u"FY\n  P1\n"_s);
    QCOMPARE(metadata->GetPeriodDimension()->GetDefaultParentLabel(1), u"FY"_s);
    QCOMPARE(treeOf(*metadata->GetViewDimension()), u"YTD\n"_s);
    QCOMPARE(reading.entity()->GetMemberDescription(0, 1), u"The A"_s);
    QCOMPARE(reading.warnings(), QStringList());
}

} // namespace

/// Languages, years, periods and views.
class tst_ProfileFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theProfileTellsLanguagesYearsPeriodsAndViews()
    {
        compareProfile(readTexts({entities, profile}));
    }

    void theSameSectionsAreAcceptedInTheMetadataFile()
    {
        compareProfile(readText(entities + profile));
        compareProfile(readText(profile + entities));
    }

    void whereNothingTellsThemTheyAreTheUsualOnes()
    {
        for (const Reading &reading :
             {readText(entities), readTexts({entities, ""}), readTexts({entities, "'nothing\n"})}) {
            const auto metadata = reading.metadata();
            QCOMPARE(treeOf(*metadata->GetYearDimension()), usualYears);
            QCOMPARE(treeOf(*metadata->GetPeriodDimension()), usualPeriods);
            QCOMPARE(treeOf(*metadata->GetViewDimension()), usualViews);
            QCOMPARE(metadata->GetLanguages(), QStringList{u"English"_s});
            QCOMPARE(reading.warnings(), QStringList());
        }
    }

    void whatTheProfileDoesNotTellIsUsual()
    {
        const Reading reading = readTexts({entities, "!HIERARCHIES=View\n;Mine\n"});
        const auto metadata = reading.metadata();
        QCOMPARE(treeOf(*metadata->GetYearDimension()), usualYears);
        QCOMPARE(treeOf(*metadata->GetPeriodDimension()), usualPeriods);
        QCOMPARE(treeOf(*metadata->GetViewDimension()), u"Mine\n"_s);
    }

    void theYearsAreAroundTheCurrentOne()
    {
        const ClusterFolder cluster;
        cluster.write(u"Test.app"_s, entities);
        const auto application =
            hfm::offline::readApplication(cluster.applications().first(), 1999);
        const auto labels =
            Reading{application, {}}.metadata()->GetYearDimension()->EnumAllMemberLabels();
        QCOMPARE(labels.size(), 11);
        QCOMPARE(labels.first(), u"1994"_s);
        QCOMPARE(labels.last(), u"2004"_s);
    }

    void languagesAreThoseOfTheProfileElseThoseOfDescriptionsElseEnglish()
    {
        const QByteArray described =
            "!CURRENCIES\nEUR;0;Dutch=Euro\n!MEMBERS=Entity\nA;DefaultParent=#root;French=x\n"
            "B;DefaultParent=#root;English=;dutch=y\nC;DefaultParent=#root;German=z;French=w\n"
            "!HIERARCHIES=Entity\n;A\n;B\n;C\n";
        QCOMPARE(readTexts({described, "!LANGUAGES\nItalian\n"}).metadata()->GetLanguages(),
                 QStringList{u"Italian"_s});
        QCOMPARE(readText(described).metadata()->GetLanguages(),
                 QStringList({u"Dutch"_s, u"French"_s, u"English"_s, u"German"_s}));
        QCOMPARE(readText("!HIERARCHIES=Entity\n;A\n").metadata()->GetLanguages(),
                 QStringList{u"English"_s});
    }

    void aDelimiterAtALanguagesEndIsNoPartOfItsName()
    {
        const QByteArray languages = "!LANGUAGES\nEnglish;\nFrench ; ;\nItalian\n";
        const QStringList expected = {u"English"_s, u"French"_s, u"Italian"_s};
        QCOMPARE(readTexts({entities, languages}).metadata()->GetLanguages(), expected);
        const Reading reading = readText(languages + entities);
        QCOMPARE(reading.metadata()->GetLanguages(), expected);
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), u"The A"_s);
    }

    void aProfilesLanguageIsFoundInDescriptionsInAnyCase()
    {
        const Reading reading = readTexts({entities, "!LANGUAGES\nENGLISH\n"});
        QCOMPARE(reading.metadata()->GetLanguages(), QStringList{u"ENGLISH"_s});
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), u"The A"_s);
    }

    void otherSectionsOfAProfileAreSkipped()
    {
        const Reading reading =
            readTexts({entities, "!MEMBERS=Entity\nX\n!HIERARCHIES=Entity\n;X\n;A\n"
                                 "!CURRENCIES\nEUR;0\n!CUSTOM_ORDER=X;Y\n!ANY\nthing\n"});
        QCOMPARE(treeOf(*reading.entity()), u"A\n"_s);
        QCOMPARE(treeOf(*reading.custom1()), u"[None]\n"_s);
        QCOMPARE(reading.warnings(), QStringList());
    }

    void whatIsWrongInAProfileIsAWarningWithItsFileAndLine_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("beginning");
        QTest::newRow("a child without a record")
            << QByteArray("!HIERARCHIES=Year\n;2010\n") << u"Test.profile, line 2: "_s;
        QTest::newRow("of another product")
            << QByteArray("\n!FILE_FORMAT=ADS\n") << u"Test.profile, line 2: "_s;
        QTest::newRow("binary") << QByteArray("!LANGUAGES\nx\0y\n", 16)
                                << u"Test.profile, line 2: "_s;
    }

    void whatIsWrongInAProfileIsAWarningWithItsFileAndLine()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, beginning);
        const Reading reading = readTexts({entities, text});
        QCOMPARE(reading.warnings().size(), 1);
        QVERIFY(reading.warnings().first().startsWith(beginning));
        QCOMPARE(treeOf(*reading.entity()), u"A\n"_s);
    }

    void aCycleInAProfileNamesIt()
    {
        const Reading reading = readTexts({entities, "!HIERARCHIES=Period\n;A\nA;B\nB;A\n"});
        QVERIFY(reading.refusal);
        QCOMPARE(reading.refusal->file(), u"Test.profile"_s);
        QCOMPARE(reading.refusal->line(), 4);
    }

    void aProfileThatCannotBeReadIsAWarning()
    {
        const ClusterFolder cluster;
        cluster.write(u"Test.app"_s, entities);
        cluster.write(u"Test.profile"_s, profile);
        const auto files = cluster.applications().first();
        QVERIFY(QFile::remove(files.profile));
        const Reading gone = readFiles(files);
        QCOMPARE(gone.warnings().size(), 1);
        QVERIFY(gone.warnings().first().startsWith(u"Test.profile: "_s));
        QVERIFY(QDir().mkdir(files.profile));
        const Reading folder = readFiles(files);
        QCOMPARE(folder.warnings().size(), 1);
        QCOMPARE(treeOf(*folder.metadata()->GetYearDimension()), usualYears);
    }
};

QTEST_APPLESS_MAIN(tst_ProfileFiles)
#include "tst_ProfileFiles.moc"
