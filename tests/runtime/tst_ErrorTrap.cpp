#include "runtime/ErrorTrap.h"
#include "support/FakeServices.h"

#include <QTest>

#include <new>
#include <stdexcept>

class Sender : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void plain();
    void chosen(int index, const QString &text);
};

class tst_ErrorTrap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHandlerThatEndsWellShowsNothing()
    {
        int runs = 0;
        mTrap.run([&] { ++runs; });
        QCOMPARE(runs, 1);
        QVERIFY(mPrompts.asked.isEmpty());
        QVERIFY(!mProgram.isEnding());
    }

    void anErrorShowsItsNumberAndDescriptionAndEndsTheProgram()
    {
        mTrap.run([] { throw RuntimeError(13); });
        QCOMPARE(mPrompts.asked, {runTimeError("Run-time error '13':\r\n\r\nType mismatch")});
        QCOMPARE(mProgram.endCodes, {1});
    }

    void aDescriptionIsShownAsItStands()
    {
        mTrap.run([] {
            throw RuntimeError(70, QStringLiteral("Tessaly"),
                               QStringLiteral("Permission denied: /tmp/%1 <b>\r\nx"));
        });
        QCOMPARE(mPrompts.asked, {runTimeError("Run-time error '70':\r\n\r\n"
                                               "Permission denied: /tmp/%1 <b>\r\nx")});
    }

    void aNegativeNumberIsShownInDecimal()
    {
        mTrap.run([] {
            throw RuntimeError(-2147467259, QStringLiteral("HFM"), QStringLiteral("Refused"));
        });
        QCOMPARE(mPrompts.asked, {runTimeError("Run-time error '-2147467259':\r\n\r\nRefused")});
    }

    void noMemoryIsError7()
    {
        mTrap.run([] { throw std::bad_alloc(); });
        QCOMPARE(mPrompts.asked, {runTimeError("Run-time error '7':\r\n\r\nOut of memory")});
        QCOMPARE(mProgram.endCodes, {1});
    }

    void anotherExceptionIsError5WithItsText()
    {
        mTrap.run([] { throw std::out_of_range("no such entry"); });
        QCOMPARE(mPrompts.asked, {runTimeError("Run-time error '5':\r\n\r\nno such entry")});
        QCOMPARE(mProgram.endCodes, {1});
    }

    void whatIsNoExceptionIsError5()
    {
        mTrap.run([] { throw 42; });
        QCOMPARE(mPrompts.asked,
                 {runTimeError("Run-time error '5':\r\n\r\nInvalid procedure call or argument")});
        QCOMPARE(mProgram.endCodes, {1});
    }

    void nothingRunsWhileTheProgramIsEnding()
    {
        int runs = 0;
        Sender sender;
        mTrap.connect(&sender, &Sender::plain, this, [&] { ++runs; });
        mProgram.end(0);
        Q_EMIT sender.plain();
        mTrap.run([&] { ++runs; });
        QCOMPARE(runs, 0);
        QVERIFY(mPrompts.asked.isEmpty());
    }

    void aSignalWithoutArgumentsReachesItsHandler()
    {
        int runs = 0;
        Sender sender;
        mTrap.connect(&sender, &Sender::plain, this, [&] { ++runs; });
        Q_EMIT sender.plain();
        Q_EMIT sender.plain();
        QCOMPARE(runs, 2);
    }

    void aSignalsArgumentsReachTheHandlerThatTakesThem()
    {
        QString seen;
        Sender sender;
        mTrap.connect(&sender, &Sender::chosen, this, [&](int index, const QString &text) {
            seen = text + QString::number(index);
        });
        Q_EMIT sender.chosen(3, QStringLiteral("Entity"));
        QCOMPARE(seen, QStringLiteral("Entity3"));
    }

    void aHandlerNeedNotTakeTheSignalsArguments()
    {
        int runs = 0;
        Sender sender;
        mTrap.connect(&sender, &Sender::chosen, this, [&] { ++runs; });
        Q_EMIT sender.chosen(3, QStringLiteral("Entity"));
        QCOMPARE(runs, 1);
    }

    void noExceptionCrossesTheSignal()
    {
        Sender sender;
        mTrap.connect(&sender, &Sender::plain, this, [] { throw RuntimeError(6); });
        bool cameBack = false;
        Q_EMIT sender.plain();
        cameBack = true;
        QVERIFY(cameBack);
        QCOMPARE(mPrompts.asked, {runTimeError("Run-time error '6':\r\n\r\nOverflow")});
        QCOMPARE(mProgram.endCodes, {1});
    }

    void aHandlerGoesWithItsContext()
    {
        int runs = 0;
        Sender sender;
        {
            const QObject context;
            mTrap.connect(&sender, &Sender::plain, &context, [&] { ++runs; });
            Q_EMIT sender.plain();
        }
        Q_EMIT sender.plain();
        QCOMPARE(runs, 1);
    }

    void init()
    {
        mPrompts = {};
        mProgram = {};
    }

private:
    static Prompt runTimeError(const char *text)
    {
        return {QStringLiteral("Tessaly"), QString::fromLatin1(text), Prompt::Icon::Critical,
                Prompt::Buttons::Ok};
    }

    FakePrompts mPrompts;
    FakeProgram mProgram;
    ErrorTrap mTrap{mPrompts, mProgram};
};

QTEST_APPLESS_MAIN(tst_ErrorTrap)
#include "tst_ErrorTrap.moc"
