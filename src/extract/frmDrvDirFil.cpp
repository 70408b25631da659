#include "extract/frmDrvDirFil.h"

#include "extract/DriveList.h"
#include "extract/FileList.h"
#include "extract/FileModel.h"
#include "extract/FolderModel.h"
#include "extract/SaveRules.h"
#include "runtime/FileWriter.h"
#include "shell/frmComboWheel.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// Draws the items of a list with an icon before the text.
class IconDelegate final : public QStyledItemDelegate
{
public:
    IconDelegate(const QIcon &icon, QObject *parent) : QStyledItemDelegate(parent), mIcon(icon) {}

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->icon = mIcon;
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = mIcon.actualSize(option->decorationSize);
    }

private:
    QIcon mIcon;
};

} // namespace

frmDrvDirFil::frmDrvDirFil(Services &services, modGlobal &global, QWidget *parent)
    : QDialog(parent), mServices(services), mGlobal(global), mPattern(global.gSaveFilePattern),
      mDrives(DriveList::drives()), mFolders(new FolderModel(this)), mFiles(new FileModel(this))
{
    setObjectName(u"frmDrvDirFil"_s);
    setWindowTitle(u"Tessaly - Save File..."_s);
    setWindowModality(Qt::ApplicationModal);
    setAttribute(Qt::WA_DeleteOnClose);
    makeControls();
    arrangeControls();
    connectControls();
    openFolder(mServices.programFolder);
    mFileName->setFocus();
}

void frmDrvDirFil::WriteToFile()
{
    const QString name = fullFileName();
    writeTextFile(name, mGlobal.gPendingText);
    mServices.prompts.ask(SaveRules::fileSaved(name));
    close();
    // Message box and dialog go almost at once; some window managers then give the keyboard to the
    // dialog that is gone, and nobody has it.
    if (QWidget *owner = parentWidget())
        owner->activateWindow();
}

void frmDrvDirFil::openFolder(const QString &folder)
{
    const QString path = QDir::cleanPath(folder);
    const auto files = filesIn(path);
    if (!files && !mFolder.isEmpty())
        return;
    showDrive(DriveList::driveOf(path, mDrives), path, files.value_or(QStringList()));
}

void frmDrvDirFil::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    mDirbox->scrollTo(mDirbox->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void frmDrvDirFil::keyPressEvent(QKeyEvent *event)
{
    // Enter saves from the name and presses a button; in the lists it would save by surprise.
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && !mFileName->hasFocus())
        event->accept();
    else
        QDialog::keyPressEvent(event);
}

void frmDrvDirFil::makeControls()
{
    const auto prepare = [](auto *control, const QString &name, const QString &accessibleName) {
        control->setObjectName(name);
        control->setAccessibleName(accessibleName);
        return control;
    };
    mDriveBox = prepare(new QComboBox, u"DriveBox"_s, u"Drive"_s);
    new frmComboWheel(mDriveBox);
    mDriveBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    mDriveBox->setMinimumContentsLength(16);
    for (const QString &drive : mDrives)
        mDriveBox->addItem(style()->standardIcon(QStyle::SP_DriveHDIcon),
                           FileList::displayName(drive), drive);

    mDirbox = prepare(new QTreeView, u"Dirbox"_s, u"Folders"_s);
    mDirbox->setModel(mFolders);
    mDirbox->setItemDelegate(new IconDelegate(style()->standardIcon(QStyle::SP_DirIcon), this));
    mDirbox->setHeaderHidden(true);
    mDirbox->header()->setStretchLastSection(false);
    mDirbox->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    mDirbox->setUniformRowHeights(true);

    mFilebox = prepare(new QListView, u"Filebox"_s, u"Files"_s);
    mFilebox->setModel(mFiles);
    mFilebox->setItemDelegate(new IconDelegate(style()->standardIcon(QStyle::SP_FileIcon), this));
    mFilebox->setUniformItemSizes(true);
    const int iconSize = style()->pixelMetric(QStyle::PM_SmallIconSize);
    mFilebox->setIconSize({iconSize, iconSize});

    mFileName = prepare(new QLineEdit, u"txtFileName"_s, u"File Name"_s);
    mSave = prepare(new QPushButton(u"&Save"_s), u"cmdSave"_s, u"Save"_s);
    mSave->setDefault(true);
    mCancel = prepare(new QPushButton(u"Ca&ncel"_s), u"cmdCancel"_s, u"Cancel"_s);
}

