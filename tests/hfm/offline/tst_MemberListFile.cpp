#include "ReadText.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace hfm::offline;

namespace {

const char metadata[] = "!MEMBERS=Account\n"
                        "SALES;REVENUE;DefaultParent=#root\n"
                        "!HIERARCHIES=Account\n"
                        ";SALES\n";

} // namespace

/// The member list file beside an application's metadata, as the system information hands it out.
class tst_MemberListFile : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> mCluster;

    void write(const QString &name, const QByteArray &content)
    {
        QFile file(mCluster->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }

    std::shared_ptr<const Application> opened() const
    {
        return readApplication(findApplications(mCluster->path()).value(0), testYear);
    }

    hfm::MemberListFile memberListFile() const
    {
        return OfflineSession(opened(), u"Cluster"_s).GetSystemInfo()->GetMemberListFile();
    }

private Q_SLOTS:
    void init()
    {
        mCluster = std::make_unique<QTemporaryDir>();
        write(u"Comma.app"_s, metadata);
    }

    void withoutAFileThePresenceFlagIs0AndThereAreNoBytes()
    {
        const hfm::MemberListFile file = memberListFile();
        QCOMPARE(file.present, qint16(0));
        QCOMPARE(file.content, QByteArray());
    }

    void aFileThatIsTooLargeToBeOneIsLeftOutWithAWarning()
    {
        constexpr qint64 largest = qint64(64) << 20;
        QFile file(mCluster->filePath(u"Comma.lst"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(largest + 1));
        file.close();
        QCOMPARE(memberListFile().present, qint16(0));
        const auto warnings = opened()->warnings.list();
        QCOMPARE(warnings.size(), 1);
        QCOMPARE(warnings[0].file, u"Comma.lst"_s);
        QVERIFY(warnings[0].text.contains(QString::number(largest)));
    }

    void theBytesAreThoseOfTheFileToTheLast()
    {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte)
            all.append(char(byte));
        all += "Sub EnumMemberLists()\r\n\tEnd\rSub\n\n";
        write(u"Comma.lst"_s, all);
        const hfm::MemberListFile file = memberListFile();
        QVERIFY(file.present != 0);
        QCOMPARE(file.content, all);
    }

    void anEmptyFileIsPresent()
    {
        write(u"Comma.lst"_s, {});
        const hfm::MemberListFile file = memberListFile();
        QVERIFY(file.present != 0);
        QVERIFY(file.content.isEmpty());
    }

    void theExtensionIsFoundInAnyLetterCase()
    {
        write(u"Comma.LST"_s, "x");
        QCOMPARE(memberListFile().content, QByteArray("x"));
    }

    void aFileOfAnotherNameIsNotTheApplications()
    {
        write(u"Other.lst"_s, "x");
        QCOMPARE(memberListFile().present, qint16(0));
    }

    void theFileIsTheOneOfTheOpening()
    {
        write(u"Comma.lst"_s, "before");
        const auto application = opened();
        write(u"Comma.lst"_s, "after");
        const auto system = OfflineSession(application, u"Cluster"_s).GetSystemInfo();
        QCOMPARE(system->GetMemberListFile().content, QByteArray("before"));
    }

    void aFileThatCannotBeOpenedIsAWarningAndNotPresent()
    {
        ApplicationFiles files = findApplications(mCluster->path()).value(0);
        files.memberLists = mCluster->filePath(u"Comma.lst"_s); // gone since it was found
        const auto application = readApplication(files, testYear);
        QCOMPARE(application->memberListFile.present, qint16(0));
        const QList<QString> warnings = warningsOf(*application);
        QCOMPARE(warnings.size(), 1);
        QVERIFY2(warnings[0].startsWith(u"Comma.lst:0: The file cannot be opened: "_s),
                 qPrintable(warnings[0]));
    }

    void aFolderOfThatNameIsNoFile()
    {
        QVERIFY(QDir(mCluster->path()).mkdir(u"Comma.lst"_s));
        ApplicationFiles files = findApplications(mCluster->path()).value(0);
        QCOMPARE(files.memberLists, QString());
        files.memberLists = mCluster->filePath(u"Comma.lst"_s);
        const auto application = readApplication(files, testYear);
        QCOMPARE(application->memberListFile.present, qint16(0));
        QCOMPARE(application->warnings.count(), 1);
    }
};

QTEST_APPLESS_MAIN(tst_MemberListFile)
#include "tst_MemberListFile.moc"
