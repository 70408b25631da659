#include "shell/frmSplash.h"
#include "shell/StartUp.h"
#include "support/FakeServices.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

class tst_frmSplash : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFakes = std::make_unique<FakeServices>();
        mSplash = std::make_unique<frmSplash>(mFakes->services);
        mFakes->clock.time = QDateTime(QDate(2012, 3, 14), QTime(15, 9, 26));
    }
    void cleanup()
    {
        mSplash.reset();
        mFakes.reset();
    }

    void nameVersionAndDisclaimerAreShown()
    {
        QCOMPARE(mSplash->objectName(), QStringLiteral("frmSplash"));
        QCOMPARE(text("lblProductName"), QStringLiteral("Tessaly"));
        QCOMPARE(text("lblVersion"), QStringLiteral("Version 11.1.2"));
        QCOMPARE(text("lblWarning_0"),
                 QStringLiteral("This utility application is unsupported by Oracle."));
        QCOMPARE(text("lblWarning_1"),
                 QStringLiteral("For questions and feedback see the project's issue tracker."));
        QCOMPARE(text("lblWarning_2"),
                 QStringLiteral("if you wish to provide feedback, ask for enhancements and/or "
                                "fixes. "));
        QVERIFY(mSplash->findChild<QLabel *>(QStringLiteral("picLogo")));
        QCOMPARE(mSplash->windowModality(), Qt::ApplicationModal);
    }

    void itClosesByItselfAfterFiveSeconds()
    {
        mFakes->clock.stepMilliseconds = 1000; // at each look at it
        bool wasVisible = false;
        showAndAtEachTurn([&](int) { wasVisible = mSplash->isVisible(); });
        QVERIFY(wasVisible);
        QVERIFY(!mSplash->isVisible());
        // The last look was five seconds after the first, and set the clock forward too.
        QCOMPARE(mFakes->clock.time.time(), QTime(15, 9, 32));
    }

    void aClickEndsTheWait_data()
    {
        QTest::addColumn<QString>("where");
        QTest::newRow("on the window") << QString();
        QTest::newRow("on the name") << QStringLiteral("lblProductName");
        QTest::newRow("on the version") << QStringLiteral("lblVersion");
    }
    void aClickEndsTheWait()
    {
        QFETCH(QString, where);
        QWidget *const target =
            where.isEmpty() ? mSplash.get() : mSplash->findChild<QWidget *>(where);
        QVERIFY(target);
        int turns = 0;
        showAndAtEachTurn([&](int turn) {
            turns = turn;
            if (turn == 2) // the clock stands
                QTest::mouseClick(target, Qt::LeftButton, {}, QPoint(2, 2));
        });
        QCOMPARE(turns, 2);
        QVERIFY(!mSplash->isVisible());
    }

    void thePublicMethodEndsTheWait()
    {
        int turns = 0;
        showAndAtEachTurn([&](int turn) {
            turns = turn;
            mSplash->endWait();
        });
        QCOMPARE(turns, 1);
        QVERIFY(!mSplash->isVisible());
    }

    void shownJustBeforeMidnightItClosesOnlyWhenClicked()
    {
        mFakes->clock.time = QDateTime(QDate(2012, 3, 14), QTime(23, 59, 57));
        mFakes->clock.stepMilliseconds = 1000;
        const QDateTime longAfter(QDate(2012, 3, 15), QTime(0, 0, 30));
        showAndAtEachTurn([&](int) {
            if (mFakes->clock.time >= longAfter)
                QTest::mouseClick(mSplash.get(), Qt::LeftButton);
        });
        QVERIFY(!mSplash->isVisible());
        QVERIFY(mFakes->clock.time >= longAfter);
    }

    void theEndOfTheProgramEndsTheWait()
    {
        showAndAtEachTurn([&](int) { mFakes->program.end(0); });
        QVERIFY(!mSplash->isVisible());
    }

    void itsClosingAndThatOfADialogOfTheLogonIsNotTheProgramsEnd()
    {
        const QTemporaryDir folder;
        mFakes->services.programFolder = folder.path();
        QWidget main;
        QDialog logonDialog;
        QStringList steps;
        const auto showSplash = [&] { showAndAtEachTurn([&](int) { mSplash->endWait(); }); };
        const auto showMain = [&] {
            QTimer::singleShot(0, &logonDialog, [&] { logonDialog.accept(); });
            steps.append(QStringLiteral("logon %1").arg(logonDialog.exec()));
            QCoreApplication::processEvents();
            main.show();
        };
        QTimer::singleShot(0, &main, [&] {
            startUp(mFakes->services, {showSplash, showMain});
            QTimer::singleShot(0, &main, [&] {
                steps.append(QStringLiteral("main"));
                main.close();
            });
        });
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(steps, (QStringList{QStringLiteral("logon 1"), QStringLiteral("main")}));
    }

private:
    QString text(const char *label) const
    {
        const auto *found = mSplash->findChild<QLabel *>(QLatin1StringView(label));
        return found ? found->text() : QStringLiteral("no such label");
    }

    /// Shows the splash and runs `turn` (with 1, 2, ...) each time that it processes events.
    void showAndAtEachTurn(const std::function<void(int)> &turn)
    {
        int count = 0;
        QTimer turns;
        connect(&turns, &QTimer::timeout, this, [&] { turn(++count); });
        // Qt processes events once while it shows a splash; that is no turn yet.
        QTimer::singleShot(0, &turns, [&] { turns.start(0); });
        mSplash->showModal();
    }

    std::unique_ptr<FakeServices> mFakes;
    std::unique_ptr<frmSplash> mSplash;
};

QTEST_MAIN(tst_frmSplash)
#include "tst_frmSplash.moc"
