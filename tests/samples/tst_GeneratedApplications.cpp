#include "Counts.h"
#include "generator/ApplicationGenerator.h"
#include "SampleCluster.h"

#include <QTemporaryDir>

using namespace generator;

namespace {

struct Generated
{
    std::shared_ptr<const hfm::offline::Application> application;
    Summary summary;
};

Generated generateAndRead(const Request &request)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("Large.app")));
    if (!file.open(QIODevice::WriteOnly))
        throw RuntimeError(PathFileAccessError);
    const Summary summary = generate(request, file);
    file.close();
    const auto files = hfm::offline::findApplications(folder.path());
    return {hfm::offline::readApplication(files.constFirst(), SampleCluster::year), summary};
}

Request tree(const char *dimension)
{
    Request request;
    request.dimension = QString::fromLatin1(dimension);
    request.members = 2000;
    request.edges = 2400;
    request.sharedParents = 20;
    return request;
}

} // namespace

/// What the generator makes, read by the offline client.
class tst_GeneratedApplications : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneOfEachDimensionOpensWithoutAWarning_data()
    {
        QTest::addColumn<QString>("accessor");
        QTest::addColumn<Request>("request");
        for (const char *name :
             {"Account", "Entity", "Scenario", "Custom1", "Custom2", "Custom3", "Custom4"})
            QTest::newRow(name) << QString::fromLatin1(name) << tree(name);
        QTest::newRow("named custom") << QStringLiteral("Custom1") << tree("Movement");
    }

    void oneOfEachDimensionOpensWithoutAWarning()
    {
        QFETCH(QString, accessor);
        QFETCH(Request, request);
        const Generated made = generateAndRead(request);
        QCOMPARE(SampleCluster::warnings(*made.application), QList<QString>());
        const auto metadata =
            hfm::offline::OfflineSession(made.application, QStringLiteral("Any")).GetMetadata();
        const Counts counts = countsOf(*((*metadata).*accessors()[accessor])());
        // HFM's own members, all of them at the top level.
        const qint64 added = counts.members - made.summary.members;
        QVERIFY(added <= 15);
        QCOMPARE(counts.nodes, made.summary.occurrences + added);
        QCOMPARE(counts.rows, counts.nodes);
        QCOMPARE(counts.bases, made.summary.baseMembers + added);
        QCOMPARE(counts.depth, qint64(made.summary.generations));
    }

    void everyEncodingDelimiterAndLineEndOpensWithoutAWarning_data()
    {
        QTest::addColumn<Request>("request");
        const Request usual = tree("Entity");
        for (const char delimiter : QByteArrayLiteral(",~@$%^&|:;?\\")) {
            Request request = usual;
            request.delimiter = delimiter;
            QTest::addRow("delimiter %c", delimiter) << request;
        }
        for (const Encoding encoding :
             {Encoding::Utf8, Encoding::Utf8WithMark, Encoding::Utf16LittleEndian,
              Encoding::Utf16BigEndian, Encoding::Windows1252}) {
            Request request = usual;
            request.encoding = encoding;
            QTest::addRow("encoding %d", int(encoding)) << request;
        }
        for (const LineEnd lineEnd : {LineEnd::CrLf, LineEnd::Lf, LineEnd::Cr}) {
            Request request = usual;
            request.lineEnd = lineEnd;
            QTest::addRow("line end %d", int(lineEnd)) << request;
        }
    }

    void everyEncodingDelimiterAndLineEndOpensWithoutAWarning()
    {
        QFETCH(Request, request);
        const Generated made = generateAndRead(request);
        QCOMPARE(SampleCluster::warnings(*made.application), QList<QString>());
        const auto metadata =
            hfm::offline::OfflineSession(made.application, QStringLiteral("Any")).GetMetadata();
        const auto entities = metadata->GetEntityDimension();
        QCOMPARE(countsOf(*entities).nodes, made.summary.occurrences);
        // The French descriptions are the same whatever they are written in.
        const Generated usual = generateAndRead(tree("Entity"));
        const auto expected = hfm::offline::OfflineSession(usual.application, QStringLiteral("Any"))
                                  .GetMetadata()
                                  ->GetEntityDimension();
        for (const hfm::MemberId entity : entities->EnumAllMembers())
            QCOMPARE(entities->GetMemberDescription(entity, 1),
                     expected->GetMemberDescription(entity, 1));
    }
};

QTEST_GUILESS_MAIN(tst_GeneratedApplications)
#include "tst_GeneratedApplications.moc"
