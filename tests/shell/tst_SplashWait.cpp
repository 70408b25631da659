#include "shell/SplashWait.h"

#include <QTest>

class tst_SplashWait : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWaitIsOverAfterFiveSeconds()
    {
        SplashWait wait;
        wait.start(QTime(10, 0, 0));
        QVERIFY(!wait.isOver(QTime(10, 0, 0)));
        QVERIFY(!wait.isOver(QTime(10, 0, 4, 999)));
        QVERIFY(wait.isOver(QTime(10, 0, 5)));
        QVERIFY(wait.isOver(QTime(11, 0, 0)));
    }

    void theStartIsRoundedToAWholeSecond_data()
    {
        QTest::addColumn<QTime>("start");
        QTest::addColumn<QTime>("over");
        QTest::newRow("down") << QTime(10, 0, 0, 499) << QTime(10, 0, 5);
        QTest::newRow("up") << QTime(10, 0, 0, 501) << QTime(10, 0, 6);
        QTest::newRow("a half to the even second below") << QTime(10, 0, 0, 500) << QTime(10, 0, 5);
        QTest::newRow("a half to the even second above") << QTime(10, 0, 1, 500) << QTime(10, 0, 7);
    }
    void theStartIsRoundedToAWholeSecond()
    {
        QFETCH(QTime, start);
        QFETCH(QTime, over);
        SplashWait wait;
        wait.start(start);
        QVERIFY(!wait.isOver(over.addMSecs(-1)));
        QVERIFY(wait.isOver(over));
    }

    void cutShortItIsOverAtTheNextLook()
    {
        SplashWait wait;
        wait.start(QTime(10, 0, 0));
        wait.cutShort(QTime(10, 0, 1));
        QVERIFY(wait.isOver(QTime(10, 0, 1)));
    }

    void startedInTheLastSecondsOfADayItIsNotOverByItself_data()
    {
        QTest::addColumn<QTime>("start");
        QTest::newRow("five seconds before") << QTime(23, 59, 55);
        QTest::newRow("rounded to five seconds before") << QTime(23, 59, 54, 600);
        QTest::newRow("one second before") << QTime(23, 59, 59);
        QTest::newRow("rounded to midnight") << QTime(23, 59, 59, 900);
    }
    void startedInTheLastSecondsOfADayItIsNotOverByItself()
    {
        QFETCH(QTime, start);
        SplashWait wait;
        wait.start(start);
        for (const QTime now :
             {QTime(23, 59, 59, 999), QTime(0, 0, 0), QTime(0, 0, 5), QTime(12, 0, 0)})
            QVERIFY(!wait.isOver(now));
        wait.cutShort(QTime(0, 0, 3));
        QVERIFY(wait.isOver(QTime(0, 0, 3)));
    }

    void startedSixSecondsBeforeMidnightItIsOverInTime()
    {
        SplashWait wait;
        wait.start(QTime(23, 59, 54));
        QVERIFY(!wait.isOver(QTime(23, 59, 58, 999)));
        QVERIFY(wait.isOver(QTime(23, 59, 59)));
    }
};

QTEST_APPLESS_MAIN(tst_SplashWait)
#include "tst_SplashWait.moc"
