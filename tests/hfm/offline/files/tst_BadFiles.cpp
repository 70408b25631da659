#include "hfm/offline/ApplicationChoices.h"
#include "ProcessMemory.h"
#include "Reading.h"
#include "runtime/RuntimeError.h"
#include "support/FileFaults.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTest>

using namespace hfm::offline;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray entities = "!HIERARCHIES=Entity\n;A\n!MEMBERS=Entity\nA\n";
constexpr qint64 mebibyte = qint64(1) << 20;

/// Whether the file as a whole, or that line of it, is refused with a reason.
void compareRefusal(const Reading &reading, qint64 line)
{
    QVERIFY(reading.refusal);
    QCOMPARE(reading.refusal->file(), u"Test.app"_s);
    QCOMPARE(reading.refusal->line(), line);
    QVERIFY(!reading.refusal->reason().isEmpty());
    QVERIFY(reading.refusal->description().contains(reading.refusal->reason()));
}

} // namespace

/// Files that are no metadata: each is refused with its name, the line and the reason.
class tst_BadFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyFile_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("nothing") << QByteArray("");
        QTest::newRow("a UTF-8 mark") << QByteArray("\xEF\xBB\xBF");
        QTest::newRow("a UTF-16 mark") << QByteArray("\xFF\xFE");
        QTest::newRow("half a mark") << QByteArray("\xFF");
    }

    void anEmptyFile()
    {
        QFETCH(QByteArray, content);
        compareRefusal(readText(content), content.size() == 1 ? 1 : 0);
    }

    void aTextThatIsNoMetadata_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("line");
        QTest::newRow("prose") << QByteArray("Dear all,\n\nplease find\n") << 3;
        QTest::newRow("line ends") << QByteArray("\r\n\r\n") << 2;
        QTest::newRow("without members")
            << QByteArray("!FILE_FORMAT=11.12\n!CURRENCIES\nEUR\n") << 3;
        QTest::newRow("xml") << QByteArray("<?xml version=\"1.0\"?>\n<metadata/>") << 2;
    }

    void aTextThatIsNoMetadata()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, line);
        compareRefusal(readText(content), line);
    }

    void aZeroByteIsNoText()
    {
        compareRefusal(readText(QByteArray("!MEMBERS=Entity\nA\nB\0C\nD\n", 24)), 3);
        compareRefusal(readText(QByteArray("!MEMBERS=Entity\rA\rB\0C\rD\r", 24)), 3);
        compareRefusal(readText(QByteArray("!MEMBERS=Entity\r\nA\r\nB\0C\r\n", 25)), 3);
        compareRefusal(readText(entities + QByteArray(3 * mebibyte, '\n') + '\0'),
                       3 * mebibyte + 5);
    }

    void binaryFiles_data()
    {
        QTest::addColumn<QByteArray>("content");
        QRandomGenerator random(1);
        for (const int size : {1, 2, 3, 100, 4095, 4096, 4097, 3 << 20}) {
            QByteArray noise(size, Qt::Uninitialized);
            for (char &byte : noise)
                byte = char(random.generate());
            QTest::addRow("noise of %d bytes", size) << noise;
            QTest::addRow("zeros of %d bytes", size) << QByteArray(size, '\0');
            QTest::addRow("ones of %d bytes", size) << QByteArray(size, '\xFF');
        }
        QTest::newRow("archive") << QByteArray("PK\3\4\24\0\0\0\10\0", 10) +
                                        QByteArray(500, '\x92');
    }

    void binaryFiles()
    {
        QFETCH(QByteArray, content);
        const Reading reading = readText(content);
        QVERIFY(reading.refusal);
        QCOMPARE(reading.refusal->file(), u"Test.app"_s);
        QVERIFY(!reading.refusal->reason().isEmpty());
        QVERIFY(reading.refusal->description().size() < 500);
    }

    void noiseInsideTheSectionsOpensOrIsRefused()
    {
        QRandomGenerator random(2);
        const QByteArray alphabet = "!'=;,~#\r\n \tAB01Y\xC3\xA9\xFF";
        for (int round = 0; round < 500; ++round) {
            QByteArray text = "!MEMBERS=Account\n";
            for (int i = 0; i < 400; ++i) {
                text += alphabet[random.bounded(int(alphabet.size()))];
                if (i % 50 == 49)
                    text += round % 2 ? "\n!HIERARCHIES=Account\n;" : "\n!MEMBERS=Custom1\n'Label;";
            }
            const Reading reading = readText(text);
            QVERIFY(reading.application || !reading.refusal->reason().isEmpty());
        }
    }

    void fourGibibytesOfOneLineTakeNoMoreMemoryThanTheFirstOfThem()
    {
        const ClusterFolder cluster;
        QFile file(cluster.path(u"Test.app"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("!MEMBERS=Entity\nA;");
        QVERIFY(file.resize(4096 * mebibyte));
        file.close();
        const qint64 before = peakOfResidentMemory();
        const Reading reading = readFiles(cluster.applications().first());
        QVERIFY(peakOfResidentMemory() - before < 128 * mebibyte);
        compareRefusal(reading, 2);
    }

    void aLineWithoutEndIsRefusedBeforeItFillsTheMemory()
    {
        const ClusterFolder cluster;
        QFile file(cluster.path(u"Test.app"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("!MEMBERS=Entity\n");
        const QByteArray piece(mebibyte, 'x');
        for (int i = 0; i < 600; ++i)
            file.write(piece);
        file.close();
        const qint64 before = peakOfResidentMemory();
        const Reading reading = readFiles(cluster.applications().first());
        QVERIFY(peakOfResidentMemory() - before < 256 * mebibyte);
        compareRefusal(reading, 2);
    }

    void aFileOfUnreadablePermission()
    {
        const ClusterFolder cluster;
        cluster.write(u"Test.app"_s, entities);
        const auto files = cluster.applications().first();
        OrdinaryUser::own(cluster.path());
        OrdinaryUser::own(files.metadata);
        QVERIFY(QFile::setPermissions(files.metadata, {}));
        Reading reading;
        {
            const OrdinaryUser user;
            reading = readFiles(files);
        }
        compareRefusal(reading, 0);
        QCOMPARE(reading.refusal->number(), qint32(PermissionDenied));
        QVERIFY(QFile::setPermissions(files.metadata, QFile::ReadOwner | QFile::WriteOwner));
    }

    void aSecurityFileOfUnreadablePermissionIsAWarning()
    {
        const ClusterFolder cluster;
        cluster.write(u"Test.app"_s, entities);
        cluster.write(u"Test.sec"_s, "!SECURITY_CLASSES\nX\n");
        const auto files = cluster.applications().first();
        for (const QString &path : {cluster.path(), files.metadata, files.security})
            OrdinaryUser::own(path);
        QVERIFY(QFile::setPermissions(files.security, {}));
        Reading reading;
        {
            const OrdinaryUser user;
            reading = readFiles(files);
        }
        QCOMPARE(reading.warnings().size(), 1);
        QVERIFY(reading.warnings().first().startsWith(u"Test.sec: "_s));
        QVERIFY(QFile::setPermissions(files.security, QFile::ReadOwner | QFile::WriteOwner));
    }

    void aFolderWhereTheMetadataWas()
    {
        const ClusterFolder cluster;
        cluster.write(u"Test.app"_s, entities);
        const auto files = cluster.applications().first();
        QVERIFY(QFile::remove(files.metadata));
        QVERIFY(QDir().mkdir(files.metadata));
        compareRefusal(readFiles(files), 0);
    }

    void aFileThatVanishesBetweenListingAndReading()
    {
        const ClusterFolder cluster;
        cluster.write(u"Test.app"_s, entities);
        const auto files = cluster.applications().first();
        QVERIFY(QFile::remove(files.metadata));
        const Reading reading = readFiles(files);
        compareRefusal(reading, 0);
        QCOMPARE(reading.refusal->number(), qint32(FileNotFound));
    }

    void theOthersOfAClusterStayUsable()
    {
        const ClusterFolder cluster;
        cluster.write(u"A.app"_s, "");
        cluster.write(u"B.app"_s, entities);
        cluster.write(u"C.app"_s, "!HIERARCHIES=Entity\n;A\nA;B\nB;A\n");
        cluster.write(u"D.app"_s, "!HIERARCHIES=Entity\n;A\n");
        const SystemClock clock;
        const ApplicationChoices choices(cluster.path(), clock);
        QVERIFY(QFile::remove(cluster.path(u"D.app"_s)));
        QCOMPARE(choices.names(), QStringList({u"A"_s, u"B"_s, u"C"_s, u"D"_s}));
        const QStringList beginnings = {u"A.app: "_s, u"Files:\n  B.app, "_s, u"C.app, line 4: "_s,
                                        u"D.app: "_s};
        for (int position = 0; position < 4; ++position) {
            const ApplicationPreview preview = choices.read(position);
            QCOMPARE(preview.application != nullptr, position == 1);
            QVERIFY2(preview.summary.startsWith(beginnings[position]), qPrintable(preview.summary));
            QVERIFY(preview.warnings.isEmpty());
        }
    }
};

QTEST_APPLESS_MAIN(tst_BadFiles)
#include "tst_BadFiles.moc"
