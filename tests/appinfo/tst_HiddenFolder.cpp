#include "appinfo/HiddenFolder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <ctime>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

class tst_HiddenFolder : public QObject
{
    Q_OBJECT

    static constexpr int hour = 60 * 60;

    std::unique_ptr<QTemporaryDir> mFolder;

    QString at(const QString &name) const { return mFolder->filePath(name); }
    QString left() const { return at(u".Tessaly Export aB3dE6"_s); }
    static void makeFile(const QString &name)
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("x"), 1);
    }
    /// A folder with what a killed program left.
    static void makeLeft(const QString &path)
    {
        QVERIFY(QDir().mkpath(path));
        for (const QString &name : {u"cells0"_s, u"room"_s, u"workbook"_s})
            makeFile(path + u'/' + name);
    }
    static void age(const QString &path, int seconds)
    {
        const timespec time{std::time(nullptr) - seconds, 0};
        const timespec times[] = {time, time};
        QCOMPARE(utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
    }
    void makeAnother() const { const HiddenFolder another(at(u"book.xlsx"_s)); }

private Q_SLOTS:
    void init() { mFolder = std::make_unique<QTemporaryDir>(); }

    void itIsBesideTheFileAndGoesWithAllThatIsInIt()
    {
        QString path;
        {
            const HiddenFolder folder(at(u"book.xlsx"_s));
            path = folder.path();
            QVERIFY(path.startsWith(at(u".Tessaly Export "_s)));
            makeFile(path + u"/workbook"_s);
        }
        QVERIFY(!QFile::exists(path));
    }

    void whatAKilledProgramLeftGoesADayLater()
    {
        makeLeft(left());
        age(left(), 25 * hour);
        makeAnother();
        QVERIFY(!QFile::exists(left()));
    }

    void whatIsYoungerStays()
    {
        makeLeft(left());
        age(left(), 23 * hour);
        makeAnother();
        QVERIFY(QFile::exists(left() + u"/workbook"_s));
    }

    void aFolderInUseStaysHoweverOldItIs()
    {
        const HiddenFolder folder(at(u"first.xlsx"_s));
        makeFile(folder.path() + u"/workbook"_s);
        age(folder.path(), 100 * hour);
        makeAnother();
        QVERIFY(QFile::exists(folder.path() + u"/workbook"_s));
    }

    void whatIsNotOfAnExportStays_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("a visible name") << u"Tessaly Export aB3dE6"_s;
        QTest::newRow("a longer name") << u".Tessaly Export aB3dE67"_s;
        QTest::newRow("another name") << u".Other Export aB3dE6"_s;
    }
    void whatIsNotOfAnExportStays()
    {
        QFETCH(QString, folder);
        makeLeft(at(folder));
        age(at(folder), 100 * hour);
        makeAnother();
        QVERIFY(QFile::exists(at(folder) + u"/workbook"_s));
    }

    void aFileThatNoExportWritesStaysWithItsFolder()
    {
        makeLeft(left());
        makeFile(left() + u"/letter"_s);
        age(left(), 100 * hour);
        makeAnother();
        QVERIFY(QFile::exists(left() + u"/letter"_s));
    }

    void aLinkIsNotFollowed()
    {
        makeLeft(at(u"elsewhere"_s));
        QVERIFY(QFile::link(at(u"elsewhere"_s), left()));
        age(at(u"elsewhere"_s), 100 * hour);
        makeAnother();
        QVERIFY(QFile::exists(at(u"elsewhere/workbook"_s)));
    }
};

QTEST_APPLESS_MAIN(tst_HiddenFolder)
#include "tst_HiddenFolder.moc"
