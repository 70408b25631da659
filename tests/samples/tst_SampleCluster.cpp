#include "Counts.h"
#include "runtime/CodePage.h"
#include "SampleCluster.h"

#include <QProcess>
#include <QSet>

namespace {

using Dimension = std::shared_ptr<hfm::Dimension>;

/// Every member's number of parents, top level included.
QHash<hfm::MemberId, int> parentCounts(hfm::Dimension &dimension)
{
    QHash<hfm::MemberId, int> counts;
    QSet<QPair<hfm::MemberId, hfm::MemberId>> edges;
    const hfm::Occurrences all = dimension.EnumHierarchy();
    for (qsizetype i = 0; i < all.members.size(); ++i)
        edges.insert({all.parents[i], all.members[i]});
    for (const auto &[parent, member] : edges)
        ++counts[member];
    return counts;
}

QSet<hfm::MemberId> below(hfm::Dimension &dimension, QLatin1StringView top)
{
    const auto members =
        dimension.EnumMembersBelow(dimension.GetMemberId(top), hfm::EachMemberOnce);
    return {members.begin(), members.end()};
}

qsizetype labelsWith(hfm::Dimension &dimension, QChar character)
{
    const QList<QString> labels = dimension.EnumAllMemberLabels();
    return std::count_if(labels.begin(), labels.end(),
                         [&](const QString &label) { return label.contains(character); });
}

qsizetype labelsBeyondAscii(hfm::Dimension &dimension)
{
    const QList<QString> labels = dimension.EnumAllMemberLabels();
    return std::count_if(labels.begin(), labels.end(), [](const QString &label) {
        return std::any_of(label.begin(), label.end(), [](QChar c) { return c.unicode() > 127; });
    });
}

QString description(hfm::Dimension &dimension, const QString &label, qint16 language)
{
    return dimension.GetMemberDescription(dimension.GetMemberId(label), language);
}

/// What the counting script tells of an application, by dimension.
QMap<QString, Counts> countedByScript(const QString &metadataFile)
{
    QProcess script;
    script.start(QStringLiteral(TESSALY_PYTHON),
                 {QStringLiteral("-B"), QStringLiteral(TESSALY_COUNT_APP), metadataFile});
    if (!script.waitForFinished() || script.exitCode() != 0)
        return {};
    QMap<QString, Counts> counted;
    const QList<QByteArray> lines = script.readAllStandardOutput().split('\n');
    for (const QByteArray &line : lines.mid(1)) {
        const QList<QByteArray> f = line.split(' ');
        if (f.size() == 9)
            counted.insert(QString::fromLatin1(f[0]),
                           {f[1].toLongLong(), f[2].toLongLong(), f[3].toLongLong(),
                            f[4].toLongLong(), f[5].toLongLong(), f[6].toLongLong(),
                            f[7].toLongLong(), f[8].toLongLong()});
    }
    return counted;
}

void addApplications()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"Comma", "Meridian", "Zenith"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

} // namespace

