#include "runtime/Counter16.h"

#include <QTest>

class tst_Counter16 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsUpTo32767()
    {
        Counter16 counter;
        for (int i = 0; i < 32767; ++i)
            ++counter;
        QCOMPARE(counter.value(), qint16(32767));
    }

    void countingPast32767IsOverflow()
    {
        Counter16 counter(32767);
        try {
            ++counter;
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 6);
            QCOMPARE(error.description(), QStringLiteral("Overflow"));
        }
    }

    void aValueThatDoesNotFitIsOverflow()
    {
        QVERIFY_THROWS_EXCEPTION(RuntimeError, Counter16(32768));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, Counter16(-32769));
        QCOMPARE(Counter16(-32768).value(), qint16(-32768));
    }
};

QTEST_APPLESS_MAIN(tst_Counter16)
#include "tst_Counter16.moc"
