#include "appinfo/ZipDirectory.h"

#include <QTemporaryFile>
#include <QtEndian>
#include <QTest>

using namespace Qt::StringLiterals;

/// Zip files of a directory only. Those of the library are read where workbooks are written.
class tst_ZipDirectory : public QObject
{
    Q_OBJECT

    using Sizes = QHash<QByteArray, qint64>;

    template <typename Number>
    static QByteArray bytes(Number number)
    {
        const Number little = qToLittleEndian(number);
        return QByteArray(reinterpret_cast<const char *>(&little), sizeof little);
    }
    static QByteArray entry(const QByteArray &name, quint32 size, const QByteArray &extra = {},
                            const QByteArray &comment = {})
    {
        return "PK\1\2" + QByteArray(20, '\0') + bytes(size) + bytes(quint16(name.size())) +
               bytes(quint16(extra.size())) + bytes(quint16(comment.size())) +
               QByteArray(12, '\0') + name + extra + comment;
    }
    static QByteArray end(const QByteArray &directory, quint32 place)
    {
        return "PK\5\6" + QByteArray(8, '\0') + bytes(quint32(directory.size())) + bytes(place) +
               QByteArray(2, '\0');
    }
    static Sizes sizesIn(const QByteArray &zip)
    {
        QTemporaryFile file;
        if (!file.open() || file.write(zip) != zip.size() || !file.flush())
            return {{"no file", 0}};
        return sizesInZip(file.fileName());
    }

private Q_SLOTS:
    void everyEntryHasItsSize()
    {
        const QByteArray directory = entry("one", 1, "extra", "comment") + entry("two/two", 70'000);
        QCOMPARE(sizesIn("data" + directory + end(directory, 4)),
                 Sizes({{"one", 1}, {"two/two", 70'000}}));
    }

    void aSizeBeyondFourGigabytesIsAmongTheExtraFields()
    {
        const QByteArray other = bytes(quint16(7)) + bytes(quint16(2)) + "ab";
        const QByteArray wide = bytes(quint16(1)) + bytes(quint16(8)) + bytes(5'000'000'000LL);
        const QByteArray directory =
            entry("wide", 0xFFFFFFFF, other + wide) + entry("none", 0xFFFFFFFF, other);
        QCOMPARE(sizesIn(directory + end(directory, 0)),
                 Sizes({{"wide", 5'000'000'000}, {"none", -1}}));
    }

    void aDirectoryBeyondFourGigabytesIsBeforeItsOtherEnd()
    {
        const QByteArray directory = entry("one", 1);
        QCOMPARE(sizesIn(directory + QByteArray(76, 'x') + end(directory, 0xFFFFFFFF)),
                 Sizes({{"one", 1}}));
    }

    void whatIsNoZipFileHasNothing()
    {
        QCOMPARE(sizesIn(""), Sizes());
        QCOMPARE(sizesIn(QByteArray(100, 'x')), Sizes());
        QCOMPARE(sizesIn(end(QByteArray(100, 'x'), 0)), Sizes());
        QCOMPARE(sizesInZip(u"/nowhere/at all"_s), Sizes());
    }
};

QTEST_APPLESS_MAIN(tst_ZipDirectory)
#include "tst_ZipDirectory.moc"
