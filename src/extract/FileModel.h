#pragma once

#include <QAbstractListModel>
#include <QStringList>

/// The files of a folder, one row a file.
class FileModel final : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    void setNames(const QStringList &names);
    /// The file's name as the file system has it; empty for an invalid index.
    QString name(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QStringList mNames;
};
