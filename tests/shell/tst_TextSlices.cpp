#include "shell/TextSlices.h"

#include <QTest>

namespace {

constexpr qsizetype sliceLength = TextSlices::sliceLength;

/// Whether the slices are the line, each place is in its slice, and none is much too long.
bool isSound(const QString &line)
{
    const TextSlices slices(line);
    QString joined;
    for (qsizetype slice = 0; slice < slices.count(); ++slice) {
        const QStringView text = slices.text(slice);
        if (text.size() > 2 * sliceLength || (text.isEmpty() && !line.isEmpty()))
            return false;
        for (qsizetype offset = 0; offset < text.size(); ++offset) {
            if (slices.sliceOf(slices.start(slice) + offset) != slice)
                return false;
        }
        joined += text;
    }
    return joined == line && slices.sliceOf(line.size()) == slices.count() - 1;
}

} // namespace

class tst_TextSlices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyLineIsAnEmptySlice()
    {
        const TextSlices slices{QStringView()};
        QCOMPARE(slices.count(), 1);
        QCOMPARE(slices.start(0), 0);
        QCOMPARE(slices.start(1), 0);
        QCOMPARE(slices.sliceOf(0), 0);
    }

    void aLineIsCutAtEveryLength()
    {
        for (const qsizetype length : {qsizetype(1), sliceLength - 1, sliceLength, sliceLength + 1,
                                       3 * sliceLength, 3 * sliceLength + 5}) {
            const QString line(length, QLatin1Char('x'));
            QCOMPARE(TextSlices(line).count(), (length + sliceLength - 1) / sliceLength);
            QVERIFY(isSound(line));
        }
    }

    void aCutPartsNoCharacter()
    {
        const QString smile = QStringLiteral("\U0001F600");
        for (const qsizetype before : {sliceLength - 2, sliceLength - 1, sliceLength}) {
            const QString line =
                QString(before, QLatin1Char('x')) + smile + QString(sliceLength, QLatin1Char('y'));
            QVERIFY(isSound(line));
            QVERIFY(!line.at(TextSlices(line).start(1)).isLowSurrogate());
        }
        const QString marked = QString(sliceLength - 1, QLatin1Char('x')) +
                               QStringLiteral("e\u0301") + QStringLiteral("yyyy");
        QCOMPARE(TextSlices(marked).start(1), sliceLength - 1);
        QVERIFY(isSound(marked));
    }

    void nothingButMarksIsCutAllTheSame()
    {
        QVERIFY(isSound(QString(5 * sliceLength, QChar(0x0301))));
    }
};

QTEST_APPLESS_MAIN(tst_TextSlices)
#include "tst_TextSlices.moc"
