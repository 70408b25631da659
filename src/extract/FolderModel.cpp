#include "extract/FolderModel.h"

#include "extract/DriveList.h"
#include "extract/FileList.h"
#include "runtime/RuntimeError.h"

#include <algorithm>

FolderModel::FolderModel(QObject *parent) : QAbstractItemModel(parent)
{
}

FolderModel::~FolderModel() = default;

void FolderModel::setDrive(const QString &path)
{
    beginResetModel();
    mDrive = std::make_unique<Folder>();
    mDrive->name = path;
    endResetModel();
}

QModelIndex FolderModel::find(const QString &folder)
{
    if (!mDrive || !DriveList::isOnDrive(folder, mDrive->name))
        return {};
    Folder *found = mDrive.get();
    const QString below = folder.mid(mDrive->name.size());
    for (const QString &name : below.split(u'/', Qt::SkipEmptyParts))
        found = within(found, name);
    return indexOf(found);
}

QString FolderModel::path(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    QStringList names;
    const Folder *folder = folderAt(index);
    for (; folder->above; folder = folder->above)
        names.prepend(folder->name);
    if (names.isEmpty())
        return folder->name;
    const QString separator = folder->name.endsWith(u'/') ? QString() : QStringLiteral("/");
    return folder->name + separator + names.join(u'/');
}

QModelIndex FolderModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    if (!parent.isValid())
        return createIndex(row, column, mDrive.get());
    return createIndex(row, column, folderAt(parent)->within[size_t(row)].get());
}

QModelIndex FolderModel::parent(const QModelIndex &index) const
{
    return index.isValid() ? indexOf(folderAt(index)->above) : QModelIndex();
}

int FolderModel::rowCount(const QModelIndex &parent) const
{
    if (parent.column() > 0)
        return 0;
    if (!parent.isValid())
        return mDrive ? 1 : 0;
    return int(folderAt(parent)->within.size());
}

int FolderModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant FolderModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return FileList::displayName(folderAt(index)->name);
}

bool FolderModel::hasChildren(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return bool(mDrive);
    return !folderAt(parent)->isRead || rowCount(parent) > 0;
}

bool FolderModel::canFetchMore(const QModelIndex &parent) const
{
    return parent.isValid() && !folderAt(parent)->isRead;
}

void FolderModel::fetchMore(const QModelIndex &parent)
{
    if (!canFetchMore(parent))
        return;
    Folder *folder = folderAt(parent);
    folder->isRead = true;
    add(folder, namesWithin(folder));
}

FolderModel::Folder *FolderModel::folderAt(const QModelIndex &index) const
{
    return static_cast<Folder *>(index.internalPointer());
}

QModelIndex FolderModel::indexOf(Folder *folder) const
{
    return folder ? createIndex(folder->row, 0, folder) : QModelIndex();
}

QStringList FolderModel::namesWithin(Folder *folder) const
{
    try {
        return FileList::folders(path(indexOf(folder)));
    } catch (const RuntimeError &) {
        return {};
    }
}

FolderModel::Folder *FolderModel::within(Folder *folder, const QString &name)
{
    fetchMore(indexOf(folder));
    const auto isNamed = [&name](const auto &candidate) { return candidate->name == name; };
    const auto found = std::find_if(folder->within.begin(), folder->within.end(), isNamed);
    if (found != folder->within.end())
        return found->get();
    add(folder, {name});
    return folder->within.back().get();
}

void FolderModel::add(Folder *folder, const QStringList &names)
{
    const QModelIndex parent = indexOf(folder);
    if (names.isEmpty()) {
        // Views learn that there is nothing to open.
        Q_EMIT layoutChanged({parent});
        return;
    }
    const int first = int(folder->within.size());
    beginInsertRows(parent, first, first + int(names.size()) - 1);
    for (const QString &name : names) {
        auto added = std::make_unique<Folder>();
        added->name = name;
        added->above = folder;
        added->row = int(folder->within.size());
        folder->within.push_back(std::move(added));
    }
    endInsertRows();
}
