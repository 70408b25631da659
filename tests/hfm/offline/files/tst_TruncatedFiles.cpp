#include "Reading.h"

#include <QStringEncoder>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString application =
    u"!FILE_FORMAT=11.12\r\n!VERSION=11.1\r\n!CUSTOM_ORDER=Movement;Product\r\n"
    "!APPLICATION_SETTINGS\r\nDefaultCurrency=EUR\r\n"
    "!CURRENCIES\r\n'Label;Scale;Descriptions\r\nEUR;0;English=Euro;Français=€\r\n"
    "!CONSOLIDATION_METHODS\r\nGLOBAL;Y;N;<=;0;100;x;English=Global\r\n"
    "!MEMBERS=Entity\r\n'Label;DefCurrency;UserDefined1;DefaultParent;Descriptions\r\n"
    "Été;EUR;東京;DefaultParent=#root;English=The top;Français=Le 😀\r\n"
    "B;USD;x;DefaultParent=Été\r\n!HIERARCHIES=Entity\r\n;Été\r\nÉté;B\r\n"
    "!MEMBERS=Account\r\n"
    "BS;ASSET;N;Y;R;;CLO;[None];2;N;Y;N;u1;u2;u3;x;SC;[ICP Top];N;DefaultParent=#root\r\n"
    "!HIERARCHIES=Account\r\n;BS\r\n"
    "!MEMBERS=Movement\r\nCLO;N;N;N;;;;;DefaultParent=#root\r\n!HIERARCHIES=Movement\r\n;CLO;1\r\n"
    "!LANGUAGES\r\nEnglish\r\n!MEMBERS=Year\r\n2010;DefaultParent=#root\r\n"
    "!HIERARCHIES=Year\r\n;2010\r\n"_s;

QByteArray encoded(QStringConverter::Encoding encoding)
{
    return QStringEncoder(encoding, QStringConverter::Flag::WriteBom)(application);
}

/// Asks for everything that an extract asks for.
void askForEverything(const Reading &reading)
{
    const auto metadata = reading.metadata();
    for (const auto &dimension : {metadata->GetEntityDimension(), metadata->GetAccountDimension(),
                                  metadata->GetCustom1Dimension(), metadata->GetYearDimension(),
                                  metadata->GetValueDimension(), metadata->GetICPDimension()}) {
        QVERIFY(dimension->EnumHierarchy().members.size() <= dimension->EnumAllMembers().size());
        const auto members = dimension->EnumAllMembers();
        for (const hfm::MemberId member : members) {
            QVERIFY(!dimension->GetMemberLabel(member).isEmpty());
            dimension->GetMemberDescription(member, 0);
            dimension->GetDefaultParentLabel(member);
        }
    }
    const auto accounts = metadata->GetAccountDimension();
    const auto members = accounts->EnumAllMembers();
    for (const hfm::MemberId member : members)
        QVERIFY(accounts->accountAttributes()->GetAccountTopCustom1(member) >= -1);
}

} // namespace

/// A file that ends anywhere opens or is refused with a reason.
class tst_TruncatedFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void truncatedMetadataOpensOrIsRefused_data()
    {
        QTest::addColumn<QByteArray>("whole");
        QTest::newRow("UTF-8") << application.toUtf8();
        QTest::newRow("UTF-16 little endian with a mark") << encoded(QStringConverter::Utf16LE);
        QTest::newRow("UTF-16 big endian") << encoded(QStringConverter::Utf16BE).sliced(2);
        QTest::newRow("lone CR") << QByteArray(application.toUtf8()).replace("\r\n", "\r");
        QTest::newRow("delimited by #") << QByteArray(application.toUtf8()).replace(';', '#');
    }

    void truncatedMetadataOpensOrIsRefused()
    {
        QFETCH(QByteArray, whole);
        const ClusterFolder cluster;
        int opened = 0;
        for (qsizetype size = 0; size <= whole.size(); ++size) {
            cluster.write(u"Test.app"_s, whole.first(size));
            const Reading reading = readFiles(cluster.applications().first());
            if (reading.application) {
                askForEverything(reading);
                ++opened;
                continue;
            }
            QCOMPARE(reading.refusal->file(), u"Test.app"_s);
            QVERIFY(!reading.refusal->reason().isEmpty());
        }
        // From the first section of members on it opens wherever it ends.
        const auto first = application.indexOf(u"!MEMBERS="_s) + u"!MEMBERS="_s.size();
        QVERIFY(opened >= (application.size() - first) * whole.size() / (2 * application.size()));
        const Reading reading = readText(whole);
        QCOMPARE(treeOf(*reading.entity()), u"Été\n  B\n"_s);
    }

    void aTruncatedProfileOrSecurityFileNeverStopsAnOpening()
    {
        const QByteArray profile =
            application.sliced(application.indexOf(u"!LANGUAGES"_s)).toUtf8();
        const QByteArray security = "!FILE_FORMAT=2.0\r\n!SECURITY_CLASSES\r\nSC\r\n[Default]\r\n";
        for (qsizetype size = 0; size <= profile.size(); ++size) {
            const Reading reading = readTexts({application.toUtf8(), profile.first(size),
                                               security.first(std::min(size, security.size()))});
            askForEverything(reading);
        }
    }

    void aMembersRecordThatTheFilesEndCutsOffIsAWarning()
    {
        const QByteArray start = "!HIERARCHIES=Entity\n;A\n;Cut\n!MEMBERS=Entity\n"
                                 "A;;;;;;;;;;;DefaultParent=#root\nCut;EUR;";
        const Reading reading = readText(start + "\n!CURRENCIES\nEUR;0\n");
        QCOMPARE(reading.warnings(), QStringList());
        QVERIFY(readText("!CURRENCIES\nEUR;0\n" + start).warnsOf(8, {}));
    }
};

QTEST_APPLESS_MAIN(tst_TruncatedFiles)
#include "tst_TruncatedFiles.moc"
