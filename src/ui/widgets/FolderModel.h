// FolderModel: folders, and files where asked for, as a tree model. Each folder is read once it is opened, in one go:
// five thousand names take a few hundredths of a second. Folders come first, then by name, numbers by their value;
// hidden ones are left out. The folders that are open follow the disk.
#pragma once
#include <QAbstractItemModel>
#include <QFileSystemWatcher>
#include <QIcon>
#include <QSet>
#include <QTimer>
#include <memory>
#include <vector>

namespace velara {

class ThumbnailIcons;

class FolderModel : public QAbstractItemModel {
  public:
    explicit FolderModel(bool withFiles, QObject* parent = nullptr);
    ~FolderModel() override;

    /// The item of a path; reads the folders on the way, and shows a hidden one that is asked for. Where it isn't on
    /// the disk, the nearest folder above it.
    QModelIndex indexOf(const QString& path);
    QString path(const QModelIndex& index) const;
    bool isFolder(const QModelIndex& index) const;

    /// Files that are pictures get these in place of the plain icon. icons lives as long as the model.
    void setThumbnails(ThumbnailIcons& icons);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    struct Item;
    using Items = std::vector<std::unique_ptr<Item>>;

    Item* itemOf(const QModelIndex& index) const;
    QModelIndex indexOf(const Item& item) const;
    Item* find(const QString& path) const;
    Item* child(Item& folder, const QString& name);
    Items read(const QString& folder) const;
    void take(Item& folder, Items items);
    void drop(Item& folder, int first, int last);
    void followDisk();

    bool withFiles_;
    ThumbnailIcons* thumbnails_ = nullptr;
    QIcon folderIcon_, fileIcon_;
    std::unique_ptr<Item> root_;
    QFileSystemWatcher watcher_;
    QSet<QString> changed_; // folders to be read again
    QTimer pause_;          // many changes are one
};

} // namespace velara
