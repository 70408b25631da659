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

/// What a file that ends like this text is warned of: no more than one thing.
QStringList warningsOfCut(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    QStringList lines = text.split(QLatin1Char('\n'));
    if (!lines.last().isEmpty())
        return {u"%1: The last line has no end; the file may be cut off."_s.arg(lines.size())};
    lines.removeLast();
    while (lines.last().startsWith(QLatin1Char('\'')))
        lines.removeLast();
    if (!lines.last().startsWith(QLatin1Char('!')))
        return {};
    return {u"%1: The file ends with a section that has no records; it may be cut off."_s.arg(
        lines.size())};
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
        QTest::addColumn<QStringConverter::Encoding>("encoding");
        // The end of half a character of UTF-8 is seen when its bytes are taken one by one.
        const QByteArray utf8 = application.toUtf8();
        QTest::newRow("UTF-8") << utf8 << QStringConverter::Latin1;
        QTest::newRow("UTF-16 little endian with a mark")
            << encoded(QStringConverter::Utf16LE) << QStringConverter::Utf16LE;
        QTest::newRow("UTF-16 big endian")
            << encoded(QStringConverter::Utf16BE).sliced(2) << QStringConverter::Utf16BE;
        QTest::newRow("lone CR") << QByteArray(utf8).replace("\r\n", "\r")
                                 << QStringConverter::Latin1;
        QTest::newRow("delimited by #")
            << QByteArray(utf8).replace(';', '#') << QStringConverter::Latin1;
    }

    void truncatedMetadataOpensOrIsRefused()
    {
        QFETCH(QByteArray, whole);
        QFETCH(QStringConverter::Encoding, encoding);
        const ClusterFolder cluster;
        int opened = 0;
        for (qsizetype size = 0; size <= whole.size(); ++size) {
            cluster.write(u"Test.app"_s, whole.first(size));
            const Reading reading = readFiles(cluster.applications().first());
            if (reading.application) {
                askForEverything(reading);
                const QString text = QStringDecoder(encoding)(whole.first(size));
                QCOMPARE(reading.warnings().filter(u"cut off"_s), warningsOfCut(text));
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

    void aLastLineWithoutEndIsOneWarning_data()
    {
        QTest::addColumn<QByteArray>("end");
        for (const char *end : {"!CURRENCIES\nEUR;0", "!MEMBERS=Account\nBS;ASSET",
                                "!HIERARCHIES=Entity\nA;A2", "!UNHEARD\nof", "!MEMBERS=Acc",
                                "!CUSTOM_ORDER=Mov", "'a remark", "!MEMBERS=Account\n'Label;Acc"})
            QTest::newRow(end) << QByteArray(end);
    }

    void aLastLineWithoutEndIsOneWarning()
    {
        QFETCH(QByteArray, end);
        const QByteArray start = "!MEMBERS=Entity\nA;DefaultParent=#root\nA2;DefaultParent=A\n"
                                 "!HIERARCHIES=Entity\n;A\n";
        const int line = int(start.count('\n') + end.count('\n') + 1);
        const QStringList warnings = readText(start + end).warnings().filter(u"cut off"_s);
        QCOMPARE(
            warnings,
            QStringList{u"%1: The last line has no end; the file may be cut off."_s.arg(line)});
        QVERIFY(readText(start + end + "\n").warnings().filter(u"no end"_s).isEmpty());
        const QStringList profile = readTexts({start, end}).warnings().filter(u"no end"_s);
        QCOMPARE(profile.size(), 1);
        QVERIFY(profile.first().startsWith(u"Test.profile, line "_s));
    }

    void aLastSectionWithoutRecordsIsAWarning()
    {
        const QByteArray start = "!MEMBERS=Entity\nA;DefaultParent=#root\n"
                                 "!HIERARCHIES=Entity\n;A\n";
        for (const QByteArray &end :
             QByteArrayList{"!CURRENCIES\n", "!HIERARCHIES=Entity\n'Parent;Child\n\n"})
            QVERIFY(readText(start + end).warnsOnlyOf(5, {}));
        for (const QByteArray &end :
             QByteArrayList{"!VERSION=11\n", "!CUSTOM_ORDER=Movement\n", "!UNHEARD\n", "\n'\n"})
            QCOMPARE(readText(start + end).warnings(), QStringList());
        QCOMPARE(readText("!CURRENCIES\n" + start).warnings(), QStringList());
    }
};

QTEST_APPLESS_MAIN(tst_TruncatedFiles)
#include "tst_TruncatedFiles.moc"
