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
            hold.press(Qt::Key_Delete, time, false);
            QVERIFY(hold.release(Qt::Key_Delete, time + 50, false));
        }
    }

    void repetitionsThatAreMarkedDoNotCountAndTheLastReleaseDoes()
    {
        KeyHold hold;
        hold.press(Qt::Key_Delete, 100, false);
        for (const quint64 time : {600, 640}) {
            QVERIFY(!hold.release(Qt::Key_Delete, time, true));
            hold.press(Qt::Key_Delete, time, true);
        }
        QVERIFY(hold.release(Qt::Key_Delete, 660, false));
    }

    void ofRepetitionsThatAreNotMarkedOneCounts()
    {
        KeyHold hold;
        hold.press(Qt::Key_Delete, 100, false);
        QVERIFY(hold.release(Qt::Key_Delete, 600, false));
        hold.press(Qt::Key_Delete, 600, false);
        QVERIFY(!hold.release(Qt::Key_Delete, 640, false));
        hold.press(Qt::Key_Delete, 640, false);
        QVERIFY(!hold.release(Qt::Key_Delete, 660, false));
        hold.press(Qt::Key_Delete, 900, false);
        QVERIFY(hold.release(Qt::Key_Delete, 950, false));
    }

    void whereTimesAreNotKnownEachReleaseCounts()
    {
        KeyHold hold;
        for (int i = 0; i < 2; ++i) {
            hold.press(Qt::Key_Delete, 0, false);
            QVERIFY(hold.release(Qt::Key_Delete, 0, false));
        }
    }

    void anotherKeyIsNoRepetition()
    {
        KeyHold hold;
        hold.press(Qt::Key_Down, 100, false);
        QVERIFY(hold.release(Qt::Key_Down, 200, false));
        hold.press(Qt::Key_Delete, 200, false);
        QVERIFY(hold.release(Qt::Key_Delete, 250, false));
        QVERIFY(hold.release(Qt::Key_Up, 250, false)); // pressed elsewhere
    }
};

QTEST_APPLESS_MAIN(tst_KeyHold)
#include "tst_KeyHold.moc"
