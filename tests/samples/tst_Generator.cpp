#include "generator/ApplicationGenerator.h"

#include <QBuffer>
#include <QHash>
#include <QSet>
#include <QStringDecoder>
#include <QTest>

#include <stdexcept>

using namespace generator;

namespace {

QByteArray generated(const Request &request, Summary *summary = nullptr)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const Summary made = generate(request, buffer);
    if (summary)
        *summary = made;
    return buffer.data();
}

/// What a generated application in UTF-8 holds, read back line by line.
struct ReadBack
{
    QByteArrayList labels;
    QHash<QByteArray, QByteArray> defaultParents;
    QList<QPair<QByteArray, QByteArray>> edges; // parent, child; no parent for a top member
    QSet<qsizetype> fieldCounts;                // of the member records and their column line

    explicit ReadBack(const QByteArray &file, char delimiter = ';')
    {
        QByteArray section;
        for (QByteArray line : file.split('\n')) {
            line = line.trimmed();
            if (line.startsWith('!'))
                section = line.left(line.indexOf('=') + 1);
            else if (section == "!MEMBERS=" && !line.isEmpty())
                readMember(line.split(delimiter));
            else if (section == "!HIERARCHIES=" && !line.isEmpty())
                edges.append({line.split(delimiter)[0], line.split(delimiter)[1]});
        }
    }

    void readMember(const QByteArrayList &fields)
    {
        qsizetype before = 0;
        while (!fields[before].startsWith("DefaultParent"))
            ++before;
        fieldCounts.insert(before);
        if (fields[0] == "'Label")
            return;
        labels.append(fields[0]);
        defaultParents.insert(fields[0], fields[before].mid(fields[before].indexOf('=') + 1));
    }

    qsizetype topMembers() const
    {
        return std::count_if(edges.begin(), edges.end(),
                             [](const auto &edge) { return edge.first.isEmpty(); });
    }
};

Request shaped(Shape shape, qint32 members)
{
    Request request;
    request.shape = shape;
    request.members = members;
    return request;
}

Request sharing(qint32 members, qint32 edges, qint32 sharedParents)
{
    Request request;
    request.members = members;
    request.edges = edges;
    request.sharedParents = sharedParents;
    return request;
}

/// Takes so many bytes and no more.
class FullDevice : public QIODevice
{
public:
    explicit FullDevice(qint64 room) : mRoom(room) { open(QIODevice::WriteOnly); }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override
    {
        if (size > mRoom) {
            setErrorString(QStringLiteral("No space left on device"));
            return -1;
        }
        mRoom -= size;
        return size;
    }

private:
    qint64 mRoom;
};

} // namespace