void frmDrvDirFil::arrangeControls()
{
    auto *drive = new QWidget;
    auto *driveLayout = new QVBoxLayout(drive);
    driveLayout->setContentsMargins({});
    driveLayout->addWidget(mDriveBox);
    driveLayout->addWidget(mDirbox);

    auto *lists = new QSplitter;
    lists->addWidget(drive);
    lists->addWidget(mFilebox);
    lists->setChildrenCollapsible(false);

    auto *caption = new QLabel(u"File Name: "_s);
    caption->setObjectName(u"lblFileName"_s);
    caption->setBuddy(mFileName);
    auto *name = new QHBoxLayout;
    name->addWidget(caption);
    name->addWidget(mFileName);

    auto *buttons = new QDialogButtonBox;
    buttons->addButton(mSave, QDialogButtonBox::ActionRole);
    buttons->addButton(mCancel, QDialogButtonBox::ActionRole);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lists, 1);
    layout->addLayout(name);
    layout->addWidget(buttons);
    resize(110 * fontMetrics().averageCharWidth(), 28 * fontMetrics().lineSpacing());
}

void frmDrvDirFil::connectControls()
{
    ErrorTrap &trap = mServices.trap;
    trap.connect(mDriveBox, &QComboBox::activated, this, [this] { changeDrive(); });
    trap.connect(mDirbox->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                 [this] { changeFolder(); });
    trap.connect(mFilebox, &QListView::clicked, this, [this] { takeFileName(); });
    trap.connect(mFilebox->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                 [this] { takeFileName(); });
    trap.connect(mSave, &QPushButton::clicked, this, [this] { save(); });
    trap.connect(mCancel, &QPushButton::clicked, this, [this] { close(); });
}

/// Shows a drive's folders with one of them chosen, which is then the folder, and its files.
void frmDrvDirFil::showDrive(const QString &drive, const QString &folder, const QStringList &files)
{
    mDrive = drive;
    mFolder = folder;
    mDriveBox->setCurrentIndex(mDriveBox->findData(drive));
    mFolders->setDrive(drive);
    const QModelIndex index = mFolders->find(folder);
    mDirbox->setCurrentIndex(index);
    mDirbox->expand(index);
    mFiles->setNames(files);
}

void frmDrvDirFil::changeDrive()
{
    const QString drive = mDriveBox->currentData().toString();
    if (const auto files = filesIn(drive))
        showDrive(drive, drive, *files);
    else
        mDriveBox->setCurrentIndex(mDriveBox->findData(mDrive));
}

void frmDrvDirFil::changeFolder()
{
    const QString folder = mFolders->path(mDirbox->selectionModel()->selectedIndexes().value(0));
    if (folder.isEmpty() || folder == mFolder)
        return;
    if (const auto files = filesIn(folder)) {
        mFolder = folder;
        mFiles->setNames(*files);
    } else {
        mDirbox->setCurrentIndex(mFolders->find(mFolder));
    }
}

void frmDrvDirFil::takeFileName()
{
    const QModelIndexList selected = mFilebox->selectionModel()->selectedIndexes();
    if (!selected.isEmpty())
        mFileName->setText(mFiles->name(selected.first()));
}

void frmDrvDirFil::save()
{
    const QString name = mFileName->text();
    Prompts &prompts = mServices.prompts;
    if (SaveRules::lacksListExtension(mGlobal.gSaveMode, name) &&
        prompts.ask(SaveRules::listExtensionWarning()) != Prompts::Answer::Ok)
        return;
    if (SaveRules::fileExists(mFolder, name) &&
        prompts.ask(SaveRules::overwriteQuestion(fullFileName())) != Prompts::Answer::Yes)
        return;
    WriteToFile();
}

/// The files of a folder; nothing where it cannot be read and the user gives up trying.
std::optional<QStringList> frmDrvDirFil::filesIn(const QString &folder)
{
    for (;;) {
        try {
            return FileList::files(folder, mPattern);
        } catch (const RuntimeError &error) {
            if (mServices.prompts.ask(SaveRules::pathError(error)) != Prompts::Answer::Ok)
                return std::nullopt;
        }
    }
}

QString frmDrvDirFil::fullFileName() const
{
    return SaveRules::fullFileName(mFolder, mFileName->text());
}
