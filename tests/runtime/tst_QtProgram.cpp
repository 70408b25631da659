#include "runtime/dlgPrompts.h"
#include "runtime/ErrorTrap.h"
#include "runtime/QtProgram.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

class tst_QtProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itRunsUntilItIsEnded()
    {
        QtProgram program;
        QVERIFY(!program.isEnding());
        QTimer::singleShot(0, this, [&] { program.end(7); });
        QCOMPARE(program.run(), 7);
        QVERIFY(program.isEnding());
    }

    void theFirstEndCounts()
    {
        QtProgram program;
        QTimer::singleShot(0, this, [&] {
            program.end(1);
            program.end(0);
        });
        QCOMPARE(program.run(), 1);
    }

    void itDoesNotRunWhenItWasEndedBefore()
    {
        QtProgram program;
        program.end(3);
        QCOMPARE(program.run(), 3);
    }

    void anEndWithoutExitCodeIs0()
    {
        QtProgram program;
        QTimer::singleShot(0, this, [] { QCoreApplication::quit(); });
        QCOMPARE(program.run(), 0);
        QVERIFY(!program.isEnding());
    }

    void itEndsThroughEveryModalWindow()
    {
        QtProgram program;
        dlgPrompts prompts(program);
        int ended = 0;
        Prompts::Answer answer = Prompts::Answer::Yes;
        QTimer::singleShot(0, this, [&] {
            QDialog outer;
            QTimer::singleShot(0, &outer, [&] {
                QDialog inner;
                QTimer::singleShot(0, &inner, [&] {
                    QTimer::singleShot(0, &inner, [&] { program.end(4); });
                    answer = prompts.ask({{}, QStringLiteral("?"), {}, Prompt::Buttons::YesNo});
                });
                inner.exec();
                ++ended;
            });
            outer.exec();
            ++ended;
        });
        QCOMPARE(program.run(), 4);
        QCOMPARE(ended, 2);
        QCOMPARE(answer, Prompts::Answer::No);
    }

    void anErrorInAModalWindowShowsItsBoxAndEndsWithCode1()
    {
        QtProgram program;
        dlgPrompts prompts(program);
        ErrorTrap trap(prompts, program);
        QString shown;
        bool dialogEnded = false;
        QTimer::singleShot(0, this, [&] {
            QDialog dialog;
            QPushButton button(&dialog);
            trap.connect(&button, &QPushButton::clicked, &dialog, [] { throw RuntimeError(91); });
            QTimer::singleShot(0, &dialog, [&] {
                QTimer::singleShot(0, &dialog, [&] {
                    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                    QVERIFY(box);
                    shown = box->windowTitle() + QLatin1Char('|') + box->text();
                    QVERIFY(!program.isEnding());
                    QTest::keyClick(box, Qt::Key_Return);
                });
                button.click();
            });
            dialog.exec();
            dialogEnded = true;
        });
        QCOMPARE(program.run(), 1);
        QCOMPARE(shown, QStringLiteral("Tessaly|Run-time error '91':\n\n"
                                       "Object variable or With block variable not set"));
        QVERIFY(dialogEnded);
    }

    void aModalWindowOpenedAfterTheEndDoesNotHold()
    {
        QtProgram program;
        bool ended = false;
        QTimer::singleShot(0, this, [&] {
            program.end(0);
            QDialog late;
            late.exec();
            ended = true;
        });
        QCOMPARE(program.run(), 0);
        QVERIFY(ended);
    }
};

QTEST_MAIN(tst_QtProgram)
#include "tst_QtProgram.moc"
