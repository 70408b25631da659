#include "hfm/offline/dlgOfflineOpen.h"
#include "support/FakeServices.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using namespace hfm::offline;

class tst_dlgOfflineOpen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mCluster = std::make_unique<QTemporaryDir>();
        write("Beta.app", "!HIERARCHIES=Entity\n;GROUP\nGROUP;US01\nGROUP;US01\n");
        write("alpha.app", "!HIERARCHIES=Entity\n;EAST\n");
    }

    void oneRowAnApplicationSortedByNameTheFirstSelected()
    {
        open();
        QCOMPARE(rows(*mApplications),
                 QStringList({QStringLiteral("alpha"), QStringLiteral("Beta")}));
        QCOMPARE(mApplications->currentIndex().row(), 0);
        QVERIFY(mSummary->text().startsWith(QLatin1String("Files: alpha.app\n")));
        QVERIFY(mSummary->text().contains(QLatin1String("\nEntity: 1 members\n")));
        QVERIFY(mOk->isEnabled());
        QVERIFY(mDialog->application() != nullptr);
    }

    void selectingARowShowsItsSummaryAndWarnings()
    {
        open();
        QTest::keyClick(mApplications, Qt::Key_Down);
        QVERIFY(mSummary->text().contains(QLatin1String("\nEntity: 2 members\n")));
        const QStringList warnings = rows(*mWarnings);
        QVERIFY(!warnings.filter(QLatin1String("Beta.app, line 4: ")).isEmpty());
        QCOMPARE(mDialog->application()->files.name, QStringLiteral("Beta"));
    }

    void aFileThatCannotBeReadShowsItsErrorAndLeavesOkOff()
    {
        write("Broken.app", "!HIERARCHIES=Entity\n;A\nA;B\nB;A\n");
        open();
        select(2);
        QVERIFY2(mSummary->text().contains(QLatin1String("Broken.app, line ")),
                 qPrintable(mSummary->text()));
        QVERIFY(!mOk->isEnabled());
        QCOMPARE(mDialog->application(), nullptr);
        QVERIFY(rows(*mWarnings).isEmpty());
        QTest::keyClick(mApplications, Qt::Key_Return);
        QVERIFY(mDialog->isVisible());

        select(0);
        QVERIFY(mOk->isEnabled());
        QVERIFY(mDialog->application() != nullptr);
    }

    void enterAndDoubleClickOpenTheSelectedApplication()
    {
        open();
        QTest::keyClick(mApplications, Qt::Key_Return);
        QCOMPARE(mDialog->result(), int(QDialog::Accepted));

        open();
        select(1);
        const QPoint row = mApplications->visualRect(mApplications->model()->index(1, 0)).center();
        QTest::mouseClick(mApplications->viewport(), Qt::LeftButton, {}, row);
        QTest::mouseDClick(mApplications->viewport(), Qt::LeftButton, {}, row);
        QCOMPARE(mDialog->result(), int(QDialog::Accepted));
        QCOMPARE(mDialog->application()->files.name, QStringLiteral("Beta"));
    }

    void cancelGivesUp()
    {
        open();
        QTest::mouseClick(mDialog->findChild<QPushButton *>(QStringLiteral("cmdOpenCancel")),
                          Qt::LeftButton);
        QCOMPARE(mDialog->result(), int(QDialog::Rejected));
        QVERIFY(!mDialog->isVisible());
    }

    void aFolderWithoutApplicationsSaysSo()
    {
        mCluster = std::make_unique<QTemporaryDir>();
        open();
        QCOMPARE(mSummary->text(), QStringLiteral("There is no application in the folder '%1'.")
                                       .arg(QDir::toNativeSeparators(mCluster->path())));
        QVERIFY(!mOk->isEnabled());
        QVERIFY(rows(*mApplications).isEmpty());
    }

    void warningsCanBeCopied()
    {
        open();
        select(1);
        mWarnings->setFocus();
        mWarnings->selectAll();
        QTest::keyClick(mWarnings, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), rows(*mWarnings).join(QLatin1Char('\n')));
        QVERIFY(!rows(*mWarnings).isEmpty());
    }

private:
    void write(const char *name, const char *text)
    {
        QFile file(mCluster->filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    void open()
    {
        mDialog =
            std::make_unique<dlgOfflineOpen>(mCluster->path(), mServices.clock, mServices.trap);
        mDialog->show();
        QVERIFY(QTest::qWaitForWindowActive(mDialog.get()));
        mApplications = mDialog->findChild<QListView *>(QStringLiteral("lstApplications"));
        mSummary = mDialog->findChild<QLabel *>(QStringLiteral("lblApplicationSummary"));
        mWarnings = mDialog->findChild<QListView *>(QStringLiteral("lstWarnings"));
        mOk = mDialog->findChild<QPushButton *>(QStringLiteral("cmdOpenOk"));
        QVERIFY(mApplications && mSummary && mWarnings && mOk);
    }

    void select(int row)
    {
        mApplications->setFocus();
        QTest::keyClick(mApplications, Qt::Key_Home);
        for (int i = 0; i < row; ++i)
            QTest::keyClick(mApplications, Qt::Key_Down);
        QCOMPARE(mApplications->currentIndex().row(), row);
    }

    static QStringList rows(const QListView &list)
    {
        QStringList texts;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            texts.append(list.model()->index(row, 0).data().toString());
        return texts;
    }

    FakeServices mServices;
    std::unique_ptr<QTemporaryDir> mCluster;
    std::unique_ptr<dlgOfflineOpen> mDialog;
    QListView *mApplications = nullptr;
    QLabel *mSummary = nullptr;
    QListView *mWarnings = nullptr;
    QPushButton *mOk = nullptr;
};

QTEST_MAIN(tst_dlgOfflineOpen)
#include "tst_dlgOfflineOpen.moc"
