#include "extract/FolderModel.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_FolderModel : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> mDrive;
    std::unique_ptr<FolderModel> mModel;

    QString below(const QString &path) const { return mDrive->filePath(path); }

    /// The folders that the model has read so far, one a line, indented below the one above.
    QString printed(const QModelIndex &parent = {}, int depth = 0) const
    {
        QString text;
        for (int row = 0; row < mModel->rowCount(parent); ++row) {
            const QModelIndex index = mModel->index(row, 0, parent);
            if (depth > 0)
                text += QString(depth - 1, u' ') + index.data().toString() + u'\n';
            text += printed(index, depth + 1);
        }
        return text;
    }

private Q_SLOTS:
    void init()
    {
        mDrive = std::make_unique<QTemporaryDir>();
        for (const QString &folder : {u"b/inner/deep"_s, u"A"_s, u"c d"_s})
            QVERIFY(QDir(mDrive->path()).mkpath(folder));
        mModel = std::make_unique<FolderModel>();
        mModel->setDrive(mDrive->path());
    }

    void aDriveStandsAloneUntilItIsOpened()
    {
        QCOMPARE(mModel->rowCount(), 1);
        const QModelIndex drive = mModel->index(0, 0);
        QCOMPARE(drive.data().toString(), mDrive->path());
        QCOMPARE(mModel->rowCount(drive), 0);
        QVERIFY(mModel->hasChildren(drive));
        QVERIFY(mModel->canFetchMore(drive));
        QCOMPARE(FolderModel().rowCount(), 0);
    }

    void anOpenedFolderShowsTheFoldersWithinAlphabetically()
    {
        mModel->fetchMore(mModel->index(0, 0));
        QCOMPARE(printed(), u"A\nb\nc d\n"_s);
        QVERIFY(!mModel->canFetchMore(mModel->index(0, 0)));
    }

    void aFolderIsFoundWithTheFoldersAboveItRead()
    {
        const QModelIndex index = mModel->find(below(u"b/inner/deep"_s));
        QVERIFY(index.isValid());
        QCOMPARE(index.data().toString(), u"deep"_s);
        QCOMPARE(mModel->path(index), below(u"b/inner/deep"_s));
        QCOMPARE(printed(), u"A\nb\n inner\n  deep\nc d\n"_s);
    }

    void theDriveItselfIsFound()
    {
        QCOMPARE(mModel->find(mDrive->path()), mModel->index(0, 0));
        QCOMPARE(mModel->path(mModel->index(0, 0)), mDrive->path());
    }

    void aFolderOfARootHasOneSeparator()
    {
        mModel->setDrive(u"/"_s);
        QCOMPARE(mModel->path(mModel->find(u"/nowhere"_s)), u"/nowhere"_s);
        QCOMPARE(mModel->path(mModel->find(u"/"_s)), u"/"_s);
    }

    void aFolderThatIsNotListedIsAdded()
    {
        const QModelIndex index = mModel->find(below(u"hidden/below"_s));
        QCOMPARE(mModel->path(index), below(u"hidden/below"_s));
    }

    void aFolderOfAnotherDriveIsNotFound()
    {
        QVERIFY(!mModel->find(u"/nowhere"_s).isValid());
        QVERIFY(!mModel->find(mDrive->path() + u"x"_s).isValid());
        QVERIFY(!FolderModel().find(u"/"_s).isValid());
        QCOMPARE(mModel->path({}), QString());
    }

    void aFolderWithoutFoldersHasNothingToOpenOnceRead()
    {
        const QModelIndex index = mModel->find(below(u"A"_s));
        QVERIFY(mModel->hasChildren(index));
        QSignalSpy changed(mModel.get(), &QAbstractItemModel::layoutChanged);
        mModel->fetchMore(index);
        QVERIFY(!mModel->hasChildren(index));
        QCOMPARE(changed.count(), 1);
    }

    void aFolderThatCannotBeReadShowsNoFolders()
    {
        const QModelIndex index = mModel->find(below(u"A"_s));
        QVERIFY(QDir(below(u"A"_s)).removeRecursively());
        mModel->fetchMore(index);
        QCOMPARE(mModel->rowCount(index), 0);
        QVERIFY(!mModel->hasChildren(index));
    }

    void namesAreShownOnOneLineAndKeptAsTheyAre()
    {
        const QString odd = u"two\nlines & <b>more"_s;
        QVERIFY(QDir(mDrive->path()).mkdir(odd));
        const QModelIndex index = mModel->find(below(odd));
        QCOMPARE(index.data().toString(), u"two␊lines & <b>more"_s);
        QCOMPARE(mModel->path(index), below(odd));
    }

    void itIsAModelOnceAllIsRead()
    {
        // The tester reads what is unread from within the signals of a reading, which no view does.
        for (const QString &folder : {u"b/inner/deep"_s, u"A"_s, u"c d"_s})
            mModel->fetchMore(mModel->find(below(folder)));
        const QString all = printed();
        QAbstractItemModelTester(mModel.get(),
                                 QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(printed(), all);
    }

    void nothingLiesPastTheEnd()
    {
        const QModelIndex drive = mModel->index(0, 0);
        mModel->fetchMore(drive);
        QVERIFY(!mModel->index(1, 0).isValid());
        QVERIFY(!mModel->index(0, 1).isValid());
        QVERIFY(!mModel->index(3, 0, drive).isValid());
        QVERIFY(!mModel->index(-1, 0, drive).isValid());
        for (int row = 0; row < 3; ++row) {
            QCOMPARE(mModel->index(row, 0, drive).row(), row);
            QCOMPARE(mModel->parent(mModel->index(row, 0, drive)), drive);
        }
    }

    void aNewDriveReplacesTheTree()
    {
        mModel->fetchMore(mModel->index(0, 0));
        mModel->setDrive(below(u"b"_s));
        mModel->fetchMore(mModel->index(0, 0));
        QCOMPARE(printed(), u"inner\n"_s);
    }
};

QTEST_GUILESS_MAIN(tst_FolderModel)
#include "tst_FolderModel.moc"
