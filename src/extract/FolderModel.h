#pragma once

#include <QAbstractItemModel>

#include <memory>
#include <vector>

/// The folders of one drive as a tree below the drive's own folder. A folder is read when it is
/// first opened; one that cannot be read shows no folders within.
class FolderModel final : public QAbstractItemModel
{
public:
    explicit FolderModel(QObject *parent = nullptr);
    ~FolderModel() override;

    /// Replaces the tree by that of another drive; its folder stands alone and is not yet read.
    void setDrive(const QString &path);
    /// The place of a folder, with the folders above it read as needed; one that they do not list
    /// is added. Invalid for a folder that is not on the drive.
    QModelIndex find(const QString &folder);
    /// The path of a folder, without a separator at its end unless it is a root.
    QString path(const QModelIndex &index) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool hasChildren(const QModelIndex &parent) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

private:
    struct Folder
    {
        QString name; ///< of the drive's own folder its path
        Folder *above = nullptr;
        int row = 0;
        bool isRead = false;
        std::vector<std::unique_ptr<Folder>> within;
    };

    Folder *folderAt(const QModelIndex &index) const;
    QModelIndex indexOf(Folder *folder) const;
    QStringList namesWithin(Folder *folder) const;
    Folder *within(Folder *folder, const QString &name);
    void add(Folder *folder, const QStringList &names);

    std::unique_ptr<Folder> mDrive;
};
