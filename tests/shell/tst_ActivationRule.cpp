#include "shell/ActivationRule.h"

#include <QTest>

using Window = ActivationRule::Window;

class tst_ActivationRule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mRule = {}; }

    void theFirstTimeIsAnActivationWhereverTheUserComesFrom()
    {
        QVERIFY(mRule.becomesActive(Window::Main));
    }

    void theFirstTimeAfterAMessageBoxIsOneToo()
    {
        QVERIFY(!mRule.becomesActive(Window::MessageBox));
        QVERIFY(mRule.becomesActive(Window::Main));
    }

    void theFirstTimeAfterAnotherProgramIsOneToo()
    {
        mRule.noneIsActive();
        QVERIFY(mRule.becomesActive(Window::Main));
    }

    void comingFromAnotherWindowIsAnActivation()
    {
        mRule.becomesActive(Window::Main);
        QVERIFY(!mRule.becomesActive(Window::Other));
        QVERIFY(mRule.becomesActive(Window::Main));
    }

    void comingFromAMessageBoxIsNone()
    {
        mRule.becomesActive(Window::Main);
        QVERIFY(!mRule.becomesActive(Window::MessageBox));
        QVERIFY(!mRule.becomesActive(Window::Main));
    }

    void comingFromAnotherProgramIsNone()
    {
        mRule.becomesActive(Window::Main);
        mRule.noneIsActive();
        QVERIFY(!mRule.becomesActive(Window::Main));
    }

    void comingFromAnotherProgramIsNoneEvenIfAToolWasActiveBefore()
    {
        mRule.becomesActive(Window::Main);
        mRule.becomesActive(Window::Other);
        mRule.noneIsActive();
        QVERIFY(!mRule.becomesActive(Window::Main));
    }

    void aToolThatClosesLeadsToAnActivationWithAndWithoutAGap()
    {
        mRule.becomesActive(Window::Main);
        mRule.becomesActive(Window::Other);
        QVERIFY(mRule.becomesActive(Window::Main, true));
        mRule.becomesActive(Window::Other);
        mRule.noneIsActive();
        QVERIFY(mRule.becomesActive(Window::Main, true));
    }

    void aMessageBoxThatClosesLeadsToNone()
    {
        mRule.becomesActive(Window::Main);
        mRule.becomesActive(Window::MessageBox);
        mRule.noneIsActive();
        QVERIFY(!mRule.becomesActive(Window::Main, true));
    }

    void aMessageOverAToolThatLeadsBackToItChangesNothing()
    {
        mRule.becomesActive(Window::Main);
        mRule.becomesActive(Window::Other);
        mRule.becomesActive(Window::MessageBox);
        mRule.becomesActive(Window::Other);
        QVERIFY(mRule.becomesActive(Window::Main));
    }

    void anActivationIsOneOnlyOnce()
    {
        mRule.becomesActive(Window::Main);
        mRule.becomesActive(Window::Other);
        QVERIFY(mRule.becomesActive(Window::Main));
        QVERIFY(!mRule.becomesActive(Window::Main));
    }

private:
    ActivationRule mRule;
};

QTEST_APPLESS_MAIN(tst_ActivationRule)
#include "tst_ActivationRule.moc"