class tst_Generator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSameRequestGivesTheSameBytes()
    {
        const Request request = sharing(2000, 2500, 10);
        QCOMPARE(generated(request), generated(request));
    }

    void anotherSeedGivesAnotherApplication()
    {
        Request request = sharing(2000, 2500, 10);
        const QByteArray first = generated(request);
        request.seed = 2;
        QVERIFY(generated(request) != first);
    }

    void theNumbersOfMembersAndEdgesAreThoseAskedFor()
    {
        Summary summary;
        const ReadBack read(generated(sharing(3000, 3600, 0), &summary));
        QCOMPARE(read.labels.size(), 3000);
        QCOMPARE(QSet<QByteArray>(read.labels.begin(), read.labels.end()).size(), 3000);
        QCOMPARE(read.edges.size(), 3600);
        QCOMPARE(summary.members, 3000);
        QCOMPARE(summary.edges, 3600);
        QCOMPARE(read.topMembers(), 1);
    }

    void noEdgeStandsTwiceAndEveryDefaultParentIsAParent()
    {
        const ReadBack read(generated(sharing(3000, 3600, 50)));
        const QSet<QPair<QByteArray, QByteArray>> edges(read.edges.begin(), read.edges.end());
        QCOMPARE(edges.size(), read.edges.size());
        for (const QByteArray &label : read.labels) {
            const QByteArray parent = read.defaultParents[label];
            QVERIFY(edges.contains({parent == "#root" ? QByteArray() : parent, label}));
        }
    }

    void everyMemberIsReachedFromTheTopAndThereIsNoCycle()
    {
        Summary summary;
        const ReadBack read(generated(sharing(3000, 3600, 50), &summary));
        QHash<QByteArray, QByteArrayList> children;
        QHash<QByteArray, qint32> open; // parents that have not been passed yet
        for (const auto &[parent, child] : read.edges) {
            children[parent].append(child);
            ++open[child];
        }
        // A member is passed when all its parents are: on a cycle none ever is.
        QHash<QByteArray, qint64> occurrences{{QByteArray(), 1}};
        QByteArrayList passed{QByteArray()};
        for (qsizetype next = 0; next < passed.size(); ++next) {
            const QByteArray parent = passed[next];
            for (const QByteArray &child : children.value(parent)) {
                occurrences[child] += occurrences[parent];
                if (--open[child] == 0)
                    passed.append(child);
            }
        }
        QCOMPARE(passed.size(), 3001);
        qint64 nodes = 0;
        for (const QByteArray &label : read.labels)
            nodes += occurrences[label];
        QCOMPARE(summary.occurrences, nodes);
        QCOMPARE(summary.baseMembers, 3000 - (children.size() - 1));
    }

    void sharedBaseMembersOccurOnceMoreForEachEdge()
    {
        Summary summary;
        generated(sharing(3000, 3600, 0), &summary);
        QCOMPARE(summary.occurrences, qint64(3600));
    }

    void sharedParentsBringTheirSubtreesAlong()
    {
        Summary summary;
        generated(sharing(3000, 3600, 50), &summary);
        QVERIFY(summary.occurrences > 3600);
    }

    void aChainIsAsDeepAsItHasMembers()
    {
        Summary summary;
        const ReadBack read(generated(shaped(Shape::Chain, 200000), &summary));
        QCOMPARE(summary.generations, 200000);
        QCOMPARE(summary.baseMembers, 1);
        QCOMPARE(read.edges.size(), 200000);
        QCOMPARE(read.edges.last().second, read.labels.last());
    }

    void aWideOneHasAllMembersBelowOne()
    {
        Summary summary;
        const ReadBack read(generated(shaped(Shape::Wide, 40000), &summary));
        QCOMPARE(summary.generations, 2);
        QCOMPARE(summary.baseMembers, 39999);
        QCOMPARE(read.topMembers(), 1);
    }

    void aFlatOneHasTopMembersOnly()
    {
        Summary summary;
        const ReadBack read(generated(shaped(Shape::Flat, 500), &summary));
        QCOMPARE(summary.generations, 1);
        QCOMPARE(read.topMembers(), 500);
    }

    void anApplicationOfOneMember()
    {
        for (const Shape shape : {Shape::Tree, Shape::Chain, Shape::Wide, Shape::Flat}) {
            Summary summary;
            const ReadBack read(generated(shaped(shape, 1), &summary));
            QCOMPARE(read.labels.size(), 1);
            QCOMPARE(read.topMembers(), 1);
            QCOMPARE(summary.occurrences, qint64(1));
        }
    }

    void theRecordsHaveTheFieldsOfTheirDimension_data()
    {
        QTest::addColumn<QString>("dimension");
        QTest::addColumn<qsizetype>("fields");
        QTest::newRow("account") << QStringLiteral("Account") << qsizetype(17 + 2 * 4);
        QTest::newRow("entity") << QStringLiteral("Entity") << qsizetype(11);
        QTest::newRow("scenario") << QStringLiteral("Scenario") << qsizetype(14);
        QTest::newRow("custom") << QStringLiteral("Custom3") << qsizetype(9);
        QTest::newRow("named custom") << QStringLiteral("Movement") << qsizetype(9);
    }

    void theRecordsHaveTheFieldsOfTheirDimension()
    {
        QFETCH(QString, dimension);
        QFETCH(qsizetype, fields);
        Request request;
        request.dimension = dimension;
        request.members = 50;
        const QByteArray file = generated(request);
        QCOMPARE(ReadBack(file).fieldCounts, QSet<qsizetype>{fields});
        QCOMPARE(file.contains("!CUSTOM_ORDER="), dimension == QLatin1StringView("Movement"));
    }

    void eachLanguageHasItsDescription()
    {
        Request request;
        request.languages = 5;
        const QByteArray file = generated(request);
        QVERIFY(
            file.contains("!LANGUAGES\r\nEnglish\r\nFrench\r\nGerman\r\nSpanish\r\nLanguage5\r\n"));
        QCOMPARE(file.count(";English="), 1000);
        QCOMPARE(file.count(";Language5="), 1000);
        request.languages = 0;
        QVERIFY(!generated(request).contains("English"));
    }

    void everyDelimiterThatIsTakenSplitsTheRecordsAlike()
    {
        for (const char delimiter : QByteArray(",~@$%^&|:;?\\")) {
            Request request = sharing(300, 330, 0);
            request.delimiter = delimiter;
            const ReadBack read(generated(request), delimiter);
            QCOMPARE(read.fieldCounts, QSet<qsizetype>{11});
            QCOMPARE(read.edges.size(), 330);
        }
    }

    void everyEncodingHoldsTheSameText_data()
    {
        QTest::addColumn<Encoding>("encoding");
        QTest::addColumn<QByteArray>("mark");
        QTest::addColumn<QStringConverter::Encoding>("decoding");
        QTest::newRow("UTF-8 with mark")
            << Encoding::Utf8WithMark << QByteArray("\xEF\xBB\xBF") << QStringConverter::Utf8;
        QTest::newRow("UTF-16 little endian")
            << Encoding::Utf16LittleEndian << QByteArray("\xFF\xFE") << QStringConverter::Utf16LE;
        QTest::newRow("UTF-16 big endian")
            << Encoding::Utf16BigEndian << QByteArray("\xFE\xFF") << QStringConverter::Utf16BE;
        QTest::newRow("Windows-1252")
            << Encoding::Windows1252 << QByteArray() << QStringConverter::Latin1;
    }

    void everyEncodingHoldsTheSameText()
    {
        QFETCH(Encoding, encoding);
        QFETCH(QByteArray, mark);
        QFETCH(QStringConverter::Encoding, decoding);
        Request request;
        request.members = 30000; // more than one piece
        const QString expected = QString::fromUtf8(generated(request));
        QVERIFY(expected.contains(u'é'));
        request.encoding = encoding;
        const QByteArray file = generated(request);
        QVERIFY(file.startsWith(mark));
        const QString text =
            QStringDecoder(decoding, QStringConverter::Flag::Stateless)(file.sliced(mark.size()));
        QVERIFY(text == expected);
    }

    void lineEndsAreThoseAskedFor()
    {
        Request request;
        const QByteArray expected = generated(request);
        request.lineEnd = LineEnd::Lf;
        QVERIFY(generated(request) == QByteArray(expected).replace("\r\n", "\n"));
        request.lineEnd = LineEnd::Cr;
        QVERIFY(generated(request) == QByteArray(expected).replace("\r\n", "\r"));
    }

    void aRequestThatCannotBeMetWritesNothing_data()
    {
        QTest::addColumn<Request>("request");
        Request request;
        request.delimiter = '#';
        QTest::newRow("delimiter of the top members' parent") << request;
        QTest::newRow("no member") << sharing(0, 0, 0);
        QTest::newRow("fewer edges than members") << sharing(100, 99, 0);
        QTest::newRow("too many edges") << sharing(10, 1000, 0);
        QTest::newRow("more shared parents than further edges") << sharing(100, 110, 11);
        QTest::newRow("too many shared parents") << sharing(20, 1000000, 999980);
        request = sharing(100, 110, 0);
        request.shape = Shape::Chain;
        QTest::newRow("shared members in a chain") << request;
        request = Request();
        request.fanOut = 0;
        QTest::newRow("no children") << request;
        request = Request();
        request.languages = -1;
        QTest::newRow("less than no languages") << request;
        request = Request();
        request.dimension.clear();
        QTest::newRow("no dimension") << request;
    }

    void aRequestThatCannotBeMetWritesNothing()
    {
        QFETCH(Request, request);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, generate(request, buffer));
        QVERIFY(buffer.data().isEmpty());
    }

    void aFullDeviceIsReportedInItsOwnWords()
    {
        FullDevice device(1000);
        try {
            generate(Request(), device);
            QFAIL("no error");
        } catch (const std::runtime_error &error) {
            QCOMPARE(QByteArray(error.what()), QByteArray("No space left on device"));
        }
    }
};

QTEST_APPLESS_MAIN(tst_Generator)
#include "tst_Generator.moc"
