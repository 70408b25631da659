#include "listbuilder/KeyHold.h"

#include <QTest>

class tst_KeyHold : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aReleaseCounts()
    {
        KeyHold hold;
        for (const quint64 time : {100, 200}) {
            hold.press(time, false);
            QVERIFY(hold.release(time + 50, false));
        }
    }

    void repetitionsThatAreMarkedDoNotCountAndTheLastReleaseDoes()
    {
        KeyHold hold;
        hold.press(100, false);
        for (const quint64 time : {600, 640}) {
            QVERIFY(!hold.release(time, true));
            hold.press(time, true);
        }
        QVERIFY(hold.release(660, false));
    }

    void ofRepetitionsThatAreNotMarkedOneCounts()
    {
        KeyHold hold;
        hold.press(100, false);
        QVERIFY(hold.release(600, false));
        hold.press(600, false);
        QVERIFY(!hold.release(640, false));
        hold.press(640, false);
        QVERIFY(!hold.release(660, false));
        hold.press(900, false);
        QVERIFY(hold.release(950, false));
    }

    void whereTimesAreNotKnownEachReleaseCounts()
    {
        KeyHold hold;
        for (int i = 0; i < 2; ++i) {
            hold.press(0, false);
            QVERIFY(hold.release(0, false));
        }
    }

    void aReleaseWithoutAPressCounts()
    {
        KeyHold hold;
        QVERIFY(hold.release(100, false));
        QVERIFY(hold.release(250, false));
        hold.press(250, false); // held since it was pressed elsewhere
        QVERIFY(!hold.release(290, false));
        QVERIFY(hold.release(500, false));
    }

    void aMarkedRepetitionWithoutAPressDoesNotCount()
    {
        KeyHold hold;
        QVERIFY(!hold.release(100, true));
        QVERIFY(!hold.release(140, true));
        QVERIFY(hold.release(160, false));
    }
};

QTEST_APPLESS_MAIN(tst_KeyHold)
#include "tst_KeyHold.moc"
