#include "extract/DriveList.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_DriveList : public QObject
{
    Q_OBJECT

private:
    const QStringList mDrives = {u"/"_s, u"/home/jane"_s, u"/media/stick"_s};

private Q_SLOTS:
    void theRootAndTheHomeFolderComeFirstAndNoneTwice()
    {
        QStringList drives = DriveList::drives();
        QCOMPARE(drives.value(0), u"/"_s);
        QCOMPARE(drives.value(1), QDir::homePath());
        QCOMPARE(drives.removeDuplicates(), 0);
        QStringList volumes = drives.mid(2);
        volumes.sort();
        QCOMPARE(volumes, drives.mid(2));
    }

    void aFolderIsOnTheLongestDriveThatHoldsIt()
    {
        QCOMPARE(DriveList::driveOf(u"/home/jane/lists"_s, mDrives), u"/home/jane"_s);
        QCOMPARE(DriveList::driveOf(u"/home/jane"_s, mDrives), u"/home/jane"_s);
        QCOMPARE(DriveList::driveOf(u"/media/stick/x/y"_s, mDrives), u"/media/stick"_s);
        QCOMPARE(DriveList::driveOf(u"/etc"_s, mDrives), u"/"_s);
        QCOMPARE(DriveList::driveOf(u"/"_s, mDrives), u"/"_s);
    }

    void aFolderWhoseNameOnlyBeginsLikeADriveIsNotOnIt()
    {
        QCOMPARE(DriveList::driveOf(u"/home/janet"_s, mDrives), u"/"_s);
        QVERIFY(!DriveList::isOnDrive(u"/home/janet"_s, u"/home/jane"_s));
    }
};

QTEST_APPLESS_MAIN(tst_DriveList)
#include "tst_DriveList.moc"
