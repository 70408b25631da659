#include "hfm/offline/dlgOfflineOpen.h"
#include "support/FakeServices.h"

#include <QAction>
#include <QClipboard>
#include <QCursor>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

using namespace hfm::offline;

namespace {

/// Notes the pointer that shows while an application is read, which asks for the year.
class PointerAtTheClock final : public Clock
{
public:
    mutable QList<Qt::CursorShape> shapes;

    QDateTime now() const override
    {
        const QCursor *pointer = QGuiApplication::overrideCursor();
        shapes.append(pointer ? pointer->shape() : Qt::ArrowCursor);
        return {QDate(2012, 3, 14), QTime(15, 9, 26)};
    }
};

} // namespace

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
        QVERIFY(mSummary->text().startsWith(QLatin1String("Files:\n  alpha.app, 26 bytes, ")));
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

    void theWaitPointerShowsWhileARowIsRead()
    {
        const PointerAtTheClock clock;
        dlgOfflineOpen dialog(mCluster->path(), clock, mServices.trap);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QCOMPARE(clock.shapes, QList<Qt::CursorShape>{Qt::WaitCursor});
        QVERIFY(!QGuiApplication::overrideCursor());
        QTest::keyClick(dialog.findChild<QListView *>(QStringLiteral("lstApplications")),
                        Qt::Key_Down);
        QCOMPARE(clock.shapes, QList<Qt::CursorShape>({Qt::WaitCursor, Qt::WaitCursor}));
        QVERIFY(!QGuiApplication::overrideCursor());
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

    void escapeGivesUp()
    {
        open();
        QTest::keyClick(mApplications, Qt::Key_Escape);
        QCOMPARE(mDialog->result(), int(QDialog::Rejected));
        QVERIFY(!mDialog->isVisible());
    }

    void withoutASelectionThereIsNothingToOpen()
    {
        open();
        clickFirstRow(Qt::ControlModifier);
        QVERIFY(!mApplications->selectionModel()->hasSelection());
        QVERIFY(!mOk->isEnabled());
        QCOMPARE(mDialog->application(), nullptr);
        QCOMPARE(mSummary->text(), QStringLiteral("No application is selected."));
        QVERIFY(rows(*mWarnings).isEmpty());
        QTest::keyClick(mApplications, Qt::Key_Return);
        QVERIFY(mDialog->isVisible());

        clickFirstRow(Qt::NoModifier);
        QVERIFY(mOk->isEnabled());
        QCOMPARE(mDialog->application()->files.name, QStringLiteral("alpha"));
    }

    void theSummaryTellsEverythingThatIsInTheFiles()
    {
        write("alpha.sec", "!USERS_AND_GROUPS\njane@CORP\nReaders\n!SECURITY_CLASSES\n[Default]\n"
                           "!ROLE_ACCESS\nLoad System;jane@CORP\n");
        write("alpha.profile", "!LANGUAGES\nEnglish\nFrench\n");
        write("alpha.xml", "<x/>");
        const QDateTime changed(QDate(2012, 3, 4), QTime(5, 6));
        for (const char *name : {"alpha.app", "alpha.sec", "alpha.profile", "alpha.xml"})
            setChanged(name, changed);
        open();
        const QStringList lines = mSummary->text().split(QLatin1Char('\n'));
        QCOMPARE(lines.mid(0, 5),
                 QStringList({QStringLiteral("Files:"),
                              QStringLiteral("  alpha.app, 26 bytes, 2012-03-04 05:06"),
                              QStringLiteral("  alpha.profile, 26 bytes, 2012-03-04 05:06"),
                              QStringLiteral("  alpha.sec, 99 bytes, 2012-03-04 05:06"),
                              QStringLiteral("  alpha.xml, 4 bytes, 2012-03-04 05:06, not read")}));
        for (const char *line :
             {"Entity: 1 members", "Custom4: 1 members", "Languages: English, French",
              "Users and groups: 2 (CORP\\jane, Readers)", "Roles: 1 (Load System)",
              "Security classes: 1 ([Default])", "Warnings: 2"})
            QVERIFY2(lines.contains(QLatin1StringView(line)), line);
        QCOMPARE(rows(*mWarnings).first(),
                 QStringLiteral("alpha.app: alpha.xml stands beside this file; it is not read."));
    }

    void memberListsAreNamedAndTried()
    {
        write("alpha.lst", "Sub EnumMemberLists()\n"
                           "  Dim lists(2)\n"
                           "  If HS.Dimension = \"Entity\" Then\n"
                           "    lists(1) = \"Good\"\n"
                           "    lists(2) = \"Bad\"\n"
                           "    HS.SetMemberLists lists\n"
                           "  End If\n"
                           "End Sub\n"
                           "Sub EnumMembersInList()\n"
                           "  If HS.MemberListID = 1 Then\n"
                           "    HS.AddMemberToList \"EAST\"\n"
                           "  Else\n"
                           "    HS.NoSuchThing\n"
                           "  End If\n"
                           "End Sub\n");
        open();
        const QString summary = mSummary->text();
        QVERIFY(summary.contains(QLatin1StringView("\nMember lists of Entity: 2 (Good, Bad)\n")));
        QVERIFY(!summary.contains(QLatin1StringView("Member lists of Account")));
        QVERIFY(summary.endsWith(QLatin1StringView("\nWarnings: 2")));
        QCOMPARE(rows(*mWarnings).size(), 2);
        QVERIFY2(rows(*mWarnings).last().startsWith(QLatin1StringView("alpha.lst, line 13: ")),
                 qPrintable(rows(*mWarnings).last()));
        QVERIFY(mOk->isEnabled());
    }

    void ofManyNamesTheFirstAreTold()
    {
        QByteArray security = "!SECURITY_CLASSES\n";
        for (int i = 1; i <= 11; ++i)
            security += 'C' + QByteArray::number(i) + '\n';
        write("alpha.sec", security.constData());
        open();
        QVERIFY(mSummary->text().contains(QLatin1StringView("\nSecurity classes: 11 (C1, C2, ")));
        QVERIFY(mSummary->text().contains(QLatin1StringView(", C10, ...)\n")));
    }

    void theSummaryCanBeCopied()
    {
        open();
        mSummary->setFocus();
        QTest::keyClick(mSummary, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(mSummary, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), mSummary->text());
    }

    void aLongSummaryIsScrolledWithTheKeyboard()
    {
        open();
        mDialog->resize(mDialog->width(), mDialog->minimumSizeHint().height());
        const QScrollBar *bar =
            mDialog->findChild<QScrollArea *>(QStringLiteral("scrApplicationSummary"))
                ->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 0);
        mSummary->setFocus();
        QTest::keyClick(mSummary, Qt::Key_PageDown);
        QVERIFY(bar->value() > 0);
        QTest::keyClick(mSummary, Qt::Key_PageUp);
        QCOMPARE(bar->value(), 0);
    }

    void warningsHaveAMenuThatCopiesThem()
    {
        open();
        select(1);
        const QList<QAction *> actions = mWarnings->actions();
        QCOMPARE(mWarnings->contextMenuPolicy(), Qt::ActionsContextMenu);
        QCOMPARE(actions.size(), 2);
        QCOMPARE(actions[0]->text(), QStringLiteral("&Copy"));
        QCOMPARE(actions[1]->text(), QStringLiteral("Select &All"));
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
        actions[0]->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
        actions[1]->trigger();
        actions[0]->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), rows(*mWarnings).join(QLatin1Char('\n')));
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

    void setChanged(const char *name, const QDateTime &time)
    {
        QFile file(mCluster->filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    }

    void clickFirstRow(Qt::KeyboardModifiers modifiers)
    {
        const QRect row = mApplications->visualRect(mApplications->model()->index(0, 0));
        QTest::mouseClick(mApplications->viewport(), Qt::LeftButton, modifiers, row.center());
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
