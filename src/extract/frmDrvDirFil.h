#pragma once

#include "shell/modGlobal.h"
#include "shell/Services.h"

#include <QDialog>

#include <optional>

class FileModel;
class FolderModel;
class QComboBox;
class QLineEdit;
class QListView;
class QPushButton;
class QTreeView;

/// The save-file dialog: saves gPendingText to a file of the user's choice. The caller sets
/// gPendingText, gSaveFilePattern and gSaveMode, makes the dialog and shows it; it is modal over
/// its parent and deletes itself when it is closed.
class frmDrvDirFil final : public QDialog
{
    Q_OBJECT

public:
    /// The dialog opens on the program's own folder.
    frmDrvDirFil(Services &services, modGlobal &global, QWidget *parent = nullptr);

    /// Writes gPendingText to the chosen file, says so and closes the dialog. Fails as
    /// writeTextFile() does; the dialog stays open then.
    void WriteToFile();

    /// The folder whose files are listed.
    QString folder() const { return mFolder; }
    /// Goes to a folder, and to its drive.
    void openFolder(const QString &folder);

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeControls();
    void arrangeControls();
    void connectControls();

    void showDrive(const QString &drive, const QString &folder, const QStringList &files);
    void changeDrive();
    void changeFolder();
    void takeFileName();
    void save();
    std::optional<QStringList> filesIn(const QString &folder);
    QString fullFileName() const;

    Services &mServices;
    modGlobal &mGlobal;
    const QString mPattern;
    const QStringList mDrives;
    QString mDrive;
    QString mFolder;

    FolderModel *mFolders;
    FileModel *mFiles;
    QComboBox *mDriveBox;
    QTreeView *mDirbox;
    QListView *mFilebox;
    QLineEdit *mFileName;
    QPushButton *mSave;
    QPushButton *mCancel;
};