class tst_SampleCluster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itHoldsThreeApplications()
    {
        QCOMPARE(SampleCluster::names(),
                 QList<QString>({QStringLiteral("Comma"), QStringLiteral("Meridian"),
                                 QStringLiteral("Zenith")}));
    }

    void eachOpensWithoutAWarning_data() { addApplications(); }
    void eachOpensWithoutAWarning()
    {
        QFETCH(QString, name);
        const auto application = SampleCluster::read(name);
        QCOMPARE(SampleCluster::warnings(*application), QList<QString>());
        QCOMPARE(application->warnings.count(), qint64(0));
    }

    void theClientCountsAsTheScriptDoes_data() { addApplications(); }
    void theClientCountsAsTheScriptDoes()
    {
        QFETCH(QString, name);
        const auto counted = countedByScript(SampleCluster::read(name)->files.metadata);
        QCOMPARE(counted.keys(), accessors().keys());
        const auto metadata = SampleCluster::metadata(name);
        for (auto accessor = accessors().begin(); accessor != accessors().end(); ++accessor) {
            const Counts counts = countsOf(*((*metadata).*accessor.value())());
            const Counts expected = counted[accessor.key()];
            QVERIFY2(counts == expected,
                     qPrintable(QStringLiteral("%1: %2 and not %3")
                                    .arg(accessor.key(), textOf(counts), textOf(expected))));
        }
    }

    void eachHasSecurityWithEveryAccess_data() { addApplications(); }
    void eachHasSecurityWithEveryAccess()
    {
        QFETCH(QString, name);
        hfm::offline::OfflineSession session(SampleCluster::read(name), QString());
        const auto security = session.GetSecurity();
        const hfm::SecurityClasses classes = security->EnumSecurityClasses();
        QCOMPARE(classes.names.first(), QStringLiteral("[Default]"));
        QSet<qint32> codes;
        QStringList users;
        for (const hfm::ClassId id : classes.ids) {
            const hfm::AccessList access = security->EnumClassAccess(id);
            users = access.names;
            codes.unite(QSet<qint32>(access.codes.begin(), access.codes.end()));
        }
        QCOMPARE(codes, QSet<qint32>({0, 1, 2, 3, 4}));
        QVERIFY(users.contains(QStringLiteral("Native Directory\\admin")));
        const hfm::FlaggedNames roles =
            security->EnumUserRoles(security->GetUserId(QStringLiteral("Native Directory\\admin")));
        QVERIFY(roles.names.contains(QStringLiteral("Application Administrator")));
        QVERIFY(roles.flags.contains(QStringLiteral("True")));
        QVERIFY(roles.flags.contains(QStringLiteral("False")));
    }

    void namesOfUsersMayLackADirectoryHoldAnAtOrAccents()
    {
        const auto users = [](const char *name) {
            hfm::offline::OfflineSession session(SampleCluster::read(QString::fromLatin1(name)),
                                                 QString());
            return session.GetSecurity()->EnumClassAccess(0).names;
        };
        QVERIFY(users("Comma").contains(QStringLiteral("Board")));
        QVERIFY(
            users("Meridian")
                .contains(QStringLiteral("Native Directory\\interface@erp.alderbrook.example")));
        QVERIFY(users("Zenith").contains(QStringLiteral("ZENITH\\Büro der Leitung")));
    }

    void commaIsTakenInAtAGlance()
    {
        const auto metadata = SampleCluster::metadata(QStringLiteral("Comma"));
        QCOMPARE(metadata->GetLanguages(),
                 QList<QString>({QStringLiteral("English"), QStringLiteral("French")}));
        const Dimension entities = metadata->GetEntityDimension();
        QCOMPARE(entities->EnumAllMembers().size(), 19);
        QVERIFY(below(*entities, QLatin1StringView("GROUP"))
                    .intersects(below(*entities, QLatin1StringView("DIVISIONS"))));
        QCOMPARE(description(*entities, QStringLiteral("CA01"), 1),
                 QStringLiteral("Laiteries Pennyfield Québec"));
        // A custom dimension that the file says nothing of.
        QCOMPARE(metadata->GetCustom4Dimension()->EnumAllMemberLabels(),
                 QList<QString>({QStringLiteral("[None]")}));
    }

    void meridianHasTheSizeOfARealApplication()
    {
        const auto metadata = SampleCluster::metadata(QStringLiteral("Meridian"));
        const Counts accounts = countsOf(*metadata->GetAccountDimension());
        QVERIFY(accounts.members > 1900 && accounts.members < 2100);
        QCOMPARE(accounts.depth, qint64(6));
        const Counts entities = countsOf(*metadata->GetEntityDimension());
        QVERIFY(entities.members > 850 && entities.members < 950);
        QCOMPARE(metadata->GetLanguages(),
                 QList<QString>({QStringLiteral("English"), QStringLiteral("French"),
                                 QStringLiteral("German")}));
    }

    void meridiansHierarchiesShareMembersAndParents()
    {
        const auto metadata = SampleCluster::metadata(QStringLiteral("Meridian"));
        const Dimension entities = metadata->GetEntityDimension();
        const auto legal = below(*entities, QLatin1StringView("ALDERBROOK"));
        for (const char *top : {"Management View", "GEO"}) {
            const auto shared = below(*entities, QLatin1StringView(top)) & legal;
            const auto isParent = [&](hfm::MemberId id) { return entities->GetHasChildren(id); };
            const auto parents = std::count_if(shared.begin(), shared.end(), isParent);
            QVERIFY2(parents > 20, top);
            QVERIFY2(shared.size() - parents > 500, top);
        }
        const auto accountParents = parentCounts(*metadata->GetAccountDimension());
        QVERIFY(std::count_if(accountParents.begin(), accountParents.end(),
                              [](int count) { return count > 1; }) > 50);
    }

    void meridianHasAParentOfMoreThan200Children()
    {
        const Dimension entities =
            SampleCluster::metadata(QStringLiteral("Meridian"))->GetEntityDimension();
        QVERIFY(entities->GetChildCount(entities->GetMemberId(QStringLiteral("IC-LIST"))) > 200);
    }

    void meridiansCustomDimensionsAreThoseOfItsOrder()
    {
        const auto metadata = SampleCluster::metadata(QStringLiteral("Meridian"));
        const QList<QPair<Dimension, QString>> tops{
            {metadata->GetCustom1Dimension(), QStringLiteral("CLO")},
            {metadata->GetCustom2Dimension(), QStringLiteral("ALL_PRODUCTS")},
            {metadata->GetCustom3Dimension(), QStringLiteral("ALL_MARKETS")},
            {metadata->GetCustom4Dimension(), QStringLiteral("ALL_CC")}};
        for (const auto &[custom, top] : tops)
            QVERIFY(custom->EnumMembersBelow(custom->GetMemberId(top), hfm::EachMemberOnce).size() >
                    20);
    }

    void everyAccountOfMeridiansFileHasATopMemberInEveryCustom()
    {
        const Dimension accounts =
            SampleCluster::metadata(QStringLiteral("Meridian"))->GetAccountDimension();
        const auto attributes = accounts->accountAttributes();
        for (const hfm::MemberId account : accounts->EnumAllMembers()) {
            QVERIFY(attributes->GetAccountTopCustom1(account) >= 0);
            QVERIFY(attributes->GetAccountTopCustom2(account) >= 0);
            QVERIFY(attributes->GetAccountTopCustom3(account) >= 0);
            QVERIFY(attributes->GetAccountTopCustom4(account) >= 0);
        }
    }

    void meridiansAccountsAreOfManyKinds()
    {
        const Dimension accounts =
            SampleCluster::metadata(QStringLiteral("Meridian"))->GetAccountDimension();
        const auto attributes = accounts->accountAttributes();
        QSet<qint32> types;
        QSet<qint32> partners;
        qsizetype withText = 0;
        qsizetype withClass = 0;
        for (const hfm::MemberId account : accounts->EnumAllMembers()) {
            types.insert(attributes->GetAccountType(account));
            partners.insert(attributes->GetAccountIsICP(account));
            withText += attributes->GetAccountUserDefined2(account).isEmpty() ? 0 : 1;
            withClass += attributes->GetAccountSecurityClassId(account) == hfm::noClass ? 0 : 1;
        }
        QCOMPARE(types, QSet<qint32>({0, 1, 2, 3, 4, 5, 7, 9, 10, 11, 12}));
        QCOMPARE(partners, QSet<qint32>({-1, 0, 1}));
        QVERIFY(withText > 500);
        QVERIFY(withClass > 1500);
    }

    void meridiansLabelsHoldBlanksHyphensQuotesPercentSignsAndAccents()
    {
        const auto metadata = SampleCluster::metadata(QStringLiteral("Meridian"));
        for (const Dimension &dimension :
             {metadata->GetAccountDimension(), metadata->GetEntityDimension()}) {
            for (const char *character : {" ", "-", "\"", "'", "%", "&"})
                QVERIFY2(labelsWith(*dimension, QLatin1Char(*character)) > 0, character);
            QVERIFY(labelsBeyondAscii(*dimension) > 0);
        }
    }

    void someOfMeridiansTextsCannotBeWrittenInWindows1252()
    {
        const Dimension entities =
            SampleCluster::metadata(QStringLiteral("Meridian"))->GetEntityDimension();
        qsizetype lost = 0;
        for (const hfm::MemberId entity : entities->EnumAllMembers()) {
            const QString text = entities->GetMemberDescription(entity, 0);
            lost += CodePage::decode(CodePage::encode(text)) == text ? 0 : 1;
        }
        QVERIFY(lost > 5);
    }

    void meridiansProfileNamesYearsAndPeriodsInThreeLanguages()
    {
        const auto metadata = SampleCluster::metadata(QStringLiteral("Meridian"));
        QCOMPARE(metadata->GetYearDimension()->EnumAllMemberLabels().first(),
                 QStringLiteral("2018"));
        const Dimension periods = metadata->GetPeriodDimension();
        QCOMPARE(description(*periods, QStringLiteral("Aug"), 1), QStringLiteral("Août"));
        QCOMPARE(description(*periods, QStringLiteral("Mar"), 2), QStringLiteral("März"));
    }

    void zenithIsInTheOlderForm()
    {
        QFile file(SampleCluster::read(QStringLiteral("Zenith"))->files.metadata);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(!bytes.contains("!CUSTOM_ORDER"));
        QVERIFY(!bytes.isValidUtf8());
        const auto metadata = SampleCluster::metadata(QStringLiteral("Zenith"));
        const Dimension accounts = metadata->GetAccountDimension();
        const auto attributes = accounts->accountAttributes();
        const hfm::MemberId sales = accounts->GetMemberId(QStringLiteral("4000"));
        QCOMPARE(attributes->GetAccountType(sales), 0);
        QVERIFY(bytes.contains("4000,INCOME,"));
        QCOMPARE(description(*accounts, QStringLiteral("4400"), 1),
                 QStringLiteral("„Zenith Plus“-Verträge"));
        QCOMPARE(description(*accounts, QStringLiteral("8210"), 0),
                 QStringLiteral("Orders received (€ 000)"));
        QVERIFY(accounts->EnumAllMembers().size() > 300);
        QVERIFY(metadata->GetEntityDimension()->EnumAllMembers().size() > 200);
    }
};

QTEST_GUILESS_MAIN(tst_SampleCluster)
#include "tst_SampleCluster.moc"
